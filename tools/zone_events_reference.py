#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reference events for the "Local Clock" tests, from python3-ephem, as instants of universal time.

Writes tests/platform/data/zone_events.csv: for six places every sunrise and moonrise of
2025 (with a day's margin either side), and for New York and Sydney every rise, transit and set
of the Sun and the Moon in the days around each of their 2025 clock changes and of a few other years'. The test
turns each instant into the place's clock with QTimeZone, so the file holds no offsets.
Horizons as tools/riseset_accuracy.py uses them: upper limb at -0:34, no refraction model.
"""
import os
import sys

import ephem

# name, latitude, longitude east
YEAR_PLACES = [
    ('Alexandria LA', 31.25, -92.42), ('Oslo', 59.91, 10.75), ('Sydney', -33.87, 151.21),
    ('Kolkata', 22.57, 88.36), ("St. John's", 47.56, -52.71), ('Kathmandu', 27.72, 85.32),
]
CHANGE_PLACES = [('New York', 40.71, -74.01), ('Sydney', -33.87, 151.21)]
# UT days around the 2025 changes, a day's margin beyond the local days the test checks: New
# York 9 March and 2 November, Sydney 6 April and 5 October.
# Then change days of other years with a Moon event in the hour the clock repeats or next to
# the skipped one, or in the last hour of a 25-hour day, found with this module.
CHANGE_WINDOWS = {'New York': [('2025/3/7', '2025/3/12'), ('2025/10/31', '2025/11/5'),
                               ('2020/10/30', '2020/11/4'), ('2023/11/3', '2023/11/8'),
                               ('2026/3/6', '2026/3/11'), ('2028/11/3', '2028/11/8')],
                  'Sydney': [('2025/4/3', '2025/4/8'), ('2025/10/2', '2025/10/7'),
                             ('2021/4/2', '2021/4/7'), ('2026/10/2', '2026/10/7')]}


def observer(lat, lon):
    obs = ephem.Observer()
    obs.lat, obs.lon = str(lat), str(lon)
    obs.pressure = 0
    obs.horizon = '-0:34'
    return obs


def events(lat, lon, body, kind, start, end):
    """Every event of the kind between the two dates, as ephem Dates."""
    obs = observer(lat, lon)
    obs.date = ephem.Date(start)
    found = []
    while True:
        step = {'rise': obs.next_rising, 'set': obs.next_setting, 'transit': obs.next_transit}
        t = step[kind](body)
        if t >= ephem.Date(end):
            return found
        found.append(t)
        obs.date = t + ephem.minute


def rows():
    for name, lat, lon in YEAR_PLACES:
        for body, label in ((ephem.Sun(), 'sunrise'), (ephem.Moon(), 'moonrise')):
            for t in events(lat, lon, body, 'rise', '2024/12/31', '2026/1/2'):
                yield name, label, t
    for name, lat, lon in CHANGE_PLACES:
        for start, end in CHANGE_WINDOWS[name]:
            for body, prefix in ((ephem.Sun(), 'sun'), (ephem.Moon(), 'moon')):
                for kind in ('rise', 'transit', 'set'):
                    for t in events(lat, lon, body, kind, start, end):
                        yield name, prefix + kind, t


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(__file__), '..', 'tests', 'platform', 'data', 'zone_events.csv')
    with open(out, 'w') as f:
        f.write('# Made by tools/zone_events_reference.py with python3-ephem %s\n' % ephem.__version__)
        f.write('# place,latitude,longitude_east,event,utc\n')
        places = {p[0]: p for p in YEAR_PLACES + CHANGE_PLACES}
        for name, label, t in rows():
            _, lat, lon = places[name]
            y, mo, d, h, mi, s = t.tuple()
            f.write('%s,%.2f,%.2f,%s,%04d-%02d-%02dT%02d:%02d:%06.3f\n'
                    % (name, lat, lon, label, y, mo, d, h, mi, s))


if __name__ == '__main__':
    main()
