#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks a year of quillmere-forecast's iCalendar output (RFC 5545) at two places: CRLF line
# ends, lines of at most 75 octets folded between UTF-8 characters, one VCALENDAR, complete events,
# UIDs unique within a file and across the places, one Major period per real transit (no two Major
# events overlap); and, for places on a zone of the tz database, every timed event centred on the
# universal instant that Python's zoneinfo gives for the clock time the day's row shows, on the
# days the clock changes too (a clock time the change skips or repeats read before the change,
# zoneinfo's fold=0).
#
# usage: ics_check.py PROGRAM
import csv
import io
import os
import re
import subprocess
import sys
import tempfile
from datetime import datetime, timedelta, timezone
from zoneinfo import ZoneInfo

NAME = 'Lac; "Sainte-Anne", d\u00e9p\u00f4t\\nord, \u6771\u4eac \U0001f3a3 ' + '\u00e9' * 30
PLACES = [('92.42W', '31.25N', '6'), ('118.25W', '34.05N', '8')]
# The changes of three years on each side of the equator.
ZONED_PLACES = [('74.01W', '40.71N', 'America/New_York'), ('151.21E', '33.87S', 'Australia/Sydney'),
                ('10.75E', '59.91N', 'Europe/Oslo')]
UID_KIND = re.compile(r'^(\d{4}-\d{2}-\d{2})-((?:major|minor)[12])-')


def when(value):
    return datetime.strptime(value, '%Y%m%dT%H%M%SZ')


def unfold(raw, problems):
    """The content lines of one file, checking the physical lines on the way."""
    if not raw.endswith(b'\r\n'):
        problems.append('the file does not end with CRLF')
    lines = []
    for n, line in enumerate(raw.split(b'\r\n')[:-1], 1):
        if b'\r' in line or b'\n' in line or len(line) > 75:
            problems.append(f'line {n}: bare CR or LF, or {len(line)} octets')
        try:
            line.decode('utf-8')
        except UnicodeDecodeError:
            problems.append(f'line {n}: folded inside a UTF-8 character')
        if line[:1] == b' ' and lines:
            lines[-1] += line[1:]
        else:
            lines.append(line)
    return [l.decode('utf-8', 'replace') for l in lines]


def events_of(raw, problems):
    """The VEVENTs of one file as {NAME: value} with their parameters in the name."""
    lines = unfold(raw, problems)
    if lines[:1] != ['BEGIN:VCALENDAR'] or lines.count('END:VCALENDAR') != 1 or lines[-1] != 'END:VCALENDAR':
        problems.append('the file is not one VCALENDAR')
    if not any(l.startswith('PRODID:') for l in lines) or 'VERSION:2.0' not in lines:
        problems.append('no PRODID or VERSION:2.0')
    if lines.count('BEGIN:VEVENT') != lines.count('END:VEVENT'):
        problems.append('unbalanced VEVENTs')
    events = []
    for block in '\n'.join(lines).split('BEGIN:VEVENT\n')[1:]:
        fields = dict(l.split(':', 1) for l in block.split('END:VEVENT')[0].splitlines())
        if not {'UID', 'DTSTAMP', 'SUMMARY'} <= fields.keys() or ('DTEND' in fields) == ('DURATION' in fields):
            problems.append(f'incomplete event {fields}')
        elif 'DTSTART' in fields and when(fields['DTEND']) <= when(fields['DTSTART']):
            problems.append(f'{fields["UID"]} ends before it starts')
        events.append(fields)
    return events


def run(program, env, *args):
    return subprocess.run([program, 'days', *args], env=env, check=True, capture_output=True).stdout


def zoned_events(program, env, lon, lat, zone, problems):
    """Checks each timed event of 2024 to 2026 against zoneinfo; returns how many, and how many of
    them lie before the change hour on a day whose clock changes."""
    args = ['--from', '2024-01-01', '--days', '1096', '--lon', lon, '--lat', lat, '--tz', zone, '--format']
    rows = {r['date']: r for r in csv.DictReader(io.StringIO(run(program, env, *args, 'csv').decode()))}
    tz, checked, early = ZoneInfo(zone), 0, 0
    for fields in events_of(run(program, env, *args, 'ics'), problems):
        kind = UID_KIND.match(fields['UID'])
        if not kind:
            continue
        date, what = kind.groups()
        hours = float(rows[date][what])
        expected = (datetime.fromisoformat(date) + timedelta(hours=hours)).replace(tzinfo=tz)
        begin, end = when(fields['DTSTART']), when(fields['DTEND'])
        centre = (begin + (end - begin) / 2).replace(tzinfo=timezone.utc)
        if abs((centre - expected).total_seconds()) > 1:
            problems.append(f'{zone} {date} {what} at clock {hours:.3f} h: centred {centre}, zoneinfo {expected}')
        checked += 1
        midnight = datetime.fromisoformat(date).replace(tzinfo=tz)
        early += midnight.utcoffset() != (midnight + timedelta(hours=12)).utcoffset() and hours < 3
    return checked, early


def main():
    program, problems, all_uids = sys.argv[1], [], []
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=os.path.join(home, 'config'))
        for lon, lat, zone in PLACES:
            events = events_of(run(program, env, '--from', '2024-01-01', '--days', '366', '--lon', lon,
                                   '--lat', lat, '--zone', zone, '--name', NAME, '--format', 'ics'), problems)
            uids = [e['UID'] for e in events]
            all_uids += uids
            if len(set(uids)) != len(uids):
                problems.append(f'{lon} {lat}: {len(uids) - len(set(uids))} repeated UIDs')
            majors = sorted((when(e['DTSTART']), when(e['DTEND'])) for e in events
                            if e.get('SUMMARY', '').startswith('Major'))
            if any(b[0] < a[1] for a, b in zip(majors, majors[1:])) or not 690 <= len(majors) <= 725:
                problems.append(f'{lon} {lat}: {len(majors)} Major periods in 2024, or some overlap')
        for lon, lat, zone in ZONED_PLACES:
            checked, early = zoned_events(program, env, lon, lat, zone, problems)
            if early == 0:
                problems.append(f'{zone}: no event before the change hour on a change day')
            print(f'{zone}: {checked} timed events, {early} before the change on change days')
    if len(set(all_uids)) != len(all_uids):
        problems.append('UIDs shared by the two places')
    for p in problems[:40]:
        print('FAIL:', p)
    print(f'{len(all_uids)} events of two places checked, {len(problems)} problems')
    return 1 if problems else 0


if __name__ == '__main__':
    sys.exit(main())
