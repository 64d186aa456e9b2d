#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# The shell conventions of Quillmere's command lines, one case per run.
#
#   cli_conventions_check.py CASE FORECAST LOG SOURCE_DIR
#
# Cases:
#   version      -V prints what --version prints, for both programs
#   no-command   run without a command, each program names every command its --help lists
#   entry-help   ./quillmere --help prints the usage and exits 0
#   runtime-dir  without XDG_RUNTIME_DIR, nothing but the output reaches stdout and stderr
#   streaming    a century of days as CSV peaks under a memory bound
import os
import re
import resource
import subprocess
import sys
import tempfile

CENTURY = ["days", "--from", "2000-01-01", "--days", "36525", "--lon", "92.42W", "--lat",
           "31.25N", "--zone", "6", "--format", "csv"]
# A century of CSV is about 60 MB; the program with Qt loaded takes about 20 MB.
PEAK_LIMIT_KB = 40 * 1024


def run(args, **kw):
    return subprocess.run(args, capture_output=True, text=True, timeout=120, **kw)


def commands_of(help_text):
    # The command words of the help's Commands block (paragraphs start at two spaces).
    return re.findall(r"^  (\w+)\s", help_text.split("\nCommands:\n")[1], re.M)


def check_version(programs, _):
    for p in programs:
        long, short = run([p, "--version"]), run([p, "-V"])
        assert long.returncode == short.returncode == 0 and short.stdout == long.stdout and \
            short.stdout.strip(), (p, long, short)


def check_no_command(programs, _):
    for p in programs:
        r = run([p])
        assert r.returncode == 2 and r.stdout == "", (p, r)
        assert len(r.stderr.splitlines()) == 1, r.stderr
        names = commands_of(run([p, "--help"]).stdout)
        assert len(names) >= 3, names
        missing = [n for n in names if not re.search(rf"\b{n}\b", r.stderr)]
        assert not missing, (p, r.stderr, missing)


def check_entry_help(_, source):
    r = run([os.path.join(source, "quillmere"), "--help"])
    assert r.returncode == 0 and r.stdout.startswith("usage: ./quillmere"), r
    for word in ("run", "test", "install", "uninstall", "package"):
        assert re.search(rf"^  {word}\b", r.stdout, re.M), word


def check_runtime_dir(programs, _):
    forecast, log = programs
    env = {k: v for k, v in os.environ.items() if k != "XDG_RUNTIME_DIR"}
    with tempfile.TemporaryDirectory() as work:
        env.update(HOME=work, XDG_CONFIG_HOME=work, QUILLMERE_HOME=work)
        pdf = os.path.join(work, "p.pdf")
        for args in ([forecast, "month", "--year", "2024", "--month", "2", "--pdf", pdf],
                     [forecast, "days", "--from", "2024-01-01"], [log, "list"]):
            r = run(args, env=env)
            assert r.returncode == 0 and r.stderr == "", (args, r.stderr)


def check_streaming(programs, _):
    with open(os.devnull, "w") as sink:
        subprocess.run([programs[0]] + CENTURY, stdout=sink, check=True, timeout=300)
    peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
    assert peak < PEAK_LIMIT_KB, f"peak {peak} kB"
    print(f"peak {peak} kB")


CASES = {"version": check_version, "no-command": check_no_command, "entry-help": check_entry_help,
         "runtime-dir": check_runtime_dir, "streaming": check_streaming}

if __name__ == "__main__":
    if len(sys.argv) != 5 or sys.argv[1] not in CASES:
        sys.exit("usage: cli_conventions_check.py CASE FORECAST LOG SOURCE_DIR")
    CASES[sys.argv[1]](sys.argv[2:4], sys.argv[4])
