#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks a year of rise, set and twilight events (tests/tools/riseset_dump) against PyEphem's
altitudes, sampled: no rise/set search of ephem's is used, so a grazing body is judged by where
it really stands.

The altitude conventions are those of tools/riseset_accuracy.py, without refraction in ephem
(pressure 0): sunrise and sunset when the Sun's upper limb is 34' below the horizon, the
twilights when its centre is 6, 12 and 18 degrees below, moonrise and moonset when the Moon's
upper limb, seen from the place, is 34' below.

Reading the dump: one line per local day,
  DATE ZONE_HOURS (local clock + ZONE_HOURS = UT) then, for sun, civil, nautical, astronomical, moon: STATE RISES SETS
STATE is C (crosses in the day), A (above all day) or B (below all day); RISES and SETS are
comma-separated local clock hours of the day, or '-'.

The reference: ephem's altitude every SAMPLE minutes through the year (and two days either side);
every local extreme among the samples is refined by golden section, every sign change between
neighbouring points bisected to a second. Each local day then has its crossings and, without
one, its side of the altitude.

Agreement: every event within --minutes of ephem's, none missing, none invented, every state
right. A body that grazes its altitude so closely that the two ephemerides' differences decide
whether it crosses cannot be judged by time; a difference is excused only where ephem puts the
body within --graze degrees of the altitude at that instant (reported as such). Exit 1 on any
other difference.
"""
import argparse
import math
import sys

import ephem

SAMPLE_MINUTES = 10.0
SECOND = 1.0 / 86400.0
GOLDEN = (math.sqrt(5.0) - 1.0) / 2.0
LIMB = math.radians(34.0 / 60.0)

# row -> (body, degrees of the event altitude, measured at the upper limb)
ROWS = {
    'sun': ('sun', -34.0 / 60.0, True),
    'civil': ('sun', -6.0, False),
    'nautical': ('sun', -12.0, False),
    'astronomical': ('sun', -18.0, False),
    'moon': ('moon', -34.0 / 60.0, True),
}


class Sky:
    """ephem's topocentric altitude of one body at the place, centre and upper limb (radians)."""

    def __init__(self, lat, lon_west, body):
        self.obs = ephem.Observer()
        self.obs.lat, self.obs.lon = str(lat), str(-lon_west)
        self.obs.pressure = 0
        self.body = ephem.Sun() if body == 'sun' else ephem.Moon()

    def at(self, t):
        self.obs.date = t
        self.body.compute(self.obs)
        return float(self.body.alt), float(self.body.radius)


class Row:
    """g(t): how far a row's reference point stands above the row's altitude, radians."""

    def __init__(self, sky, degrees, limb):
        self.sky, self.h0, self.limb = sky, math.radians(degrees), limb

    def g(self, t):
        alt, radius = self.sky.at(t)
        return alt + (radius if self.limb else 0.0) - self.h0


def golden_extreme(f, a, b, sign):
    """The instant in [a, b] where sign*f is largest, to a second."""
    c, d = b - GOLDEN * (b - a), a + GOLDEN * (b - a)
    fc, fd = sign * f(c), sign * f(d)
    while b - a > SECOND:
        if fc > fd:
            b, d, fd = d, c, fc
            c = b - GOLDEN * (b - a)
            fc = sign * f(c)
        else:
            a, c, fc = c, d, fd
            d = a + GOLDEN * (b - a)
            fd = sign * f(d)
    return (a + b) / 2.0


def bisect(f, a, fa, b):
    while b - a > SECOND:
        m = (a + b) / 2.0
        fm = f(m)
        if (fm > 0.0) == (fa > 0.0):
            a, fa = m, fm
        else:
            b = m
    return (a + b) / 2.0


def crossings(sky, rows, start, end):
    """For each row its rises and sets (ephem Dates) between start and end, and the instants of
    the body's extremes of altitude."""
    step = SAMPLE_MINUTES / 1440.0
    n = int((end - start) / step) + 1
    points = [(start + i * step,) + sky.at(start + i * step) for i in range(n)]
    value = lambda p: p[1] + p[2]
    extremes = []
    for i in range(1, n - 1):
        prev, here, nxt = value(points[i - 1]), value(points[i]), value(points[i + 1])
        if (here - prev) * (nxt - here) < 0.0:
            sign = 1.0 if here > prev else -1.0
            t = golden_extreme(lambda t: sum(sky.at(t)), points[i - 1][0], points[i + 1][0], sign)
            extremes.append((t,) + sky.at(t))
    points = sorted(points + extremes)
    found = {}
    for name, row in rows.items():
        gs = [p[1] + (p[2] if row.limb else 0.0) - row.h0 for p in points]
        rises, sets = [], []
        for (p, gp), (q, gq) in zip(zip(points, gs), zip(points[1:], gs[1:])):
            if (gp > 0.0) != (gq > 0.0):
                (rises if gq > 0.0 else sets).append(bisect(row.g, p[0], gp, q[0]))
        found[name] = (rises, sets)
    return found, [e[0] for e in extremes]


def read_dump(lines):
    days = []
    for line in lines:
        f = line.split()
        if not f:
            continue
        rows = {}
        for k, name in enumerate(ROWS):
            state, rises, sets = f[2 + 3 * k:5 + 3 * k]
            hours = lambda s: [] if s == '-' else [float(x) for x in s.split(',')]
            rows[name] = (state, hours(rises), hours(sets))
        days.append((f[0], float(f[1]), rows))
    return days


class Tally:
    def __init__(self):
        self.matched, self.errors, self.excused, self.failures = 0, [], [], []

    def line(self, name):
        worst = max((abs(e) for e in self.errors), default=0.0)
        rms = math.sqrt(sum(e * e for e in self.errors) / len(self.errors)) if self.errors else 0.0
        return (f'{name:13} {self.matched:6d} events  max {worst:6.3f} min  rms {rms:6.3f} min  '
                f'excused {len(self.excused):3d}  failures {len(self.failures):3d}')


def pair_up(ours, theirs, minutes):
    """Matches our hours to ephem's greedily by nearness; returns pairs and the leftovers."""
    ours, theirs, pairs = list(ours), list(theirs), []
    while ours and theirs:
        d, i, j = min((abs(a - b), i, j) for i, a in enumerate(ours) for j, b in enumerate(theirs))
        if d * 60.0 > minutes:
            break
        pairs.append((ours.pop(i), theirs.pop(j)))
    return pairs, ours, theirs


def compare(days, lat, lon_west, minutes, graze):
    first = ephem.Date(days[0][0].replace('-', '/')) - 2.0
    last = ephem.Date(days[-1][0].replace('-', '/')) + 3.0
    tallies = {name: Tally() for name in ROWS}
    for body in ('sun', 'moon'):
        sky = Sky(lat, lon_west, body)
        rows = {n: Row(sky, deg, limb) for n, (b, deg, limb) in ROWS.items() if b == body}
        found, extremes = crossings(sky, rows, first, last)
        for date, offset, ours in days:
            start = ephem.Date(date.replace('-', '/')) + offset / 24.0
            for name, row in rows.items():
                local = lambda ts: [(t - start) * 24.0 for t in ts if start <= t < start + 1.0]
                ref_rises, ref_sets = (local(ts) for ts in found[name])
                state, rises, sets = ours[name]
                judge(tallies[name], f'{date} {name}', row, start, extremes, minutes, graze,
                      (state, rises, sets), (ref_rises, ref_sets))
    return tallies


def judge(tally, where, row, start, extremes, minutes, graze, ours, ref):
    """Counts one day's row: our events (state, rises, sets) against ephem's (rises, sets)."""
    state, rises, sets = ours
    ref_rises, ref_sets = ref
    grazing = lambda t: abs(row.g(t)) <= math.radians(graze)
    # Ours: ephem has the body at the altitude there. Ephem's: the turn of the body's altitude
    # next to the crossing comes that close to the altitude.
    near = lambda h: grazing(start + h / 24.0)
    turns_near = lambda h: grazing(min(extremes, key=lambda t: abs(t - start - h / 24.0)))
    ref_state = 'C' if ref_rises or ref_sets else ('A' if row.g(start) > 0.0 else 'B')
    if state != ref_state:
        # A state is a matter of grazing when every crossing either side has is excused below.
        if (rises or sets or ref_rises or ref_sets) and all(
                map(near, rises + sets)) and all(map(turns_near, ref_rises + ref_sets)):
            tally.excused.append(f'{where} state {state} ephem {ref_state}')
        else:
            tally.failures.append(f'{where} state {state}, ephem {ref_state} '
                                  f'(ours {rises}/{sets}, ephem {ref_rises}/{ref_sets})')
    for kind, mine, theirs in (('rise', rises, ref_rises), ('set', sets, ref_sets)):
        pairs, extra, missing = pair_up(mine, theirs, minutes)
        tally.matched += len(pairs)
        tally.errors += [(a - b) * 60.0 for a, b in pairs]
        for h in extra:
            (tally.excused if near(h) else tally.failures).append(
                f'{where} {kind} {h:.4f} h not in ephem {theirs}')
        for h in missing:
            (tally.excused if turns_near(h) else tally.failures).append(
                f'{where} {kind} {h:.4f} h of ephem missing (ours {mine})')


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    ap.add_argument('--lat', type=float, required=True)
    ap.add_argument('--lon-west', type=float, required=True)
    ap.add_argument('--minutes', type=float, default=1.0)
    ap.add_argument('--graze', type=float, default=0.005,
                    help='degrees within which a grazing body excuses a difference')
    ap.add_argument('--show', type=int, default=12, help='failures listed per row')
    args = ap.parse_args()
    days = read_dump(sys.stdin)
    tallies = compare(days, args.lat, args.lon_west, args.minutes, args.graze)
    failed = False
    for name, t in tallies.items():
        print(t.line(name))
        for text in t.failures[:args.show]:
            print('   FAIL', text)
        for text in t.excused[:args.show]:
            print('   grazing', text)
        failed = failed or bool(t.failures) or t.matched == 0
    print('FAILED' if failed else 'agrees')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
