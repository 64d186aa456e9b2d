#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Applies each fault of tools/faults.ini alone, builds, runs the tests that can see it and
prints which of them catch it. The faulty file always gets its original bytes back.

    python3 tools/faults.py [--build DIR] [--only ID,ID] [--column NAME] [--list]

A test is skipped for a fault only when its command names build programs and neither they nor
the build files whose paths are compiled into them (a program they start, a database they read)
changed in the fault's build; tests naming no build program always run. Tests failing with no
fault are left out of the judgement. --column NAME writes the results as the column NAME of
tools/fault-table.md, keeping its other columns.
"""
import argparse
import configparser
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import time
import xml.etree.ElementTree as ET
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LIST, TABLE = ROOT / 'tools' / 'faults.ini', ROOT / 'tools' / 'fault-table.md'
CTEST = ['ctest', '-j3', '--timeout', '180']
SHOWN_NAMES = 3


def run(command, cwd=ROOT):
    """Runs a command in a process group of its own, which is ended when the run is stopped."""
    with subprocess.Popen(command, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          text=True, start_new_session=True) as process:
        try:
            out, err = process.communicate()
        except BaseException:
            os.killpg(process.pid, signal.SIGKILL)
            raise
    return subprocess.CompletedProcess(command, process.returncode, out, err)


def build(folder):
    if not (folder / 'CMakeCache.txt').exists():
        launcher = ['-DCMAKE_CXX_COMPILER_LAUNCHER=ccache'] if shutil.which('ccache') else []
        # The benchmarks are left out: no test runs them.
        run(['cmake', '-S', '.', '-B', str(folder), '-DQUILLMERE_WERROR=ON',
             '-DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON'] + launcher)
    result = run(['cmake', '--build', str(folder), '-j2'])
    return result.returncode == 0, result.stdout + result.stderr


def build_times(folder, also=()):
    """Every executable file of the build folder, and the files `also`, with their times."""
    paths = [os.path.join(d, f) for d, _, files in os.walk(folder) for f in files]
    paths = {os.path.realpath(p) for p in paths if os.access(p, os.X_OK) and not os.path.islink(p)}
    return {p: os.stat(p).st_mtime_ns for p in paths.union(also) if os.path.exists(p)}


def programs_seen(folder, programs):
    """Each test's name and the build files it runs: the programs its command names, and the
    files whose paths are compiled into these (a test program starting quillmere-log, the
    city database a test reads)."""
    shown = json.loads(run(['ctest', '--show-only=json-v1'], cwd=folder).stdout)
    # Paths compiled in as 8-bit strings or, through QStringLiteral, as UTF-16.
    inside = [(re.compile(re.escape(str(folder).encode(code)) + tail), code)
              for code, tail in (('utf-8', rb'[^\0\s"]*'), ('utf-16-le', rb'(?:[^\0\s"]\0)*'))]

    def started_by(program):
        data = Path(program).read_bytes()
        paths = {os.path.realpath(p.decode(code)) for r, code in inside for p in r.findall(data)}
        return {p for p in paths if os.path.isfile(p)}

    tests = {}
    for test in shown['tests']:
        words = re.split(r'''[\s'";|&()<>=]+''', ' '.join(test.get('command', [])))
        named = {os.path.realpath(w) for w in words if w.startswith('/')} & programs.keys()
        tests[test['name']] = named.union(*(started_by(p) for p in named))
    return tests


def run_tests(folder, names):
    """Runs the named tests (by number, as the list is in ctest's order); the failed ones."""
    numbers = [i + 1 for i, name in enumerate(names) if names[name]]
    chosen, junit = folder / 'faults-tests.txt', folder / 'faults-junit.xml'
    # ctest -I: start, end, stride, then single numbers; an empty start or end means all.
    chosen.write_text(f"{numbers[0]},{numbers[0]},1,{','.join(map(str, numbers))}\n")
    junit.unlink(missing_ok=True)
    run(CTEST + ['-I', str(chosen), '--output-junit', str(junit)], cwd=folder)
    cases = ET.parse(junit).getroot().iter('testcase')
    return len(numbers), {c.get('name') for c in cases if c.get('status') == 'fail'}


def try_fault(fault, folder, clean, seen, broken):
    """Applies one fault, builds, runs the tests that can see it; the failed tests or why not."""
    path = ROOT / fault['file']
    if run(['git', 'status', '--porcelain', '--', fault['file']]).stdout.strip():
        return 'does not apply (the file has uncommitted changes)'
    original = path.read_bytes()
    # A run of blanks in `find` also matches a line break and the next line's indent.
    find = re.compile(r'\s+'.join(map(re.escape, fault['find'].split())))
    text = original.decode()
    if len(find.findall(text)) != 1:
        return 'does not apply'
    try:
        path.write_bytes(find.sub(lambda _: fault['replace'], text).encode())
        built, log = build(folder)
        if not built:
            print(next((l for l in log.splitlines() if 'error' in l), log[-500:]), file=sys.stderr)
            return 'does not build'
        relinked = {p for p, t in build_times(folder, clean).items() if clean.get(p) != t}
        names = {name: not programs or bool(programs & relinked) for name, programs in seen.items()}
        count, failed = run_tests(folder, names)
        print(f'  ran {count} of {len(names)} tests', flush=True)
        return sorted(failed - broken)
    finally:
        path.write_bytes(original)


def cell(result, shown=SHOWN_NAMES):
    if isinstance(result, str):
        return result
    if not result:
        return 'MISSED'
    more = ', ...' if shown and len(result) > shown else ''
    return f"caught ({len(result)}): {', '.join(result[:shown])}{more}"


def split_row(line):
    return [c.strip().replace('\\|', '|') for c in re.split(r'(?<!\\)\|', line.strip())[1:-1]]


def write_column(column, faults, results):
    """Sets the column in tools/fault-table.md, keeping the other columns and rows' cells."""
    header, rows = ['fault', 'folder', 'what'], {}
    if TABLE.exists():
        lines = [split_row(l) for l in TABLE.read_text().splitlines() if l.startswith('|')]
        header, rows = lines[0], {r[0]: dict(zip(lines[0], r)) for r in lines[2:]}
    header += [column] if column not in header else []
    table = [header, ['---'] * len(header)]
    for fid, fault in faults.items():
        row = rows.get(fid, {}) | {'fault': fid, 'folder': fault['folder'], 'what': fault['what']}
        row |= {column: cell(results[fid])} if fid in results else {}
        table.append([row.get(h, '') for h in header])
    caught = [f"{h} {sum(r[i].startswith('caught') for r in table[2:])} of "
              f"{sum(bool(r[i]) for r in table[2:])} run" for i, h in enumerate(header) if i >= 3]
    text = '\n'.join('| ' + ' | '.join(c.replace('|', '\\|') for c in r) + ' |' for r in table)
    TABLE.write_text(f"{text}\n\nFaults caught: {', '.join(caught)}.\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split('\n\n')[0])
    parser.add_argument('--build', default='build-faults', help='build folder (build-faults)')
    parser.add_argument('--only', help='comma-separated fault ids to run')
    parser.add_argument('--column', help='write the results as this column of the table')
    parser.add_argument('--list', action='store_true', help='list the faults and stop')
    args = parser.parse_args()
    ini = configparser.ConfigParser(interpolation=None)
    ini.read(LIST)
    faults = {s: ini[s] for s in ini.sections()}
    chosen = args.only.split(',') if args.only else list(faults)
    if unknown := set(chosen) - faults.keys():
        sys.exit(f"faults.py: no such fault: {', '.join(sorted(unknown))}")
    if args.list:
        for fid in chosen:
            print(f"{fid:36} {faults[fid]['folder']:13} {faults[fid]['what']}")
        return
    signal.signal(signal.SIGTERM, lambda *_: sys.exit('faults.py: stopped'))
    folder, start = (ROOT / args.build).resolve(), time.monotonic()
    built, log = build(folder)
    if not built:
        sys.exit(f'faults.py: the clean tree does not build:\n{log[-2000:]}')
    seen = programs_seen(folder, build_times(folder))
    watched = set().union(*seen.values())
    clean = build_times(folder, watched)
    count, broken = run_tests(folder, dict.fromkeys(seen, True))
    print(f'baseline: {count} tests, {len(broken)} failing without a fault'
          + (f" (left out of the judgement: {', '.join(sorted(broken))})" if broken else ''))
    results = {}
    for fid in chosen:
        began = time.monotonic()
        print(f'{fid}: {faults[fid]["what"]}', flush=True)
        results[fid] = try_fault(faults[fid], folder, clean, seen, broken)
        built, log = build(folder)  # the clean tree again: the next fault is judged against it
        if not built:
            sys.exit(f'faults.py: the restored tree does not build:\n{log[-2000:]}')
        clean = build_times(folder, watched)
        print(f'  {cell(results[fid], shown=None)} ({time.monotonic() - began:.0f} s)', flush=True)
        if args.column:  # after each fault, so that a stopped run keeps what it found
            write_column(args.column, faults, results)
    print(f"\n{'fault':36} {'folder':13} {'what':50} result")
    for fid, result in results.items():
        print(f"{fid:36} {faults[fid]['folder']:13} {faults[fid]['what'][:50]:50} {cell(result)}")
    caught = sum(1 for r in results.values() if isinstance(r, list) and r)
    print(f'\n{caught} of {len(results)} faults caught in {time.monotonic() - start:.0f} s')


if __name__ == '__main__':
    main()
