#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs quillmere-forecast with argument lists that are each wrong by construction (an unknown
# command or option, an option without its value, a value out of range, malformed UTF-8, random
# bytes, very long values): every run must exit with status 2, write one line on stderr and
# nothing on stdout, take less than a second and leave the settings store unwritten.
#
# usage: forecast_fuzz.py PROGRAM
import os
import random
import subprocess
import sys
import tempfile
import time

BASE = [a.encode() for a in ['days', '--from', '2024-06-01', '--days', '3', '--lon', '92.42W',
                             '--lat', '31.25N', '--zone', '6', '--name', 'Camp', '--hour',
                             '06:30', '--format', 'json']]
LONG = [b'9' * 100000, b'x' * 100000, '\U0001f3a3'.encode() * 20000]
NUMBERS = [b'nan', b'-nan', b'inf', b'1e999', b'0x10', b'12.5.1', b'+-3', b'1,5', b' 4', b'4 ',
           b'', b'-'] + LONG
WRONG = {  # values each option refuses (the numeric ones every wrong number too)
    b'--from': [b'2023-02-29', b'2024-13-01', b'1899-12-31', b'2501-01-01', b'2024-1-1',
                b'20240101', b'2024-06-31', b'2024-00-10', b'2500-12-30'],
    b'--days': [b'0', b'36526', b'-3', b'3.5'] + NUMBERS,
    b'--lon': [b'180.01W', b'92.42X', b'nanW', b'infE', b'-92W', b'92', b'92\xc3\xa9', b'9\x80W'],
    b'--lat': [b'90.01N', b'31.25Q', b'nanS', b'1e999N', b'-31N', b'31'],
    b'--zone': [b'13', b'-15', b'6.5'] + NUMBERS,
    b'--name': [b'', b'Camp\nEND:VCALENDAR', b'\x80' * 200, b'a\x01b', b'\xed\xa0\x80',
                b'\xc0\xaf', b'tab\there', b'\xc2\x85next line', b'x\x7f', b'ok\xff'],
    b'--hour': [b'24:00', b'12:60', b'6:30', b'06.30', b'-1:00'] + NUMBERS,
    b'--format': [b'CSV', b'xml', b'\x01'],
}


def cases():
    # Every wrong value of every option in its place; each option without its value; unknown
    # commands and options of random bytes, line breaks included (the error names them and must
    # still be one line).
    for i in range(1, len(BASE), 2):
        for value in WRONG[BASE[i]]:
            yield BASE[:i + 1] + [value] + BASE[i + 2:]
        yield BASE + [BASE[i]]
    rng = random.Random(19)
    for _ in range(40):
        junk = bytes(rng.choice(range(1, 256)) for _ in range(rng.randrange(1, 40)))
        yield [b'x' + junk] + BASE[1:]
        yield BASE[:5] + [b'--x' + junk] + BASE[5:]


def main():
    failures = 0
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=os.path.join(home, 'config'),
                   QT_QPA_PLATFORM='offscreen')
        for args in cases():
            start = time.monotonic()
            p = subprocess.run([sys.argv[1]] + args, env=env, capture_output=True, timeout=5)
            seconds = time.monotonic() - start
            if p.returncode != 2 or p.stdout or p.stderr.count(b'\n') != 1 or \
                    not p.stderr.endswith(b'\n') or seconds >= 1.0:
                failures += 1
                print(f'{[x[:60] for x in args]}: status {p.returncode}, {len(p.stdout)} bytes on '
                      f'stdout, stderr {p.stderr[:200]!r}, {seconds:.2f} s')
        written = os.listdir(home)
    print(f'{failures} failed' + (f'; the settings store was written: {written}' if written else ''))
    return 1 if failures or written else 0


if __name__ == '__main__':
    sys.exit(main())
