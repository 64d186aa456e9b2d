// SPDX-License-Identifier: GPL-3.0-or-later
// Catch statistics read from real year files, checked against the same counts asked of the
// files in plain SQL; the statistics window opened from the record browser, its summary,
// charts, table and copy, with screenshots.
#include "logdb/catchdays.h"
#include "ui/log/frmstatistics.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QMenuBar>
#include <QSqlQuery>
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
    const Entries catches = {
        {10, {{"TotalTaken", 3}, {"PeakTime", "11:00 PM"}, {"Minor2", 2.0}}},
        {27, {{"TotalTaken", 6}, {"PeakTime", "12:00 AM"}}},
        {100, {{"Notes", "lost a big one"}}},
        {200, {{"TotalTaken", 0}}},
        {201, {{"TakenWith", "worms"}}}, // nothing that makes a day fished
        {204, {{"TotalTaken", 9}, {"PeakTime", "9:00 AM"}}},
    };
    return MakeYearFileWithEntries(folderName, catches);
}

// A year fished every third day, more taken on better rated days, the peak time a few hours
// either side of the first major: something worth a screenshot.
QString BusyYear(const QString& folderName)
{
    const QString path = MakeYearFileWithEntries(folderName);
    Database db;
    EXPECT_TRUE(db.Open(path));
    QSqlDatabase link = db.Connection();
    link.transaction();
    QSqlQuery q(link);
    q.prepare("UPDATE table1 SET TotalTaken = ?, PeakTime = ? WHERE DBID = ?");
    for (int n = 3; n <= DaysInYear; n += 3) {
        const Day d = DayOf(n);
        const int hour = (d.Major1Minute / 60 + n % 5 - 2 + 24) % 24;
        q.addBindValue(d.Rating * 2 + n % 4);
        q.addBindValue(QString("%1:00 %2").arg((hour + 11) % 12 + 1).arg(hour < 12 ? "AM" : "PM"));
        q.addBindValue(n);
        EXPECT_TRUE(q.exec());
    }
    link.commit();
    return path;
}

// Days fished and their total per GraphicType, asked of the files directly.
std::map<int, std::pair<int, long>> SqlRatingCounts(const QStringList& paths)
{
    std::map<int, std::pair<int, long>> counts;
    for (const QString& path : paths) {
        for (const auto& row : PlainRows(path, "SELECT GraphicType, count(*), total(TotalTaken) "
                                               "FROM table1 WHERE TotalTaken IS NOT NULL OR "
                                               "trim(PeakTime) <> '' OR trim(Notes) <> '' "
                                               "GROUP BY GraphicType")) {
            auto& [days, total] = counts[row[0].toInt()];
            days += row[1].toInt();
            total += row[2].toLongLong();
        }
    }
    return counts;
}

void ExpectRatingsMatchSql(const CatchStatistics& stats, const QStringList& paths)
{
    const auto sql = SqlRatingCounts(paths);
    for (int rating = 0; rating <= 4; ++rating) {
        const CatchGroup& g = stats.Groupings[ByRating].Groups[size_t(4 - rating)];
        const auto it = sql.find(rating);
        EXPECT_EQ(g.DaysFished, it == sql.end() ? 0 : it->second.first) << g.Name;
        EXPECT_EQ(g.TotalTaken, it == sql.end() ? 0 : it->second.second) << g.Name;
    }
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
    EXPECT_EQ(distance[0].DaysFished, 1);
    EXPECT_EQ(distance[0].TotalTaken, 6);
    EXPECT_EQ(distance[3].DaysFished, 2);
    EXPECT_EQ(distance[3].TotalTaken, 12);

    CatchStatistics both;
    ASSERT_TRUE(CatchStatisticsOf({path, other}, both));
    EXPECT_EQ(both.All.DaysFished, 10);
    ExpectRatingsMatchSql(both, {path, other});

    const QString missing = QFileInfo(path).absolutePath() + "/1999.mdb";
    const DbResult failed = CatchStatisticsOf({path, missing}, both);
    EXPECT_FALSE(failed);
    EXPECT_TRUE(failed.Message.startsWith("1999.mdb: ")) << failed.Message.toStdString();
}

TEST(FrmStatistics, OpensFromTheBrowserWithSummaryChartsAndACopyableTable)
{
    LogWindowEnv env(QString{});
    const QString path = YearWithCatches("stats-window");
    env.Folder = QFileInfo(path).absolutePath();
    env.State.DBPath = path;
    frmTable1 browser(env.Context());
    browser.Data1.SetDatabaseName(path);
    QAction* statistics = nullptr;
    for (QAction* a : browser.findChild<QMenuBar*>()->actions())
        if (a->text() == "&Statistics")
            statistics = a;
    ASSERT_NE(statistics, nullptr);
    QString shownTitle;
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* s = qobject_cast<FrmStatistics*>(w); s && s->isVisible()) {
                shownTitle = s->windowTitle();
                s->close();
            }
    });
    statistics->trigger();
    EXPECT_EQ(shownTitle, "Catch Statistics");

    FrmStatistics w(env.Context(), path);
    EXPECT_EQ(w.Summary->text().toStdString(), CatchSummary(w.Figures()));
    EXPECT_EQ(w.Figures().All.DaysFished, 5);
    ASSERT_EQ(w.Charts.size(), 5u);
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

    FrmStatistics busy(env.Context(), BusyYear("stats-busy"));
    EXPECT_EQ(busy.Figures().All.DaysFished, DaysInYear / 3);
    busy.show();
    for (int tab : {int(ByRating), int(ByMoonAge), int(ByPeakDistance), 5}) {
        busy.Tabs->setCurrentIndex(tab);
        QApplication::processEvents();
        Screenshot(busy, QString("frmstatistics-%1").arg(tab));
    }
}
