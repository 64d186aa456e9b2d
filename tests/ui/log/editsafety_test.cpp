// SPDX-License-Identifier: GPL-3.0-or-later
// The browser never drops a catch entry: every way out while a record is being edited asks
// "Save changes to this day?", and Save, Discard and Cancel do what they say, as read back
// from the file with plain SQL.
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QPlainTextEdit>
#include <QTimer>

using namespace logtest;

namespace {

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

// Escape, the close button and the main window's closing each ask once; Cancel keeps the edit
// open with what was typed (Update still saves it), Discard and Save close as they say.
// Leaving while only browsing asks nothing.
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

TEST(EditSafety, TakenWithHoldsWhatItsColumnHoldsAndDaylightShowsFifteenDigits)
{
    LogWindowEnv env(QString{}, MakeYearFile("edit-safety-length", 5));
    PlainExec(env.State.DBPath,
              "UPDATE table1 SET DaylightHours = 10.15910733546643 WHERE DBID = 1");
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

// The program's end asks too: Discard and Save do what they say; Cancel keeps the program
// running with the edit open, and an end that cannot be refused asks again and, refused,
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
