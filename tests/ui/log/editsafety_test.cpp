// SPDX-License-Identifier: GPL-3.0-or-later
// The browser never drops a catch entry: every way out while a record is being edited asks
// "Save changes to this day?", and Save, Discard and Cancel do what they say, as read back
// from the file with plain SQL.
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <functional>
#include <memory>

using namespace logtest;

namespace {

QString StoredField(const QString& path, const QString& field)
{
    return PlainColumn(path, "select " + field + " from table1 where dbid = 1").at(0).toString();
}

struct WayOut {
    const char* Name;
    std::function<void(frmTable1&, QWidget& owner)> Take;
};

} // namespace

TEST(EditSafety, EveryWayOutWhileEditingAsksAndTheAnswerIsDone)
{
    const std::vector<WayOut> ways = {
        {"Escape", [](frmTable1& w, QWidget&) { QTest::keyClick(w.Text7, Qt::Key_Escape); }},
        {"close button", [](frmTable1& w, QWidget&) { w.close(); }},
        {"main window closing", [](frmTable1&, QWidget& owner) { owner.close(); }},
    };
    int typed = 0;
    for (const WayOut& way : ways) {
        for (const MsgResult answer : {MsgResult::Cancel, MsgResult::Discard, MsgResult::Save}) {
            const std::string where =
                std::string(way.Name) + " answered " + std::to_string(int(answer));
            LogWindowEnv env(QString{}, MakeYearFile("edit-safety", 5));
            QWidget owner;
            owner.show();
            frmTable1 w(env.Context(), &owner);
            w.show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&w));
            QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
            const QString note = QString("pike %1").arg(++typed);
            w.Text7->selectAll();
            QTest::keyClicks(w.Text7, note);

            env.Answers = {answer};
            way.Take(w, owner);
            ASSERT_EQ(env.Messages.Shown().size(), 1u) << where;
            const ShownMessage& asked = env.Messages.Shown().front();
            EXPECT_EQ(asked.Text, "Save changes to this day?") << where;
            EXPECT_EQ(asked.Buttons, MsgButtons::SaveDiscardCancel) << where;

            const QString stored = StoredField(env.State.DBPath, "Notes");
            if (answer == MsgResult::Cancel) {
                // The edit stays open with what was typed, and nothing is written yet.
                EXPECT_TRUE(w.isVisible()) << where;
                EXPECT_TRUE(owner.isVisible()) << where;
                EXPECT_TRUE(w.cmdUpdate->isEnabled()) << where;
                EXPECT_EQ(w.Text7->toPlainText(), note) << where;
                EXPECT_EQ(stored, "row-001") << where;
                // Update still saves it.
                QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
                EXPECT_EQ(StoredField(env.State.DBPath, "Notes"), note) << where;
            } else {
                EXPECT_FALSE(way.Name == std::string("main window closing") ? owner.isVisible()
                                                                            : w.isVisible())
                    << where;
                EXPECT_EQ(stored, answer == MsgResult::Save ? note : QString("row-001")) << where;
                EXPECT_TRUE(w.cmdEdit->isEnabled()) << where; // back to browsing
                EXPECT_EQ(w.Text7->toPlainText(), stored) << where;
            }
        }
    }
}

TEST(EditSafety, LeavingWhileBrowsingAsksNothing)
{
    LogWindowEnv env(QString{}, MakeYearFile("edit-safety-browse", 5));
    frmTable1 w(env.Context());
    w.show();
    QTest::keyClick(&w, Qt::Key_Escape);
    EXPECT_FALSE(w.isVisible());
    EXPECT_TRUE(env.Messages.Shown().empty());
}

TEST(EditSafety, TakenWithHoldsWhatItsColumnHoldsAndDaylightShowsFifteenDigits)
{
    LogWindowEnv env(QString{}, MakeYearFile("edit-safety-length", 5));
    {
        Database db;
        ASSERT_TRUE(db.Open(env.State.DBPath));
        ASSERT_TRUE(db.UpdateRecord({"table1"}, "DBID", 1, {{"DaylightHours", 10.15910733546643}}));
    }
    frmTable1 w(env.Context());
    w.show();
    EXPECT_EQ(w.Text4->text(), "10.1591073354664");
    QTest::mouseClick(w.cmdEdit, Qt::LeftButton);
    QTest::keyClicks(w.txtFields[18], QString(900, QChar('w')));
    EXPECT_EQ(w.txtFields[18]->text().size(), 255);
    EXPECT_TRUE(w.txtFields[18]->toolTip().contains("255"));
    Screenshot(w, "frmTable1-editing");
    QTest::mouseClick(w.cmdUpdate, Qt::LeftButton);
    EXPECT_EQ(StoredField(env.State.DBPath, "TakenWith"), QString(255, QChar('w')));
}

TEST(EditSafety, TheProgramsEndAsksAndCannotDropTheEntry)
{
    const auto editing = [](LogWindowEnv& env, const char* name) {
        env.State.DBPath = MakeYearFile(name, 5);
        auto w = std::make_unique<frmTable1>(env.Context());
        w->show();
        QTest::mouseClick(w->cmdEdit, Qt::LeftButton);
        w->Text7->moveCursor(QTextCursor::End);
        QTest::keyClicks(w->Text7, " and a perch");
        return w;
    };
    for (const MsgResult answer : {MsgResult::Discard, MsgResult::Save}) {
        LogWindowEnv env(QString{});
        const auto w = editing(env, "edit-safety-quit");
        env.Answers = {answer};
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
        EXPECT_EQ(env.ShownTexts(), QStringList{"Save changes to this day?"});
        EXPECT_EQ(StoredField(env.State.DBPath, "Notes"),
                  answer == MsgResult::Save ? "row-001 and a perch" : "row-001");
    }
    // Cancel keeps the program running with the edit open; an end that cannot be refused
    // asks again and, refused, keeps the entry the only way left: saved.
    LogWindowEnv env(QString{});
    const auto w = editing(env, "edit-safety-quit-cancel");
    env.Answers = {MsgResult::Cancel, MsgResult::Cancel};
    bool stillEditing = false;
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QTimer::singleShot(200, qApp, [&] {
        stillEditing = w->isVisible() && w->cmdUpdate->isEnabled();
        QCoreApplication::exit(0);
    });
    QCoreApplication::exec();
    EXPECT_TRUE(stillEditing);
    EXPECT_EQ(env.ShownTexts(),
              QStringList({"Save changes to this day?", "Save changes to this day?"}));
    EXPECT_EQ(StoredField(env.State.DBPath, "Notes"), "row-001 and a perch");
}
