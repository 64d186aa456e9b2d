#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Strict check of quillmere-forecast's iCalendar output (RFC 5545): CRLF line ends, lines of at
most 75 octets folded between UTF-8 characters, well-formed content lines, escaped TEXT values,
complete events, UIDs unique within a file and across two places, one Major period per real
transit (no two Major events overlap), and, for places on a zone of the tz database, every timed
event centred on the universal instant that Python's zoneinfo gives for the clock time the day's
row shows, on the days the clock changes too (a clock time the change skips or repeats read
before the change, zoneinfo's fold=0).

usage: ics_check.py PROGRAM
"""
import re
import subprocess
import sys
import tempfile
import csv
import io
import os
from datetime import datetime, timedelta, timezone
from zoneinfo import ZoneInfo

NAME = 'Lac; "Sainte-Anne", d\u00e9p\u00f4t\\nord, \u6771\u4eac \U0001f3a3 ' + '\u00e9' * 30
PLACES = [('92.42W', '31.25N', '6'), ('118.25W', '34.05N', '8')]
CONTENT_LINE = re.compile(r'^([A-Za-z0-9-]+)((?:;[A-Za-z0-9-]+=(?:"[^"]*"|[^";:,]*)'
                          r'(?:,(?:"[^"]*"|[^";:,]*))*)*):(.*)$')
# The changes of three years on each side of the equator.
ZONED_PLACES = [('74.01W', '40.71N', 'America/New_York'), ('151.21E', '33.87S', 'Australia/Sydney'),
                ('10.75E', '59.91N', 'Europe/Oslo')]
ZONED_FROM, ZONED_DAYS = '2024-01-01', 1096
UID_KIND = re.compile(r'^(\d{4}-\d{2}-\d{2})-((?:major|minor)[12])-')
STAMP = re.compile(r'^\d{8}T\d{6}Z$')


def fail(problems, text):
    problems.append(text)


def unfold(raw, problems):
    """The content lines of one file, checking the physical lines on the way."""
    if not raw.endswith(b'\r\n'):
        fail(problems, 'the file does not end with CRLF')
    physical = raw.split(b'\r\n')[:-1]
    lines = []
    for n, line in enumerate(physical, 1):
        if b'\r' in line or b'\n' in line:
            fail(problems, f'line {n}: bare CR or LF')
        if len(line) > 75:
            fail(problems, f'line {n}: {len(line)} octets')
        try:
            line.decode('utf-8')
        except UnicodeDecodeError:
            fail(problems, f'line {n}: folded inside a UTF-8 character or not UTF-8')
        if line[:1] in (b' ', b'\t'):
            if not lines:
                fail(problems, 'the file starts with a continuation line')
                continue
            lines[-1] += line[1:]
        else:
            lines.append(line)
    return [l.decode('utf-8', 'replace') for l in lines]


def text_value(value, where, problems):
    """The unescaped TEXT value; unescaped ';' or ',' and unknown escapes are failures."""
    out, i = [], 0
    while i < len(value):
        c = value[i]
        if c == '\\':
            nxt = value[i + 1:i + 2]
            if nxt not in ('\\', ';', ',', 'n', 'N'):
                fail(problems, f'{where}: bad escape \\{nxt}')
            out.append('\n' if nxt in ('n', 'N') else nxt)
            i += 2
            continue
        if c in ';,' or ord(c) < 0x20:
            fail(problems, f'{where}: unescaped {c!r}')
        out.append(c)
        i += 1
    return ''.join(out)


def when(value):
    return datetime.strptime(value, '%Y%m%dT%H%M%SZ')


def check_file(raw, problems):
    """Checks one file; returns its UIDs and its Major periods as (start, end) pairs."""
    lines = unfold(raw, problems)
    stack, event, uids, majors = [], None, [], []
    for line in lines:
        m = CONTENT_LINE.match(line)
        if not m:
            fail(problems, f'not a content line: {line[:60]!r}')
            continue
        name, params, value = m.group(1).upper(), m.group(2), m.group(3)
        if name == 'BEGIN':
            stack.append(value)
            if value == 'VEVENT':
                event = {}
            continue
        if name == 'END':
            if not stack or stack.pop() != value:
                fail(problems, f'END:{value} does not close its BEGIN')
            if value == 'VEVENT':
                check_event(event, uids, majors, problems)
                event = None
            continue
        if name in ('SUMMARY', 'X-WR-CALNAME'):
            value = text_value(value, name, problems)
            if name == 'X-WR-CALNAME' and value != 'Fishing times, ' + NAME:
                fail(problems, f'calendar name reads back as {value!r}')
        if event is not None:
            if name in event:
                fail(problems, f'{name} twice in one event')
            event[name] = (params, value)
        elif name == 'VERSION' and value != '2.0':
            fail(problems, 'VERSION is not 2.0')
    if stack:
        fail(problems, f'unclosed {stack}')
    if lines[:1] != ['BEGIN:VCALENDAR'] or lines[-1:] != ['END:VCALENDAR']:
        fail(problems, 'the file is not one VCALENDAR')
    if sum(l == 'END:VCALENDAR' for l in lines) != 1:
        fail(problems, 'END:VCALENDAR more than once')
    if not any(l.startswith('PRODID:') for l in lines):
        fail(problems, 'no PRODID')
    return uids, majors


def check_event(event, uids, majors, problems):
    for required in ('UID', 'DTSTAMP', 'DTSTART', 'SUMMARY'):
        if required not in event:
            fail(problems, f'event without {required}: {event}')
            return
    uids.append(event['UID'][1])
    if not STAMP.match(event['DTSTAMP'][1]):
        fail(problems, f'DTSTAMP {event["DTSTAMP"][1]}')
    if ('DTEND' in event) == ('DURATION' in event):
        fail(problems, f'event needs one of DTEND and DURATION: {event["UID"][1]}')
    params, start = event['DTSTART']
    if params == ';VALUE=DATE':
        if not re.match(r'^\d{8}$', start):
            fail(problems, f'all-day DTSTART {start}')
        return
    if not STAMP.match(start) or not STAMP.match(event.get('DTEND', ('', ''))[1]):
        fail(problems, f'timed event {event["UID"][1]} without UTC start and end')
        return
    begin, end = when(start), when(event['DTEND'][1])
    if end <= begin:
        fail(problems, f'{event["UID"][1]} ends before it starts')
    if event['SUMMARY'][1].startswith('Major'):
        majors.append((begin, end, event['UID'][1]))


def zoned_events(program, env, lon, lat, zone, problems):
    """Checks each timed event of 2024 to 2026 against zoneinfo; returns how many, and how many of them
    lie before the change hour on a day whose clock changes."""
    def run(fmt):
        return subprocess.run([program, 'days', '--from', ZONED_FROM, '--days', str(ZONED_DAYS), '--lon', lon,
                               '--lat', lat, '--tz', zone, '--format', fmt],
                              env=env, check=True, capture_output=True).stdout
    rows = {r['date']: r for r in csv.DictReader(io.StringIO(run('csv').decode()))}
    tz = ZoneInfo(zone)
    checked = early = 0
    for block in run('ics').decode().split('BEGIN:VEVENT')[1:]:
        fields = dict(line.split(':', 1) for line in block.split('\r\n') if ':' in line)
        kind = UID_KIND.match(fields['UID'])
        if not kind:
            continue
        date, what = kind.groups()
        hours = float(rows[date][what])
        clock = datetime.fromisoformat(date) + timedelta(hours=hours)
        expected = clock.replace(tzinfo=tz).astimezone(timezone.utc).replace(tzinfo=None)
        centre = when(fields['DTSTART']) + (when(fields['DTEND']) - when(fields['DTSTART'])) / 2
        if abs((centre - expected).total_seconds()) > 1:
            fail(problems, f'{zone} {date} {what} at clock {hours:.3f} h: centred {centre}, '
                           f'zoneinfo says {expected}')
        checked += 1
        midnight = datetime.fromisoformat(date).replace(tzinfo=tz)
        noon = midnight + timedelta(hours=12)
        early += midnight.utcoffset() != noon.utcoffset() and hours < 3
    return checked, early


def main():
    program = sys.argv[1]
    problems, all_uids, zoned = [], [], 0
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=os.path.join(home, 'config'))
        for lon, lat, zone in PLACES:
            raw = subprocess.run([program, 'days', '--from', '2024-01-01', '--days', '366', '--lon', lon,
                                  '--lat', lat, '--zone', zone, '--name', NAME, '--format', 'ics'],
                                 env=env, check=True, capture_output=True).stdout
            uids, majors = check_file(raw, problems)
            if len(set(uids)) != len(uids):
                fail(problems, f'{lon} {lat}: {len(uids) - len(set(uids))} repeated UIDs')
            all_uids += uids
            majors.sort()
            overlaps = [(a[2], b[2]) for a, b in zip(majors, majors[1:]) if b[0] < a[1]]
            if overlaps:
                fail(problems, f'{lon} {lat}: {len(overlaps)} overlapping Major periods, first {overlaps[0]}')
            if not 690 <= len(majors) <= 725:
                fail(problems, f'{lon} {lat}: {len(majors)} Major periods in 2024')
        for lon, lat, zone in ZONED_PLACES:
            checked, early = zoned_events(program, env, lon, lat, zone, problems)
            zoned += checked
            if early == 0:
                fail(problems, f'{zone}: no event before the change hour on a change day')
            print(f'{zone}: {checked} timed events, {early} before the change on change days')
    shared = len(all_uids) - len(set(all_uids))
    if shared:
        fail(problems, f'{shared} UIDs shared by the two places')
    for p in problems[:40]:
        print('FAIL:', p)
    print(f'{len(all_uids) + zoned} events checked, {len(problems)} problems')
    return 1 if problems else 0


if __name__ == '__main__':
    sys.exit(main())
