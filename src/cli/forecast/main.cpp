// SPDX-License-Identifier: GPL-3.0-or-later
// quillmere-forecast: the day forecasts, the year's events and the monthly list of the
// program's engine, for scripts and the terminal.
#include "calendar/calendar.h"
#include "cli/common/arguments.h"
#include "cli/common/forecastrun.h"
#include "cli/common/formats.h"
#include "cli/forecast/pdfpages.h"
#include "model/settings.h"
#include "platform/clock.h"
#include "platform/headlessapp.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"
#include "platform/systemlocale.h"
#include "platform/timezones.h"
#include "text/timeunits.h"
#include "text/version.h"
#include "viewrules/monthlylist.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace {

struct NamedPlace {
    ForecastPlace Place;
    std::string Name;
};

// The location of the request: coordinates as given, or one of the ten stored locations
// (the first-start values when the program has never run; they stay in memory, since the
// command line never writes the settings).
NamedPlace PlaceOf(const ForecastRequest& r)
{
    NamedPlace p;
    if (r.AtCoordinates) {
        p.Place.Longitude = r.AtCoordinates->Longitude;
        p.Place.Latitude = r.AtCoordinates->Latitude;
        p.Place.TimeZone = r.AtCoordinates->TimeZone;
        p.Place.Clock = NamedZoneClock(r.AtCoordinates->TzName, p.Place.TimeZone);
        p.Name = r.AtCoordinates->Name;
    } else {
        SettingsStore store = SettingsStore::ReadOnly();
        if (!store.Contains(QStringLiteral("Usr1Name")))
            WriteFirstStartValues(store);
        Settings s;
        LoadSettings(s, store);
        const Location& loc =
            s.Locations[std::size_t(r.StoredLocation.value_or(s.DefaultLocation()))];
        p.Place.Longitude = loc.Longitude;
        p.Place.Latitude = loc.Latitude;
        p.Place.TimeZone = loc.TimeZone;
        p.Place.Clock = LocationClock(loc);
        if (!loc.TzName.empty() && p.Place.Clock.Empty())
            std::fprintf(stderr, "quillmere-forecast: %s\n", UnknownZoneMessage(loc).c_str());
        p.Place.AmPm = s.AmPm();
        p.Name = loc.Name;
    }
    p.Place.DstOffsetDays = r.Dst ? MinutesToDays(SystemDaylightBias()) : 0.0;
    if (r.Dst) // the fixed daylight-saving hour, as asked
        p.Place.Clock = {};
    p.Place.HourMinutes = r.HourMinutes;
    return p;
}

std::string Caption(const NamedPlace& p)
{
    char text[160];
    std::snprintf(text, sizeof text, "%s  %.2f%c %.2f%c  zone %d%s", p.Name.c_str(),
                  std::abs(p.Place.Longitude), p.Place.Longitude < 0 ? 'E' : 'W',
                  std::abs(p.Place.Latitude), p.Place.Latitude < 0 ? 'S' : 'N', p.Place.TimeZone,
                  p.Place.DstOffsetDays != 0.0 ? "  daylight saving"
                  : p.Place.Clock.Empty()      ? ""
                                               : ("  " + p.Place.Clock.Name).c_str());
    return text;
}

// Tells the place from others in iCalendar UIDs: "92.4200W-31.2500N-z6".
std::string PlaceId(const ForecastPlace& p)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.4f%c-%.4f%c-z%d", std::abs(p.Longitude),
                  p.Longitude < 0 ? 'E' : 'W', std::abs(p.Latitude), p.Latitude < 0 ? 'S' : 'N',
                  p.TimeZone);
    return text;
}

std::string UtcStampNow()
{
    const QDateTime now = Clock::Now().toUTC();
    return now.toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")).toStdString();
}

// The standard output, written piece by piece. A closed pipe (a reader that has had enough,
// as `| head -1`) ends the run quietly with success, as shell tools do; any other failure (a
// full disk) is reported in one line and fails the run.
class Stdout {
public:
    // False once a write has failed: the rest need not be computed.
    bool Put(const std::string& text)
    {
        if (Error == 0 && std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
            Error = errno;
        return Error == 0;
    }

    int Finish()
    {
        if (Error == 0 && std::fflush(stdout) != 0)
            Error = errno;
        if (Error == 0 || Error == EPIPE)
            return 0;
        std::fprintf(stderr, "quillmere-forecast: cannot write the output: %s\n",
                     std::strerror(Error));
        return 1;
    }

private:
    int Error = 0; // errno of the first failed write
};

DayRow RowOf(ForecastRun& run, std::chrono::sys_days day)
{
    const std::chrono::year_month_day ymd{day};
    return run.Day(int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day())));
}

DaysLayout LayoutOf(const ForecastRequest& r, const NamedPlace& p)
{
    switch (r.Format) {
    case OutputFormat::Csv:
        return CsvDays();
    case OutputFormat::Json:
        return JsonDays();
    case OutputFormat::Ics:
        return IcsDays({p.Name, PlaceId(p.Place)}, UtcStampNow());
    case OutputFormat::Text:
        break;
    }
    return TextDays(Caption(p));
}

// Each day is written as soon as it is computed, so a century takes no more memory than a day.
void WriteDays(const ForecastRequest& r, const NamedPlace& p, Stdout& out)
{
    const DaysLayout layout = LayoutOf(r, p);
    ForecastRun run(p.Place);
    using namespace std::chrono;
    sys_days day{year{r.Year} / month{unsigned(r.Month)} / unsigned(r.Day)};
    out.Put(layout.Head);
    for (int i = 0; i < r.Days && out.Put(layout.Row(RowOf(run, day), std::size_t(i))); ++i)
        day += days{1};
    out.Put(layout.Tail(std::size_t(r.Days)));
}

std::string Events(const ForecastRequest& r, const NamedPlace& p)
{
    ForecastRun run(p.Place);
    const auto events = run.Events(r.Year);
    return r.Format == OutputFormat::Json ? EventsAsJson(r.Year, events)
                                          : EventsAsText(r.Year, events, Caption(p));
}

std::string Month(const ForecastRequest& r, const NamedPlace& p)
{
    ForecastRun run(p.Place);
    Calendar& cal = run.Cal;
    cal.CurYear = std::int16_t(r.Year);
    cal.CurMonth = std::int16_t(r.Month);
    cal.SetYearTables(run.Engine, run.SouthernHemisphere);
    std::string out = "Monthly Data for " + p.Name + "\n" + MonthAbbrev(r.Month) + " " +
                      std::to_string(r.Year) + "\n\n" + MonthlyListHeadings[0] + "\n" +
                      MonthlyListHeadings[1] + "\n";
    for (const std::string& line : MonthlyListLines(
             run.Engine, cal.MonthStartJD[std::size_t(r.Month)], cal.MonthDays, p.Place.AmPm))
        out += line + "\n";
    return out;
}

// The text output of the commands that have one (calendar and glance print only).
int WriteOutput(const ForecastRequest& r, const NamedPlace& place)
{
    Stdout out;
    switch (r.What) {
    case Command::Days:
        WriteDays(r, place, out);
        break;
    case Command::Events:
        out.Put(Events(r, place));
        break;
    case Command::Month:
        out.Put(Month(r, place));
        break;
    case Command::CalendarPage:
    case Command::Glance:
        break;
    }
    return out.Finish();
}

int WriteText(const std::string& text)
{
    Stdout out;
    out.Put(text);
    return out.Finish();
}

int Run(int argc, char** argv)
{
    // A closed pipe then fails the write with EPIPE, which ends the output quietly, instead of
    // ending the program by a signal.
    std::signal(SIGPIPE, SIG_IGN);
    const std::vector<std::string> args(argv + 1, argv + argc);
    const QDate today = Clock::Now().date();
    const auto parsed = ParseArguments(args, today.year(), today.month());
    const auto* request = std::get_if<ForecastRequest>(&parsed);
    const auto app = HeadlessApplication(request && !request->Pdf.empty(), argc, argv);
    if (std::holds_alternative<HelpRequested>(parsed))
        return WriteText(UsageText);
    if (std::holds_alternative<VersionRequested>(parsed))
        return WriteText(VersionLine("quillmere-forecast"));
    if (const auto* e = std::get_if<UsageError>(&parsed)) {
        std::cerr << "quillmere-forecast: " << OneLine(e->Message) << "\n";
        return 2;
    }
    const ForecastRequest& r = std::get<ForecastRequest>(parsed);
    if (r.AtCoordinates && !r.AtCoordinates->TzName.empty())
        if (const std::string unknown = UnknownZoneOption(r.AtCoordinates->TzName);
            !unknown.empty()) {
            std::cerr << "quillmere-forecast: " << OneLine(unknown) << "\n";
            return 2;
        }
    const NamedPlace place = PlaceOf(r);
    if (!r.Pdf.empty()) {
        const std::string error = WritePdfPages(r, place.Place, place.Name);
        if (!error.empty())
            std::cerr << "quillmere-forecast: " << error << "\n";
        return error.empty() ? 0 : 1;
    }
    return WriteOutput(r, place);
}
} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const SettingError& e) {
        std::cerr << "quillmere-forecast: the stored setting " << e.Key << " holds \"" << e.Text
                  << "\", which is not " << e.Expected
                  << "; start Quillmere with --reset to restore the default settings\n";
    } catch (const std::exception& e) {
        std::cerr << "quillmere-forecast: " << e.what() << "\n";
    }
    return 1;
}
