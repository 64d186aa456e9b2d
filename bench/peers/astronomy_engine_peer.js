#!/usr/bin/env node
// SPDX-License-Identifier: GPL-3.0-or-later
// Benchmark peer: per-day Sun/Moon events from astronomy-engine in quillmere-forecast's CSV columns.
// Usage: astronomy_engine_peer.js FROM(YYYY-MM-DD) DAYS LAT LON_EAST ZONE_WEST
'use strict';
const A = require('astronomy-engine');

const [from, days, lat, lon, zone] = process.argv.slice(2);
const observer = new A.Observer(Number(lat), Number(lon), 0);
const zoneHours = Number(zone);
const startMs = Date.parse(from + 'T00:00:00Z') + zoneHours * 3600e3;

// Local clock hours of an event if it falls inside the local day beginning at dayStart.
function hours(time, dayStart) {
  if (!time) return '';
  const h = (time.date.getTime() - dayStart) / 3600e3;
  return h >= 0 && h < 24 ? String(h) : '';
}

function search(fn, dayStart) {
  return hours(fn(A.MakeTime(new Date(dayStart))), dayStart);
}

function day(dayStart) {
  const rise = (body, dir) => search(t => A.SearchRiseSet(body, observer, dir, t, 1), dayStart);
  const twilight = (dir, alt) => search(t => A.SearchAltitude(A.Body.Sun, observer, dir, t, 1, alt), dayStart);
  const transit = body => search(t => A.SearchHourAngle(body, observer, 0, t, 1).time, dayStart);
  const sunrise = rise(A.Body.Sun, +1);
  const sunset = rise(A.Body.Sun, -1);
  const dayLength = sunrise !== '' && sunset !== '' ? String(sunset - sunrise) : '';
  const noon = A.MakeTime(new Date(dayStart + 12 * 3600e3));
  const illum = 100 * A.Illumination(A.Body.Moon, noon).phase_fraction;
  return [sunrise, sunset, transit(A.Body.Sun),
    twilight(+1, -6), twilight(-1, -6), twilight(+1, -12), twilight(-1, -12),
    twilight(+1, -18), twilight(-1, -18), dayLength,
    rise(A.Body.Moon, +1), transit(A.Body.Moon), rise(A.Body.Moon, -1), String(illum)];
}

const out = ['date,sunrise,sunset,sun_transit,civil_dawn,civil_dusk,nautical_dawn,nautical_dusk,' +
  'astronomical_dawn,astronomical_dusk,day_length,moonrise,moon_transit,moonset,illum_percent'];
for (let i = 0; i < Number(days); i++) {
  const dayStart = startMs + i * 86400e3;
  const date = new Date(dayStart - zoneHours * 3600e3).toISOString().slice(0, 10);
  out.push([date, ...day(dayStart)].join(','));
}
process.stdout.write(out.join('\n') + '\n');
