// SPDX-License-Identifier: GPL-3.0-or-later
// The record browser on real year files, offscreen: what each record shows, the browsing
// and editing states, and catch entries that survive closing the file.
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"
#include "ui/common/databar.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

// A year of 365 made-up days in which day 2 has its second minor at midnight and is the
// day of apogee.
QString BrowsedYear(const QString& folderName)
{
    const QString path = MakeYearFile(folderName, 365);
    Database db;
    EXPECT_TRUE(db.Open(path));
    EXPECT_TRUE(db.UpdateRecord({"table1"}, "DBID", 2, {{"Minor2", 0}, {"Perigee", 2}}));
    return path;
}

void GoTo(frmTable1& w, int dbid)
{
    ASSERT_TRUE(w.Data1.FindFirst(QString("dbid = %1").arg(dbid)));
    ASSERT_FALSE(w.Data1.NoMatch());
}

std::vector<QLabel*> VisibleFish(frmTable1& w)
{
    std::vector<QLabel*> shown;
    for (QLabel* fish : {w.QuarterFish, w.HalfFish, w.ThreeQuarterfish, w.WholeFish})
        if (!fish->isHidden())
            shown.push_back(fish);
    return shown;
}

} // namespace

TEST(FrmTable1, ShowsTheFirstOf365RecordsWithItsDay)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-first"));
    frmTable1 w(env.Context());
    EXPECT_EQ(w.windowTitle(), "Quillmere DataBase");
    w.Form_Activate();
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 1 of 365 Record(s)");
    EXPECT_EQ(w.txtFields[0]->text(), "1");
    EXPECT_EQ(w.txtFields[1]->text(), "01/01/2024");
    EXPECT_EQ(w.Label3->text(), "Mon, January,01,2024");
    EXPECT_EQ(w.Text3->text(), "1");
    EXPECT_EQ(w.FakeTextBox[0]->text(), "12:53 AM"); // Major1
    EXPECT_EQ(w.FakeTextBox[1]->text(), "12:53 PM"); // Major2
    EXPECT_EQ(w.FakeTextBox[2]->text(), "06:01 AM"); // SunRise
    EXPECT_EQ(w.FakeTextBox[3]->text(), "06:01 PM"); // SunSet
    EXPECT_EQ(w.txtFields[7]->text(), "01:15 AM");   // MoonRise 1.25 h
    EXPECT_EQ(w.txtFields[11]->text(), "*****");     // no first minor
    EXPECT_EQ(w.txtFields[4]->text(), "05:40 AM/06:50 PM");
    EXPECT_EQ(w.Label7->text(), "Moon is Waning");
    EXPECT_TRUE(w.Label8->isHidden());
    EXPECT_EQ(w.Label9->text(), "Sorted by Date");
    EXPECT_EQ(VisibleFish(w), std::vector<QLabel*>{w.QuarterFish});
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

TEST(FrmTable1, RepositionShowsMissingEventsPerigeeNotesRatingsAndTheMoon)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-reposition"));
    frmTable1 w(env.Context());
    w.Form_Activate();

    QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 2 of 365 Record(s)");
    EXPECT_EQ(w.txtFields[12]->text(), "12:00 AM"); // a minor at midnight is a time
    EXPECT_FALSE(w.Label8->isHidden());
    EXPECT_EQ(w.Label8->text(), "Apogee");
    EXPECT_EQ(VisibleFish(w), std::vector<QLabel*>{w.HalfFish});

    GoTo(w, 27);
    EXPECT_EQ(w.Label8->text(), "Perigee");
    GoTo(w, 29);
    EXPECT_EQ(w.txtFields[7]->text(), "*****"); // the Moon does not rise that day
    EXPECT_TRUE(w.Label8->isHidden());
    EXPECT_EQ(VisibleFish(w), std::vector<QLabel*>{w.WholeFish});
    GoTo(w, 30);
    EXPECT_EQ(w.Text5->text(), "12:30"); // daylight 12.5 h, always 24-hour
    EXPECT_TRUE(VisibleFish(w).empty());
    EXPECT_EQ(w.Text3->text(), "30");

    // Day 50: 50% and waxing, lit on the right in the colour of the settings.
    GoTo(w, 50);
    EXPECT_EQ(w.Label7->text(), "Moon is Waxing");
    const QImage moon = w.PicM->pixmap().toImage();
    EXPECT_EQ(moon.pixel(66, 30), qRgb(255, 255, 128));
    EXPECT_EQ(moon.pixel(14, 30), qRgb(0, 0, 0));

    QTest::mouseClick(w.Data1Bar->Last, Qt::LeftButton);
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 365 of 365 Record(s)");
    QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 365 of 365 Record(s)");
}

TEST(FrmTable1, EditingHoldsTheRecordAndTheCatchSurvivesReopening)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-edit"));
    {
        frmTable1 w(env.Context());
        w.Form_Activate();
        GoTo(w, 3);
        EXPECT_TRUE(w.cmdEdit->isEnabled());
        EXPECT_FALSE(w.cmdUpdate->isEnabled());
        EXPECT_FALSE(w.Text7->isEnabled());
        EXPECT_EQ(w.cmdEdit->toolTip(), " Click To Edit Record ");
        EXPECT_EQ(w.cmdUpdate->text(), "&Update");

        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        EXPECT_FALSE(w.Data1Bar->isEnabled());
        EXPECT_FALSE(w.cmdEdit->isEnabled());
        EXPECT_FALSE(w.mnuExit->isEnabled());
        EXPECT_TRUE(w.cmdUpdate->isEnabled());
        for (QWidget* input : std::initializer_list<QWidget*>{w.txtFields[17], w.txtFields[18],
                                                              w.Combo4, w.PeakTimeCombo, w.Text7})
            EXPECT_TRUE(input->isEnabled()) << input->objectName().toStdString();
        // The record cannot change until Update.
        QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
        EXPECT_FALSE(w.Data1.MoveNext());
        EXPECT_EQ(w.Data1Bar->Caption(), "Record: 3 of 365 Record(s)");

        w.txtFields_Click(17);
        EXPECT_FALSE(w.Combo4->isHidden());
        w.Combo4->setCurrentIndex(12);
        w.Combo4_Click();
        EXPECT_EQ(w.txtFields[17]->text(), "12");
        EXPECT_TRUE(w.Combo4->isHidden());
        QTest::keyClicks(w.txtFields[18], "spinner");
        const int six = w.PeakTimeCombo->findText("6:00 AM");
        ASSERT_EQ(six, 6);
        w.PeakTimeCombo->setCurrentIndex(six);
        emit w.PeakTimeCombo->activated(six);
        w.Text7->selectAll();
        QTest::keyClicks(w.Text7, "walleye by the dam");
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
        EXPECT_TRUE(w.cmdEdit->isEnabled());
        EXPECT_FALSE(w.txtFields[18]->isEnabled());
        EXPECT_EQ(w.Data1Bar->Caption(), "Record: 3 of 365 Record(s)");
        w.mnuExit_Click();
    }
    frmTable1 again(env.Context());
    again.Form_Activate();
    GoTo(again, 3);
    EXPECT_EQ(again.txtFields[17]->text(), "12");
    EXPECT_EQ(again.txtFields[18]->text(), "spinner");
    EXPECT_EQ(again.PeakTimeCombo->currentText(), "6:00 AM");
    EXPECT_EQ(again.Text7->toPlainText(), "walleye by the dam");
    GoTo(again, 4); // the neighbour is untouched
    EXPECT_EQ(again.txtFields[18]->text(), "");
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

TEST(FrmTable1, ACatchEnteredOnAQueryResultReachesTheLogTable)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-query"));
    RunQueryStep(env.State.DBPath, "select * into Table2 from table1 where GraphicType = 4");
    {
        frmTable1 w(env.Context());
        w.Form_Activate();
        w.Data1.SetRecordSource("select * from Table3 order by juliandate");
        ASSERT_TRUE(w.Data1.Refresh());
        EXPECT_EQ(w.Data1Bar->Caption(), "Record: 1 of 73 Record(s)");
        EXPECT_EQ(w.txtFields[0]->text(), "4"); // the first day rated 4
        w.cmdEdit_Click();
        QTest::keyClicks(w.txtFields[18], "jig");
        w.cmdUpdate_Click();
        w.mnuExit_Click();
    }
    // The next query rebuilds Table3 from table1; the entry is there.
    RunQueryStep(env.State.DBPath, "select * into Table2 from table1 where DBID = 4");
    Database db;
    RowSet rows;
    ASSERT_TRUE(db.Open(env.State.DBPath));
    ASSERT_TRUE(db.Query("select TakenWith from Table3", rows));
    ASSERT_EQ(rows.Rows.size(), 1u);
    EXPECT_EQ(rows.Rows[0][0].toString(), "jig");
}

TEST(FrmTable1, AFileThatCannotBeReadIsReportedAsADataError)
{
    LogWindowEnv env(QString{}, testenv::FreshDir("browse-missing") + "/2030.mdb");
    frmTable1 w(env.Context());
    w.Form_Activate();
    ASSERT_EQ(env.Messages.Shown().size(), 1u);
    EXPECT_TRUE(env.Messages.Shown()[0].Text.startsWith("Data error event hit err:Could not find"))
        << env.ShownTexts().join("|").toStdString();
    EXPECT_EQ(w.Data1.RecordCount(), 0);
}

TEST(FrmTable1, BrowsesAFreshlyFilledYear)
{
    LogWindowEnv env(testenv::FreshDir("browse-filled"));
    FrmSelectDB select(env.Context(2024));
    ASSERT_TRUE(select.CreateDB(2024));
    frmTable1 w(env.Context());
    w.resize(900, 560);
    w.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&w));
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 1 of 366 Record(s)");
    GoTo(w, 163); // 11 June 2024, inside the daylight-saving period
    EXPECT_EQ(w.Label3->text(), "Tue, June,11,2024");
    EXPECT_EQ(w.Text3->text(), "163");
    // Sunrise in Pittsburgh in June is a little before six in daylight-saving time.
    EXPECT_TRUE(w.FakeTextBox[2]->text().startsWith("05:"))
        << w.FakeTextBox[2]->text().toStdString();
    EXPECT_TRUE(w.Text5->text().startsWith("15:")) << w.Text5->text().toStdString();
    EXPECT_EQ(w.txtFields[13]->text().toInt() > 0, true);
    Screenshot(w, "frmTable1");
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

// As an angler types: Edit, one click into the box, the keys to whatever has the focus then,
// Update. What is typed is what the file holds (asked in plain SQL), or a message says why
// not and nothing is stored.
TEST(FrmTable1, TypedCatchEntriesAreStoredAsTypedOrRefusedWithTheFieldsMessage)
{
    struct Typed {
        const char* Column;
        std::function<QWidget*(frmTable1&)> Box;
        const char* Keys;
        QVariant Stored; // null: nothing stored
        QString Message; // empty: none shown
    };
    const auto taken = [](frmTable1& w) -> QWidget* { return w.txtFields[17]; };
    const auto peak = [](frmTable1& w) -> QWidget* { return w.PeakTimeCombo->lineEdit(); };
    const QString notANumber = "Total Taken: \"%1\" is not a whole number from 0 to 100.";
    const std::vector<Typed> cases = {
        {"TotalTaken", taken, "12", 12, {}},
        {"TotalTaken", taken, "0", 0, {}},
        {"TotalTaken", taken, "100", 100, {}},
        {"TotalTaken", taken, "abc", {}, notANumber.arg("abc")},
        {"TotalTaken", taken, "150", {}, notANumber.arg("150")},
        {"TotalTaken", taken, "-3", {}, notANumber.arg("-3")},
        {"PeakTime", peak, "6:30 am", "6:30 AM", {}},
        {"PeakTime", peak, "19:00", "7:00 PM", {}},
        {"PeakTime", peak, "1", {}, "Peak Time: \"1\" is not a time of day."},
        {"PeakTime", peak, "25:00", {}, "Peak Time: \"25:00\" is not a time of day."},
        {"TakenWith",
         [](frmTable1& w) -> QWidget* { return w.txtFields[18]; },
         "jig, 1/4 oz",
         "jig, 1/4 oz",
         {}},
        {"Notes",
         [](frmTable1& w) -> QWidget* { return w.Text7; },
         " walleye 12 ",
         " walleye 12 ",
         {}},
    };
    for (const Typed& c : cases) {
        const std::string where = std::string(c.Column) + " typed " + c.Keys;
        LogWindowEnv env(QString{}, MakeYearFileWithEntries("typed-entry"));
        frmTable1 w(env.Context());
        w.show();
        QApplication::setActiveWindow(&w);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w)) << where;
        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        QWidget* box = c.Box(w);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 4, box->height() / 2));
        QTest::keyClicks(QApplication::focusWidget(), c.Keys);
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);

        const auto row = PlainRows(env.State.DBPath, QString("select %1, TotalTaken, PeakTime "
                                                             "from table1 where DBID = 1")
                                                         .arg(c.Column))
                             .at(0);
        EXPECT_EQ(row[0].isNull(), c.Stored.isNull()) << where;
        EXPECT_EQ(row[0].toString(), c.Stored.toString()) << where;
        // Nothing lands in a box that was not typed into.
        EXPECT_TRUE(std::string(c.Column) == "TotalTaken" || row[1].isNull()) << where;
        EXPECT_TRUE(std::string(c.Column) == "PeakTime" || row[2].isNull()) << where;
        if (c.Message.isEmpty()) {
            EXPECT_TRUE(env.Messages.Shown().empty()) << where;
            EXPECT_TRUE(w.cmdEdit->isEnabled()) << where;
        } else {
            ASSERT_EQ(env.Messages.Shown().size(), 1u) << where;
            EXPECT_EQ(env.Messages.Shown()[0].Text, c.Message) << where;
            EXPECT_TRUE(w.cmdUpdate->isEnabled()) << where; // still editing, to correct it
        }
        w.Data1.CancelUpdate();
    }
}
