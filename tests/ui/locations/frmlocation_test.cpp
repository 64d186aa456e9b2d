// SPDX-License-Identifier: GPL-3.0-or-later
// The location editor on a copy of the built city database: the boxes, options and zone
// list for a location, picking a state and a city (names with a quote too), "&Done", and
// what happens when the city list is missing, empty or has lost a record.
#include "model/locationrules.h"
#include "support/cityfolder.h"
#include "ui/common/messageservice.h"
#include "ui/locations/frmlocation.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

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
    // The degree and hundredth boxes of longitude, then of latitude.
    QString Boxes() const { return QStringList{Text(0), Text(1), Text(2), Text(3)}.join(' '); }
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

    LocationTable Locations;
    std::int16_t CurLoc = 3;
    std::string DefLoc = "1";
    MessageService Messages;
    std::unique_ptr<FrmLocation> W;
};

} // namespace

TEST(FrmLocation, ShowsALocationInTheBoxesOptionsAndZoneList)
{
    const QString folder = cityfolder::Make("loc-show");
    Editor east(folder, {"Greenwich east", -0.5, 51.48, -1});
    EXPECT_EQ(east.Boxes(), "000 50 51 48");
    EXPECT_TRUE(east.W->SSOption[1]->isChecked()); // E
    EXPECT_TRUE(east.W->SSOption[2]->isChecked()); // N
    EXPECT_EQ(east.Zone(), "+1");
    EXPECT_EQ(east.Text(4), "Greenwich east");
    EXPECT_EQ(east.Text(5), "Alexandria, LA");
    EXPECT_EQ(east.W->Text[0]->toolTip(), " Integer Degrees of Longitude ");
    east.W->CloseLocation_Click();
    EXPECT_DOUBLE_EQ(east.Locations[3].Longitude, -0.5);
    EXPECT_DOUBLE_EQ(east.Locations[3].Latitude, 51.48);
    EXPECT_EQ(east.Locations[3].TimeZone, -1);

    Editor miami(folder, {"Miami, FL", 80.2, -25.77, 5});
    EXPECT_EQ(miami.Boxes(), "080 20 25 77");
    EXPECT_TRUE(miami.W->SSOption[0]->isChecked()); // W
    EXPECT_TRUE(miami.W->SSOption[3]->isChecked()); // S
    EXPECT_EQ(miami.Zone(), "-5  (Eastern)");
    Editor utc(folder, {"Seattle", 122.34, 47.61, 0});
    EXPECT_EQ(utc.Boxes(), "122 34 47 61");
    EXPECT_EQ(utc.Zone(), " 0  (UTC)");
}

TEST(FrmLocation, StateFillsCitiesInOrderAndACityFillsEveryField)
{
    const QString folder = cityfolder::Make("loc-pick");
    Editor e(folder, {"Somewhere", 90.0, 30.0, 6});
    const QStringList states = cityfolder::Column(folder, "SELECT DISTINCT State FROM Table1");
    ASSERT_EQ(e.W->Combo[0]->count(), states.size());
    e.Pick(0, "Australia");
    const QStringList cities = cityfolder::Column(
        folder, "SELECT City FROM Table1 WHERE State = 'Australia' ORDER BY lower(City)");
    QStringList shown;
    for (int i = 0; i < e.W->Combo[1]->count(); ++i)
        shown << e.W->Combo[1]->itemText(i);
    EXPECT_EQ(shown, cities);

    e.Pick(1, "Sydney");
    EXPECT_EQ(e.Boxes(), "151 21 33 87");
    EXPECT_TRUE(e.W->SSOption[1]->isChecked()); // E
    EXPECT_TRUE(e.W->SSOption[3]->isChecked()); // S
    EXPECT_EQ(e.Zone(), "+10");
    EXPECT_EQ(e.W->TzCombo->currentText(), "Australia/Sydney"); // the city's own zone
    EXPECT_EQ(e.Text(4), "Sydney, Australia");
    EXPECT_EQ(e.Locations[3].Name, "Somewhere"); // nothing stored before "&Done"
    EXPECT_EQ(e.Locations[3].TimeZone, 6);
    e.W->CloseLocation_Click();
    EXPECT_DOUBLE_EQ(e.Locations[3].Longitude, -151.21);
    EXPECT_DOUBLE_EQ(e.Locations[3].Latitude, -33.87);
    EXPECT_EQ(e.Locations[3].TimeZone, -10);
    EXPECT_EQ(e.Locations[3].Name, "Sydney, Australia");
    EXPECT_EQ(e.Locations[3].TzName, "Australia/Sydney");
}

TEST(FrmLocation, NamesWithAQuoteArePickedLikeAnyOther)
{
    const QString folder = cityfolder::Make("loc-quote");
    Editor e(folder, {"Somewhere", 90.0, 30.0, 6});
    e.Pick(0, "ID");
    e.Pick(1, "Coeur d'Alene");
    EXPECT_EQ(e.Boxes().left(6), "116 78");
    EXPECT_EQ(e.Zone(), "-8  (Pacific)");
    EXPECT_EQ(e.Text(4), "Coeur d'Alene, ID");
    EXPECT_TRUE(e.Messages.Shown().empty());
}

TEST(FrmLocation, MakeDefaultNamesTheDefault)
{
    Editor e(cityfolder::Make("loc-default"), {"Old", 90.0, 30.0, 6});
    e.W->Text[4]->setText("Camp Lake");
    e.W->CmdDefault_Click();
    EXPECT_EQ(e.DefLoc, "3");
    EXPECT_EQ(e.Locations[3].Name, "Camp Lake");
    EXPECT_EQ(e.Text(5), "Camp Lake");
}

TEST(FrmLocation, MissingOrEmptyCityListLeavesHandEditing)
{
    Editor missing(cityfolder::Make("loc-missing", false), {"Home", 90.0, 30.0, 6});
    EXPECT_EQ(missing.W->Combo[0]->count(), 0);
    EXPECT_TRUE(missing.W->CityNote->text().contains("is missing; type the place by hand"));
    missing.W->VsbDegLon->setValue(91);
    missing.W->List1->setCurrentRow(12 + 7);
    missing.W->CloseLocation_Click();
    EXPECT_DOUBLE_EQ(missing.Locations[3].Longitude, 91.0);
    EXPECT_EQ(missing.Locations[3].TimeZone, 7);

    const QString emptyFolder = cityfolder::Make("loc-emptyfile", false);
    QFile(emptyFolder + "/Encdb.MDB").open(QIODevice::WriteOnly);
    Editor empty(emptyFolder, {"Home", 90.0, 30.0, 6});
    EXPECT_EQ(empty.W->Combo[0]->count(), 0);
    EXPECT_TRUE(empty.W->CityNote->text().contains("cannot be read"));
}

TEST(FrmLocation, ACityDeletedMeanwhileIsReportedAndChangesNothing)
{
    const QString folder = cityfolder::Make("loc-deleted");
    Editor e(folder, {"Home", 90.0, 30.0, 6});
    e.Pick(0, "TX");
    ASSERT_TRUE(
        cityfolder::Exec(folder, "DELETE FROM Table1 WHERE City = 'Austin' AND State = 'TX'"));
    e.Pick(1, "Austin");
    ASSERT_EQ(e.Messages.Shown().size(), 1u);
    EXPECT_EQ(e.Messages.Shown()[0].Text, "Austin, TX is no longer in the city list.");
    EXPECT_EQ(e.Text(0), "090");
    EXPECT_EQ(e.Text(4), "Home");
    e.W->reject(); // closed without "&Done"
    EXPECT_EQ(e.Locations[3].Name, "Home");
}

// Typed into a box, as an angler does, then "&Done": the place and name as typed, or the
// editor's message, the editor still open and the location as it was.
TEST(FrmLocation, TypedDegreesAndNamesAreStoredOrRefusedWithTheEditorsMessage)
{
    const QString folder = cityfolder::Make("loc-typed");
    const Location home{"Home", 90.25, 30.5, 6};
    const QString tooLong(MaxLocationNameLength + 1, 'x');
    const struct {
        int Box;
        QString Keys;
        Location Stored; // when the message is empty
        QString Message;
    } cases[] = {
        {0, "122", {"Home", 122.25, 30.5, 6}, {}},
        {1, "5", {"Home", 90.05, 30.5, 6}, {}},
        {2, "45", {"Home", 90.25, 45.5, 6}, {}},
        {4, "Lake Bistineau", {"Lake Bistineau", 90.25, 30.5, 6}, {}},
        {4,
         QString(MaxLocationNameLength, 'x'),
         {tooLong.chopped(1).toStdString(), 90.25, 30.5, 6},
         {}},
        {0, "200", home, "Longitude degrees: \"200\" is not a whole number from 0 to 180."},
        {3, "abc", home, "Latitude hundredths: \"abc\" is not a whole number from 0 to 99."},
        {0, "180", home, "A longitude runs to 180 degrees and a latitude to 90; 180.25 is beyond."},
        {2, "90", home, "A longitude runs to 180 degrees and a latitude to 90; 90.50 is beyond."},
        {4, "", home, "The location needs a name: type one, or pick a state and a city."},
        {4, tooLong, home, "A location's name holds at most 80 characters; this one has 81."},
    };
    for (const auto& c : cases) {
        const std::string where = std::to_string(c.Box) + " typed " + c.Keys.left(20).toStdString();
        Editor e(folder, home);
        QApplication::setActiveWindow(e.W.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(e.W.get()));
        QTest::mouseClick(e.W->Text[std::size_t(c.Box)], Qt::LeftButton);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(QApplication::focusWidget(), c.Keys);
        QTest::mouseClick(e.W->CloseLocation, Qt::LeftButton);

        const Location& stored = e.Locations[3];
        if (c.Message.isEmpty()) {
            EXPECT_TRUE(e.Messages.Shown().empty()) << where;
            EXPECT_FALSE(e.W->isVisible()) << where;
        } else {
            ASSERT_FALSE(e.Messages.Shown().empty()) << where;
            EXPECT_EQ(e.Messages.Shown()[0].Text, c.Message) << where;
            EXPECT_TRUE(e.W->isVisible()) << where; // open to correct the entry
        }
        EXPECT_EQ(stored.Name, c.Stored.Name) << where;
        EXPECT_DOUBLE_EQ(stored.Longitude, c.Stored.Longitude) << where;
        EXPECT_DOUBLE_EQ(stored.Latitude, c.Stored.Latitude) << where;
    }
}

// The upper arrow of a degree bar and the Up key raise the number in its box, the lower arrow
// and Down lower it; typing 147 in the box gives 147 at once.
TEST(FrmLocation, UpperArrowRaisesTheDegrees)
{
    Editor e(cityfolder::Make("loc-arrows"), {"Cairns, QLD", -145.77, -16.92, -10});
    QScrollBar* bar = e.W->VsbDegLon;
    const QPoint upper(bar->width() / 2, 2), lower(bar->width() / 2, bar->height() - 3);
    const struct {
        std::function<void()> Act;
        const char* Shown;
    } steps[] = {{[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, upper); }, "146"},
                 {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, upper); }, "147"},
                 {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, lower); }, "146"},
                 {[&] { QTest::keyClick(bar, Qt::Key_Up); }, "147"},
                 {[&] { QTest::keyClick(bar, Qt::Key_Down); }, "146"}};
    for (const auto& step : steps) {
        step.Act();
        EXPECT_EQ(e.Text(0), step.Shown);
    }
    EXPECT_TRUE(e.W->SSOption[1]->isChecked()); // still east
    e.W->CloseLocation->click();
    EXPECT_DOUBLE_EQ(e.Locations[3].Longitude, -146.77);
}

// A zone the computer does not know is said when the box is left and again on "&Done", which
// keeps the editor open; a known zone or none is stored.
TEST(FrmLocation, AnUnknownZoneIsSaidWhenTypedAndLeft)
{
    const QString folder = cityfolder::Make("loc-zone");
    const Location home{"Home", 90.25, 30.5, 6};
    Editor e(folder, home);
    QApplication::setActiveWindow(e.W.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(e.W.get()));
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
    EXPECT_EQ(e.Locations[3].TzName, "");
    typeZone("Asia/Kolkata");
    e.W->CloseLocation_Click();
    EXPECT_EQ(e.Messages.Shown().size(), 2u);
    EXPECT_FALSE(e.W->isVisible());
    EXPECT_EQ(e.Locations[3].TzName, "Asia/Kolkata");
}

TEST(FrmLocation, Screenshot)
{
    Editor e(cityfolder::Make("loc-shot"), {"Alexandria, LA", 92.42, 31.25, 6});
    e.W->setWindowTitle("Location #3 ");
    e.Pick(0, "LA");
    e.Pick(1, "Alexandria");
    EXPECT_TRUE(e.W->grab().save(QStringLiteral(QUILLMERE_SCREENSHOTS "/frmlocation.png")));
    // A zone of minutes and a southern one, each with its own clock's zone.
    for (const auto& [state, city, file] :
         {std::tuple{"India", "Kolkata", "frmlocation_kolkata.png"},
          {"Australia", "Sydney", "frmlocation_sydney.png"}}) {
        e.Pick(0, state);
        e.Pick(1, city);
        EXPECT_TRUE(e.W->grab().save(QStringLiteral(QUILLMERE_SCREENSHOTS "/") + file));
    }
    EXPECT_EQ(e.W->TzCombo->currentText(), "Australia/Sydney");
}
