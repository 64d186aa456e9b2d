// SPDX-License-Identifier: GPL-3.0-or-later
// Filling a new year file with that year's forecasts.
#pragma once

#include "db/database.h"

#include <cstdint>
#include <functional>

class Astronomy;
class Calendar;
class DataControl;
class QString;

// Told of each day as it is computed: the day of the year (1..days) and the number of days.
using FillProgress = std::function<void(int day, int days)>;

// The year tables of the year (ratings, moon ages, perigees, daylight-saving days) as the
// main window computes them, with the engine at its observer; south is -1 below the equator.
Calendar YearCalendar(Astronomy& engine, int year, std::int16_t south);

// The table1 record of day d of the calendar's year, the columns in the order the fill
// writes them. The engine's observer must already carry the day's daylight-saving offset.
FieldValues DayRecord(Astronomy& engine, const Calendar& cal, int d);

// Writes one table1 record per day of cal.CurYear through data0, which is open on
// "select * from table1". Every day is computed at local noon; days from DstStartDay to
// DstEndDay - 1 with the offset daylightBias / 1440, the others without. The engine's
// DstOffsetDays, ZoneDays and HourInstant are as before when it returns. All the records are
// saved in one transaction, or none.
DbResult FillYear(Astronomy& engine, const Calendar& cal, std::int32_t daylightBias,
                  DataControl& data0, const FillProgress& progress = {});

// Opens data0 on the file at path with "select * from table1", fills it with FillYear and
// closes it again.
DbResult FillYearFile(DataControl& data0, const QString& path, Astronomy& engine,
                      const Calendar& cal, std::int32_t daylightBias,
                      const FillProgress& progress = {});
