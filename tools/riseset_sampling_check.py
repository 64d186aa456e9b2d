#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks a year of rise, set and twilight events (tests/tools/riseset_dump) against PyEphem's
# altitudes, sampled: no rise/set search of ephem's is used, so a grazing body is judged by where
# it really stands. Without refraction in ephem (pressure 0): sunrise and sunset when the Sun's
# upper limb is 34' below the horizon, the twilights when its centre is 6, 12 and 18 degrees
# below, moonrise and moonset when the Moon's upper limb, seen from the place, is 34' below.
#
# The dump: one line per local day, DATE ZONE_HOURS (local clock + ZONE_HOURS = UT), then for
# sun, civil, nautical, astronomical, moon: STATE RISES SETS, where STATE is C (crosses in the
# day), A (above all day) or B (below all day) and RISES and SETS are comma-separated local clock
# hours, or '-'.
#
# The reference: ephem's altitude every 10 minutes through the year (and two days either side);
# every local extreme among the samples found to a second, every sign change bisected to
# a second. Every event must lie within MINUTES of ephem's, none missing, none invented, every
# state right; a difference is excused only where ephem puts the body within GRAZE_DEGREES of
# the altitude at that instant, where the two ephemerides' differences decide. Exit 1 otherwise.
import argparse
import math
import sys

import ephem

STEP = 10.0 / 1440.0
SECOND = 1.0 / 86400.0
MINUTES, GRAZE_DEGREES = 1.0, 0.005  # the agreement asked; a grazing body's excuse
# row -> (body, degrees of the event altitude, measured at the upper limb)
ROWS = {'sun': ('sun', -34.0 / 60.0, True), 'civil': ('sun', -6.0, False),
        'nautical': ('sun', -12.0, False), 'astronomical': ('sun', -18.0, False),
        'moon': ('moon', -34.0 / 60.0, True)}


def sky_of(lat, lon_west, body):
    """ephem's topocentric altitude and radius of one body at the place (radians), by instant."""
    obs, b = ephem.Observer(), ephem.Sun() if body == 'sun' else ephem.Moon()
    obs.lat, obs.lon, obs.pressure = str(lat), str(-lon_west), 0

    def at(t):
        obs.date = t
        b.compute(obs)
        return float(b.alt), float(b.radius)
    return at


def height(alt_radius, degrees, limb):
    """How far a row's reference point stands above the row's altitude, radians."""
    alt, radius = alt_radius
    return alt + (radius if limb else 0.0) - math.radians(degrees)


def bisect(f, a, b):
    fa = f(a)
    while b - a > SECOND:
        m = (a + b) / 2.0
        if (f(m) > 0.0) == (fa > 0.0):
            a = m
        else:
            b = m
    return (a + b) / 2.0


def crossings(sky, rows, start, end):
    """Each row's rises and sets between start and end, and the body's extremes of altitude."""
    times = [start + i * STEP for i in range(int((end - start) / STEP) + 1)]
    at = {t: sky(t) for t in times}
    top = {t: sum(at[t]) for t in times}
    extremes = []
    for p, t, n in zip(times, times[1:], times[2:]):
        if (top[t] - top[p]) * (top[n] - top[t]) < 0.0:
            sign = 1.0 if top[t] > top[p] else -1.0
            extremes.append(bisect(lambda x: sign * (sum(sky(x + SECOND)) - sum(sky(x))), p, n))
    at.update((t, sky(t)) for t in extremes)
    times = sorted(at)
    found = {}
    for name, g in rows.items():
        values = [height(at[t], *ROWS[name][1:]) for t in times]
        rises, sets = [], []
        for (p, gp), (q, gq) in zip(zip(times, values), zip(times[1:], values[1:])):
            if (gp > 0.0) != (gq > 0.0):
                (rises if gq > 0.0 else sets).append(bisect(g, p, q))
        found[name] = (rises, sets)
    return found, extremes


def read_dump(lines):
    hours = lambda s: [] if s == '-' else [float(x) for x in s.split(',')]
    for f in (line.split() for line in lines if line.strip()):
        yield f[0], float(f[1]), {name: (f[2 + 3 * k], hours(f[3 + 3 * k]), hours(f[4 + 3 * k]))
                                  for k, name in enumerate(ROWS)}


def pair_up(ours, theirs, minutes):
    """Matches our hours to ephem's greedily by nearness; returns pairs and the leftovers."""
    ours, theirs, pairs = list(ours), list(theirs), []
    while ours and theirs:
        d, i, j = min((abs(a - b), i, j) for i, a in enumerate(ours) for j, b in enumerate(theirs))
        if d * 60.0 > minutes:
            break
        pairs.append((ours.pop(i), theirs.pop(j)))
    return pairs, ours, theirs


def judge(tally, where, g, start, extremes, ours, ref):
    """Counts one day's row: our (state, rises, sets) against ephem's (rises, sets)."""
    state, rises, sets = ours
    ref_rises, ref_sets = ref
    grazing = lambda t: abs(g(t)) <= math.radians(GRAZE_DEGREES)
    # Ours: ephem has the body at the altitude there. Ephem's: the turn of the body's altitude
    # next to the crossing comes that close to the altitude.
    near = lambda h: grazing(start + h / 24.0)
    turns_near = lambda h: grazing(min(extremes, key=lambda t: abs(t - start - h / 24.0)))
    ref_state = 'C' if ref_rises or ref_sets else ('A' if g(start) > 0.0 else 'B')
    if state != ref_state:
        excused = (rises or sets or ref_rises or ref_sets) and all(map(near, rises + sets)) and \
            all(map(turns_near, ref_rises + ref_sets))
        tally['excused' if excused else 'failures'].append(
            f'{where} state {state} ephem {ref_state} (ours {rises}/{sets}, ephem {ref_rises}/{ref_sets})')
    for kind, mine, theirs in (('rise', rises, ref_rises), ('set', sets, ref_sets)):
        pairs, extra, missing = pair_up(mine, theirs, MINUTES)
        tally['errors'] += [(a - b) * 60.0 for a, b in pairs]
        for h in extra:
            tally['excused' if near(h) else 'failures'].append(f'{where} {kind} {h:.4f} h not in ephem {theirs}')
        for h in missing:
            tally['excused' if turns_near(h) else 'failures'].append(
                f'{where} {kind} {h:.4f} h of ephem missing (ours {mine})')


def main():
    ap = argparse.ArgumentParser(description='A year of riseset_dump output against PyEphem.')
    ap.add_argument('--lat', type=float, required=True)
    ap.add_argument('--lon-west', type=float, required=True)
    args = ap.parse_args()
    days = list(read_dump(sys.stdin))
    first, last = (ephem.Date(days[i][0].replace('-', '/')) for i in (0, -1))
    tallies = {name: {'errors': [], 'excused': [], 'failures': []} for name in ROWS}
    for body in ('sun', 'moon'):
        sky = sky_of(args.lat, args.lon_west, body)
        rows = {n: (lambda t, d=deg, l=limb: height(sky(t), d, l))
                for n, (b, deg, limb) in ROWS.items() if b == body}
        found, extremes = crossings(sky, rows, first - 2.0, last + 3.0)
        for date, offset, ours in days:
            start = ephem.Date(date.replace('-', '/')) + offset / 24.0
            local = lambda ts: [(t - start) * 24.0 for t in ts if start <= t < start + 1.0]
            for name, g in rows.items():
                judge(tallies[name], f'{date} {name}', g, start, extremes, ours[name],
                      [local(ts) for ts in found[name]])
    failed = False
    for name, t in tallies.items():
        e = t['errors']
        worst = max(map(abs, e), default=0.0)
        rms = math.sqrt(sum(x * x for x in e) / len(e)) if e else 0.0
        print(f'{name:13} {len(e):6d} events  max {worst:6.3f} min  rms {rms:6.3f} min  '
              f'excused {len(t["excused"]):3d}  failures {len(t["failures"]):3d}')
        for kind in ('failures', 'excused'):
            for text in t[kind][:12]:
                print('   FAIL' if kind == 'failures' else '   grazing', text)
        failed = failed or bool(t['failures']) or not e
    print('FAILED' if failed else 'agrees')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
