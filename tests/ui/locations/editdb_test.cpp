// "Edit Database" on a copy of the built city database: the state list, the record counter,
// the buttons' states, Find, Filter, Add, Update, Delete, Cancel and Load, checked against
// plain SQL asked of the file.
#include "support/cityfolder.h"
#include "ui/common/databar.h"
#include "ui/common/messageservice.h"
#include "ui/locations/editdb.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Window {
    explicit Window(const QString& name) : Folder(cityfolder::Make(name))
    {
        Messages.Script([this](const ShownMessage&) { return Answer; },
                        [this](const ShownInput&) { return std::optional<QString>(Typed); });
        W = std::make_unique<EditDB>(Messages, Folder);
        W->show();
    }
    int Count(const QString& where = "1") const
    {
        return cityfolder::Column(Folder, "SELECT count(*) FROM Table1 WHERE " + where)[0].toInt();
    }
    QString Text(int i) const { return W->Text[std::size_t(i)]->text(); }
    std::vector<bool> Enabled() const
    {
        std::vector<bool> states;
        for (QPushButton* b : W->CmdB)
            states.push_back(b->isEnabled());
        return states;
    }
    QString LastMessage() const
    {
        return Messages.Shown().empty() ? QString() : Messages.Shown().back().Text;
    }

    QString Folder;
    MessageService Messages;
    MsgResult Answer = MsgResult::OK;
    QString Typed;
    std::unique_ptr<EditDB> W;
};

const std::vector<bool> Browsing = {true, true, true, true, false, true, true, true, false};

} // namespace

TEST(EditDB, StartsBrowsingEveryCityWithTheStateList)
{
    Window w("edit-load");
    EXPECT_EQ(w.W->windowTitle(), "Edit Database");
    EXPECT_EQ(w.W->Combo->itemText(0), "ALL");
    EXPECT_EQ(w.W->Combo->count() - 1,
              cityfolder::Column(w.Folder, "SELECT count(DISTINCT State) FROM Table1")[0].toInt());
    EXPECT_EQ(w.W->Data1.RecordCount(), w.Count());
    EXPECT_EQ(w.W->Data1Bar->Caption(), QString("Record: 1 of %1 Record(s)").arg(w.Count()));
    EXPECT_EQ(w.Enabled(), Browsing);
    EXPECT_FALSE(w.W->Text[1]->isEnabled());
    EXPECT_EQ(w.W->CmdB[EditDB::Find]->toolTip(), " Find this City ");
    w.W->Data1.MoveNext();
    EXPECT_EQ(w.W->Data1Bar->Caption(), QString("Record: 2 of %1 Record(s)").arg(w.Count()));
}

TEST(EditDB, FilterIgnoresCaseFindTakesTheNameAsTypedAndAllShowsEverything)
{
    Window w("edit-filter");
    w.Typed = "austin";
    w.W->CmdB_Click(EditDB::Filter);
    EXPECT_EQ(w.W->Data1.RecordCount(), 2); // Austin, MN and Austin, TX
    EXPECT_EQ(w.Text(2), "Austin");
    EXPECT_EQ(w.Messages.Asked().back().Prompt, "Input City");
    EXPECT_EQ(w.Enabled(), Browsing);

    w.W->Combo->setCurrentIndex(0); // ALL
    w.W->Combo_Click();
    EXPECT_EQ(w.W->Data1.RecordCount(), w.Count());

    w.Typed = "Coeur d'Alene";
    w.W->CmdB_Click(EditDB::Find);
    EXPECT_EQ(w.Text(1), "ID");
    EXPECT_EQ(w.Text(2), "Coeur d'Alene");
    EXPECT_TRUE(w.Messages.Shown().empty());
    w.Typed = "Coeur"; // the whole name or nothing
    w.W->CmdB_Click(EditDB::Find);
    EXPECT_EQ(w.LastMessage(), "City NOT Found!");
    EXPECT_EQ(w.Messages.Shown().back().Title, "City Search");
    EXPECT_EQ(w.W->Data1.AbsolutePosition(), 0);

    w.Typed = "coeur d'alene";
    w.W->CmdB_Click(EditDB::Filter);
    ASSERT_EQ(w.W->Data1.RecordCount(), 1);
    EXPECT_EQ(w.Text(2), "Coeur d'Alene");
}

TEST(EditDB, StateListShowsOneStateInCityOrder)
{
    Window w("edit-state");
    w.W->Combo->setCurrentIndex(w.W->Combo->findText("ID"));
    w.W->Combo_Click();
    const QStringList cities =
        cityfolder::Column(w.Folder, "SELECT City FROM Table1 WHERE State = 'ID' ORDER BY City");
    ASSERT_EQ(w.W->Data1.RecordCount(), cities.size());
    EXPECT_EQ(w.Text(2), cities.front());
    w.W->Data1.MoveLast();
    EXPECT_EQ(w.Text(2), cities.back());
}

TEST(EditDB, AddNeedsStateAndCityThenReachesTheFile)
{
    Window w("edit-add");
    const int before = w.Count();
    w.W->CmdB_Click(EditDB::Add);
    EXPECT_EQ(w.Enabled(),
              std::vector<bool>({true, false, false, false, true, false, false, true, true}));
    EXPECT_TRUE(w.W->Text[2]->isEnabled());
    QTest::keyClicks(w.W->Text[1], "LA");
    w.W->CmdB_Click(EditDB::Update);
    EXPECT_EQ(w.LastMessage(), "Missing Data!");
    EXPECT_EQ(w.W->Data1.EditMode(), DataControl::EditState::Adding);
    QTest::keyClicks(w.W->Text[2], "Toledo Bend");
    QTest::keyClicks(w.W->Text[3], "93.57");
    QTest::keyClicks(w.W->Text[4], "W");
    QTest::keyClicks(w.W->Text[5], "31.17");
    QTest::keyClicks(w.W->Text[6], "N");
    QTest::keyClicks(w.W->Text[7], "6");
    w.W->CmdB_Click(EditDB::Update);
    EXPECT_EQ(w.Count(), before + 1);
    EXPECT_EQ(cityfolder::Column(w.Folder, "SELECT LongInDegrees || LongChar || Timezone FROM "
                                           "Table1 WHERE City = 'Toledo Bend' AND State = 'LA'"),
              QStringList({"93.57W6"}));
    EXPECT_EQ(w.Enabled(), Browsing);
    EXPECT_FALSE(w.W->Text[2]->isEnabled());
}

TEST(EditDB, DeleteAskedAndCancelLeaveOrRemoveTheRecord)
{
    Window w("edit-delete");
    const int before = w.Count();
    const QString first = w.Text(2);
    const QString id = w.Text(0);
    w.Answer = MsgResult::No;
    w.W->CmdB_Click(EditDB::Delete);
    EXPECT_EQ(w.Messages.Shown().back().Text, "Delete Current Record?");
    EXPECT_EQ(w.Messages.Shown().back().Title, "Delete Record");
    EXPECT_EQ(w.Count(), before);
    EXPECT_EQ(w.Text(2), first);
    EXPECT_EQ(w.Enabled(), Browsing);

    w.W->CmdB_Click(EditDB::Edit);
    w.W->Text[2]->clear();
    QTest::keyClicks(w.W->Text[2], "Changed");
    w.W->CmdB_Click(EditDB::Cancel);
    EXPECT_EQ(w.Count("City = 'Changed'"), 0);
    EXPECT_EQ(w.Text(2), first);

    w.Answer = MsgResult::Yes;
    w.W->CmdB_Click(EditDB::Delete);
    EXPECT_EQ(w.Count(), before - 1);
    EXPECT_EQ(w.Count("LongLatID = " + id), 0);
}

TEST(EditDB, LoadCapitalisesTheSecondWordOfTheShownCities)
{
    Window w("edit-lower");
    ASSERT_TRUE(cityfolder::Exec(w.Folder, "UPDATE Table1 SET City = 'fort worth texas' "
                                           "WHERE City = 'Fort Worth' AND State = 'TX'"));
    w.Typed = "fort worth texas";
    w.W->CmdB_Click(EditDB::Filter);
    ASSERT_EQ(w.W->Data1.RecordCount(), 1);
    w.W->CmdB_Click(EditDB::Load);
    EXPECT_EQ(cityfolder::Column(w.Folder, "SELECT City FROM Table1 WHERE State = 'TX' AND "
                                           "City LIKE 'fort%texas'"),
              QStringList({"fort Worth texas"}));
    EXPECT_EQ(w.Count("City = 'Dallas' AND State = 'TX'"), 1); // outside the filter: untouched
}

TEST(EditDB, EnterMovesToTheNextBox)
{
    Window w("edit-enter");
    w.W->CmdB_Click(EditDB::Edit);
    w.W->Text[1]->setFocus();
    QTest::keyClick(w.W->Text[1], Qt::Key_Return);
    EXPECT_EQ(w.W->focusWidget(), w.W->Text[2]);
    EXPECT_TRUE(w.W->isVisible());
    w.W->CmdB_Click(EditDB::Cancel);
}

TEST(EditDB, MissingCityListIsSaidInOneLine)
{
    const QString folder = cityfolder::Make("edit-missing", false);
    MessageService messages;
    messages.Script([](const ShownMessage&) { return MsgResult::OK; });
    EditDB w(messages, folder);
    ASSERT_EQ(messages.Shown().size(), 1u);
    EXPECT_TRUE(messages.Shown()[0].Text.contains("is missing"));
    EXPECT_FALSE(w.CmdB[EditDB::Edit]->isEnabled());
    EXPECT_TRUE(w.CmdB[EditDB::Close]->isEnabled());
}

TEST(EditDB, Screenshot)
{
    Window w("edit-shot");
    w.W->Combo->setCurrentIndex(w.W->Combo->findText("LA"));
    w.W->Combo_Click();
    EXPECT_TRUE(w.W->grab().save(QStringLiteral(QUILLMERE_SCREENSHOTS "/editdb.png")));
}
