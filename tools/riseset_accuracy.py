#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Accuracy of per-day rise/set/transit/twilight times in forecast CSV files, against python3-ephem.

Each CSV is named with its place as FILE:LAT:LON_EAST:ZONE_WEST (degrees; zone in hours, positive
west of Greenwich; local clock = UT - zone). Times in the CSV are local clock hours of the local day;
an empty cell says the event does not happen in that day (the Sun or Moon stays above or below the
altitude, or the event falls on another day), which agrees with a reference that has none either.
"""
import argparse
import csv
import math
import os
import subprocess
import sys
import tempfile
from datetime import date, timedelta

import ephem

# column -> (body, event, horizon, use_center)
EVENTS = {
    'sunrise': ('sun', 'rising', '-0:34', False),
    'sunset': ('sun', 'setting', '-0:34', False),
    'sun_transit': ('sun', 'transit', '0', False),
    'civil_dawn': ('sun', 'rising', '-6', True),
    'civil_dusk': ('sun', 'setting', '-6', True),
    'nautical_dawn': ('sun', 'rising', '-12', True),
    'nautical_dusk': ('sun', 'setting', '-12', True),
    'astronomical_dawn': ('sun', 'rising', '-18', True),
    'astronomical_dusk': ('sun', 'setting', '-18', True),
    'moonrise': ('moon', 'rising', '-0:34', False),
    'moon_transit': ('moon', 'transit', '-0:34', False),
    'moonset': ('moon', 'setting', '-0:34', False),
}

# name, latitude, longitude east, zone west of Greenwich
PLACES = [
    ('Ushuaia', -54.80, -68.30, 3), ('Punta Arenas', -53.16, -70.91, 3),
    ('Hobart', -42.88, 147.33, -10), ('Cape Town', -33.92, 18.42, -2),
    ('Sydney', -33.87, 151.21, -10), ('Rio de Janeiro', -22.91, -43.17, 3),
    ('Singapore', 1.29, 103.85, -8), ('Alexandria LA', 31.25, -92.42, 6),
    ('Denver', 39.74, -104.99, 7), ('Tokyo', 35.68, 139.69, -9),
    ('London', 51.51, -0.13, 0), ('Oslo', 59.91, 10.75, -1),
]


def search(lat, lon, zone, day, column, after=0.0):
    """(next event from `after` hours into the local day, local-day start) as ephem Dates; raises
    ephem's errors when there is no crossing."""
    body_name, kind, horizon, use_center = EVENTS[column]
    obs = ephem.Observer()
    obs.lat, obs.lon = str(lat), str(lon)
    obs.pressure = 0
    obs.horizon = horizon
    start = ephem.Date((day.year, day.month, day.day)) + zone / 24.0
    obs.date = start + after / 24.0
    body = ephem.Sun() if body_name == 'sun' else ephem.Moon()
    if kind == 'transit':
        return obs.next_transit(body), start
    if kind == 'rising':
        return obs.next_rising(body, use_center=use_center), start
    return obs.next_setting(body, use_center=use_center), start


def reference(lat, lon, zone, day, column, after=0.0):
    """Local clock hours of the first event inside the local day from `after` hours on, or None."""
    try:
        t, start = search(lat, lon, zone, day, column, after)
    except (ephem.AlwaysUpError, ephem.NeverUpError):
        return None
    return (t - start) * 24.0 if t < start + 1 else None


def nearest_reference(lat, lon, zone, day, column, ours):
    """The day's event nearest to ours: near the solstices a twilight can happen twice in one
    local day (just after midnight and again before the next), and either is that day's."""
    ref = reference(lat, lon, zone, day, column)
    if ours is None or ref is None or abs(ours - ref) < 1.0 / 60.0:
        return ref
    again = reference(lat, lon, zone, day, column, after=ref + 1.0 / 60.0)
    return again if again is not None and abs(ours - again) < abs(ours - ref) else ref


def sun_never_crosses(lat, lon, zone, day, column):
    """True when the Sun does not reach the column's twilight altitude at all around that day."""
    if not column.endswith(('_dawn', '_dusk')):
        return False
    try:
        search(lat, lon, zone, day, column)
    except (ephem.AlwaysUpError, ephem.NeverUpError):
        return True
    return False


class Stats:
    def __init__(self):
        self.errors = []          # (abs minutes, signed minutes, date, place)
        self.only_file = 0
        self.only_reference = 0
        self.no_crossing = 0      # twilight times where the Sun never reaches the altitude: known difference

    def add(self, ours, ref, day, place, no_crossing=False):
        if ours is None and ref is None:
            return
        if ref is None and no_crossing:
            self.no_crossing += 1
        elif ref is None:
            self.only_file += 1
        elif ours is None:
            self.only_reference += 1
        else:
            err = (ours - ref) * 60.0
            self.errors.append((abs(err), err, day, place))

    def worst(self):
        return max(self.errors)[0] if self.errors else 0.0

    def share_within(self, minutes):
        """Percent of the events either side has that agree within `minutes`."""
        total = len(self.errors) + self.only_file + self.only_reference + self.no_crossing
        return 100.0 * sum(e[0] <= minutes for e in self.errors) / total if total else 0.0

    def line(self, column):
        n = len(self.errors)
        if n == 0:
            return f'{column:18} {0:7d} {"":>7} {"":>7} {"":>9} {"":>8} {self.only_file:7d} {self.only_reference:7d}'
        share = lambda limit: 100.0 * sum(e[0] <= limit for e in self.errors) / n
        worst = max(self.errors)
        rms = math.sqrt(sum(e[1] ** 2 for e in self.errors) / n)
        return (f'{column:18} {n:7d} {share(0.5):6.1f}% {share(1.0):6.1f}% {worst[1]:+9.3f} {rms:8.3f} '
                f'{self.only_file:7d} {self.only_reference:7d}  worst {worst[2]} {worst[3]}')


def parse_source(text):
    path, lat, lon, zone = text.rsplit(':', 3)
    return path, float(lat), float(lon), float(zone)


def compare(sources):
    stats = {column: Stats() for column in EVENTS}
    for path, lat, lon, zone in sources:
        place = f'{os.path.basename(path)}({lat:+.2f},{lon:+.2f})'
        with open(path, newline='') as f:
            for row in csv.DictReader(f):
                day = date.fromisoformat(row['date'])
                for column in EVENTS:
                    if column not in row:
                        continue
                    cell = row[column].strip()
                    ours = float(cell) if cell else None
                    ref = nearest_reference(lat, lon, zone, day, column, ours)
                    no_crossing = ours is not None and ref is None and sun_never_crosses(lat, lon, zone, day, column)
                    stats[column].add(ours, ref, day, place, no_crossing)
    return stats


def report(stats, max_minutes, min_share=None):
    print(f'{"quantity":18} {"count":>7} {"<=0.5m":>7} {"<=1m":>7} {"max(min)":>9} {"rms":>8} '
          f'{"only-csv":>7} {"only-ref":>7}')
    failed = []
    for column, s in stats.items():
        print(s.line(column))
        if s.no_crossing:
            print(f'{"":18} {s.no_crossing} twilight times where the Sun never reaches that altitude (known difference)')
        if max_minutes is not None and (s.worst() > max_minutes or not s.errors):
            failed.append(column)
        if min_share is not None and s.share_within(1.0) < min_share:
            failed.append(f'{column} ({s.share_within(1.0):.2f}% within 1 min of all events)')
    if failed:
        print(f'FAIL: largest error above {max_minutes} min (or nothing compared): {", ".join(failed)}')
    return 1 if failed else 0


def lon_ew(lon):
    return f'{abs(lon)}{"E" if lon >= 0 else "W"}'


def lat_ns(lat):
    return f'{abs(lat)}{"N" if lat >= 0 else "S"}'


def generate(template, start, days, outdir):
    """Runs the forecast command template once per place; returns the CSV sources."""
    sources = []
    for name, lat, lon, zone in PLACES:
        path = os.path.join(outdir, name.replace(' ', '_') + '.csv')
        cmd = template.format(start=start, days=days, lat=lat, lon=lon, zone=zone,
                              lat_ns=lat_ns(lat), lon_ew=lon_ew(lon))
        with open(path, 'w') as f:
            subprocess.run(cmd, shell=True, check=True, stdout=f)
        sources.append((path, lat, lon, zone))
    return sources


def write_reference_csv(path, lat, lon, zone, start, days, shift=None):
    """A CSV holding ephem's own times, optionally with one column shifted by some minutes."""
    with open(path, 'w', newline='') as f:
        out = csv.writer(f)
        out.writerow(['date'] + list(EVENTS))
        for i in range(days):
            day = start + timedelta(days=i)
            cells = []
            for column in EVENTS:
                h = reference(lat, lon, zone, day, column)
                if h is not None and shift and shift[0] == column:
                    h += shift[1] / 60.0
                cells.append('' if h is None else repr(h))
            out.writerow([day.isoformat()] + cells)


def self_test():
    """The comparison must pass its own reference and catch a sunrise shifted by 2 minutes."""
    lat, lon, zone, start, days = 51.51, -0.13, 0, date(2024, 3, 1), 20
    with tempfile.TemporaryDirectory() as tmp:
        exact, shifted = os.path.join(tmp, 'exact.csv'), os.path.join(tmp, 'shifted.csv')
        write_reference_csv(exact, lat, lon, zone, start, days)
        write_reference_csv(shifted, lat, lon, zone, start, days, shift=('sunrise', 2.0))
        good = compare([(exact, lat, lon, zone)])
        bad = compare([(shifted, lat, lon, zone)])
    problems = []
    if report(good, 0.01) != 0:
        problems.append('reference CSV does not match itself')
    if report(bad, 1.0) == 0:
        problems.append('shifted sunrise not detected')
    if abs(bad['sunrise'].worst() - 2.0) > 0.01:
        problems.append(f'shifted sunrise measured as {bad["sunrise"].worst():.3f} min')
    if any(s.worst() > 0.01 for c, s in bad.items() if c != 'sunrise'):
        problems.append('unshifted columns reported as off')
    for p in problems:
        print('SELF-TEST FAIL:', p)
    print('self-test', 'failed' if problems else 'passed')
    return 1 if problems else 0


def main():
    ap = argparse.ArgumentParser(description=__doc__)
    ap.add_argument('csv', nargs='*', help='FILE:LAT:LON_EAST:ZONE_WEST')
    ap.add_argument('--max-minutes', type=float, help='exit non-zero when a largest error exceeds this')
    ap.add_argument('--min-share', type=float,
                    help='exit non-zero when a quantity has fewer than this percent of all events '
                         '(compared, missed on either side) within one minute')
    ap.add_argument('--generate', metavar='COMMAND',
                    help='forecast command template run per place; fields {start} {days} {lat} {lon} '
                         '{zone} {lat_ns} {lon_ew}')
    ap.add_argument('--start', default='2024-01-01', help='first day for --generate')
    ap.add_argument('--days', type=int, default=300, help='days per place for --generate')
    ap.add_argument('--outdir', help='keep the generated CSV files here')
    ap.add_argument('--self-test', action='store_true')
    args = ap.parse_args()
    if args.self_test:
        return self_test()
    sources = [parse_source(s) for s in args.csv]
    if args.generate:
        outdir = args.outdir or tempfile.mkdtemp(prefix='riseset_')
        os.makedirs(outdir, exist_ok=True)
        sources += generate(args.generate, args.start, args.days, outdir)
    if not sources:
        ap.error('no CSV files given')
    return report(compare(sources), args.max_minutes, args.min_share)


if __name__ == '__main__':
    sys.exit(main())
