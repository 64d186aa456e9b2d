// SPDX-License-Identifier: GPL-3.0-or-later
// The location editor and "Edit Database" on copies of the built city database, checked
// against plain SQL asked of the file: the boxes, options and zone list of a location, picking
// a state and a city, typed values, and what happens when the city list is missing or empty;
// the city list's browsing, Find, Filter, Add, Update, Delete, Cancel and Load.
#include "support/cityfolder.h"
#include "support/testenv.h"
#include "ui/common/databar.h"
#include "ui/common/messageservice.h"
#include "ui/locations/editdb.h"
#include "ui/locations/frmlocation.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

struct Editor {
    explicit Editor(const QString& folder, const Location& loc)
    {
        Locations[3] = loc;
        Locations[1] = {"Alexandria, LA", 92.42, 31.25, 6};
        Messages.Script([](const ShownMessage&) { return MsgResult::OK; });
        W = std::make_unique<FrmLocation>(
            LocationContext{Messages, Locations, CurLoc, DefLoc, folder});
        W->show();
    }
    QString Text(int i) const { return W->Text[std::size_t(i)]->text(); }
    // The degree and hundredth boxes of longitude, then of latitude, and the W/E, N/S choices.
    QString Boxes() const
    {
        return QStringList{Text(0), Text(1), W->SSOption[1]->isChecked() ? "E" : "W",
                           Text(2), Text(3), W->SSOption[3]->isChecked() ? "S" : "N"}
            .join(' ');
    }
    QString Zone() const { return W->List1->currentItem()->text(); }
    // Picks the entry as a user does, by its text.
    void Pick(int combo, const QString& text)
    {
        QComboBox* box = W->Combo[std::size_t(combo)];
        const int index = box->findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        box->setCurrentIndex(index);
        W->Combo_Click(combo);
    }
    void Activate()
    {
        QApplication::setActiveWindow(W.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(W.get()));
    }

    LocationTable Locations;
    std::int16_t CurLoc = 3;
    std::string DefLoc = "1";
    MessageService Messages;
    std::unique_ptr<FrmLocation> W;
};

const Location Home{"Home", 90.25, 30.5, 6};

// The same place, to the last bits of a hundredth typed or picked.
bool Same(const Location& a, const Location& b)
{
    constexpr double Bits = 1e-9;
    return a.Name == b.Name && std::abs(a.Longitude - b.Longitude) < Bits &&
           std::abs(a.Latitude - b.Latitude) < Bits && a.TimeZone == b.TimeZone &&
           a.TzName == b.TzName;
}

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

} // namespace

TEST(FrmLocation, ShowsALocationInTheBoxesOptionsAndZoneList)
{
    const QString folder = cityfolder::Make("loc-show");
    const struct {
        Location Shown;
        const char *Boxes, *Zone;
    } rows[] = {{{"Greenwich east", -0.5, 51.48, -1}, "000 50 E 51 48 N", "+1"},
                {{"Miami, FL", 80.2, -25.77, 5}, "080 20 W 25 77 S", "-5  (Eastern)"},
                {{"Seattle", 122.34, 47.61, 0}, "122 34 W 47 61 N", " 0  (UTC)"}};
    for (const auto& row : rows) {
        Editor e(folder, row.Shown);
        EXPECT_EQ(e.Boxes(), row.Boxes);
        EXPECT_EQ(e.Zone(), row.Zone);
        EXPECT_EQ(e.Text(4).toStdString(), row.Shown.Name);
        EXPECT_EQ(e.Text(5), "Alexandria, LA"); // the default location
        e.W->CloseLocation_Click();
        EXPECT_TRUE(Same(e.Locations[3], row.Shown)) << row.Boxes;
    }
    // "Make Default" names the location with the name typed.
    Editor e(folder, Home);
    e.W->Text[4]->setText("Camp Lake");
    e.W->CmdDefault_Click();
    EXPECT_EQ(e.DefLoc, "3");
    EXPECT_EQ(e.Locations[3].Name, "Camp Lake");
    EXPECT_EQ(e.Text(5), "Camp Lake");
}

// A state lists its cities in order (plain SQL asked of the file); a city fills every field,
// names with a quote too; a city deleted meanwhile is reported and changes nothing.
TEST(FrmLocation, PickingAStateAndACityFillsEveryField)
{
    const QString folder = cityfolder::Make("loc-pick");
    Editor e(folder, Home);
    const QStringList states = cityfolder::Column(folder, "SELECT DISTINCT State FROM Table1");
    ASSERT_EQ(e.W->Combo[0]->count(), states.size());
    e.Pick(0, "Australia");
    const QStringList cities = cityfolder::Column(
        folder, "SELECT City FROM Table1 WHERE State = 'Australia' ORDER BY lower(City)");
    ASSERT_EQ(e.W->Combo[1]->count(), cities.size());
    for (int i = 0; i < cities.size(); ++i)
        EXPECT_EQ(e.W->Combo[1]->itemText(i), cities[i]);
    e.Pick(1, "Sydney");
    EXPECT_EQ(e.Boxes(), "151 21 E 33 87 S");
    EXPECT_EQ(e.Zone(), "+10");
    EXPECT_EQ(e.W->TzCombo->currentText(), "Australia/Sydney"); // the city's own zone
    EXPECT_TRUE(Same(e.Locations[3], Home));                    // nothing stored before "&Done"
    e.W->CloseLocation_Click();
    EXPECT_TRUE(Same(e.Locations[3],
                     (Location{"Sydney, Australia", -151.21, -33.87, -10, "Australia/Sydney"})));

    Editor quote(folder, Home);
    quote.Pick(0, "ID");
    quote.Pick(1, "Coeur d'Alene");
    EXPECT_EQ(quote.Boxes().left(6) + quote.Zone() + quote.Text(4),
              "116 78-8  (Pacific)Coeur d'Alene, ID");

    Editor gone(folder, Home);
    gone.Pick(0, "TX");
    ASSERT_TRUE(
        cityfolder::Exec(folder, "DELETE FROM Table1 WHERE City = 'Austin' AND State = 'TX'"));
    gone.Pick(1, "Austin");
    ASSERT_EQ(gone.Messages.Shown().size(), 1u);
    EXPECT_EQ(gone.Messages.Shown()[0].Text, "Austin, TX is no longer in the city list.");
    EXPECT_EQ(gone.Text(0) + gone.Text(4), "090Home");
    gone.W->reject(); // closed without "&Done"
    EXPECT_TRUE(Same(gone.Locations[3], Home));
}

// Typed into a box, as an angler does, then "&Done": the place and name as typed, or the
// editor's message, the editor still open and the location as it was.
TEST(FrmLocation, TypedDegreesAndNamesAreStoredOrRefusedWithTheEditorsMessage)
{
    const QString folder = cityfolder::Make("loc-typed");
    const auto rows = testenv::DataRows(QUILLMERE_TYPED_LOCATION);
    ASSERT_EQ(rows.size(), 11u);
    for (const QStringList& row : rows) {
        const std::string where = row.mid(0, 2).join(" typed ").left(30).toStdString();
        const bool stored = row.size() == 5;
        Editor e(folder, Home);
        e.Activate();
        QTest::mouseClick(e.W->Text[std::size_t(row[0].toInt())], Qt::LeftButton);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(QApplication::focusWidget(), row[1]);
        QTest::mouseClick(e.W->CloseLocation, Qt::LeftButton);
        EXPECT_EQ(e.Messages.Shown().empty() ? QString() : e.Messages.Shown()[0].Text,
                  stored ? QString() : row[2])
            << where;
        EXPECT_EQ(e.W->isVisible(), !stored) << where; // open to correct the entry
        const Location expected =
            stored ? Location{row[2].toStdString(), row[3].toDouble(), row[4].toDouble(), 6} : Home;
        EXPECT_TRUE(Same(e.Locations[3], expected)) << where;
    }
}

// Without a city list the place is edited by hand: the upper arrow of a degree bar and the Up
// key raise the number in its box, the lower arrow and Down lower it; the zone list sets the
// zone. An empty city file is said to be unreadable.
TEST(FrmLocation, WithoutACityListTheArrowsAndZoneListEditThePlace)
{
    Editor e(cityfolder::Make("loc-missing", false), {"Cairns, QLD", -145.77, -16.92, -10});
    EXPECT_EQ(e.W->Combo[0]->count(), 0);
    EXPECT_TRUE(e.W->CityNote->text().contains("is missing; type the place by hand"));
    QScrollBar* bar = e.W->VsbDegLon;
    const QPoint upper(bar->width() / 2, 2), lower(bar->width() / 2, bar->height() - 3);
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, upper); }, "146"},
        {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, upper); }, "147"},
        {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, lower); }, "146"},
        {[&] { QTest::keyClick(bar, Qt::Key_Up); }, "147"},
        {[&] { QTest::keyClick(bar, Qt::Key_Down); }, "146"}};
    for (const auto& [act, shown] : steps) {
        act();
        EXPECT_EQ(e.Text(0), shown);
    }
    e.W->List1->setCurrentRow(12 + 7);
    e.W->CloseLocation->click();
    EXPECT_DOUBLE_EQ(e.Locations[3].Longitude, -146.77); // still east
    EXPECT_EQ(e.Locations[3].TimeZone, 7);

    const QString emptyFolder = cityfolder::Make("loc-emptyfile", false);
    testenv::WriteFile(emptyFolder + "/Encdb.MDB");
    EXPECT_TRUE(Editor(emptyFolder, Home).W->CityNote->text().contains("cannot be read"));
}

// A zone the computer does not know is said when the box is left and again on "&Done", which
// keeps the editor open; a known zone is stored.
TEST(FrmLocation, AnUnknownZoneIsSaidWhenTypedAndLeft)
{
    Editor e(cityfolder::Make("loc-zone"), Home);
    e.Activate();
    const auto typeZone = [&e](const QString& keys) {
        e.W->TzCombo->setFocus();
        e.W->TzCombo->lineEdit()->selectAll();
        QTest::keyClick(e.W->TzCombo->lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(e.W->TzCombo->lineEdit(), keys);
        e.W->Text[4]->setFocus(); // the box is left
    };
    typeZone("Mars/Olympus");
    ASSERT_EQ(e.Messages.Shown().size(), 1u);
    EXPECT_EQ(e.Messages.Shown()[0].Text,
              "\"Mars/Olympus\" is not a time zone this computer knows: pick one from the list "
              "(Asia/Kolkata, Europe/Oslo) or leave the box empty for the whole-hour zone only.");
    e.W->CloseLocation_Click();
    EXPECT_EQ(e.Messages.Shown().size(), 2u);
    EXPECT_TRUE(e.W->isVisible());
    typeZone("Asia/Kolkata");
    e.W->CloseLocation_Click();
    EXPECT_EQ(e.Messages.Shown().size(), 2u);
    EXPECT_FALSE(e.W->isVisible());
    EXPECT_EQ(e.Locations[3].TzName, "Asia/Kolkata");
}

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
