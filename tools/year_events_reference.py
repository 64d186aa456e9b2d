#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the reference instants of the year's events for the engine's accuracy test.

Moon phases, equinoxes and solstices come from python3-ephem; perigees, apogees and the Moon's
greatest declinations from the Swiss Ephemeris (Debian's swetest, its Moshier ephemeris): the
geometric distance and the apparent declination sampled every 15 minutes, each extreme placed at
the vertex of the parabola through its three samples.  Every instant is in Terrestrial Time, each
reference's own Delta T added to its universal time, so the test measures the event methods and
not two guesses of Delta T for the centuries ahead.

Run once; the output is kept in tests/astro/data/year_events_reference.csv:
    tools/year_events_reference.py > tests/astro/data/year_events_reference.csv
"""
import subprocess
import sys

import ephem

YEARS = [1900, 1925, 1950, 1987, 2000, 2024, 2029, 2060, 2100, 2200, 2300, 2400, 2500]
STEP_DAYS = 15.0 / 1440.0
SAMPLES = 35136  # 366 days of 15-minute steps, within swetest's limit of 36525 lines

PHASES = [('new_moon', ephem.next_new_moon), ('first_quarter', ephem.next_first_quarter_moon),
          ('full_moon', ephem.next_full_moon), ('last_quarter', ephem.next_last_quarter_moon)]
SEASONS = [('march_equinox', ephem.next_vernal_equinox), ('june_solstice', ephem.next_summer_solstice),
           ('september_equinox', ephem.next_autumnal_equinox),
           ('december_solstice', ephem.next_winter_solstice)]


def tt_jd(date):
    """Julian day in TT of an ephem date (UT, days from 1899-12-31 12h)."""
    return float(date) + 2415020.0 + ephem.delta_t(date) / 86400.0


def ephem_events(year):
    start, end = ephem.Date('%d/1/1' % year), ephem.Date('%d/1/1' % (year + 1))
    for name, following in PHASES:
        d = following(start)
        while d < end:
            yield name, tt_jd(d)
            d = following(ephem.Date(d + 1))
    for name, following in SEASONS:
        yield name, tt_jd(following(start))


def swetest_samples(year, column, geometric):
    """(first JD in TT, values) of one swetest column for the year, every 15 minutes."""
    cmd = ['swetest', '-emos', '-p1', '-b1.1.%d' % year, '-n%d' % SAMPLES, '-s15m', '-fJ' + column, '-head']
    if geometric:
        cmd.insert(2, '-true')
    rows = subprocess.run(cmd, check=True, capture_output=True, text=True).stdout.split('\n')
    rows = [r.split() for r in rows if r.strip()]
    return float(rows[0][0]), [float(r[1]) for r in rows]


def extremes(first_jd, values, sign):
    """Instants of the local minima (sign 1) or maxima (sign -1), by parabolic vertices."""
    for i in range(1, len(values) - 1):
        y1, y2, y3 = (sign * v for v in values[i - 1:i + 2])
        if y2 < y1 and y2 <= y3:
            a, b = y2 - y1, y3 - y2
            yield first_jd + STEP_DAYS * (i - 0.5 * (a + b) / (b - a))


def swiss_events(year):
    first, distance = swetest_samples(year, 'w', True)
    for name, sign in (('perigee', 1), ('apogee', -1)):
        for jd in extremes(first, distance, sign):
            yield name, jd
    first, declination = swetest_samples(year, 'd', False)
    for name, sign in (('max_north_declination', -1), ('max_south_declination', 1)):
        for jd in extremes(first, declination, sign):
            yield name, jd


def main():
    print('# Reference instants of the year\'s events, Julian days in Terrestrial Time.')
    print('# Phases and seasons: python3-ephem %s; perigee, apogee (geometric distance) and'
          % ephem.__version__)
    print('# greatest declinations (apparent): swetest -emos. Made by tools/year_events_reference.py.')
    print('type,tt_jd')
    for year in YEARS:
        rows = sorted(list(ephem_events(year)) + list(swiss_events(year)), key=lambda r: r[1])
        for name, jd in rows:
            print('%s,%.6f' % (name, jd))
        sys.stderr.write('%d: %d events\n' % (year, len(rows)))


if __name__ == '__main__':
    main()
