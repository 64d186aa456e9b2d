// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/filldata.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "text/timeunits.h"
#include "text/vbformat.h"

namespace {

QVariant Text(const std::string& s) { return QVariant(QString::fromStdString(s)); }

// The moment of each day at which the fill takes the Moon's illumination and waxing: local
// noon, as a fraction of the day, whatever the main window's hour bar shows.
constexpr double FillMomentOfDay = 0.5;

// An hour of the day, or -1 when the day has no such event.
QVariant HourOrNone(double hours, bool none) { return none ? QVariant(-1) : QVariant(hours); }

// Keeps the observer's zone, daylight-saving values and moment of the day across the fill's
// changes.
class ObserverRestore {
public:
    explicit ObserverRestore(Observer& site)
        : site_(site), dstOffsetDays_(site.DstOffsetDays), zoneDays_(site.ZoneDays),
          hourInstant_(site.HourInstant)
    {
    }
    ~ObserverRestore()
    {
        site_.DstOffsetDays = dstOffsetDays_;
        site_.ZoneDays = zoneDays_;
        site_.HourInstant = hourInstant_;
    }
    ObserverRestore(const ObserverRestore&) = delete;
    ObserverRestore& operator=(const ObserverRestore&) = delete;

private:
    Observer& site_;
    double dstOffsetDays_;
    double zoneDays_;
    double hourInstant_;
};

} // namespace

Calendar YearCalendar(Astronomy& engine, int year, std::int16_t south)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.CurMonth = 1;
    cal.SetYearTables(engine, south);
    return cal;
}

FieldValues DayRecord(Astronomy& engine, const Calendar& cal, int d)
{
    const double J = cal.YearStartJD + d - 1;
    const double T = J - SerialEpochJD; // the day as a date serial
    const bool ampm = engine.Site.AMPM;
    const auto clock = [ampm](double hours) { return FormatClock(0, hours, ampm); };
    const DayForecast& f = engine.Forecast;

    engine.ComputeSunDay(J);
    const SunEventTable& sun = f.SunEvents;
    FieldValues record{{"JulianDate", Text(VbFormatDate(T, "mm/dd/yyyy"))},
                       {"SunRise", Text(clock(sun.Horizon.RiseTime))},
                       {"SunSet", Text(clock(sun.Horizon.SetTime))}};
    for (const auto& [row, column] : {std::pair{&sun.Civil, "CivilTwilight"},
                                      {&sun.Nautical, "NauticalTwilight"},
                                      {&sun.Astronomical, "AstronomicalTwilight"}})
        record.emplace_back(column, Text(clock(row->RiseTime) + "/" + clock(row->SetTime)));

    engine.ComputeDay(J);
    const DayMarks& marks = cal.YearDays[std::size_t(d)];
    const FieldValues moon{
        {"MoonRise",
         HourOrNone(f.MoonEvents.RiseTime, f.MoonEvents.RiseFlag == EventFlag::OtherDay)},
        {"MoonSet", HourOrNone(f.MoonEvents.SetTime, f.MoonEvents.SetFlag == EventFlag::OtherDay)},
        {"Major1", Text(clock(f.Major1))},
        {"Major2", Text(clock(f.Major2))},
        {"Minor1", HourOrNone(f.Minor1, f.Minor1 < 0)},
        {"Minor2", HourOrNone(f.Minor2, f.Minor2 < 0)},
        {"IllumPercent", QVariant(f.IllumPercent)},
        {"GraphicType", QVariant(marks.Rating)},
        {"MoonAge", QVariant(marks.MoonAge)},
        {"Waxing", QVariant(f.Waxing)},
        {"DaylightHours", QVariant(f.DayLength)},
        {"Month", Text(VbFormatDate(T, "m"))},
        {"DayOfWeek_", Text(VbFormatDate(T, "w"))},
        {"Perigee", QVariant(marks.Perigee)}};
    record.insert(record.end(), moon.begin(), moon.end());
    return record;
}

DbResult FillYear(Astronomy& engine, const Calendar& cal, std::int32_t daylightBias,
                  DataControl& data0, const FillProgress& progress)
{
    const ObserverRestore restore(engine.Site);
    engine.Site.HourInstant = FillMomentOfDay + engine.Site.ZoneDays; // as the hour bar holds it
    const int L = cal.YearSlots - 1;
    const int S = cal.DstStartDay, E = cal.DstEndDay;
    std::vector<FieldValues> records;
    records.reserve(std::size_t(L));
    for (int d = 1; d <= L; ++d) {
        engine.Site.DstOffsetDays = S <= d && d <= E - 1 ? MinutesToDays(daylightBias) : 0.0;
        if (progress)
            progress(d, L);
        records.push_back(DayRecord(engine, cal, d));
    }
    return data0.AddRecords(records);
}

DbResult FillYearFile(DataControl& data0, const QString& path, Astronomy& engine,
                      const Calendar& cal, std::int32_t daylightBias, const FillProgress& progress)
{
    data0.SetDatabaseName(path);
    data0.SetRecordSource(QStringLiteral("select * from table1"));
    DbResult filled = data0.Refresh();
    filled = filled ? FillYear(engine, cal, daylightBias, data0, progress) : filled;
    data0.Close();
    return filled;
}
