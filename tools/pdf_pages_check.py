#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks the PDF pages of quillmere-forecast against poppler's reading of them and against
# PyEphem: February 2024 at Alexandria, LA (92.42W 31.25N, 6 hours west of Greenwich).
#
# usage: pdf_pages_check.py QUILLMERE_FORECAST OUTPUT_FOLDER
import datetime
import os
import re
import subprocess
import sys

import ephem

PLACE = ["--lon", "92.42W", "--lat", "31.25N", "--zone", "6", "--name", "Alexandria, LA"]
ZONE_HOURS = 6
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)


def make(program, folder, command, locale="C.UTF-8"):
    """The month's page(s) for a locale's paper (en_US prints on Letter, others on A4)."""
    pdf = os.path.join(folder, f"{command}-feb2024.pdf")
    env = dict(os.environ, LANG=locale, LC_ALL=locale)
    subprocess.run([program, command, "--year", "2024", "--month", "2", *PLACE, "--pdf", pdf],
                   check=True, env=env)
    text = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True,
                          capture_output=True, text=True).stdout
    return pdf, text


def moon_transit_local(year, month, day):
    """The Moon's upper transit on that local day, as 12-hour clock text "hh:mm A"."""
    site = ephem.Observer()
    site.lon, site.lat, site.pressure = "-92.42", "31.25", 0
    site.date = ephem.Date(datetime.datetime(year, month, day, ZONE_HOURS))
    local = ephem.Date(site.next_transit(ephem.Moon()) - ZONE_HOURS * ephem.hour).datetime()
    local += datetime.timedelta(seconds=30)  # to the nearest minute
    return local.strftime("%I:%M ") + local.strftime("%p")[0]


def main(program, folder):
    _, text = make(program, folder, "calendar")
    check("2024" in text, "calendar: the year in the title")
    numbers = set(re.findall(r"(?m)(?:^|\s)(\d{1,2})(?=\s|$)", text))
    check(all(str(d) in numbers for d in range(1, 30)), "calendar: every day number 1..29")
    check("30" not in numbers, "calendar: no day 30 in February 2024")
    transit = moon_transit_local(2024, 2, 1)
    check(transit + "/" in text, f"calendar: day 1's first major is the transit {transit}")
    for locale, paper in (("C.UTF-8", "A4"), ("en_US.UTF-8", "letter")):
        pdf, _ = make(program, folder, "calendar", locale)
        info = subprocess.run(["pdfinfo", pdf], check=True, capture_output=True, text=True)
        check(f"({paper})" in info.stdout, f"calendar: {paper} paper for {locale}")

    _, text = make(program, folder, "glance")
    check("Lunar Events for Feb/2024" in text, "glance: its title")
    check("Perigee" in text and "Apogee" in text, "glance: perigee and apogee labels")
    axis = [line.split() for line in text.splitlines() if line.split()[:3] == ["1", "2", "3"]]
    check(axis and axis[0] == [str(d) for d in range(1, 30)], "glance: 29 day positions")

    _, text = make(program, folder, "month")
    lines = [line.strip() for line in text.splitlines()]
    days = [line for line in lines if re.match(r"^\d\d ", line)]
    check([d[:2] for d in days] == [f"{d:02d}" for d in range(1, 30)], "month: 29 lines")
    check("Feb 2024" in lines, "month: the month and year")
    check(any(line.startswith("Day") and "Majors" in line for line in lines), "month: headings")
    check(days and transit in days[0], f"month: day 1 lists the transit {transit}")

    for f in failures:
        print("FAILED:", f)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
