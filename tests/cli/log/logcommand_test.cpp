// SPDX-License-Identifier: GPL-3.0-or-later
// quillmere-log end to end: the built program on a folder of the test's own, its output read
// back by Python's strict CSV and JSON readers and compared with the file through Python's
// own SQLite module.
#include "logdb/backups.h"
#include "logdb/catches.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/pdftext.h"
#include "support/testenv.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTime>

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

struct LogRun {
    int Status = -1;
    QString Out;
    QString Err;
};

// `through`: a command that starts the program (one that limits a resource, sets the
// environment or runs it as another user).
LogRun RunProgram(const QString& program, const QString& home, const QStringList& args,
                  const QStringList& through = {})
{
    QProcess run;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QUILLMERE_HOME", home);
    run.setProcessEnvironment(env);
    const QStringList command = through + QStringList{program} + args;
    run.start(command.front(), command.mid(1));
    EXPECT_TRUE(run.waitForFinished(120000));
    return {run.exitStatus() == QProcess::NormalExit ? run.exitCode() : -1,
            QString::fromUtf8(run.readAllStandardOutput()),
            QString::fromUtf8(run.readAllStandardError())};
}

LogRun RunLog(const QString& home, const QStringList& args, const QStringList& through = {})
{
    return RunProgram(QStringLiteral(QUILLMERE_LOG), home, args, through);
}

// Runs a Python check with the given text on its standard input; its complaint, if any.
QString PythonCheck(const QString& script, const QString& input, const QStringList& args = {})
{
    QProcess python;
    python.start("/usr/bin/python3", QStringList{"-c", script} + args);
    python.write(input.toUtf8());
    python.closeWriteChannel();
    EXPECT_TRUE(python.waitForFinished(60000));
    return python.exitCode() == 0 ? QString()
                                  : QString::fromUtf8(python.readAllStandardError()).right(800);
}

// The CSV export against the file itself: every column of table1 as a header, one row per
// record, dates as mm/dd/yyyy and the hours of missing events empty.
const char* const CsvAgainstFile = R"(
import csv, io, sqlite3, sys
rows = list(csv.reader(io.StringIO(sys.stdin.read(), newline=''), strict=True))
db = sqlite3.connect(sys.argv[1])
columns = [c[1] for c in db.execute('pragma table_info(table1)')]
assert rows[0] == columns, rows[0]
stored = db.execute('select * from table1 order by JulianDate').fetchall()
assert len(rows) - 1 == len(stored) == 366, len(rows)
for text, value in zip(rows[1:], stored):
    assert len(text) == len(columns)
    y, m, d = value[1].split('-')
    assert text[1] == m + '/' + d + '/' + y, (text[1], value[1])
    for name in ('MoonRise', 'MoonSet', 'Minor1', 'Minor2'):
        i = columns.index(name)
        assert (text[i] == '') == (value[i] == -1), (name, text[i], value[i])
    assert text[columns.index('Notes')] == (value[columns.index('Notes')] or '')
)";

QString YearPath(const QString& home, int year = 2024)
{
    return QDir(home).filePath(QString("%1.mdb").arg(year));
}

void ExpectOneLineRefusal(const LogRun& run, int status, const std::string& where)
{
    EXPECT_EQ(run.Status, status) << where;
    EXPECT_TRUE(run.Out.isEmpty()) << where;
    EXPECT_EQ(run.Err.count('\n'), 1) << where << ": " << run.Err.toStdString();
    EXPECT_TRUE(run.Err.startsWith("quillmere-log: ")) << where;
}

// A fresh folder with the year created by the program, at location 1 unless told otherwise.
QString CreatedYear(const QString& folderName, const QStringList& place = {"--location", "1"})
{
    const QString home = testenv::FreshDir(folderName);
    const LogRun created = RunLog(home, QStringList{"create", "--year", "2024"} + place);
    EXPECT_EQ(created.Status, 0) << created.Err.toStdString();
    return home;
}

// Every day's catch columns, in date order, asked of the file.
std::vector<QVariant> CatchEntries(const QString& path)
{
    return logtest::PlainColumn(path, "SELECT JulianDate || '|' || quote(TotalTaken) || '|' || "
                                      "quote(TakenWith) || '|' || quote(PeakTime) || '|' || "
                                      "quote(Notes) FROM table1 ORDER BY JulianDate");
}

// The exported entries imported into a fresh year come out the same; a second import is
// refused as every day now holds its entry, unless told to skip them; a file without an end
// is refused once it outgrows any year of entries.
void ImportsAsExported(const QString& exported, const QString& from)
{
    const QString into = CreatedYear("log-import-into");
    const QString csv = QDir(into).filePath("catches.csv");
    testenv::WriteFile(csv, exported.toUtf8());
    const LogRun imported = RunLog(into, {"import", "--year", "2024", csv});
    EXPECT_EQ(imported.Out, "Imported 4 day(s) into " + YearPath(into) + "\n")
        << imported.Err.toStdString();
    EXPECT_EQ(CatchEntries(YearPath(into)), CatchEntries(from));
    EXPECT_EQ(ListBackups(YearPath(into)).size(), 1);

    const LogRun refused = RunLog(into, {"import", "--year", "2024", csv});
    EXPECT_EQ(refused.Status, 1);
    EXPECT_EQ(refused.Out.count('\n'), 4) << refused.Out.toStdString();
    EXPECT_TRUE(refused.Out.startsWith(csv + ": Line 4: 01/03/2024 already holds an entry\n"))
        << refused.Out.toStdString();
    EXPECT_TRUE(refused.Err.startsWith("quillmere-log: nothing was imported: choose --skip"));
    EXPECT_EQ(RunLog(into, {"import", "--year", "2024", csv, "--skip"}).Status, 0);
    EXPECT_EQ(CatchEntries(YearPath(into)), CatchEntries(from));
    const LogRun endless = RunLog(into, {"import", "--year", "2024", "/dev/zero"});
    ExpectOneLineRefusal(endless, 1, "import /dev/zero");
    EXPECT_TRUE(endless.Err.contains("holds more than 16 MB")) << endless.Err.toStdString();
}

} // namespace

TEST(LogCommand, CreateListExportImportCompactAndRepairAYear)
{
    const QString home =
        CreatedYear("log-command", {"--lon", "92.42W", "--lat", "31.25N", "--zone", "6", "--dst"});
    EXPECT_EQ(RunLog(home, {"list"}).Out, "2024.mdb\n");
    // An angler's entries with commas, quotes and a line break travel through the CSV.
    for (const char* entry :
         {"TotalTaken = 4, TakenWith = 'jig, chartreuse', PeakTime = '7:00 AM' WHERE DBID = 3",
          "TotalTaken = 0, Notes = '3 bass, one \"huge\"\nby the dam' WHERE DBID = 40",
          "PeakTime = '11:00 PM' WHERE DBID = 61",
          "TotalTaken = 12, TakenWith = 'worms', Notes = 'last day' WHERE DBID = 366"})
        logtest::PlainExec(YearPath(home), QString("UPDATE table1 SET ") + entry);
    const LogRun csv = RunLog(home, {"export", "--year", "2024"});
    ASSERT_EQ(csv.Status, 0) << csv.Err.toStdString();
    EXPECT_EQ(PythonCheck(CsvAgainstFile, csv.Out, {YearPath(home)}), "");
    ImportsAsExported(csv.Out, YearPath(home));
    EXPECT_EQ(PythonCheck("import json,sys; d=json.load(sys.stdin); assert len(d)==366; "
                          "assert d[0]['JulianDate']=='01/01/2024'; "
                          "assert d[39]['Notes'].startswith('3 bass'), d[39]",
                          RunLog(home, {"export", "--year", "2024", "--format", "json"}).Out),
              "");

    EXPECT_EQ(RunLog(home, {"compact", "--year", "2024"}).Status, 0);
    EXPECT_TRUE(QFile::exists(QDir(home).filePath("2024.BAK")));
    const LogRun repaired = RunLog(home, {"repair", "--year", "2024"});
    EXPECT_EQ(repaired.Status, 0);
    EXPECT_TRUE(repaired.Out.contains("366")) << repaired.Out.toStdString();
    EXPECT_EQ(PythonCheck(CsvAgainstFile, RunLog(home, {"export", "--year", "2024"}).Out,
                          {YearPath(home)}),
              "");

    // A second create leaves the file alone and says so.
    const QByteArray before = testenv::FileBytes(YearPath(home));
    ExpectOneLineRefusal(RunLog(home, {"create", "--year", "2024"}), 1, "create again");
    EXPECT_EQ(testenv::FileBytes(YearPath(home)), before);

    // A year left only as its backup is listed as such, and restored.
    ASSERT_TRUE(QFile::remove(YearPath(home)));
    const LogRun list = RunLog(home, {"list"});
    EXPECT_EQ(list.Out, "");
    EXPECT_TRUE(list.Err.contains("2024.BAK")) << list.Err.toStdString();
    ExpectOneLineRefusal(RunLog(home, {"create", "--year", "2024"}), 1, "create over a backup");
    const LogRun restored = RunLog(home, {"restore", "--year", "2024"});
    EXPECT_EQ(restored.Status, 0) << restored.Err.toStdString();
    EXPECT_EQ(RunLog(home, {"list"}).Out, "2024.mdb\n");
}

TEST(LogCommand, BadInputExitsWithTwoAndFailuresWithOne)
{
    const QString home = testenv::FreshDir("log-command-bad");
    for (const QStringList& row : testenv::DataRows(QUILLMERE_LOG_REFUSALS))
        ExpectOneLineRefusal(RunLog(home, row[1].split(' ', Qt::SkipEmptyParts)), row[0].toInt(),
                             row.join(' ').toStdString());
    EXPECT_TRUE(ListYearFiles(home).isEmpty());
}

// A stored setting that cannot be read (a latitude of NaN passes a range test unnoticed) is
// named in one line and its default is used: the year comes out as at the default place of
// location 1.
TEST(LogCommand, ABadStoredSettingIsNamedAndItsDefaultUsed)
{
    const QString reference =
        CreatedYear("log-setting-reference", {"--lon", "92.42W", "--lat", "31.25N", "--zone", "6"});
    const QString config = testenv::FreshDir("log-setting-config");
    QDir().mkpath(config + "/Quillmere");
    testenv::WriteFile(config + "/Quillmere/Quillmere.ini",
                       "[Settings]\nDefLoc=1\nUsr1Name=Alexandria, LA\nUsr1Long=92.42\n"
                       "Usr1Lat=nan\nUsr1TZ= 6\n");
    const QString home = testenv::FreshDir("log-setting");
    const LogRun run =
        RunLog(home, {"create", "--year", "2024"}, {"env", "XDG_CONFIG_HOME=" + config});
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Err.count('\n'), 1) << run.Err.toStdString();
    EXPECT_TRUE(run.Err.startsWith("quillmere-log: the stored setting Usr1Lat holds \"nan\""))
        << run.Err.toStdString();
    EXPECT_TRUE(logtest::PlainRows(YearPath(home), "SELECT * FROM table1") ==
                logtest::PlainRows(YearPath(reference), "SELECT * FROM table1"));
}

// The browser's questions on the command line: the selected days as JSON against the same
// question asked of the file by Python's SQLite, and the report printed.
const char* const QueryAgainstFile = R"(
import json, sqlite3, sys
days = json.loads(sys.stdin.read())
db = sqlite3.connect(sys.argv[1])
wanted = db.execute("select strftime('%m/%d/%Y', JulianDate) from table1 where Month between 3 "
                    "and 5 and GraphicType = 4 and DayOfWeek_ in (1, 7) "
                    "order by Major1, JulianDate").fetchall()
assert [d['JulianDate'] for d in days] == [w[0] for w in wanted], (days, wanted)
assert len(days) > 0
)";

TEST(LogCommand, QueryAndReportTheSelectedDays)
{
    const QString home = CreatedYear("log-command-query");
    const QStringList question = {"query",  "--year",     "2024",    "--months", "3-5",
                                  "--best", "--weekdays", "sat-sun", "--sort",   "major1"};
    const LogRun json = RunLog(home, question + QStringList{"--format", "json"});
    ASSERT_EQ(json.Status, 0) << json.Err.toStdString();
    EXPECT_EQ(PythonCheck(QueryAgainstFile, json.Out, {YearPath(home)}), "");
    EXPECT_TRUE(RunLog(home, question).Out.startsWith("Sorted by Major1\n#     Date"));

    // January and February: 60 lines and the dash line make two pages.
    const QString pdf = QDir(home).filePath("report.pdf");
    const LogRun printed =
        RunLog(home, {"report", "--year", "2024", "--months", "1-2", "--pdf", pdf});
    ASSERT_EQ(printed.Status, 0) << printed.Err.toStdString();
    const QStringList pages = testenv::PdfText(pdf).split('\f');
    ASSERT_GE(pages.size(), 2);
    EXPECT_TRUE(pages[1].trimmed().startsWith("Quillmere DataBase Report - Page # 2"));
    EXPECT_TRUE(pages[1].simplified().contains("060 02/29/2024")) << pages[1].toStdString();
    EXPECT_EQ(RunLog(home, {"report", "--year", "2024", "--months", "1-2"}).Out.count('\f'), 1);
    // The year file is never printed over.
    const QByteArray year = testenv::FileBytes(YearPath(home));
    const LogRun over = RunLog(home, {"report", "--year", "2024", "--pdf", YearPath(home)});
    ExpectOneLineRefusal(over, 1, "report over the year file");
    EXPECT_TRUE(over.Err.contains("it is not a PDF")) << over.Err.toStdString();
    EXPECT_EQ(testenv::FileBytes(YearPath(home)), year);
}

// The log filled on New York's clock against PyEphem's sunrise on the zone's clock (the upper
// limb 34' below the horizon), the daylight-saving days included: the stored minute is the
// minute the Sun rises in.
const char* const SunriseAgainstEphem = R"(
import datetime, ephem, sqlite3, sys, zoneinfo
zone, utc = zoneinfo.ZoneInfo('America/New_York'), datetime.timezone.utc
o = ephem.Observer(); o.lat, o.lon, o.pressure, o.horizon = '40.71', '-74.01', 0, '-0:34'
days = sqlite3.connect(sys.argv[1]).execute('select JulianDate, SunRise from table1').fetchall()
assert len(days) == 365, len(days)
for day, sunrise in days:
    stored = datetime.datetime.fromisoformat(day + 'T' + sunrise).replace(tzinfo=zone)
    o.date = stored.replace(hour=0, minute=0).astimezone(utc).replace(tzinfo=None)
    late = (o.next_rising(ephem.Sun()).datetime().replace(tzinfo=utc) - stored).total_seconds()
    assert -10 <= late <= 70, (day, sunrise, late)
)";

// The year file also records the place, zone and clock it was filled for; info reads it back,
// and a file made before files kept it still opens and says so.
TEST(LogCommand, LocalClockYearAgreesWithEphemAndRecordsItsPlace)
{
    const QString home = testenv::FreshDir("log-local-clock");
    const QStringList place = {"--lon", "74.01W", "--lat", "40.71N", "--tz", "America/New_York"};
    const LogRun created =
        RunLog(home, QStringList{"create", "--year", "2025", "--name", "Hudson pier"} + place);
    ASSERT_EQ(created.Status, 0) << created.Err.toStdString();
    EXPECT_EQ(PythonCheck(SunriseAgainstEphem, "", {YearPath(home, 2025)}), "");
    // quillmere-forecast writes as many day rows as asked for, after its header.
    const QStringList days = {"days", "--from", "2025-01-01", "--days", "365", "--format", "csv"};
    EXPECT_EQ(RunProgram(QStringLiteral(QUILLMERE_FORECAST), home, days + place).Out.count('\n'),
              366);

    EXPECT_EQ(logtest::PlainColumn(YearPath(home, 2025),
                                   "SELECT Name || '|' || Latitude || '|' || Longitude || '|' || "
                                   "TzName || '|' || Clock FROM QuillmerePlace"),
              std::vector<QVariant>{"Hudson pier|40.71|74.01|America/New_York|Local Clock"});
    EXPECT_EQ(RunLog(home, {"info", "--year", "2025"}).Out,
              "2025.mdb: filled for Hudson pier  40.71N 74.01W  America/New_York, Local Clock\n");
    logtest::PlainExec(YearPath(home, 2025), "DROP TABLE QuillmerePlace");
    EXPECT_EQ(RunLog(home, {"info", "--year", "2025"}).Out,
              "2025.mdb: the place it was filled for is not recorded (a file made before the log "
              "kept it)\n");
    EXPECT_EQ(RunLog(home, {"query", "--year", "2025", "--months", "1"}).Status, 0);
}

namespace {

// Starts the program as a user whom permissions bind: the test's own user, or when that is
// the superuser, "nobody" through setpriv, with the folder handed over to it.
QStringList AsOrdinaryUser(const QString& folder)
{
    if (::geteuid() != 0)
        return {};
    EXPECT_EQ(QProcess::execute("chown", {"-R", "65534:65534", folder}), 0);
    // A way through the test's private root to the folder.
    QFile::setPermissions(testenv::Root(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                               QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                               QFileDevice::ExeOther);
    return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
}

constexpr auto FolderReadOnly =
    QFileDevice::ReadOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup | QFileDevice::ExeGroup;
constexpr auto FileReadOnly = QFileDevice::ReadOwner | QFileDevice::ReadGroup;

} // namespace

// A failure of the disk or of a permission is said in one line that names the cause in the
// system's words, and the year file is left as it was.
TEST(LogCommand, FailuresNameTheirCause)
{
    // A limit on the size of files the program writes stands for a full disk.
    const QStringList smallFiles{"sh", "-c", "ulimit -f 8; trap '' XFSZ; exec \"$0\" \"$@\""};
    for (const QStringList& row : testenv::DataRows(QUILLMERE_LOG_FAILURES)) {
        const std::string where = row[3].toStdString();
        const QString home = CreatedYear("log-cause");
        const QString csv = QDir(home).filePath("catches.csv");
        testenv::WriteFile(csv, "JulianDate,TotalTaken\n01/02/2024,3\n");
        const QByteArray year = testenv::FileBytes(YearPath(home));
        const QStringList launch = row[0] == "limited" ? smallFiles : AsOrdinaryUser(home);
        ASSERT_TRUE(row[2] == "-" || QFile::setPermissions(YearPath(home), FileReadOnly));
        ASSERT_TRUE(row[1] == "-" || QFile::setPermissions(home, FolderReadOnly));
        const LogRun run =
            RunLog(home, QString(row[3]).replace("CATCHES", csv).split(QChar(0x20)), launch);
        QFile::setPermissions(home, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                        QFileDevice::ExeOwner); // to be cleaned up again
        ExpectOneLineRefusal(run, 1, where);
        EXPECT_TRUE(run.Err.contains(row[4])) << where << ": " << run.Err.toStdString();
        EXPECT_EQ(testenv::FileBytes(YearPath(home)), year) << where;
    }
}

namespace {

// 1,000 catches over the year: up to five a day, untimed ones, names and notes with commas,
// quotes, line breaks and letters beyond ASCII, decimals that have no short binary form,
// places west and south, photos.
std::vector<Catch> ThousandCatches()
{
    const QStringList species = {"Pike", "Walleye", "Bluegill, hybrid", "Æsche \"grayling\"",
                                 "Perch"};
    const auto when = [](bool given, auto value) {
        return given ? std::optional(value) : std::nullopt;
    };
    std::vector<Catch> catches(1000);
    for (int i = 0; i < 1000; ++i) {
        Catch& c = catches[std::size_t(i)];
        c.Date = QDate(2024, 1, 1).addDays(i * 366 / 1000 + (i % 5 == 0)).toString(Qt::ISODate);
        c.Time = i % 13 != 0 ? QTime(0, 0).addSecs(i * 6121 % 86400).toString("HH:mm:ss") : "";
        c.Species = species[i % species.size()];
        c.Count = 1 + i % 3;
        c.Released = i % 2 == 0;
        c.LengthMm = when(i % 4 != 0, 200 + i % 700);
        c.WeightG = when(i % 6 != 0, 150 + i * 7 % 9000);
        c.Latitude = when(i % 5 == 1, -33.1 - i / 1000.0);
        c.Longitude = when(i % 5 == 1, -70.3 + i / 700.0);
        c.WaterTemp = when(i % 3 != 2, 4.1 + (i % 80) / 3.0);
        c.AirTemp = -5.5 + (i % 60) * 0.7;
        c.Bait = i % 3 == 0 ? "Jig, chartreuse" : "";
        c.Spot = QString("Spot %1").arg(i % 9);
        c.Note = i % 10 == 0 ? QString("line one\nline \"two\", %1").arg(i) : "";
        if (i % 50 == 0)
            c.Photos = {QString("photos/2024/c%1.jpg").arg(i),
                        QString("photos/2024/d%1.jpg").arg(i)};
    }
    return catches;
}

} // namespace

// The catches exported, imported into a fresh year and exported again come out byte for
// byte; the CSV holds one record per catch and one per day without catches.
TEST(LogCommand, ExportedCatchesImportIntoAFreshYearByteForByte)
{
    const QString from = CreatedYear("log-catches-from");
    std::vector<Catch> catches = ThousandCatches();
    ASSERT_TRUE(AddCatches(YearPath(from), catches, QDateTime::currentDateTime()));
    for (const QString format : {"csv", "json"}) {
        const QStringList exportCatches = {"export",    "--year",   "2024",
                                           "--catches", "--format", format};
        const LogRun first = RunLog(from, exportCatches);
        ASSERT_EQ(first.Status, 0) << first.Err.toStdString();
        const QString into = CreatedYear("log-catches-into-" + format);
        const QString file = QDir(into).filePath("catches." + format);
        testenv::WriteFile(file, first.Out.toUtf8());
        const LogRun imported = RunLog(into, {"import", "--year", "2024", file});
        ASSERT_EQ(imported.Status, 0) << imported.Err.toStdString() << imported.Out.toStdString();
        EXPECT_EQ(logtest::PlainColumn(YearPath(into), "SELECT COUNT(*) FROM Catches")[0], 1000);
        EXPECT_TRUE(RunLog(into, exportCatches).Out == first.Out) << format.toStdString();
        EXPECT_EQ(CatchEntries(YearPath(into)), CatchEntries(YearPath(from)))
            << format.toStdString();
        if (format == "csv") { // Python's strict reader: a record per catch and per quiet day
            EXPECT_EQ(PythonCheck("import csv, io, sqlite3, sys\n"
                                  "rows = list(csv.reader(io.StringIO(sys.stdin.read(), "
                                  "newline=''), strict=True))\n"
                                  "quiet, = sqlite3.connect(sys.argv[1]).execute('select count(*) "
                                  "from table1 where JulianDate not in (select JulianDate from "
                                  "Catches)').fetchone()\n"
                                  "assert len(rows) == 1001 + quiet, len(rows)\n",
                                  first.Out, {YearPath(from)}),
                      "");
        }
    }
}
