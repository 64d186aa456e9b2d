// SPDX-License-Identifier: GPL-3.0-or-later
// The record browser on real year files, offscreen: what each record shows, editing, and
// every way out of an edit, as read back from the file with plain SQL.
#include "ui/common/databar.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>

using namespace logtest;

namespace {

// A year of 365 made-up days; day 1 has a daylight of 15 digits, day 2 its second minor at
// midnight and the apogee.
QString BrowsedYear(const QString& folderName)
{
    const QString path = MakeYearFile(folderName, 365);
    PlainExec(path, "UPDATE table1 SET DaylightHours = 10.15910733546643 WHERE DBID = 1");
    PlainExec(path, "UPDATE table1 SET Minor2 = 0, Perigee = 2 WHERE DBID = 2");
    return path;
}

void GoTo(frmTable1& w, int dbid)
{
    ASSERT_TRUE(w.Data1.FindFirst(QString("dbid = %1").arg(dbid)));
}

// The rating fish on show: "" or one of "1/4", "1/2", "3/4", "1".
QString ShownFish(frmTable1& w)
{
    QString shown;
    const std::pair<QLabel*, const char*> fish[] = {{w.QuarterFish, "1/4"},
                                                    {w.HalfFish, "1/2"},
                                                    {w.ThreeQuarterfish, "3/4"},
                                                    {w.WholeFish, "1"}};
    for (const auto& [label, name] : fish)
        shown += label->isHidden() ? "" : name;
    return shown;
}

QString StoredField(const QString& path, const QString& field)
{
    return PlainColumn(path, "select " + field + " from table1 where dbid = 1").at(0).toString();
}

// A browser of a small year, shown, editing the first day's note with the text added.
std::unique_ptr<frmTable1> Editing(LogWindowEnv& env, const QString& added,
                                   QWidget* owner = nullptr)
{
    env.State.DBPath = MakeYearFile("edit-safety", 5);
    auto w = std::make_unique<frmTable1>(env.Context(), owner);
    w->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(w.get()));
    QTest::mouseClick(w->cmdEdit, Qt::LeftButton);
    w->Text7->moveCursor(QTextCursor::End);
    QTest::keyClicks(w->Text7, added);
    return w;
}

} // namespace

// The data bar moves through the records and stops at the last.
TEST(FrmTable1, ShowsEachRecordsDayEventsPerigeeRatingAndMoon)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-first"));
    frmTable1 w(env.Context());
    EXPECT_EQ(w.windowTitle(), "Quillmere DataBase");
    w.Form_Activate();
    const QStringList first = {
        w.Data1Bar->Caption(),    w.txtFields[0]->text(),   w.txtFields[1]->text(),
        w.Label3->text(),         w.Text3->text(),          w.FakeTextBox[0]->text(),
        w.FakeTextBox[1]->text(), w.FakeTextBox[2]->text(), w.FakeTextBox[3]->text(),
        w.txtFields[7]->text(),   w.txtFields[11]->text(),  w.txtFields[4]->text(),
        w.Label7->text(),         w.Label9->text(),         ShownFish(w),
        w.Text4->text()};
    // Major 1 and 2, sunrise, sunset, moonrise at 1.25 h, no first minor.
    EXPECT_EQ(first, QStringList({"Record: 1 of 365 Record(s)", "1", "01/01/2024",
                                  "Mon, January,01,2024", "1", "12:53 AM", "12:53 PM", "06:01 AM",
                                  "06:01 PM", "01:15 AM", "*****", "05:40 AM/06:50 PM",
                                  "Moon is Waning", "Sorted by Date", "1/4", "10.1591073354664"}));
    EXPECT_TRUE(w.Label8->isHidden());

    QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 2 of 365 Record(s)");
    EXPECT_EQ(w.txtFields[12]->text(), "12:00 AM"); // a minor at midnight is a time
    EXPECT_EQ(w.Label8->isHidden() ? "" : w.Label8->text(), "Apogee");
    EXPECT_EQ(ShownFish(w), "1/2");
    GoTo(w, 27);
    EXPECT_EQ(w.Label8->text(), "Perigee");
    GoTo(w, 29);
    EXPECT_EQ(w.txtFields[7]->text(), "*****"); // the Moon does not rise that day
    EXPECT_TRUE(w.Label8->isHidden());
    EXPECT_EQ(ShownFish(w), "1");
    GoTo(w, 30);
    EXPECT_EQ(w.Text5->text(), "12:30"); // daylight 12.5 h, always 24-hour
    EXPECT_EQ(ShownFish(w), "");
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
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

TEST(FrmTable1, EditingHoldsTheRecordAndTheCatchSurvivesReopening)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-edit"));
    {
        frmTable1 w(env.Context());
        w.Form_Activate();
        GoTo(w, 3);
        EXPECT_TRUE(w.cmdEdit->isEnabled() && !w.cmdUpdate->isEnabled() && !w.Text7->isEnabled());
        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        EXPECT_FALSE(w.Data1Bar->isEnabled() || w.cmdEdit->isEnabled() || w.mnuExit->isEnabled());
        for (QWidget* input : std::initializer_list<QWidget*>{
                 w.cmdUpdate, w.txtFields[17], w.txtFields[18], w.Combo4, w.PeakTimeCombo, w.Text7})
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
        QTest::keyClicks(w.txtFields[18], "spinner" + QString(260, 'w')); // 255 kept
        EXPECT_TRUE(w.txtFields[18]->toolTip().contains("255"));
        ASSERT_EQ(w.PeakTimeCombo->findText("6:00 AM"), 6);
        w.PeakTimeCombo->setCurrentIndex(6);
        emit w.PeakTimeCombo->activated(6);
        w.Text7->selectAll();
        QTest::keyClicks(w.Text7, "walleye by the dam");
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
        EXPECT_TRUE(w.cmdEdit->isEnabled());
        EXPECT_FALSE(w.txtFields[18]->isEnabled());
        w.mnuExit_Click();
    }
    frmTable1 again(env.Context());
    again.Form_Activate();
    GoTo(again, 3);
    EXPECT_EQ(again.txtFields[17]->text(), "12");
    EXPECT_EQ(again.txtFields[18]->text(), "spinner" + QString(248, 'w'));
    EXPECT_EQ(again.PeakTimeCombo->currentText(), "6:00 AM");
    EXPECT_EQ(again.Text7->toPlainText(), "walleye by the dam");
    GoTo(again, 4); // the neighbour is untouched
    EXPECT_EQ(again.txtFields[18]->text(), "");
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
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

// Edit, one click into the box, the keys to whatever has the focus then, Update: the file holds
// what was typed, or a message says why not and nothing is stored.
TEST(FrmTable1, TypedCatchEntriesAreStoredAsTypedOrRefusedWithTheFieldsMessage)
{
    const auto box = [](frmTable1& w, const QString& column) -> QWidget* {
        return column == "TotalTaken"  ? w.txtFields[17]
               : column == "PeakTime"  ? w.PeakTimeCombo->lineEdit()
               : column == "TakenWith" ? static_cast<QWidget*>(w.txtFields[18])
                                       : w.Text7;
    };
    for (const QStringList& c : DataRows("typed_entries.csv", '|')) {
        const QString& column = c[0];
        const std::string where = c.join('|').toStdString();
        LogWindowEnv env(QString{}, MakeYearFileWithEntries("typed-entry"));
        frmTable1 w(env.Context());
        w.show();
        QApplication::setActiveWindow(&w);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w)) << where;
        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        QWidget* typedInto = box(w, column);
        QTest::mouseClick(typedInto, Qt::LeftButton, {},
                          QPoint(typedInto->width() - 4, typedInto->height() / 2));
        QTest::keyClicks(QApplication::focusWidget(), c[1]);
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);

        const auto row = PlainRows(env.State.DBPath, QString("select %1, TotalTaken, PeakTime "
                                                             "from table1 where DBID = 1")
                                                         .arg(column))
                             .at(0);
        EXPECT_EQ(row[0].isNull() ? "<null>" : row[0].toString(), c[2]) << where;
        // Nothing lands in a box that was not typed into.
        EXPECT_TRUE(column == "TotalTaken" || row[1].isNull()) << where;
        EXPECT_TRUE(column == "PeakTime" || row[2].isNull()) << where;
        EXPECT_EQ(env.ShownTexts(), c.size() > 3 ? QStringList{c[3]} : QStringList{}) << where;
        // Refused, it stays in editing to be corrected.
        EXPECT_EQ(w.cmdUpdate->isEnabled(), c.size() > 3) << where;
        w.Data1.CancelUpdate();
    }
}

// Each way out asks once; Cancel keeps the edit open (Update still saves it). Leaving while
// only browsing asks nothing.
TEST(EditSafety, EveryWayOutWhileEditingAsksAndTheAnswerIsDone)
{
    {
        LogWindowEnv env(QString{}, MakeYearFile("edit-safety-browse", 5));
        frmTable1 w(env.Context());
        w.show();
        QTest::keyClick(&w, Qt::Key_Escape);
        EXPECT_FALSE(w.isVisible());
        EXPECT_TRUE(env.Messages.Shown().empty());
    }
    const std::pair<const char*, std::function<void(frmTable1&, QWidget&)>> ways[] = {
        {"Escape", [](frmTable1& w, QWidget&) { QTest::keyClick(w.Text7, Qt::Key_Escape); }},
        {"close button", [](frmTable1& w, QWidget&) { w.close(); }},
        {"main window closing", [](frmTable1&, QWidget& owner) { owner.close(); }},
    };
    for (const auto& [way, take] : ways) {
        for (const MsgResult answer : {MsgResult::Cancel, MsgResult::Discard, MsgResult::Save}) {
            const std::string where = std::string(way) + " answered " + std::to_string(int(answer));
            LogWindowEnv env(QString{});
            QWidget owner;
            owner.show();
            const auto w = Editing(env, " pike", &owner);
            env.Answers = {answer};
            take(*w, owner);
            ASSERT_EQ(env.Messages.Shown().size(), 1u) << where;
            EXPECT_EQ(env.Messages.Shown()[0].Text, "Save changes to this day?") << where;
            EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::SaveDiscardCancel) << where;
            const QString stored = StoredField(env.State.DBPath, "Notes");
            if (answer == MsgResult::Cancel) {
                EXPECT_TRUE(w->isVisible() && owner.isVisible() && w->cmdUpdate->isEnabled())
                    << where;
                EXPECT_EQ(w->Text7->toPlainText(), "row-001 pike") << where;
                EXPECT_EQ(stored, "row-001") << where;
                QTest::mouseClick(w->cmdUpdate, Qt::LeftButton);
                EXPECT_EQ(StoredField(env.State.DBPath, "Notes"), "row-001 pike") << where;
                continue;
            }
            EXPECT_FALSE(std::string(way) == "main window closing" ? owner.isVisible()
                                                                   : w->isVisible())
                << where;
            EXPECT_EQ(stored, answer == MsgResult::Save ? "row-001 pike" : "row-001") << where;
            EXPECT_TRUE(w->cmdEdit->isEnabled()) << where; // back to browsing
            EXPECT_EQ(w->Text7->toPlainText(), stored) << where;
        }
    }
}

// Cancel keeps the program running; an end that cannot be refused asks again and, refused,
// keeps the entry the only way left: saved.
TEST(EditSafety, TheProgramsEndAsksAndCannotDropTheEntry)
{
    for (const MsgResult answer : {MsgResult::Discard, MsgResult::Save, MsgResult::Cancel}) {
        LogWindowEnv env(QString{});
        const auto w = Editing(env, " and a perch");
        const bool cancel = answer == MsgResult::Cancel;
        env.Answers = {answer, answer};
        bool stillEditing = false;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        if (cancel)
            QTimer::singleShot(200, qApp, [&] {
                stillEditing = w->isVisible() && w->cmdUpdate->isEnabled();
                QCoreApplication::exit(0);
            });
        QCoreApplication::exec();
        EXPECT_EQ(stillEditing, cancel);
        EXPECT_EQ(env.ShownTexts(), QStringList(cancel ? 2 : 1, "Save changes to this day?"));
        EXPECT_EQ(StoredField(env.State.DBPath, "Notes"),
                  answer == MsgResult::Discard ? "row-001" : "row-001 and a perch");
    }
}
