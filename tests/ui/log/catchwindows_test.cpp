// SPDX-License-Identifier: GPL-3.0-or-later
// The catch editor driven by key events on the real window, checked against the year file read
// in plain SQL.
#include "ui/log/catcheditor.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"
#include "ui/log/photothumbs.h"

#include <QCompleter>

using namespace logtest;

namespace {

constexpr auto FirstDay = "2024-01-01";

void Type(QWidget* box, const QString& text)
{
    box->setFocus();
    QTest::keyClicks(box, text);
}

QVariant SqlValue(const QString& path, const QString& sql)
{
    const auto column = PlainColumn(path, sql);
    return column.empty() ? QVariant() : column.front();
}

// Catches the file holds; 0 while it has no catch tables yet.
int StoredCatches(const QString& path)
{
    return SqlValue(path, "SELECT count(*) FROM sqlite_master WHERE name = 'Catches'").toInt() == 1
               ? SqlValue(path, "SELECT count(*) FROM Catches").toInt()
               : 0;
}

// An editor of a fresh catch on the first day of a small year file.
struct Editing {
    QString Path;
    LogWindowEnv Env;
    PhotoThumbnails Thumbnails{48};
    explicit Editing(const QString& folderName)
        : Path(MakeYearFile(folderName, 3)), Env(QFileInfo(Path).absolutePath(), Path)
    {
    }
    std::unique_ptr<CatchEditor> Open(UnitSystem units = UnitSystem::Metric)
    {
        LogContext context = Env.Context();
        context.Units = units;
        auto editor =
            std::make_unique<CatchEditor>(context, Path, Catch{.Date = FirstDay}, Thumbnails);
        editor->show();
        editor->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(editor.get()));
        return editor;
    }
};

} // namespace

// What the angler types is what the file keeps, in the chosen units, or the message under the
// fields says why not, the box keeps the focus and nothing is written.
TEST(CatchEditor, TypedEntriesAreStoredOrRefusedWithTheirMessage)
{
    int n = 0;
    for (const QStringList& c : DataRows("catch_typing.csv", '|')) {
        const std::string where = c.join('|').toStdString();
        Editing e(QStringLiteral("catch-typing-%1").arg(n++));
        const auto editor = e.Open(c[0] == "imperial" ? UnitSystem::Imperial : UnitSystem::Metric);
        QWidget* box = editor->findChild<QWidget*>(c[1]);
        Type(editor->SpeciesBox, QStringLiteral("Walleye"));
        Type(box, c[2]);
        QTest::mouseClick(editor->cmdOK, Qt::LeftButton);
        EXPECT_EQ(editor->isVisible(), c[4].isEmpty()) << where;
        if (c[4].isEmpty()) {
            EXPECT_TRUE(editor->Message->text().startsWith(c[5]))
                << where << ": " << editor->Message->text().toStdString();
            EXPECT_EQ(QApplication::focusWidget(), box) << where;
            EXPECT_EQ(StoredCatches(e.Path), 0) << where;
        } else {
            EXPECT_EQ(SqlValue(e.Path, "SELECT " + c[3] + " FROM Catches").toString(), c[4])
                << where;
        }
    }
}

// The species of the folder's year files complete what the angler begins to type. Leaving
// with a change asks first: Cancel keeps the editor open, Save writes the catch, Discard
// writes nothing; leaving without a change asks nothing.
TEST(CatchEditor, SpeciesCompleteFromTheFolderAndLeavingWithAChangeAsksFirst)
{
    Editing e(QStringLiteral("catch-species"));
    for (const char* name : {"Northern Pike", "Walleye", "Nile Perch"}) {
        Catch c{.Date = FirstDay, .Species = name};
        ASSERT_TRUE(AddCatch(e.Path, c, QDateTime::currentDateTime()));
    }
    const auto editor = e.Open();
    Type(editor->SpeciesBox, QStringLiteral("n"));
    QCompleter* completer = editor->SpeciesBox->completer();
    ASSERT_TRUE(completer->popup()->isVisible());
    EXPECT_EQ(completer->completionCount(), 2); // Nile Perch, Northern Pike
    QTest::keyClicks(editor->SpeciesBox, QStringLiteral("or"));
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    EXPECT_EQ(editor->SpeciesBox->text(), "Northern Pike");

    for (const auto& [answer, open, added] : {std::tuple{MsgResult::Cancel, true, 0},
                                              {MsgResult::Discard, false, 0},
                                              {MsgResult::Save, false, 1}}) {
        const auto leaving = e.Open();
        QTest::keyClick(leaving.get(), Qt::Key_Escape); // unchanged: closes without a word
        leaving->show();
        Type(leaving->SpeciesBox, QStringLiteral("Bream"));
        e.Env.Answers = {answer};
        QTest::keyClick(leaving.get(), Qt::Key_Escape);
        EXPECT_EQ(leaving->isVisible(), open);
        EXPECT_EQ(StoredCatches(e.Path), 3 + added);
    }
    EXPECT_EQ(e.Env.ShownTexts(), QStringList(3, QStringLiteral("Save changes to this catch?")));
}
