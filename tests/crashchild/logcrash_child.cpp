// SPDX-License-Identifier: GPL-3.0-or-later
// A program the crash tests start and kill: it runs the log's real create, compact and
// edit-save code and dies by SIGKILL at the step it is told, as a power cut or a killed
// process would stop the program.
//
//   logcrash_child create FOLDER YEAR KILL_DAY KILL_STEP   (prints "ready", then creates)
//   logcrash_child compact PATH KILL_STEP                  (prints "ready", then compacts)
//   logcrash_child edit PATH          (saves Notes "catch N" on day N, prints "saved N")
//   logcrash_child save PATH TAG      (as edit, through the browser's locked save, with
//                                      Notes "TAG N"; other programs change the file meanwhile)
//   logcrash_child restore PATH BACKUP  (the Backups window's restore of that copy)
//   logcrash_child catch PATH   (prints "ready", then adds 3 fish on 4 July, upgrading a
//                                file made without the catches' tables)
//
// KILL_DAY is the day of the fill at which to die (0: none); KILL_STEP the file step
// (remove, copy, sync, rename) before which to die (0: none).
#include "cli/common/forecastrun.h"
#include "db/datacontrol.h"
#include "logdb/backups.h"
#include "logdb/catches.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "logdb/yearlock.h"

#include <QCoreApplication>
#include <QDateTime>

#include <csignal>
#include <cstdio>
#include <functional>
#include <string>

namespace {

void Die() { std::raise(SIGKILL); }

// Tells the test that the work starts: it times its kills from here.
void Ready()
{
    std::printf("ready\n");
    std::fflush(stdout);
}

// The real file steps, counted; the program dies before the chosen one.
class DyingOps : public FileOps {
    using Path = const QString&;

public:
    explicit DyingOps(int killStep) : killStep_(killStep) {}
    bool Remove(Path path) override { return Step() && FileOps::Remove(path); }
    bool Rename(Path from, Path to) override { return Step() && FileOps::Rename(from, to); }
    bool Replace(Path from, Path to) override { return Step() && FileOps::Replace(from, to); }
    bool Copy(Path from, Path to) override { return Step() && FileOps::Copy(from, to); }
    bool Sync(Path path) override { return Step() && FileOps::Sync(path); }

private:
    bool Step()
    {
        if (++steps_ == killStep_)
            Die();
        return true;
    }
    int killStep_;
    int steps_ = 0;
};

int Create(const QString& folder, int year, int killDay, int killStep)
{
    ForecastRun run(ForecastPlace{.Longitude = 92.42, .Latitude = 31.25, .TimeZone = 6});
    const Calendar cal = YearCalendar(run.Engine, year, run.SouthernHemisphere);
    DataControl data0;
    DyingOps ops(killStep);
    Ready();
    const auto fill = [&](const QString& path) {
        return FillYearFile(data0, path, run.Engine, cal, -60, [killDay](int day, int) {
            if (day == killDay)
                Die();
        });
    };
    const CreateYearResult created = CreateYearFile(folder, year, fill, ops);
    return created.Outcome == CreateYearResult::Status::Created ? 0 : 3;
}

int Compact(const QString& path, int killStep)
{
    DyingOps ops(killStep);
    Ready();
    return CompactDB(path, {}, ops) ? 0 : 3;
}

// Notes "<tag> N" on day N, each saved by `save`; prints "saved N" once it said so.
int EditEveryDay(const QString& path, const QString& tag,
                 const std::function<DbResult(DataControl&)>& save)
{
    DataControl data1;
    data1.SetDatabaseName(path);
    data1.SetRecordSource(QStringLiteral("Select * from table1 order by juliandate"));
    if (!data1.Refresh())
        return 3;
    for (int day = 1; !data1.IsEOF(); ++day) {
        if (!data1.Edit() ||
            !data1.SetField(QStringLiteral("Notes"), QStringLiteral("%1 %2").arg(tag).arg(day)))
            return 3;
        if (const DbResult saved = save(data1); !saved) {
            std::fprintf(stderr, "%s\n", qPrintable(saved.Message));
            return 3;
        }
        std::printf("saved %d\n", day);
        std::fflush(stdout);
        data1.MoveNext();
    }
    return 0;
}

int AddOneCatch(const QString& path)
{
    Catch c{.Date = "2024-07-04", .Time = "06:30:00", .Species = "Walleye", .Count = 3};
    Ready();
    return AddCatch(path, c, QDateTime::currentDateTime()) ? 0 : 3;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList a = app.arguments();
    if (a.size() == 6 && a[1] == "create")
        return Create(a[2], a[3].toInt(), a[4].toInt(), a[5].toInt());
    if (a.size() == 4 && a[1] == "compact")
        return Compact(a[2], a[3].toInt());
    if (a.size() == 3 && a[1] == "edit")
        return EditEveryDay(a[2], QStringLiteral("catch"),
                            [](DataControl& data) { return data.Update(); });
    if (a.size() == 4 && a[1] == "save")
        return EditEveryDay(a[2], a[3], UpdateUnderLock);
    if (a.size() == 4 && a[1] == "restore")
        return RestoreBackup(a[2], a[3], QDateTime::currentDateTime()) ? 0 : 3;
    if (a.size() == 3 && a[1] == "catch")
        return AddOneCatch(a[2]);
    std::fprintf(stderr, "usage: logcrash_child create|compact|edit|save|restore|catch ...\n");
    return 2;
}
