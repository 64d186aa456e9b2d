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

// The text of a box or label by its name, empty when hidden; "fish": the rating fish on show.
QString Shown(frmTable1& w, const QString& name)
{
    QString fish;
    for (QLabel* f : {w.QuarterFish, w.HalfFish, w.ThreeQuarterfish, w.WholeFish})
        fish += f->isHidden() ? "" : f->objectName();
    const auto* shown = w.findChild<QWidget*>(name);
    return name == "fish" ? fish : shown->isHidden() ? "" : shown->property("text").toString();
}

QString StoredNotes(const QString& path)
{
    return PlainColumn(path, "select Notes from table1 where dbid = 1").at(0).toString();
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

// Each record's fields, texts, fish and moon; the data bar moves through them and stops at
// the last.
TEST(FrmTable1, ShowsEachRecordsDayEventsPerigeeRatingAndMoon)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-first"));
    frmTable1 w(env.Context());
    w.Form_Activate();
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 1 of 365 Record(s)");
    for (const QStringList& row : DataRows("browsed_days.csv", '|')) {
        if (row[0] == "2" && w.Data1.Field("DBID").toInt() == 1)
            QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
        else
            GoTo(w, row[0].toInt());
        EXPECT_EQ(Shown(w, row[1]), row.value(2)) << row.join('|').toStdString();
    }
    const QImage moon = w.PicM->pixmap().toImage();     // day 50 lit on the right, in the settings'
    EXPECT_EQ(moon.pixel(66, 30), qRgb(255, 255, 128)); // colour
    EXPECT_EQ(moon.pixel(14, 30), qRgb(0, 0, 0));
    QTest::mouseClick(w.Data1Bar->Last, Qt::LeftButton);
    QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
    EXPECT_EQ(w.Data1Bar->Caption(), "Record: 365 of 365 Record(s)");
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

// Edit holds the record until Update; the pickers fill their boxes, Taken With keeps 255
// characters, and the entry shows again when the file is opened anew.
TEST(FrmTable1, EditingHoldsTheRecordAndTheCatchSurvivesReopening)
{
    LogWindowEnv env(QString{}, BrowsedYear("browse-edit"));
    {
        frmTable1 w(env.Context());
        w.Form_Activate();
        GoTo(w, 3);
        EXPECT_FALSE(w.cmdUpdate->isEnabled() || w.Text7->isEnabled());
        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        EXPECT_FALSE(w.Data1Bar->isEnabled() || w.cmdEdit->isEnabled() || w.mnuExit->isEnabled());
        QTest::mouseClick(w.Data1Bar->Next, Qt::LeftButton);
        EXPECT_EQ(w.Data1Bar->Caption(), "Record: 3 of 365 Record(s)");
        w.txtFields_Click(17);
        w.Combo4->setCurrentIndex(12);
        w.Combo4_Click();
        QTest::keyClicks(w.txtFields[18], "spinner" + QString(260, 'w'));
        EXPECT_TRUE(w.txtFields[18]->toolTip().contains("255"));
        w.PeakTimeCombo->setCurrentIndex(6);
        emit w.PeakTimeCombo->activated(6);
        w.Text7->selectAll();
        QTest::keyClicks(w.Text7, "walleye by the dam");
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
        EXPECT_TRUE(w.cmdEdit->isEnabled() && !w.txtFields[18]->isEnabled());
    }
    frmTable1 again(env.Context());
    again.Form_Activate();
    GoTo(again, 3);
    EXPECT_EQ(QStringList({again.txtFields[17]->text(), again.txtFields[18]->text(),
                           again.PeakTimeCombo->currentText(), again.Text7->toPlainText()}),
              QStringList({"12", "spinner" + QString(248, 'w'), "6:00 AM", "walleye by the dam"}));
    GoTo(again, 4); // the neighbour is untouched
    EXPECT_EQ(again.txtFields[18]->text(), "");
    EXPECT_TRUE(env.Messages.Shown().empty()) << env.ShownTexts().join("|").toStdString();
}

// Edit, one click into the box, the keys to whatever has the focus then, Update: the file holds
// what was typed, or a message says why not, nothing is stored and the edit stays open.
TEST(FrmTable1, TypedCatchEntriesAreStoredAsTypedOrRefusedWithTheFieldsMessage)
{
    for (const QStringList& c : DataRows("typed_entries.csv", '|')) {
        const std::string where = c.join('|').toStdString();
        LogWindowEnv env(QString{}, MakeYearFileWithEntries("typed-entry"));
        frmTable1 w(env.Context());
        w.show();
        QApplication::setActiveWindow(&w);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w)) << where;
        QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
        auto* box = w.findChild<QWidget*>(c[0]);
        if (auto* combo = qobject_cast<QComboBox*>(box))
            box = combo->lineEdit();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 4, box->height() / 2));
        QTest::keyClicks(QApplication::focusWidget(), c[1]);
        QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
        const auto rows = PlainRows(env.State.DBPath, "select TotalTaken, PeakTime, TakenWith, "
                                                      "Notes from table1 where DBID = 1");
        QStringList stored;
        for (const QVariant& v : rows.at(0))
            stored << v.toString();
        EXPECT_EQ(stored, c.mid(2, 4)) << where; // nothing lands in a box not typed into
        EXPECT_EQ(env.ShownTexts().join(""), c[6]) << where;
        EXPECT_EQ(w.cmdUpdate->isEnabled(), !c[6].isEmpty()) << where;
        w.Data1.CancelUpdate();
    }
}

// Each way out asks once; Cancel keeps the edit open (Update still saves it), Save and Discard
// do what they say and the way out goes on. Leaving while only browsing asks nothing.
TEST(EditSafety, EveryWayOutWhileEditingAsksAndTheAnswerIsDone)
{
    {
        LogWindowEnv env(QString{}, MakeYearFile("edit-safety-browse", 5));
        frmTable1 w(env.Context());
        w.show();
        QTest::keyClick(&w, Qt::Key_Escape);
        EXPECT_FALSE(w.isVisible() || !env.Messages.Shown().empty());
    }
    const std::pair<std::string, std::function<void(frmTable1&, QWidget&)>> ways[] = {
        {"Escape", [](frmTable1& w, QWidget&) { QTest::keyClick(w.Text7, Qt::Key_Escape); }},
        {"close button", [](frmTable1& w, QWidget&) { w.close(); }},
        {"main window closing", [](frmTable1&, QWidget& owner) { owner.close(); }},
        {"Select", [](frmTable1& w, QWidget&) { QTest::mouseClick(w.cmdSelect, Qt::LeftButton); }},
    };
    for (const auto& [way, take] : ways) {
        for (const MsgResult answer : {MsgResult::Cancel, MsgResult::Discard, MsgResult::Save}) {
            const std::string where = way + " answered " + std::to_string(int(answer));
            LogWindowEnv env(QString{});
            QWidget owner;
            owner.show();
            const auto w = Editing(env, " pike", &owner);
            env.Answers = {answer};
            take(*w, owner);
            ASSERT_EQ(env.Messages.Shown().size(), 1u) << where;
            EXPECT_EQ(env.Messages.Shown()[0].Text, "Save changes to this day?") << where;
            EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::SaveDiscardCancel) << where;
            const bool cancel = answer == MsgResult::Cancel;
            EXPECT_EQ(w->isVisible() && owner.isVisible(), cancel || way == "Select") << where;
            EXPECT_EQ(w->cmdUpdate->isEnabled(), cancel) << where; // else back to browsing
            EXPECT_EQ(w->Text7->toPlainText(),
                      cancel ? "row-001 pike" : StoredNotes(env.State.DBPath))
                << where;
            EXPECT_EQ(StoredNotes(env.State.DBPath),
                      answer == MsgResult::Save ? "row-001 pike" : "row-001")
                << where;
            QTest::mouseClick(w->cmdUpdate, Qt::LeftButton);
            EXPECT_EQ(StoredNotes(env.State.DBPath),
                      answer == MsgResult::Discard ? "row-001" : "row-001 pike")
                << where;
        }
    }
}
