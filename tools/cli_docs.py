#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A program's manual page and its bash and zsh completions, made from its --help text, so
none can drift from what the program says of itself.

  cli_docs.py man PROGRAM VERSION OUT.1            the help of `PROGRAM --help`
  cli_docs.py man --text HELP.txt VERSION OUT.1    a help text kept in a file
  cli_docs.py bash PROGRAM OUT                     a bash completion for PROGRAM
  cli_docs.py zsh PROGRAM OUT                      a zsh completion for PROGRAM (_PROGRAM)

The help's layout: a first line "name: what it is", blocks under headings ending in ':',
each item two spaces in ("  term   what it does", longer descriptions on deeper-indented
lines), plain paragraphs at the margin.  Usage and Examples blocks are kept line for line.
"""
import os
import re
import subprocess
import sys

VERBATIM = {"Usage", "Examples"}
OPTION = re.compile(r"(?<![\w-])(--?[A-Za-z][\w-]*)")


def help_of(program):
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    return subprocess.run([program, "--help"], capture_output=True, text=True, check=True,
                           env=env).stdout


def blocks(text):
    """[(heading or None, [lines])] in order; the first line is left out."""
    out = [(None, [])]
    for line in text.splitlines()[1:]:
        if re.match(r"^\w.*:$", line):
            out.append((line[:-1], []))
        elif not line.strip():
            if out[-1][1]:
                out.append((None, []))
        else:
            out[-1][1].append(line)
    return [b for b in out if b[1] or b[0]]


def items(lines, one_word=False):
    """Two-column items: [(term, description)]; a command's term is its one word."""
    gap = r"\s+" if one_word else r"\s{2,}"
    found = []
    for line in lines:
        item = re.match(rf"^  (\S.*?)(?:{gap}(\S.*))?$", line)
        if item:
            found.append([item.group(1), item.group(2) or ""])
        elif found:
            found[-1][1] = (found[-1][1] + " " + line.strip()).strip()
    return found


def roff(text, options=True):
    text = text.replace("\\", "\\e")
    if options:
        text = OPTION.sub(lambda m: m.group(1).replace("-", "\\-"), text)
    return re.sub(r"^([.'])", r"\\&\1", text)


def man_page(help_text, version):
    name, _, what = help_text.splitlines()[0].partition(": ")
    out = [f'.TH {name.upper()} 1 "" "Quillmere {version}" "User Commands"',
           ".SH NAME", f"{roff(name)} \\- {roff(what.rstrip('.'))}"]
    for heading, lines in blocks(help_text):
        if heading:
            title, _, note = heading.partition(" (")
            out.append(".SH " + ("SYNOPSIS" if title == "Usage" else title.upper()))
            if note:
                out += [".PP", roff(note.rstrip(")")[:1].upper() + note.rstrip(")")[1:] + ".")]
        if heading and heading.split(" (")[0] in VERBATIM:
            out += [".nf"] + [roff(l[2:]) for l in lines] + [".fi"]
        elif lines and lines[0].startswith("  "):
            for term, description in items(lines, heading == "Commands"):
                out += [".TP", f"\\fB{roff(term)}\\fR", roff(description)]
        elif lines:
            out += [".PP", roff(" ".join(l.strip() for l in lines))]
    return "\n".join(out) + "\n"


def command_usages(help_text, program):
    """{command: the words of its usage line(s)}; continuation lines join their command."""
    usages, last = {}, None
    usage = next(lines for heading, lines in blocks(help_text) if heading == "Usage")
    for line in usage:
        words = line.split()
        if words[0] == program and len(words) > 1 and re.match(r"^\w", words[1]):
            last = words[1]
            usages[last] = words[2:]
        elif words[0] != program and last:
            usages[last] += words
    return usages


def section_options(help_text, title):
    for heading, lines in blocks(help_text):
        if heading and heading.startswith(title):
            return sorted({o for term, _ in items(lines) for o in OPTION.findall(term)})
    return []


def takes_value(word, following):
    """Whether an option written as `word following` in the help takes a value."""
    return bool(following) and not following.strip("[]").startswith("-") and (
        following.strip("[]")[:1].isupper() or "|" in following or following[:1].isdigit())


def completion_model(help_text, program):
    """What a shell completes, from the help: the first words, each command's options, the
    option values it names, the options taking a file or another value, and the commands that
    take files."""
    usages = command_usages(help_text, program)
    groups = {"LOCATION": section_options(help_text, "Location"),
              "CONDITIONS": section_options(help_text, "Conditions")}
    options, choices, file_values, file_commands, valued = {}, {}, [], [], set()
    for command, words in usages.items():
        own = {"--help"}
        for i, word in enumerate(words):
            bare = word.strip("[]")
            following = words[i + 1].strip("[]") if i + 1 < len(words) else ""
            for opt in OPTION.findall(bare):
                own.add(opt)
                if takes_value(bare, following):
                    valued.add(opt)
                    if "|" in following:
                        choices[f"{command} {opt}"] = following.replace("|", " ")
                    elif following.startswith("FILE"):
                        file_values.append(f'"{command} {opt}"')
            own.update(groups.get(bare, []))
            if bare.startswith("FILE") and not words[i - 1].strip("[]").startswith("-"):
                file_commands.append(command)
        options[command] = sorted(own)
    # The grouped options' values are named in their blocks: "--months M-M", "--lon 92.42W".
    for heading, lines in blocks(help_text):
        if heading and heading.split(" (")[0] in ("Location", "Conditions"):
            for term, _ in items(lines):
                words = term.split()
                valued.update(w for i, w in enumerate(words) if OPTION.fullmatch(w) and
                              takes_value(w, words[i + 1] if i + 1 < len(words) else ""))
    return {"program": program, "function": "_" + re.sub(r"\W", "_", program),
            "top": sorted(usages) + ["--help", "--version", "-V"], "options": options,
            "choices": choices, "file_values": file_values, "file_commands": file_commands,
            "valued": sorted(valued)}


def bash_completion(m):
    lines = [f"# bash completion for {m['program']}, made from its --help by tools/cli_docs.py",
             f"{m['function']}() {{",
             "  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} words=",
             '  if [ "$COMP_CWORD" -eq 1 ]; then',
             f'    COMPREPLY=($(compgen -W "{" ".join(m["top"])}" -- "$cur"))',
             "    return",
             "  fi",
             "  local command=${COMP_WORDS[1]}",
             '  case "$command $prev" in']
    lines += [f'    "{key}") words="{values}" ;;' for key, values in m["choices"].items()]
    if m["file_values"]:
        lines.append(f'    {"|".join(m["file_values"])}) COMPREPLY=($(compgen -f -- "$cur")); return ;;')
    if m["valued"]:
        lines.append(f'    {"|".join(f"*{chr(34)} {o}{chr(34)}" for o in m["valued"])}) return ;;')
    lines += ["    *)", '      case "$command" in']
    lines += [f'        {c}) words="{" ".join(o)}" ;;' for c, o in sorted(m["options"].items())]
    lines += ["      esac ;;", "  esac", '  COMPREPLY=($(compgen -W "$words" -- "$cur"))']
    if m["file_commands"]:
        lines += [f'  case "$command" in {"|".join(m["file_commands"])})',
                  '    [[ $cur != -* ]] && COMPREPLY+=($(compgen -f -- "$cur")) ;;', "  esac"]
    lines += ["}", f"complete -F {m['function']} {m['program']}", ""]
    return "\n".join(lines)


def zsh_completion(m):
    """The same choices as bash's, for zsh's completion system (compadd filters by what is
    typed)."""
    lines = [f"#compdef {m['program']}",
             f"# zsh completion for {m['program']}, made from its --help by tools/cli_docs.py",
             f"{m['function']}() {{",
             "  local cur=${words[CURRENT]} prev=${words[CURRENT-1]}",
             "  local -a offer",
             "  if (( CURRENT == 2 )); then",
             f"    compadd -- {' '.join(m['top'])}",
             "    return",
             "  fi",
             "  local command=${words[2]}",
             '  case "$command $prev" in']
    lines += [f'    "{key}") compadd -- {values}; return ;;' for key, values in m["choices"].items()]
    if m["file_values"]:
        lines.append(f'    {"|".join(m["file_values"])}) _files; return ;;')
    if m["valued"]:
        lines.append(f'    {"|".join(f"*{chr(34)} {o}{chr(34)}" for o in m["valued"])}) return ;;')
    lines += ["  esac", '  case "$command" in']
    lines += [f'    {c}) offer=({" ".join(o)}) ;;' for c, o in sorted(m["options"].items())]
    lines += ["  esac", "  compadd -- $offer"]
    if m["file_commands"]:
        lines += [f'  case "$command" in {"|".join(m["file_commands"])})',
                  "    [[ $cur == -* ]] || _files ;;", "  esac"]
    lines += ["}", f'{m["function"]} "$@"', ""]
    return "\n".join(lines)


def main(argv):
    if len(argv) >= 4 and argv[0] == "man":
        text = open(argv[2]).read() if argv[1] == "--text" else help_of(argv[1])
        version, out = argv[-2:]
        open(out, "w").write(man_page(text, version))
    elif len(argv) == 3 and argv[0] in ("bash", "zsh"):
        model = completion_model(help_of(argv[1]), os.path.basename(argv[1]))
        make = bash_completion if argv[0] == "bash" else zsh_completion
        open(argv[2], "w").write(make(model))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
