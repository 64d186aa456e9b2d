#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks a year of daysky_dump output at one place against PyEphem (python3-ephem).

  --sky S M     Sun within S degrees and Moon within M degrees of ephem, in azimuth and altitude,
                at every dumped hour. Both without refraction; the Moon's azimuth from its
                apparent geocentric place turned to the horizon, its altitude as seen from the
                place (ephem's topocentric one), as the program shows them.
  --events M    every moonrise, moon transit and moonset that ephem finds in the local day is
                there (status 0) and within M minutes.
  --azimuth D   sunrise/sunset and moonrise/moonset azimuths within D degrees of ephem's.
Always: no NaN anywhere, Major1 in [0, 24).  Exits 1 on any failure.
"""
import argparse
import math
import sys

import ephem


def observer(lat, lon_west, horizon='0'):
    o = ephem.Observer()
    o.lat, o.lon = str(lat), str(-lon_west)
    o.pressure = 0
    o.horizon = horizon
    return o


def day_start(date, zone):
    y, m, d = (int(x) for x in date.split('-'))
    return ephem.Date((y, m, d)) + zone / 24.0


def horizon_of(ra, dec, lst, lat):
    """Azimuth from north and altitude (degrees) of (ra, dec) at local sidereal time lst."""
    phi, H = math.radians(lat), lst - ra
    alt = math.asin(math.sin(phi) * math.sin(dec) + math.cos(phi) * math.cos(dec) * math.cos(H))
    az = math.atan2(-math.cos(dec) * math.sin(H),
                    math.sin(dec) * math.cos(phi) - math.cos(dec) * math.sin(phi) * math.cos(H))
    return math.degrees(az) % 360.0, math.degrees(alt)


def angle_diff(a, b):
    return abs((a - b + 180.0) % 360.0 - 180.0)


class Check:
    def __init__(self):
        self.failures = []
        self.worst = {}

    def measure(self, name, value, limit, where):
        if value > self.worst.get(name, (-1.0, ''))[0]:
            self.worst[name] = (value, where)
        if not value <= limit:  # NaN fails too
            self.failures.append(f'{name} {value:.3f} > {limit} at {where}')

    def fail(self, text):
        self.failures.append(text)


def check_sky(rows, args, check):
    o = observer(args.lat, args.lon_west)
    sun, moon = ephem.Sun(), ephem.Moon()
    for date, hour, saz, salt, maz, malt in rows:
        o.date = day_start(date, args.zone) + hour / 24.0
        sun.compute(o)
        moon.compute(o)
        lst = o.sidereal_time()
        where = f'{date} {hour:05.2f}h'
        check.measure('sun azimuth', angle_diff(saz, math.degrees(sun.az)) * math.cos(math.radians(salt)),
                      args.sky[0], where)
        check.measure('sun altitude', abs(salt - math.degrees(sun.alt)), args.sky[0], where)
        eaz, _ = horizon_of(moon.g_ra, moon.g_dec, lst, args.lat)
        check.measure('moon azimuth', angle_diff(maz, eaz) * math.cos(math.radians(malt)), args.sky[1], where)
        check.measure('moon altitude', abs(malt - math.degrees(moon.alt)), args.sky[1], where)


def next_event(o, body, kind, start):
    o.date = start
    try:
        if kind == 'transit':
            return o.next_transit(body)
        return (o.next_rising if kind == 'rise' else o.next_setting)(body)
    except (ephem.AlwaysUpError, ephem.NeverUpError):
        return None


def check_events(rows, args, check):
    o = observer(args.lat, args.lon_west, '-0:34')
    moon = ephem.Moon()
    for r in rows:
        date = r[0]
        start = day_start(date, args.zone)
        for kind, hour, flag in (('rise', r[1], r[2]), ('transit', r[3], r[4]), ('set', r[5], r[6])):
            t = next_event(o, moon, kind, start)
            if t is None or t >= start + 1:
                continue
            if flag != 0:
                check.fail(f'moon {kind} missing on {date}: ephem has {(t - start) * 24:.4f} h')
                continue
            check.measure(f'moon {kind} (min)', abs(hour - (t - start) * 24.0) * 60.0, args.events,
                          date)


def check_azimuths(rows, args, check):
    o = observer(args.lat, args.lon_west)
    cases = (('sun', ephem.Sun(), '-0:34', 'rise', 11), ('sun', ephem.Sun(), '-0:34', 'set', 12),
             ('moon', ephem.Moon(), '-0:34', 'rise', 7), ('moon', ephem.Moon(), '-0:34', 'set', 8))
    for r in rows:
        start = day_start(r[0], args.zone)
        for name, body, horizon, kind, column in cases:
            o.horizon = horizon
            t = next_event(o, body, kind, start)
            if t is None or t >= start + 1:
                continue
            o.date = t
            body.compute(o)
            check.measure(f'{name}{kind} azimuth', angle_diff(r[column], math.degrees(body.az)),
                          args.azimuth, r[0])


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument('--lat', type=float, required=True)
    ap.add_argument('--lon-west', type=float, required=True)
    ap.add_argument('--zone', type=float, required=True)
    ap.add_argument('--sky', type=float, nargs=2)
    ap.add_argument('--events', type=float)
    ap.add_argument('--azimuth', type=float)
    args = ap.parse_args()

    events, sky = [], []
    for line in sys.stdin:
        f = line.split()
        if f[0] == 'E':
            events.append([f[1]] + [float(x) if '.' in x or 'n' in x else int(x) for x in f[2:]])
        elif f[0] == 'S':
            sky.append([f[1]] + [float(x) for x in f[2:]])
    check = Check()
    for r in events:
        if any(isinstance(x, float) and math.isnan(x) for x in r[1:]):
            check.fail(f'NaN on {r[0]}')
        if not 0.0 <= r[13] < 24.0:
            check.fail(f'Major1 {r[13]} outside [0, 24) on {r[0]}')
    if len(events) < 365:
        check.fail(f'only {len(events)} days dumped')
    if args.sky:
        check_sky(sky, args, check)
    if args.events is not None:
        check_events(events, args, check)
    if args.azimuth is not None:
        check_azimuths(events, args, check)
    print(f'{len(events)} days, {len(sky)} sky positions at {args.lat} {args.lon_west} zone {args.zone}')
    for name, (value, where) in sorted(check.worst.items()):
        print(f'  {name:22} largest {value:8.4f} at {where}')
    for f in check.failures[:20]:
        print('FAIL:', f)
    if len(check.failures) > 20:
        print(f'... {len(check.failures) - 20} more failures')
    return 1 if check.failures else 0


if __name__ == '__main__':
    sys.exit(main())
