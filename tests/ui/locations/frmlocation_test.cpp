// SPDX-License-Identifier: GPL-3.0-or-later
// The location editor on a copy of the built city database: the boxes, options and zone
// list for a location, picking a state and a city (names with a quote too), "&Done", and
// what happens when the city list is missing, empty or has lost a record.
#include "support/cityfolder.h"
#include "support/testenv.h"
#include "ui/common/messageservice.h"
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
