// SPDX-License-Identifier: GPL-3.0-or-later
// "Edit Database" on a copy of the built city database: the state list, the record counter,
// the buttons' states, Find, Filter, Add, Update, Delete, Cancel and Load, checked against
// plain SQL asked of the file.
#include "support/cityfolder.h"
#include "support/testenv.h"
#include "ui/common/databar.h"
#include "ui/common/messageservice.h"
#include "ui/locations/editdb.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

namespace {

struct Window {
    explicit Window(const QString& name, bool withCityList = true)
        : Folder(cityfolder::Make(name, withCityList))
    {
        Messages.Script([this](const ShownMessage&) { return Answer; },
                        [this](const ShownInput&) { return std::optional<QString>(Typed); });
        W = std::make_unique<EditDB>(Messages, Folder);
        W->show();
    }
    QString Sql(const QString& sql) const { return cityfolder::Column(Folder, sql).value(0); }
    int Count(const QString& where = "1") const
    {
        return Sql("SELECT count(*) FROM Table1 WHERE " + where).toInt();
    }
    QString Text(int i) const { return W->Text[std::size_t(i)]->text(); }
    void Type(int box, const QString& keys) const
    {
        W->Text[std::size_t(box)]->selectAll();
        QTest::keyClicks(W->Text[std::size_t(box)], keys);
    }
    std::vector<bool> Enabled() const
    {
        std::vector<bool> states;
        for (QPushButton* b : W->CmdB)
            states.push_back(b->isEnabled());
        return states;
    }
    QString LastMessage() const
    {
        return Messages.Shown().empty() ? "" : Messages.Shown().back().Text;
    }
    // Clicks the button, typing `city` where it asks for one.
    void Ask(EditDB::Button button, const QString& city)
    {
        Typed = city;
        W->CmdB_Click(button);
    }
    void ShowState(const QString& state)
    {
        W->Combo->setCurrentIndex(W->Combo->findText(state));
        W->Combo_Click();
    }

    QString Folder;
    MessageService Messages;
    MsgResult Answer = MsgResult::OK;
    QString Typed;
    std::unique_ptr<EditDB> W;
};

// Close, Edit, Add, Delete, Update, Find, Filter, Load, Cancel.
const std::vector<bool> Browsing = {true, true, true, true, false, true, true, true, false};

} // namespace

// Every city at first, with the state list; a state shows its cities in order; Filter
// ignores case; Find takes the whole name as typed or says it found none; Load; no city list.
TEST(EditDB, BrowsesStatesFiltersAndFinds)
{
    Window w("edit-browse");
    EXPECT_EQ(w.W->Combo->count() - 1, w.Sql("SELECT count(DISTINCT State) FROM Table1").toInt());
    EXPECT_EQ(w.W->Data1Bar->Caption(), QString("Record: 1 of %1 Record(s)").arg(w.Count()));

    w.ShowState("ID");
    const QStringList cities =
        cityfolder::Column(w.Folder, "SELECT City FROM Table1 WHERE State = 'ID' ORDER BY City");
    ASSERT_EQ(w.W->Data1.RecordCount(), cities.size());
    EXPECT_EQ(w.Text(2), cities.front());
    w.W->Data1.MoveLast();
    EXPECT_EQ(w.Text(2), cities.back());

    w.Ask(EditDB::Filter, "austin");
    EXPECT_EQ(w.W->Data1.RecordCount(), 2); // Austin, MN and Austin, TX
    w.ShowState("ALL");
    EXPECT_EQ(w.W->Data1.RecordCount(), w.Count());

    w.Ask(EditDB::Find, "Coeur d'Alene");
    EXPECT_EQ(w.Text(1) + " " + w.Text(2), "ID Coeur d'Alene");
    w.Ask(EditDB::Find, "Coeur"); // the whole name or nothing
    EXPECT_EQ(w.LastMessage(), "City NOT Found!");
    EXPECT_EQ(w.W->Data1.AbsolutePosition(), 0);

    // Load capitalises the second word of the cities shown, and only of those.
    ASSERT_TRUE(cityfolder::Exec(w.Folder, "UPDATE Table1 SET City = 'fort worth texas' "
                                           "WHERE City = 'Fort Worth' AND State = 'TX'"));
    w.Ask(EditDB::Filter, "fort worth texas");
    w.W->CmdB_Click(EditDB::Load);
    EXPECT_EQ(w.Sql("SELECT City FROM Table1 WHERE State = 'TX' AND City LIKE 'fort%texas'"),
              "fort Worth texas");
    EXPECT_EQ(w.Count("City = 'Dallas' AND State = 'TX'"), 1); // outside the filter: untouched

    Window missing("edit-missing", false);
    EXPECT_TRUE(missing.LastMessage().contains("is missing"));
    EXPECT_FALSE(missing.W->CmdB[EditDB::Edit]->isEnabled());
}

// Add needs a state and a city; Enter moves to the next box; the new city reaches the file;
// Delete asks.
TEST(EditDB, AddNeedsStateAndCityThenReachesTheFileAndDeleteAsks)
{
    Window w("edit-add");
    const int before = w.Count();
    w.W->CmdB_Click(EditDB::Add);
    w.Type(1, "LA");
    QTest::keyClick(w.W->Text[1], Qt::Key_Return);
    EXPECT_EQ(w.W->focusWidget(), w.W->Text[2]);
    w.W->CmdB_Click(EditDB::Update);
    EXPECT_EQ(w.LastMessage(), "Missing Data!");
    EXPECT_EQ(w.W->Data1.EditMode(), DataControl::EditState::Adding);
    int box = 2;
    for (const char* keys : {"Toledo Bend", "93.57", "W", "31.17", "N", "6"})
        w.Type(box++, keys);
    w.W->CmdB_Click(EditDB::Update);
    EXPECT_EQ(w.Count(), before + 1);
    EXPECT_EQ(w.Sql("SELECT LongInDegrees || LongChar || LatInDegrees || LatChar || Timezone FROM "
                    "Table1 WHERE City = 'Toledo Bend' AND State = 'LA'"),
              "93.57W31.17N6");
    EXPECT_EQ(w.Enabled(), Browsing);

    // Delete asks; No leaves the record, Yes removes it.
    const QString id = w.Text(0);
    w.Answer = MsgResult::No;
    w.W->CmdB_Click(EditDB::Delete);
    EXPECT_EQ(w.LastMessage(), "Delete Current Record?");
    EXPECT_EQ(w.Count(), before + 1);
    w.Answer = MsgResult::Yes;
    w.W->CmdB_Click(EditDB::Delete);
    EXPECT_EQ(w.Count(), before);
    EXPECT_EQ(w.Count("LongLatID = " + id), 0);
}
// What the location editor could not use is refused with the box's message and the record
// stays as it was; a usable value is stored as typed.
TEST(EditDB, UpdateStoresUsableValuesAsTypedAndRefusesTheOthers)
{
    const char* columns[] = {"",        "",        "", "LongInDegrees", "LongChar", "LatInDegrees",
                             "LatChar", "Timezone"};
    Window w("edit-typed");
    const QString id = w.Text(0);
    const auto stored = [&](int box) {
        return w.Sql(QString("SELECT %1 FROM Table1 WHERE LongLatID = %2").arg(columns[box], id));
    };
    const auto rows = testenv::DataRows(QUILLMERE_TYPED_CITY);
    ASSERT_EQ(rows.size(), 9u);
    for (const QStringList& row : rows) {
        const int box = row[0].toInt();
        const bool refused = !row[2].isEmpty();
        const QString before = stored(box);
        w.W->CmdB_Click(EditDB::Edit);
        w.Type(box, row[1]);
        const std::size_t shown = w.Messages.Shown().size();
        w.W->CmdB_Click(EditDB::Update);
        EXPECT_EQ(w.Messages.Shown().size() == shown ? "" : w.LastMessage(), row[2])
            << row[1].toStdString();
        EXPECT_EQ(stored(box), refused ? before : row[1]);
        if (refused) {
            EXPECT_EQ(w.W->Data1.EditMode(), DataControl::EditState::Editing);
            w.W->CmdB_Click(EditDB::Cancel);
            EXPECT_EQ(w.Text(box), before); // Cancel shows the record as stored
        }
    }
}

// Every way out while a city is being edited asks, and Save, Discard and Cancel do what they
// say.
TEST(EditDB, EveryWayOutWhileEditingAsksAndTheAnswerIsDone)
{
    const std::vector<std::pair<const char*, std::function<void(EditDB&)>>> ways = {
        {"Close button", [](EditDB& w) { w.CmdB_Click(EditDB::Close); }},
        {"window closed", [](EditDB& w) { w.close(); }},
        {"Escape", [](EditDB& w) { QTest::keyClick(w.Text[2], Qt::Key_Escape); }},
    };
    for (const auto& [way, take] : ways) {
        for (const MsgResult answer : {MsgResult::Cancel, MsgResult::Discard, MsgResult::Save}) {
            SCOPED_TRACE(std::string(way) + " answered " + std::to_string(int(answer)));
            Window w("edit-leave");
            const QString id = w.Text(0), city = w.Text(2);
            w.W->CmdB_Click(EditDB::Edit);
            w.Type(2, "Renamed");
            w.Answer = answer;
            take(*w.W);
            ASSERT_EQ(w.Messages.Shown().size(), 1u);
            EXPECT_EQ(w.LastMessage(), "Save changes to this city?");
            EXPECT_EQ(w.W->isVisible(), answer == MsgResult::Cancel);
            EXPECT_EQ(w.Sql("SELECT City FROM Table1 WHERE LongLatID = " + id),
                      answer == MsgResult::Save ? "Renamed" : city);
        }
    }
}
