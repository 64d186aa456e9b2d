// SPDX-License-Identifier: GPL-3.0-or-later
// Two programs at once on one year file: quillmere-log's imports and compact, and a child that
// saves entries through the record browser's save code or restores a backup as the Backups
// window does, started with random delays between them. Whatever a program reported saved is
// in the file afterwards, and none reports success for what it did not keep.
#include "logdb/backups.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QThread>

#include <gtest/gtest.h>

#include <iostream>
#include <memory>

using namespace logtest;

namespace {

constexpr int RunsEach = 6;
constexpr int MaxStartGapMs = 250;
constexpr int WaitMs = 120000;

// quillmere-log on the home folder, or with no home the crash tests' child.
std::unique_ptr<QProcess> Start(const QStringList& args, const QString& home = {})
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QUILLMERE_HOME", home);
    process->setProcessEnvironment(env);
    process->start(home.isEmpty() ? QStringLiteral(LOGCRASH_CHILD) : QStringLiteral(QUILLMERE_LOG),
                   args);
    EXPECT_TRUE(process->waitForStarted());
    return process;
}

struct Ended {
    int Status = -1;
    QString Out;
};

Ended Finish(QProcess& process)
{
    EXPECT_TRUE(process.waitForFinished(WaitMs));
    std::cerr << process.readAllStandardError().toStdString();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput())};
}

void PauseUpTo(int ms) { QThread::msleep(QRandomGenerator::global()->bounded(ms + 1)); }

// "JulianDate,Notes" lines giving days first..last the note "<tag> <day>".
QString CatchCsv(const QString& folder, const QString& tag, int first, int last)
{
    QString text = "JulianDate,Notes\r\n";
    for (int day = first; day <= last; ++day)
        text += QDate(Year, 1, 1).addDays(day - 1).toString("MM/dd/yyyy") +
                QString(",%1 %2\r\n").arg(tag).arg(day);
    const QString path = QDir(folder).filePath(tag + ".csv");
    testenv::WriteFile(path, text.toUtf8());
    return path;
}

// The Notes of every day, in date order (index 0 is 1 January).
QStringList NotesOf(const QString& path)
{
    QStringList notes;
    for (const QVariant& note : PlainColumn(path, "select Notes from table1 order by JulianDate"))
        notes << note.toString();
    return notes;
}

int ImportedCount(const Ended& run)
{
    // "Imported 60 day(s) into ...", after the lines of the days already held
    const QString last = run.Out.trimmed().section('\n', -1);
    EXPECT_TRUE(last.startsWith("Imported ")) << run.Out.toStdString();
    return last.section(' ', 1, 1).toInt();
}

} // namespace

// Two imports over the same days with a compaction started between them: each day of the
// overlap holds one import's entry, the counts they report say which, and the compaction
// loses none of them.
TEST(TwoPrograms, ImportsAndACompactionAtOnceKeepEveryImportedDay)
{
    for (int run = 0; run < RunsEach; ++run) {
        SCOPED_TRACE("run " + std::to_string(run));
        const QString path = MakeYearFileWithEntries("race-imports");
        const QString home = QFileInfo(path).absolutePath();
        auto first = Start({"import", "--year", "2024", CatchCsv(home, "A", 1, 60)}, home);
        PauseUpTo(MaxStartGapMs);
        auto compact = Start({"compact", "--year", "2024"}, home);
        PauseUpTo(MaxStartGapMs);
        auto second =
            Start({"import", "--year", "2024", CatchCsv(home, "B", 31, 90), "--skip"}, home);
        const Ended a = Finish(*first), b = Finish(*second);
        EXPECT_EQ(Finish(*compact).Status, 0);
        EXPECT_EQ(b.Status, 0);
        const QStringList notes = NotesOf(path);
        int fromA = 0, fromB = 0;
        for (int day = 1; day <= 90; ++day) {
            const bool isA = notes[day - 1] == QString("A %1").arg(day);
            const bool isB = notes[day - 1] == QString("B %1").arg(day);
            fromA += isA;
            fromB += isB;
            EXPECT_TRUE(isA || isB || (a.Status != 0 && day <= 60)) << "day " << day;
        }
        EXPECT_EQ(fromA, a.Status == 0 ? ImportedCount(a) : 0);
        EXPECT_EQ(fromB, ImportedCount(b));
    }
}

// The browser's save runs day after day while compactions (quillmere-log) or restores (the
// Backups window) replace the file under it.
class SaveBeside : public testing::TestWithParam<const char*> {};

TEST_P(SaveBeside, EverySaveReportedIsKept)
{
    const QString path = MakeYearFileWithEntries("race-save");
    const QString home = QFileInfo(path).absolutePath();
    const bool restoring = QString(GetParam()) == "restore";
    ASSERT_TRUE(BackUpIfChanged(path, QDateTime::currentDateTime()));
    const QString backup = ListBackups(path).front();
    auto saver = Start({"save", path, "saved"});
    int others = 0;
    while (saver->state() == QProcess::Running && others < 3 * RunsEach) {
        PauseUpTo(MaxStartGapMs);
        auto other = restoring ? Start({"restore", path, backup})
                               : Start({"compact", "--year", "2024"}, home);
        EXPECT_EQ(Finish(*other).Status, 0) << GetParam() << " " << others;
        ++others;
    }
    const Ended saves = Finish(*saver);
    EXPECT_EQ(saves.Status, 0);
    EXPECT_GE(others, 2);
    // A save before a restore is in the copy the restore kept first; any later one, in the file.
    QStringList kept = NotesOf(path);
    for (const QString& copy : ListBackups(path))
        kept += NotesOf(copy);
    const QStringList reported = saves.Out.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(reported.size(), DaysInYear);
    for (const QString& line : reported) {
        const int day = line.section(' ', 1).toInt();
        EXPECT_TRUE(kept.contains(QString("saved %1").arg(day))) << "day " << day;
    }
    if (!restoring) {
        EXPECT_EQ(NotesOf(path).filter("saved ").size(), DaysInYear);
    }
}

INSTANTIATE_TEST_SUITE_P(TwoPrograms, SaveBeside, testing::Values("compact", "restore"));
