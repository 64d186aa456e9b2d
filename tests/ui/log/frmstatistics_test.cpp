// SPDX-License-Identifier: GPL-3.0-or-later
// Catch statistics read from real year files, checked against the same counts asked of the
// files in plain SQL; the statistics window opened from the record browser, its summary,
// table, copy and scope.
#include "logdb/catchdays.h"
#include "ui/log/frmstatistics.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QMenuBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

using namespace logtest;

namespace {

// A year file of the fixture with the catches of six days and no other entries. Day 10 has
// its majors at 08:50 AM and 08:50 PM, no first minor (-1) and its second at 02:00 AM; day 27
// has its first major at 11:51 PM.
QString YearWithCatches(const QString& folderName)
{
    return MakeYearFileWithEntries(
        folderName, {{10, {{"TotalTaken", 3}, {"PeakTime", "11:00 PM"}, {"Minor2", 2.0}}},
                     {27, {{"TotalTaken", 6}, {"PeakTime", "12:00 AM"}}},
                     {100, {{"Notes", "lost a big one"}}},
                     {200, {{"TotalTaken", 0}}},
                     {201, {{"TakenWith", "worms"}}}, // nothing that makes a day fished
                     {204, {{"TotalTaken", 9}, {"PeakTime", "9:00 AM"}}}});
}

// Days fished and their total per rating (GraphicType 4 first), asked of the files directly,
// beside the same of the statistics.
void ExpectRatingsMatchSql(const CatchStatistics& stats, const QStringList& paths)
{
    std::map<int, std::pair<int, long>> sql, read;
    for (const QString& path : paths)
        for (const auto& row : PlainRows(path, "SELECT GraphicType, count(*), total(TotalTaken) "
                                               "FROM table1 WHERE TotalTaken IS NOT NULL OR "
                                               "trim(PeakTime) <> '' OR trim(Notes) <> '' "
                                               "GROUP BY GraphicType")) {
            sql[row[0].toInt()].first += row[1].toInt();
            sql[row[0].toInt()].second += row[2].toLongLong();
        }
    for (int rating = 0; rating <= 4; ++rating)
        if (const CatchGroup& g = stats.Groupings[ByRating].Groups[size_t(4 - rating)];
            g.DaysFished > 0)
            read[rating] = {g.DaysFished, g.TotalTaken};
    EXPECT_EQ(read, sql);
}

} // namespace

TEST(CatchDays, StatisticsOfYearFilesAgreeWithTheFilesAndSkipMissingMinors)
{
    const QString path = YearWithCatches("stats-read");
    const QString other = QFileInfo(path).absolutePath() + "/2023.mdb";
    ASSERT_TRUE(QFile::copy(path, other));
    CatchStatistics one;
    ASSERT_TRUE(CatchStatisticsOf({path}, one));
    EXPECT_EQ(one.All.DaysFished, 5);
    EXPECT_EQ(one.All.TotalTaken, 18);
    ExpectRatingsMatchSql(one, {path});
    // Day 10: 130 minutes from its second major; a missing minor read as 11:00 PM would make
    // it 0. Day 27: 9 minutes over midnight. Day 204 (major 12:12 AM/PM): 3 h 12 min.
    const auto& distance = one.Groupings[ByPeakDistance].Groups;
    EXPECT_EQ(std::pair(distance[0].DaysFished, distance[0].TotalTaken), std::pair(1, 6L));
    EXPECT_EQ(std::pair(distance[3].DaysFished, distance[3].TotalTaken), std::pair(2, 12L));

    CatchStatistics both;
    ASSERT_TRUE(CatchStatisticsOf({path, other}, both));
    EXPECT_EQ(both.All.DaysFished, 10);
    ExpectRatingsMatchSql(both, {path, other});
    const DbResult failed =
        CatchStatisticsOf({path, QFileInfo(path).absolutePath() + "/1999.mdb"}, both);
    EXPECT_FALSE(failed);
    EXPECT_TRUE(failed.Message.startsWith("1999.mdb: ")) << failed.Message.toStdString();
}

// The browser's Statistics menu opens the window; it shows the year's summary and table,
// copies the table, and counts every year of the folder when asked.
TEST(FrmStatistics, OpensFromTheBrowserWithSummaryAndACopyableTable)
{
    const QString path = YearWithCatches("stats-window");
    LogWindowEnv env(QFileInfo(path).absolutePath(), path);
    frmTable1 browser(env.Context());
    browser.Data1.SetDatabaseName(path);
    QString shownTitle;
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* s = qobject_cast<FrmStatistics*>(w); s && s->isVisible()) {
                shownTitle = s->windowTitle();
                s->close();
            }
    });
    for (QAction* a : browser.findChild<QMenuBar*>()->actions())
        if (a->text() == "&Statistics")
            a->trigger();
    EXPECT_EQ(shownTitle, "Catch Statistics");

    FrmStatistics w(env.Context(), path);
    EXPECT_EQ(w.Figures().All.DaysFished, 5);
    EXPECT_EQ(w.Summary->text().toStdString(), CatchSummary(w.Figures()));
    EXPECT_EQ(w.Tabs->tabText(ByWeekday), "Weekday");
    EXPECT_EQ(w.Table->item(1, 0)->text(), "Best");
    w.CmdCopy_Click();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), CatchTableText(w.Figures()));
    // A second copy of the year in the folder doubles every count.
    ASSERT_TRUE(QFile::copy(path, env.Folder + "/2023.mdb"));
    w.ScopeCombo->setCurrentIndex(1);
    w.ScopeCombo_Click();
    EXPECT_EQ(w.Figures().All.DaysFished, 10);
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
    w.show();
    Screenshot(w, "frmstatistics");
}
