#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fuzzes quillmere-forecast's arguments: every case is wrong by construction (random bytes,
numbers out of range, malformed UTF-8, very long values), so every run must exit with status 2,
write one line on stderr and nothing on stdout, and take less than a second.

usage: forecast_fuzz.py PROGRAM [--cases N] [--seed S]
"""
import argparse
import os
import random
import subprocess
import sys
import tempfile
import time

BASES = {
    'days': ['days', '--from', '2024-06-01', '--days', '3', '--lon', '92.42W', '--lat', '31.25N',
             '--zone', '6', '--name', 'Camp', '--hour', '06:30', '--format', 'json'],
    'events': ['events', '--year', '2024', '--location', '3', '--format', 'text'],
    'month': ['month', '--year', '2024', '--month', '2', '--location', '2'],
}
OPTIONS = {'--from', '--days', '--year', '--month', '--location', '--lon', '--lat', '--zone',
           '--name', '--format', '--hour', '--dst', '--help'}


def random_bytes(rng, n):
    return bytes(rng.choice([b for b in range(1, 256)]) for _ in range(n))


def random_utf8(rng, n):
    return ''.join(chr(rng.choice([rng.randrange(0x20, 0x7f), rng.randrange(0xa0, 0xd7ff),
                                   rng.randrange(0xe000, 0x10ffff)])) for _ in range(n)
                   ).encode('utf-8', 'surrogatepass')


def long_value(rng):
    return rng.choice([b'9' * 100000, b'x' * 100000, random_utf8(rng, 20000)])


def junk(rng):
    return rng.choice([random_bytes(rng, rng.randrange(1, 40)), random_utf8(rng, rng.randrange(1, 20)),
                       long_value(rng), b'', b'-', b'--', b'nan', b'inf', b'1e309', b'-0'])


def bad_number(rng):
    """A number text that no numeric option of the program accepts."""
    return rng.choice([b'nan', b'-nan', b'inf', b'1e999', b'0x10', b'12.5.1', b'+-3', b'1,5', b' 4',
                       b'4 ', str(rng.randrange(40000, 10**9)).encode(),
                       str(-rng.randrange(20, 10**9)).encode(),
                       str(rng.uniform(-1e12, 1e12)).encode() + b'q', long_value(rng)])


def bad_value(rng, option):
    """A value that is wrong for the option, whatever the random choice."""
    coordinate = lambda limit, letters: rng.choice([
        bad_number(rng) + rng.choice(letters),
        str(rng.uniform(limit + 0.001, 1e6)).encode() + rng.choice(letters),
        b'nan' + rng.choice(letters), b'inf' + rng.choice(letters),
        str(rng.uniform(0, limit)).encode() + rng.choice([b'X', b'Q', b'', b'\xc3\xa9']),
        b'-' + str(rng.uniform(0.001, limit)).encode() + rng.choice(letters),
        random_bytes(rng, 8) + b'\x80', long_value(rng)])
    return {
        '--from': lambda: rng.choice([b'2023-02-29', b'2024-13-01', b'1899-12-31', b'2501-01-01',
                                      b'2024-1-1', b'20240101', b'2024-06-31', b'2024-00-10',
                                      b'2500-12-30', random_bytes(rng, 10), long_value(rng)]),
        '--days': lambda: rng.choice([b'0', b'36526', str(-rng.randrange(1, 10**6)).encode(),
                                      bad_number(rng), b'3.5']),
        '--lon': lambda: coordinate(180, [b'W', b'E', b'w', b'e']),
        '--lat': lambda: coordinate(90, [b'N', b'S', b'n', b's']),
        '--zone': lambda: rng.choice([b'13', b'-15', b'6.5', bad_number(rng)]),
        '--name': lambda: rng.choice([
            b'', b'Camp\nEND:VCALENDAR', b'\x80' * 200, b'a\x01b', b'\xed\xa0\x80', b'\xc0\xaf',
            b'tab\there', random_utf8(rng, 30) + b'\xff', b'\xc2\x85next line', b'x\x7f']),
        '--hour': lambda: rng.choice([b'24:00', b'12:60', b'6:30', b'06.30', b'-1:00',
                                      bad_number(rng)]),
        '--format': lambda: rng.choice([b'CSV', b'xml', b'', random_bytes(rng, 5)]),
        '--year': lambda: rng.choice([b'1899', b'2501', bad_number(rng)]),
        '--month': lambda: rng.choice([b'0', b'13', bad_number(rng)]),
        '--location': lambda: rng.choice([b'0', b'11', b'-1', bad_number(rng)]),
    }[option]()


def case(rng):
    """One wrong argument list."""
    name = rng.choice(list(BASES))
    args = [a.encode() for a in BASES[name]]
    kind = rng.randrange(5)
    if kind == 0:  # a command that does not exist
        command = junk(rng)
        while command.decode('latin-1') in BASES or command in (b'--help', b'-h', b'help', b'--version'):
            command = junk(rng)
        return [command] + args[1:]
    if kind == 1:  # an option the program does not know
        option = b'--' + junk(rng)
        while option.decode('latin-1') in OPTIONS:
            option = b'--' + junk(rng)
        args.insert(rng.randrange(1, len(args) + 1), option)
        return args
    if kind == 2:  # an option without its value at the end
        return args + [rng.choice([b'--hour', b'--format', b'--year', b'--name', b'--lon'])]
    # a wrong value for one of the command's options
    valued = [i for i in range(1, len(args) - 1) if args[i].startswith(b'--')]
    i = rng.choice(valued)
    args[i + 1] = bad_value(rng, args[i].decode())
    return args


def main():
    ap = argparse.ArgumentParser(description=__doc__)
    ap.add_argument('program')
    ap.add_argument('--cases', type=int, default=250)
    ap.add_argument('--seed', type=int, default=19)
    a = ap.parse_args()
    rng, failures, slowest = random.Random(a.seed), 0, 0.0
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=os.path.join(home, 'config'),
                   QT_QPA_PLATFORM='offscreen')
        for n in range(a.cases):
            args, start = case(rng), time.monotonic()
            p = subprocess.run([a.program] + args, env=env, capture_output=True, timeout=5)
            seconds = time.monotonic() - start
            slowest = max(slowest, seconds)
            problems = [text for bad, text in (
                (p.returncode != 2, f'exit status {p.returncode}'), (p.stdout, f'{len(p.stdout)} bytes on stdout'),
                (p.stderr.count(b'\n') != 1 or not p.stderr.endswith(b'\n'), f'stderr {p.stderr[:200]!r}'),
                (seconds >= 1.0, f'took {seconds:.2f} s')) if bad]
            if problems:
                failures += 1
                print(f'case {n}: {[x[:60] for x in args]}: ' + '; '.join(problems))
        written = [f for _, _, files in os.walk(home) for f in files]
    if written:
        print(f'the settings store was written: {written}')
        failures += 1
    print(f'{a.cases} cases, {failures} failed, slowest run {slowest:.3f} s')
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
