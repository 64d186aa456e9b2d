#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks a year of daysky_dump output at one place against PyEphem (python3-ephem).
#
#   --sky S M     Sun within S degrees and Moon within M degrees of ephem, in azimuth and altitude,
#                 at every dumped hour. Both without refraction; the Moon's azimuth from its
#                 apparent geocentric place turned to the horizon, its altitude as seen from the
#                 place (ephem's topocentric one), as the program shows them.
#   --azimuth D   sunrise/sunset and moonrise/moonset azimuths within D degrees of ephem's.
# Always: no NaN anywhere, Major1 in [0, 24).  Exits 1 on any failure.
import argparse
import math
import sys

import ephem


def observer(lat, lon_west, horizon='0'):
    o = ephem.Observer()
    o.lat, o.lon, o.pressure, o.horizon = str(lat), str(-lon_west), 0, horizon
    return o


def day_start(date, zone):
    return ephem.Date(date.replace('-', '/')) + zone / 24.0


def azimuth_of(ra, dec, lst, lat):
    """Azimuth from north (degrees) of (ra, dec) at local sidereal time lst."""
    phi, H = math.radians(lat), lst - ra
    return math.degrees(math.atan2(-math.cos(dec) * math.sin(H), math.sin(dec) * math.cos(phi)
                                   - math.cos(dec) * math.sin(phi) * math.cos(H))) % 360.0


def angle_diff(a, b):
    return abs((a - b + 180.0) % 360.0 - 180.0)


class Check:
    def __init__(self):
        self.failures, self.worst = [], {}  # each measure's largest value and where it was

    def measure(self, name, value, limit, where):
        self.worst[name] = max(self.worst.get(name, (-1.0, '')), (value, where))
        if not value <= limit:  # NaN fails too
            self.failures.append(f'{name} {value:.3f} > {limit} at {where}')


def check_sky(rows, args, check):
    o, sun, moon = observer(args.lat, args.lon_west), ephem.Sun(), ephem.Moon()
    for date, hour, saz, salt, maz, malt in rows:
        o.date = day_start(date, args.zone) + hour / 24.0
        sun.compute(o)
        moon.compute(o)
        where, (s, m) = f'{date} {hour:05.2f}h', args.sky
        eaz = azimuth_of(moon.g_ra, moon.g_dec, o.sidereal_time(), args.lat)
        check.measure('sun azimuth', angle_diff(saz, math.degrees(sun.az)) * math.cos(math.radians(salt)), s, where)
        check.measure('sun altitude', abs(salt - math.degrees(sun.alt)), s, where)
        check.measure('moon azimuth', angle_diff(maz, eaz) * math.cos(math.radians(malt)), m, where)
        check.measure('moon altitude', abs(malt - math.degrees(moon.alt)), m, where)


def check_azimuths(rows, args, check):
    o = observer(args.lat, args.lon_west, '-0:34')
    for r in rows:
        start = day_start(r[0], args.zone)
        for body, kind, column in ((ephem.Sun(), 'rise', 11), (ephem.Sun(), 'set', 12),
                                   (ephem.Moon(), 'rise', 7), (ephem.Moon(), 'set', 8)):
            o.date = start
            try:
                t = (o.next_rising if kind == 'rise' else o.next_setting)(body)
            except (ephem.AlwaysUpError, ephem.NeverUpError):
                continue
            if t >= start + 1:
                continue
            o.date = t
            body.compute(o)
            check.measure(f'{body.name}{kind} azimuth', angle_diff(r[column], math.degrees(body.az)),
                          args.azimuth, r[0])


def main():
    ap = argparse.ArgumentParser(description='A year of daysky_dump output against PyEphem.')
    for name, kw in (('--lat', dict(required=True)), ('--lon-west', dict(required=True)),
                     ('--zone', dict(required=True)), ('--sky', dict(nargs=2)), ('--azimuth', {})):
        ap.add_argument(name, type=float, **kw)
    args = ap.parse_args()
    events, sky = [], []
    for f in (line.split() for line in sys.stdin):
        if f[0] == 'E':
            events.append([f[1]] + [float(x) if '.' in x or 'n' in x else int(x) for x in f[2:]])
        elif f[0] == 'S':
            sky.append([f[1]] + [float(x) for x in f[2:]])
    check = Check()
    for r in events:
        if any(isinstance(x, float) and math.isnan(x) for x in r[1:]) or not 0.0 <= r[13] < 24.0:
            check.failures.append(f'NaN or Major1 {r[13]} outside [0, 24) on {r[0]}')
    if len(events) < 365:
        check.failures.append(f'only {len(events)} days dumped')
    for option, run in ((args.sky, check_sky), (args.azimuth, check_azimuths)):
        if option is not None:
            run(sky if run is check_sky else events, args, check)
    print(f'{len(events)} days, {len(sky)} sky positions at {args.lat} {args.lon_west} zone {args.zone}')
    for name, (value, where) in sorted(check.worst.items()):
        print(f'  {name:22} largest {value:8.4f} at {where}')
    for f in check.failures[:20]:
        print('FAIL:', f)
    return 1 if check.failures else 0


if __name__ == '__main__':
    sys.exit(main())
