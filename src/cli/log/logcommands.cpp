// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/log/logcommands.h"

#include "calendar/calendar.h"
#include "cli/common/arguments.h"
#include "cli/common/forecastrun.h"
#include "cli/log/logquery.h"
#include "db/datacontrol.h"
#include "logdb/backups.h"
#include "logdb/catchdays.h"
#include "logdb/catchexport.h"
#include "logdb/catchtally.h"
#include "logdb/csvread.h"
#include "logdb/filldata.h"
#include "logdb/logexport.h"
#include "logdb/logfiles.h"
#include "logdb/logimport.h"
#include "logdb/logreport.h"
#include "logdb/yearlock.h"
#include "logdb/yearplace.h"
#include "model/settings.h"
#include "pages/pages.h"
#include "pages/reportpage.h"
#include "platform/clock.h"
#include "platform/programfolder.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"
#include "platform/systemlocale.h"
#include "platform/timezones.h"
#include "text/timeunits.h"
#include "text/version.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <ostream>

const char* const LogUsageText =
    R"(quillmere-log: Quillmere's fishing log on the command line.

Usage:
  quillmere-log list
  quillmere-log create --year YYYY [LOCATION] [--dst]
  quillmere-log info --year YYYY
  quillmere-log compact --year YYYY
  quillmere-log repair --year YYYY
  quillmere-log restore --year YYYY
  quillmere-log export --year YYYY [--format csv|json] [--catches]
  quillmere-log query --year YYYY [CONDITIONS] [--sort S] [--format text|csv|json]
                     [--catches]
  quillmere-log report --year YYYY [CONDITIONS] [--sort S] [--pdf FILE]
  quillmere-log import --year YYYY FILE.csv|FILE.json [--skip|--overwrite]
  quillmere-log stats --year YYYY | --all
  quillmere-log --version | -V

Commands:
  list     the year files of the program's folder (YYYY.mdb), one name a line.
  create   makes YYYY.mdb and fills it with the year's forecasts at the location, all at
           once: the file appears whole or not at all. An existing file is left alone.
  info     the place, time zone and clock YYYY.mdb was filled for, as create recorded it.
  compact  compacts YYYY.mdb; the file before compaction is kept as YYYY.BAK.
  repair   checks YYYY.mdb and, when it is damaged, rebuilds it from every record that can
           still be read; the damaged file is kept as YYYY.BAD.
  restore  makes the copy kept by an interrupted compaction (NewYYYY.mdb) or the backup
           YYYY.BAK the year's file again, when YYYY.mdb is missing.
  export   every record of YYYY.mdb in date order, every column; dates as mm/dd/yyyy,
           times as the browser shows them; an hour of an event the day does not have
           (moonrise, moonset, minor) is empty. With --catches, each catch as well:
           in CSV one line per catch after its day's columns (a day without catches one
           line), in JSON nested in its day under "Catches"; the catch's values as stored
           (CatchTime hh:mm:ss, LengthMm, WeightG, WaterTemp and AirTemp in degrees
           Celsius, Released 1 or 0, Photos joined by "|").
  query    the days of YYYY.mdb that meet the conditions, as the record browser's "Select
           Data Where" finds them (the result is left in the file's Table3): as text (the
           order, the report's heading and one line a day), or every column as CSV or JSON,
           with --catches each day's catches too, as export --catches writes them.
  report   the report of those days as printed: pages of 58 lines under the title, the
           column heading and a dash line; with --pdf, printed to that PDF file.
  import   the catch entries of a CSV file with the columns of export (JulianDate,
           TotalTaken, TakenWith, PeakTime, Notes; the others are ignored) into the days of
           YYYY.mdb, all in one step, after a copy of the file goes to backups/; the
           catches of export --catches too, in place of a day's catches (a file whose name
           ends in .json is read as JSON, any other as CSV). Every line that cannot be
           imported (a date outside the year, an unknown column, a bad number or time)
           and every day that already holds an entry or catches is listed first; when
           there is any, nothing is written unless --skip (keep those entries, import the
           rest) or --overwrite (replace them) says what to do.
  stats    the catches counted by species, by where their time lay (in a major period,
           in a minor one, within an hour of sunrise or sunset, other), by clock hour,
           by spot and by water temperature (5 degree Celsius bands), over YYYY.mdb or
           with --all every year file of the folder: tab-separated lines of catches,
           fish and fish released under each grouping's title.

Conditions (query and report; each narrows the days, in this order):
  --months M-M           months between, 1-12 (default: the whole year)
  --major1 T-T           first major between two clock times, "5:00 PM-9:00 PM"
  --weekdays D-D         days of the week between, sun..sat or 1-7 ("mon-fri");
                         sat-sun and fri-sun are the weekends
  --moon-age N-N         moon age between, 0-29 days
  --illumination N-N     moon illumination between, in percent
  --daylight N           at least N hours of daylight
  --best                 best fishing days
  --very-good            very good fishing days
  --either-major T-T     either major between two clock times
  --taken N              total taken at least N
  --waxing, --waning     the moon waxing / waning
  --perigee              the day of lunar perigee
  --rated                every rated day
  --species NAME         a catch of that species (any case)
  --text TEXT            TEXT in the day's notes or a catch's note (any case)
  --released             a released catch (of that species, with --species)
  --sort S               date (default), major1, weekday, rating or taken

Location (create only; default: the default one of your ten stored locations):
  --location N              one of the ten stored locations, 1..10
  --lon 92.42W --lat 31.25N --zone 6 [--name TEXT]
                            degrees with a hemisphere letter (W/E, N/S); zone in hours
                            west of Greenwich (5 = US Eastern, -1 = Central Europe)
  --tz America/Chicago      with --lon/--lat: each day on that zone's own clock (a stored
                            location with a zone uses its zone the same way)

Options:
  --dst            the location in daylight-saving time, as the main window's
                   "Daylight Savings" choice
  --format F       csv (default; a header line, CR LF line ends) or json; query also
                   takes text, its default
  --pdf FILE       report only: print the report into FILE
  --skip           import: leave the days that hold an entry, import the other lines
  --overwrite      import: replace the entries of those days too
  --catches        export, and query as CSV or JSON: the catches too
  --all            stats: every year file of the folder
  --help           this text
  --version, -V    the program's version

The program's folder is $QUILLMERE_HOME, else ~/.local/share/Quillmere. Years run from
1900 to 2500. Bad input prints one line on stderr and exits with status 2; a failed
operation prints one line saying what went wrong and what is kept, and exits with status 1.

Examples:
  quillmere-log create --year 2024 --location 3
  quillmere-log export --year 2024 > 2024.csv
  quillmere-log compact --year 2024
  quillmere-log query --year 2024 --months 3-5 --best --weekdays sat-sun --sort major1
  quillmere-log report --year 2024 --either-major "5:00 PM-9:00 PM" --taken 1 --pdf catch.pdf
  quillmere-log import --year 2024 catches.csv --skip
)";
static_assert(FirstYear == 1900 && LastYear == 2500, "the usage text names the years");

namespace {

struct LogRequest {
    std::string Command;
    std::map<std::string, std::string> Options;
    int Year = 0;
};

struct Streams {
    std::ostream& Out;
    std::ostream& Err;
    QString Folder;

    int Fail(const std::string& message) const
    {
        Err << "quillmere-log: " << message << "\n";
        return 1;
    }
    QString YearPath(int year) const { return QDir(Folder).filePath(YearFileName(year)); }
};

std::string Std(const QString& text) { return text.toStdString(); }

// The stored settings; a store the program has never written gives the first-start values,
// kept in memory: the command line never writes the settings. A stored value that cannot be
// read is named in one line on err, and its default is used.
Settings StoredSettings(std::ostream& err)
{
    SettingsStore store = SettingsStore::ReadOnly();
    if (!store.Contains(QStringLiteral("Usr1Name")))
        WriteFirstStartValues(store);
    Settings s;
    for (;;) {
        try {
            LoadSettings(s, store);
            return s;
        } catch (const SettingError& e) {
            err << "quillmere-log: the stored setting " << e.Key << " holds \"" << e.Text
                << "\", which is not " << e.Expected
                << "; its default is used (quillmere --reset restores the defaults)\n";
            store.Remove(QString::fromStdString(e.Key)); // the defaults always load
        }
    }
}

// The forecast place of the location options, checked by the same rules as
// quillmere-forecast's.
std::variant<ForecastPlace, UsageError> PlaceOf(const LogRequest& r, std::ostream& err)
{
    std::vector<std::string> args = {"events", "--year", std::to_string(r.Year)};
    for (const char* name : {"--location", "--lon", "--lat", "--zone", "--tz", "--name", "--dst"}) {
        if (const auto it = r.Options.find(name); it != r.Options.end()) {
            args.emplace_back(name);
            if (std::string(name) != "--dst")
                args.push_back(it->second);
        }
    }
    const auto parsed = ParseArguments(args, r.Year, 1);
    if (const auto* e = std::get_if<UsageError>(&parsed))
        return *e;
    const ForecastRequest& f = std::get<ForecastRequest>(parsed);
    const Settings s = StoredSettings(err);
    ForecastPlace p;
    p.AmPm = s.AmPm();
    if (f.AtCoordinates) {
        if (!f.AtCoordinates->TzName.empty())
            if (std::string unknown = UnknownZoneOption(f.AtCoordinates->TzName); !unknown.empty())
                return UsageError{std::move(unknown)};
        p.Longitude = f.AtCoordinates->Longitude;
        p.Latitude = f.AtCoordinates->Latitude;
        p.TimeZone = f.AtCoordinates->TimeZone;
        p.Clock = NamedZoneClock(f.AtCoordinates->TzName, p.TimeZone);
        p.Name = f.AtCoordinates->Name.empty() ? "Custom location" : f.AtCoordinates->Name;
    } else {
        const Location& loc =
            s.Locations[std::size_t(f.StoredLocation.value_or(s.DefaultLocation()))];
        p.Name = loc.Name;
        p.Longitude = loc.Longitude;
        p.Latitude = loc.Latitude;
        p.TimeZone = loc.TimeZone;
        p.Clock = LocationClock(loc);
        if (!loc.TzName.empty() && p.Clock.Empty())
            std::fprintf(stderr, "quillmere-log: %s\n", UnknownZoneMessage(loc).c_str());
    }
    p.DstOffsetDays = f.Dst ? MinutesToDays(SystemDaylightBias()) : 0.0;
    if (f.Dst) // the fixed daylight-saving hour, as asked
        p.Clock = {};
    return p;
}

int List(const LogRequest&, const Streams& io)
{
    for (const QString& name : ListYearFiles(io.Folder))
        io.Out << Std(name) << "\n";
    for (const RestorableYear& kept : RestorableYears(io.Folder))
        io.Err << "quillmere-log: " << Std(YearFileName(kept.Year))
               << " is missing; a copy is kept as " << Std(QFileInfo(kept.Copy).fileName())
               << " (see restore)\n";
    return 0;
}

int Create(const LogRequest& r, const Streams& io)
{
    const auto place = PlaceOf(r, io.Err);
    if (const auto* e = std::get_if<UsageError>(&place)) {
        io.Err << "quillmere-log: " << e->Message << "\n";
        return 2;
    }
    const ForecastPlace& named = std::get<ForecastPlace>(place);
    ForecastRun run(named);
    const Calendar cal = YearCalendar(run.Engine, r.Year, run.SouthernHemisphere);
    DataControl data0;
    const CreateYearResult created = CreateYearFile(io.Folder, r.Year, [&](const QString& path) {
        const DbResult filled = FillYearFile(data0, path, run.Engine, cal, SystemDaylightBias());
        return filled ? WriteYearPlace(
                            path, PlaceOfEngine(run.Engine, QString::fromStdString(named.Name)))
                      : filled;
    });
    switch (created.Outcome) {
    case CreateYearResult::Status::AlreadyExists:
        return io.Fail("DataBase already exists for " + std::to_string(r.Year) + "; " +
                       Std(created.Path) + " is left as it is");
    case CreateYearResult::Status::Failed:
        return io.Fail("cannot create " + Std(YearFileName(r.Year)) + ": " + Std(created.Message) +
                       "; no file was made");
    case CreateYearResult::Status::Created:
        break;
    }
    io.Out << "Created " << Std(created.Path) << " with " << cal.YearSlots - 1 << " days\n";
    return 0;
}

// The year's file, or a failure naming what is missing.
bool YearFileThere(int year, const Streams& io)
{
    if (QFileInfo::exists(io.YearPath(year)))
        return true;
    io.Fail("there is no " + Std(YearFileName(year)) + " in " + Std(io.Folder));
    return false;
}

int Info(const LogRequest& r, const Streams& io)
{
    if (!YearFileThere(r.Year, io))
        return 1;
    const std::optional<YearPlace> place = ReadYearPlace(io.YearPath(r.Year));
    io.Out << r.Year << ".mdb: "
           << (place ? "filled for " + Std(YearPlaceText(*place))
                     : std::string("the place it was filled for is not recorded (a file made "
                                   "before the log kept it)"))
           << "\n";
    return 0;
}

int Compact(const LogRequest& r, const Streams& io)
{
    if (!YearFileThere(r.Year, io))
        return 1;
    const QString path = io.YearPath(r.Year);
    if (const DbResult compacted = CompactDB(path); !compacted)
        return io.Fail("cannot compact " + Std(path) + ": " + Std(compacted.Message) +
                       "; the file is kept as it was");
    io.Out << "Compacted " << Std(path) << "; the file before compaction is kept as " << r.Year
           << ".BAK\n";
    return 0;
}

int Repair(const LogRequest& r, const Streams& io)
{
    if (!YearFileThere(r.Year, io))
        return 1;
    const QString path = io.YearPath(r.Year);
    const RepairReport report = RepairYearFile(path);
    if (!report.Result)
        return io.Fail("cannot repair " + Std(path) + ": " + Std(report.Result.Message) +
                       "; the file is kept as it was");
    io.Out << Std(report.Summary()) << "\n";
    return 0;
}

int Restore(const LogRequest& r, const Streams& io)
{
    auto years = RestorableYears(io.Folder);
    if (const auto deleted = DeletedYear(io.Folder, r.Year))
        years.push_back(*deleted); // after any copy beside the file, which is newer
    const auto kept = std::find_if(years.begin(), years.end(),
                                   [&r](const RestorableYear& k) { return k.Year == r.Year; });
    if (kept == years.end())
        return io.Fail(QFileInfo::exists(io.YearPath(r.Year))
                           ? Std(YearFileName(r.Year)) + " is there; nothing to restore"
                           : "no kept copy of " + Std(YearFileName(r.Year)) + " in " +
                                 Std(io.Folder));
    if (const DbResult restored = RestoreYearFile(io.Folder, *kept); !restored)
        return io.Fail("cannot restore " + Std(YearFileName(r.Year)) + ": " +
                       Std(restored.Message) + "; the copy is kept as it was");
    io.Out << "Restored " << Std(io.YearPath(r.Year)) << " from "
           << Std(QFileInfo(kept->Copy).fileName()) << "\n";
    return 0;
}

std::string TableAsCsv(const LogTable& table)
{
    const auto line = [](const std::vector<QString>& texts) {
        std::vector<std::string> fields;
        fields.reserve(texts.size());
        for (const QString& text : texts)
            fields.push_back(Std(text));
        return CsvLine(fields);
    };
    std::string out = line(table.Columns);
    for (const auto& row : table.Rows)
        out += line(row);
    return out;
}

std::string TableAsJson(const LogTable& table)
{
    QJsonArray records;
    for (const auto& row : table.Rows) {
        QJsonObject record;
        for (std::size_t i = 0; i < table.Columns.size() && i < row.size(); ++i)
            record.insert(table.Columns[i],
                          row[i].isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(row[i]));
        records.append(record);
    }
    return QJsonDocument(records).toJson(QJsonDocument::Indented).toStdString();
}

int Export(const LogRequest& r, const Streams& io)
{
    LogTable table;
    if (const DbResult read =
            ExportLogTable(io.YearPath(r.Year), StoredSettings(io.Err).AmPm(), table);
        !read)
        return io.Fail("cannot read " + Std(io.YearPath(r.Year)) + ": " + Std(read.Message));
    const auto format = r.Options.find("--format");
    io.Out << (format != r.Options.end() && format->second == "json" ? TableAsJson(table)
                                                                     : TableAsCsv(table));
    return 0;
}

int ExportCatches(const LogRequest& r, const Streams& io)
{
    CatchLogTable table;
    if (const DbResult read =
            ExportCatchTable(io.YearPath(r.Year), StoredSettings(io.Err).AmPm(), table);
        !read)
        return io.Fail("cannot read " + Std(io.YearPath(r.Year)) + ": " + Std(read.Message));
    const auto format = r.Options.find("--format");
    io.Out << (format != r.Options.end() && format->second == "json" ? CatchTableAsJson(table)
                                                                     : CatchTableAsCsv(table));
    return 0;
}

int ExportYear(const LogRequest& r, const Streams& io)
{
    if (!YearFileThere(r.Year, io))
        return 1;
    return r.Options.count("--catches") ? ExportCatches(r, io) : Export(r, io);
}

// The conditions and order of a query or report, run on the year's file; nothing when the
// request cannot run, after saying why (status in `status`).
std::optional<Selection> Selected(const LogRequest& r, const Streams& io, int& status)
{
    status = 1;
    if (!YearFileThere(r.Year, io))
        return std::nullopt;
    QueryRequest request;
    if (auto wrong = ReadQueryOptions(r.Options, request)) {
        status = 2;
        io.Err << "quillmere-log: " << *wrong << "\n";
        return std::nullopt;
    }
    // The query leaves its result in the file's work tables: a write like any other.
    const QString path = io.YearPath(r.Year);
    const YearFileLock lock(path);
    if (!lock.Held()) {
        io.Fail(Std(lock.Message()));
        return std::nullopt;
    }
    if (QFile file(path); !file.open(QIODevice::ReadWrite)) {
        io.Fail("cannot query " + Std(path) + ": " + Std(file.errorString()) +
                "; the query keeps its result in the file, so it must be writable");
        return std::nullopt;
    }
    Selection selection = SelectDataWhere(path, request.Form, request.SortIndex);
    if (!selection.Error.isEmpty()) {
        status = 2;
        io.Err << "quillmere-log: " << Std(selection.Error) << "\n";
        return std::nullopt;
    }
    // The options were checked, so a step the engine refused means the file could not take
    // the result: no days are shown rather than an earlier query's.
    if (!selection.Refused.isEmpty()) {
        io.Fail("cannot query " + Std(path) + ": " + Std(selection.Refused.front()) +
                "; no days are shown");
        return std::nullopt;
    }
    return selection;
}

int Query(const LogRequest& r, const Streams& io)
{
    int status = 0;
    const auto selection = Selected(r, io, status);
    if (!selection)
        return status;
    const QString path = io.YearPath(r.Year);
    const bool ampm = StoredSettings(io.Err).AmPm();
    const auto format = r.Options.find("--format");
    if (format == r.Options.end() || format->second == "text") {
        QString report;
        if (const DbResult read = ReadReportText(path, selection->RecordSource, ampm, report);
            !read)
            return io.Fail("cannot read the selected days: " + Std(read.Message));
        io.Out << QueryText(report, *selection);
        return 0;
    }
    const bool json = format->second == "json";
    if (r.Options.count("--catches")) {
        CatchLogTable table;
        if (const DbResult read = ExportCatchTable(path, ampm, table, selection->RecordSource);
            !read)
            return io.Fail("cannot read the selected days: " + Std(read.Message));
        io.Out << (json ? CatchTableAsJson(table) : CatchTableAsCsv(table));
        return 0;
    }
    LogTable table;
    if (const DbResult read = ExportLogTable(path, ampm, table, selection->RecordSource); !read)
        return io.Fail("cannot read the selected days: " + Std(read.Message));
    io.Out << (json ? TableAsJson(table) : TableAsCsv(table));
    return 0;
}

int Report(const LogRequest& r, const Streams& io)
{
    // A report may replace an earlier report, never a year file or anything else.
    if (const auto pdf = r.Options.find("--pdf");
        pdf != r.Options.end() && !IsPdfOrAbsent(QString::fromStdString(pdf->second)))
        return io.Fail("will not print over " + pdf->second +
                       ": it is not a PDF; nothing was written");
    int status = 0;
    const auto selection = Selected(r, io, status);
    if (!selection)
        return status;
    QString report;
    if (const DbResult read = ReadReportText(io.YearPath(r.Year), selection->RecordSource,
                                             StoredSettings(io.Err).AmPm(), report);
        !read)
        return io.Fail("cannot read the selected days: " + Std(read.Message));
    const auto pdf = r.Options.find("--pdf");
    if (pdf == r.Options.end()) {
        io.Out << ReportText(report);
        return 0;
    }
    const QString file = QString::fromStdString(pdf->second);
    if (const QString failed = PrintReportToPdf(file, TextForPrinting(report)); !failed.isEmpty())
        return io.Fail(Std(failed));
    io.Out << "Printed the report to " << Std(QFileInfo(file).absoluteFilePath()) << "\n";
    return 0;
}

// The command's own options followed by the conditions and the order.
std::vector<std::string> WithConditions(std::vector<std::string> own)
{
    own.insert(own.end(), QueryOptionNames().begin(), QueryOptionNames().end());
    return own;
}

// Reports every problem of the file first, then imports when there is none or the user chose
// what to do with them.
int Import(const LogRequest& r, const Streams& io)
{
    if (!YearFileThere(r.Year, io))
        return 1;
    const QString path = io.YearPath(r.Year);
    const QString source = QString::fromStdString(r.Options.at("FILE"));
    QByteArray csv;
    if (const DbResult read = ReadImportFile(source, csv); !read)
        return io.Fail(Std(read.Message) + "; nothing was imported");
    ImportPlan plan;
    const bool json = source.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive);
    if (const DbResult planned =
            json ? PlanJsonImport(path, r.Year, csv, plan) : PlanImport(path, r.Year, csv, plan);
        !planned)
        return io.Fail("cannot import " + Std(source) + ": " + Std(planned.Message) +
                       "; nothing was imported");
    for (const QString& line : IssueLines(plan))
        io.Out << Std(source) << ": " << Std(line) << "\n";
    const bool overwrite = r.Options.count("--overwrite") > 0;
    if (!plan.Issues.empty() && !overwrite && !r.Options.count("--skip"))
        return io.Fail("nothing was imported: choose --skip to keep the entries already there "
                       "and leave out the lines above, or --overwrite to replace those entries");
    if (const DbResult kept = BackUpIfChanged(path, Clock::Now()); !kept)
        return io.Fail("cannot back up " + Std(path) + ": " + Std(kept.Message) +
                       "; nothing was imported");
    ImportCount count;
    const ImportChoice choice = overwrite ? ImportChoice::Overwrite : ImportChoice::Skip;
    if (const DbResult done = ApplyImport(path, plan, choice, count); !done)
        return io.Fail("cannot import into " + Std(path) + ": " + Std(done.Message));
    io.Out << "Imported " << count.Written << " day(s) into " << Std(path)
           << Std(GainedEntryNote(count)) << "\n";
    return 0;
}

// The catches counted, over one year file or all of the folder's.
int Stats(const LogRequest& r, const Streams& io)
{
    QStringList paths;
    if (r.Options.count("--all")) {
        for (const QString& name : ListYearFiles(io.Folder))
            paths << QDir(io.Folder).filePath(name);
    } else if (YearFileThere(r.Year, io)) {
        paths << io.YearPath(r.Year);
    } else {
        return 1;
    }
    CatchBreakdown breakdown;
    if (const DbResult read = CatchBreakdownOf(paths, breakdown); !read)
        return io.Fail("cannot read the catches: " + Std(read.Message));
    io.Out << BreakdownText(breakdown);
    return 0;
}

struct LogCommand {
    const char* Name;
    std::vector<std::string> Options; // besides --help
    int (*Run)(const LogRequest&, const Streams&);
};

const std::vector<LogCommand>& Commands()
{
    static const std::vector<LogCommand> commands = {
        {"list", {}, List},
        {"create",
         {"--year", "--location", "--lon", "--lat", "--zone", "--tz", "--name", "--dst"},
         Create},
        {"info", {"--year"}, Info},
        {"compact", {"--year"}, Compact},
        {"repair", {"--year"}, Repair},
        {"restore", {"--year"}, Restore},
        {"export", {"--year", "--format", "--catches"}, ExportYear},
        {"query", WithConditions({"--year", "--format", "--catches"}), Query},
        {"report", WithConditions({"--year", "--pdf"}), Report},
        {"import", {"--year", "FILE", "--skip", "--overwrite"}, Import},
        {"stats", {"--year", "--all"}, Stats},
    };
    return commands;
}

bool IsFlag(const std::string& option)
{
    return option == "--dst" || option == "--help" || option == "--skip" || option == "--catches" ||
           option == "--all" || option == "--overwrite" || IsQueryFlag(option);
}

// The options of the command line, each allowed by the command and given once.
std::optional<std::string> CollectOptions(const std::vector<std::string>& args,
                                          const LogCommand& command, LogRequest& r)
{
    for (std::size_t i = 1; i < args.size(); ++i) {
        const std::string& name = args[i];
        const auto& own = command.Options;
        const bool takesFile = std::find(own.begin(), own.end(), "FILE") != own.end();
        if (takesFile && name.rfind("--", 0) != 0 && !r.Options.count("FILE")) {
            r.Options["FILE"] = name;
            continue;
        }
        if (name != "--help" && std::find(own.begin(), own.end(), name) == own.end())
            return "option '" + name + "' does not apply to " + command.Name + " (see --help)";
        if (r.Options.count(name))
            return "option " + name + " given twice";
        if (IsFlag(name)) {
            r.Options[name] = "";
        } else if (i + 1 >= args.size()) {
            return "option " + name + " needs a value";
        } else {
            r.Options[name] = args[++i];
        }
    }
    return std::nullopt;
}

std::optional<std::string> CheckRequest(const LogCommand& command, LogRequest& r)
{
    const auto& own = command.Options;
    if (std::find(own.begin(), own.end(), "--year") != own.end()) {
        const auto year = r.Options.find("--year");
        if (year == r.Options.end() && r.Options.count("--all"))
            return std::nullopt;
        if (year == r.Options.end())
            return std::string(command.Name) + " needs --year YYYY";
        const std::string& text = year->second;
        const bool digits = text.size() == 4 && std::all_of(text.begin(), text.end(), ::isdigit);
        r.Year = digits ? std::stoi(text) : 0;
        if (!ValidYear(r.Year))
            return "--year takes a year from " + std::to_string(FirstYear) + " to " +
                   std::to_string(LastYear) + ", not '" + text + "'";
    }
    if (std::find(own.begin(), own.end(), "FILE") != own.end() && !r.Options.count("FILE"))
        return std::string(command.Name) + " needs the FILE.csv to read";
    if (r.Options.count("--skip") && r.Options.count("--overwrite"))
        return "choose one of --skip and --overwrite";
    if (r.Options.count("--year") && r.Options.count("--all"))
        return "choose one of --year and --all";
    if (r.Command == "query" && r.Options.count("--catches") &&
        (!r.Options.count("--format") || r.Options.at("--format") == "text"))
        return "--catches needs --format csv or json";
    if (const auto f = r.Options.find("--format"); f != r.Options.end() && f->second != "csv" &&
                                                   f->second != "json" &&
                                                   (r.Command != "query" || f->second != "text"))
        return "unknown format '" + f->second + "': use " +
               (r.Command == "query" ? "text, csv or json" : "csv or json");
    return std::nullopt;
}

} // namespace

int RunLogCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    const auto usage = [&err](const std::string& message) {
        err << "quillmere-log: " << OneLine(message) << "\n";
        return 2;
    };
    if (args.empty())
        return usage("no command given: list, create, info, compact, repair, restore, export, "
                     "import, query, report or stats (see --help)");
    if (args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
        out << LogUsageText;
        return 0;
    }
    if (args.size() == 1 && (args[0] == "--version" || args[0] == "-V")) {
        out << VersionLine("quillmere-log");
        return 0;
    }
    const auto& commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&args](const LogCommand& c) { return args[0] == c.Name; });
    if (command == commands.end())
        return usage("unknown command '" + args[0] + "' (see --help)");
    LogRequest r;
    r.Command = args[0];
    if (auto e = CollectOptions(args, *command, r))
        return usage(*e);
    if (r.Options.count("--help")) {
        out << LogUsageText;
        return 0;
    }
    if (auto e = CheckRequest(*command, r))
        return usage(*e);
    const Streams io{out, err, ProgramFolder::Path()};
    if (io.Folder.isEmpty())
        return io.Fail("cannot make the program's folder; nothing was changed");
    CleanLeftovers(io.Folder);
    return command->Run(r, io);
}
