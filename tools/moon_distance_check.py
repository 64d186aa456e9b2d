#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares the engine's geocentric distance of the Moon (tests/tools/positions_dump) with the
Swiss Ephemeris' geometric one (Debian's swetest -emos -true) hour by hour through a year, and
shows what the difference does to each perigee and apogee: an extreme of the distance moves by
the difference's slope divided by the distance's curvature there.

    tools/moon_distance_check.py build/tests/positions_dump 2024
"""
import math
import subprocess
import sys

HOUR = 1.0 / 24.0


def swiss(year, count):
    cmd = ['swetest', '-emos', '-true', '-p1', '-b1.1.%d' % year, '-n%d' % count, '-s60m',
           '-fJw', '-head']
    rows = [r.split() for r in subprocess.run(cmd, check=True, capture_output=True,
                                              text=True).stdout.splitlines() if r.strip()]
    return [float(r[0]) for r in rows], [float(r[1]) for r in rows]


def engine(dump, first, count):
    out = subprocess.run([dump, str(count), repr(first), repr(HOUR)], check=True,
                         capture_output=True, text=True).stdout.splitlines()
    return [float(line.split()[11]) for line in out]  # the Moon's distance, km


def main():
    dump, year = sys.argv[1], int(sys.argv[2])
    jd, theirs = swiss(year, 366 * 24)
    ours = engine(dump, jd[0], len(jd))
    diff = [a - b for a, b in zip(ours, theirs)]
    print('distance, engine - Swiss Ephemeris: rms %.2f km, largest %.2f km'
          % (math.sqrt(sum(d * d for d in diff) / len(diff)), max(map(abs, diff))))
    print('event    JD (TT)       curvature km/d2  slope km/d  moves the extreme (min)')
    for i in range(1, len(jd) - 1):
        for sign, name in ((1.0, 'perigee'), (-1.0, 'apogee')):
            y0, y1, y2 = (sign * v for v in theirs[i - 1:i + 2])
            if y1 < y0 and y1 <= y2:
                curvature = (theirs[i + 1] - 2.0 * theirs[i] + theirs[i - 1]) / HOUR ** 2
                slope = (diff[i + 1] - diff[i - 1]) / (2.0 * HOUR)
                print('%-8s %.3f %10.0f %12.2f %14.2f'
                      % (name, jd[i], curvature, slope, -slope / curvature * 1440.0))


if __name__ == '__main__':
    main()
