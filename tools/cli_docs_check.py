#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks what tools/cli_docs.py made:
#   cli_docs_check.py manuals MAN_DIR: every page renders through man (and so groff) without
#       a warning of any kind, with its sections;
#   cli_docs_check.py completion COMPLETION_DIR PROGRAM...: bash and zsh offer every command
#       and every option the program's --help names, and each command's own options after it.
import glob
import os
import re
import subprocess
import sys

OPTION = re.compile(r"(?<![\w-])(--[a-z][\w-]*|-V)\b")


def check_manuals(man_dir):
    pages = sorted(glob.glob(os.path.join(man_dir, "*.1")))
    assert len(pages) == 3, pages
    for page in pages:
        shown = subprocess.run(["man", "--warnings=w", "-l", page], capture_output=True, text=True,
                               env=dict(os.environ, MANWIDTH="80"))
        assert shown.returncode == 0 and not shown.stderr, (page, shown.stderr)
        for section in ("NAME", "SYNOPSIS", "OPTIONS"):
            assert re.search(rf"^{section}$", shown.stdout, re.M), (page, section)


def offered_bash(completion_dir, program, words):
    # What bash offers after `program words...` (the last word is the one being typed).
    script = (f'source "$0"; COMP_WORDS=({program} "$@"); COMP_CWORD={len(words)}; '
              f'_{re.sub(r"[^A-Za-z0-9]", "_", program)}; printf "%s\\n" "${{COMPREPLY[@]}}"')
    out = subprocess.run(["bash", "-c", script, os.path.join(completion_dir, program)] + words,
                         capture_output=True, text=True, check=True).stdout
    return set(out.split())


def offered_zsh(completion_dir, program, words):
    # What zsh's completion adds after `program words...`, kept to those that begin with the
    # word being typed as zsh keeps them; compadd and _files print what they are given.
    script = ('compadd() { while [[ $1 != -- ]]; do shift; done; shift; print -l -- "$@"; }; '
              '_files() { print -- "<files>"; }; words=("$@"); CURRENT=$#; source "$0"')
    completion = os.path.join(completion_dir, "zsh", "_" + program)
    out = subprocess.run(["zsh", "-f", "-c", script, completion, program] + words,
                         capture_output=True, text=True, check=True).stdout
    return {w for w in out.split() if w.startswith(words[-1])}


def check_shell(offered, completion_dir, programs):
    for path in programs:
        program = os.path.basename(path)
        help_text = subprocess.run([path, "--help"], capture_output=True, text=True).stdout
        commands = re.findall(r"^  (\w+)\s", help_text.split("\nCommands:\n")[1], re.M)
        top = offered(completion_dir, program, [""])
        assert set(commands) | {"--help", "--version", "-V"} <= top, (program, top)
        everything = set(top)
        for command in commands:
            own = offered(completion_dir, program, [command, "--"])
            usage = [l for l in help_text.splitlines() if l.startswith(f"  {program} {command} ")]
            named = {o for l in usage for o in OPTION.findall(l)}
            assert named <= own, (program, command, named - own)
            everything |= own
        missing = set(OPTION.findall(help_text)) - everything
        assert not missing, (program, sorted(missing))
    # A closed set of values is offered after its option.
    assert offered(completion_dir, "quillmere-forecast",
                   ["days", "--format", ""]) == {"text", "csv", "json", "ics"}


if __name__ == "__main__":
    if len(sys.argv) == 3 and sys.argv[1] == "manuals":
        check_manuals(sys.argv[2])
    elif len(sys.argv) >= 4 and sys.argv[1] == "completion":
        for shell in (offered_bash, offered_zsh):
            check_shell(shell, sys.argv[2], sys.argv[3:])
    else:
        sys.exit("usage: cli_docs_check.py manuals MAN_DIR | completion COMPLETION_DIR PROGRAM...")
