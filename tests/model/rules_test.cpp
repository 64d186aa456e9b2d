// SPDX-License-Identifier: GPL-3.0-or-later
// The location editor's digit texts, degree splitting, time-zone list and second-word
// capitalisation, and the choices made when a source city becomes a row of Encdb.MDB.
#include "model/cityrows.h"
#include "model/locationrules.h"

#include <gtest/gtest.h>

#include <tuple>

// 80.2 - 80 is 0.2000000000000028; 0.996 rounds up into the next degree.
TEST(LocationRules, BoxTextsAndDegreeParts)
{
    EXPECT_EQ(Pad(0) + Pad(80) + Pad(122) + PadFrac(5) + PadFrac(34), "0000801220534");
    for (const auto& [degrees, whole, hundredths] :
         {std::tuple{-0.5, 0, 50}, {80.2, 80, 20}, {122.34, 122, 34}, {0.996, 1, 0}})
        EXPECT_EQ(std::pair(SplitDegrees(degrees).Whole, SplitDegrees(degrees).Hundredths),
                  std::pair(whole, hundredths))
            << degrees;
    EXPECT_DOUBLE_EQ(JoinDegrees(0, 50, true), -0.5);
    EXPECT_DOUBLE_EQ(JoinDegrees(80, 20, false), 80.2);
}

TEST(LocationRules, TimeZoneListShowsOffsetAndCarriesItsNegation)
{
    const auto& list = TimeZoneEntries();
    ASSERT_EQ(list.size(), 25u);
    EXPECT_EQ(list.front().Text, "+12");
    EXPECT_EQ(list.front().Value, -12);
    for (const auto& [zone, text] : {std::pair{-1, "+1"},
                                     {0, " 0  (UTC)"},
                                     {3, "-3"},
                                     {5, "-5  (Eastern)"},
                                     {11, "-11  (Midway Is.)"}})
        EXPECT_EQ(list[std::size_t(TimeZoneListPosition(zone))].Text, text);
    EXPECT_EQ(list.back().Text, "-12");
    for (int zone = -12; zone <= 12; ++zone)
        EXPECT_EQ(list[std::size_t(TimeZoneListPosition(zone))].Value, zone);
}

// Names stored by hand in the settings file: cut to what the menus take, whole characters.
TEST(LocationRules, StoredNamesAreBoundedForTheMenus)
{
    const std::string x79(79, 'x');
    const struct {
        std::string Stored;
        std::string Shown;
    } cases[] = {
        {"Alexandria, LA", "Alexandria, LA"},
        {std::string(100000, 'x'), std::string(80, 'x')},
        {x79 + "y", x79 + "y"},
        {x79 + "\u00e9\u00e9", x79 + "\u00e9"}, // two bytes a character
        {x79 + " yz", x79},                     // no blank left at the cut's end
        {"", "Camp"},
        {"   ", "Camp"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BoundedLocationName(c.Stored, "Camp"), c.Shown) << c.Stored.substr(0, 90);
}

// The built city list's known rows (db/encdb_test) show the usual cases; these are the edges:
// the eastern and southern letters, a state's postal code from its written forms, zones beyond
// 12 hours and unknown zones without a row, a zone of minutes to its nearest whole hour.
TEST(CityRows, EdgesOfStatesAndZones)
{
    const auto sydney = CityRowFrom(
        {"Sydney", "New South Wales", "Australia", "AU", -33.868, 151.207, 4600000, 10 * 3600, ""});
    ASSERT_TRUE(sydney);
    EXPECT_EQ(std::tuple(sydney->State, sydney->LongChar, sydney->LatChar, sydney->Timezone),
              std::tuple("Australia", "E", "S", -10));
    EXPECT_DOUBLE_EQ(sydney->LatInDegrees, 33.87);
    for (const auto& [written, code] :
         {std::pair{"Washington, D.C.", "DC"}, {"State of Maine", "ME"}, {"Bavaria", ""}})
        EXPECT_EQ(UsPostalCode(written), code) << written;
    EXPECT_FALSE(
        CityRowFrom({"Apia", "Tuamasaga", "Samoa", "WS", -13.8, -171.8, 1, 13 * 3600, ""}));
    EXPECT_FALSE(CityRowFrom({"Nowhere", "", "X", "XX", 0, 0, 1, std::nullopt, ""}));
    const auto adelaide = CityRowFrom(
        {"Adelaide", "SA", "Australia", "AU", -34.9, 138.6, 1, 34200, "Australia/Adelaide"});
    ASSERT_TRUE(adelaide);
    EXPECT_EQ(adelaide->Timezone, -10);
    EXPECT_EQ(adelaide->TzName, "Australia/Adelaide");
}
