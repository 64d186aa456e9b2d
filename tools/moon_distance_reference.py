#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the Moon's geometric distance from the Swiss Ephemeris (Debian's swetest, its Moshier
ephemeris, -true: no light time) at 600 instants spread over 1900-2500 in Terrestrial Time, for
the test of the engine's distance series.  A step of an irrational number of days puts the
instants at every age of the Moon and every time of day.

Run once; the output is kept in tests/astro/data/moon_distance_reference.csv:
    tools/moon_distance_reference.py > tests/astro/data/moon_distance_reference.csv
"""
import subprocess

FIRST = '1.1.1900'
COUNT = 600
STEP_DAYS = 365.2425 + 0.6180339887  # a year and an irrational part of a day


def main():
    cmd = ['swetest', '-emos', '-true', '-p1', '-b' + FIRST, '-n%d' % COUNT,
           '-s%.10f' % STEP_DAYS, '-fJw', '-head']
    rows = subprocess.run(cmd, check=True, capture_output=True, text=True).stdout.split('\n')
    print('# The Moon\'s geometric distance from the Earth\'s centre: swetest -emos -true.')
    print('# Made by tools/moon_distance_reference.py.')
    print('# tt_jd,km')
    for row in (r.split() for r in rows if r.strip()):
        print('%s,%.3f' % (row[0], float(row[1])))


if __name__ == '__main__':
    main()
