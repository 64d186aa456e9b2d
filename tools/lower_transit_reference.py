#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the reference for the test of the Moon's lower transit at midnight: places and nights
where PyEphem's lower transit (its antitransit) falls within seconds of the local midnight, so
that the search of each of the two days touching it must agree on which one holds it.

Each row: the place (longitude west and latitude north, degrees; zone, hours west of
Greenwich, standard time all year), the local date whose midnight starts the night's second day,
and the lower transit in seconds of the local clock from that midnight (negative: the evening
before).

Run once; the output is kept in tests/astro/data/lower_transit_reference.csv:
    tools/lower_transit_reference.py > tests/astro/data/lower_transit_reference.csv
"""
import ephem

# Alexandria, Louisiana on standard time: the lower transit of 30 September 2027 comes 4 s
# before midnight, which the day before and the day itself both claimed once ("00:00" twice).
NIGHTS = [('Alexandria', 92.42, 31.25, 6, (2027, 9, 30))]


def main():
    print('# The Moon\'s lower transit next to local midnight, from python3-ephem %s.' % ephem.__version__)
    print('# Made by tools/lower_transit_reference.py.')
    print('place,lon_west,lat_north,zone,date,seconds_from_midnight')
    for name, lon_west, lat, zone, date in NIGHTS:
        observer = ephem.Observer()
        observer.lon, observer.lat, observer.pressure = str(-lon_west), str(lat), 0
        midnight = ephem.Date(ephem.Date('%d/%d/%d' % date) + zone / 24.0)
        lower = observer.next_antitransit(ephem.Moon(), start=ephem.Date(midnight - 0.5))
        print('%s,%.2f,%.2f,%d,%04d-%02d-%02d,%.1f' % ((name, lon_west, lat, zone) + date +
                                                     ((lower - midnight) * 86400.0,)))


if __name__ == '__main__':
    main()
