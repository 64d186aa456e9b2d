// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/storedforms.h"

#include <gtest/gtest.h>

TEST(StoredForms, ClockAndDateTextsBecomeSortableValues)
{
    EXPECT_EQ(StoredTime("07:05 PM"), "19:05:00");
    EXPECT_EQ(StoredTime("7:05 pm"), "19:05:00");
    EXPECT_EQ(StoredTime("12:00 AM"), "00:00:00");
    EXPECT_EQ(StoredTime("12:30 PM"), "12:30:00");
    EXPECT_EQ(StoredTime("11:59:59 PM"), "23:59:59");
    EXPECT_EQ(StoredTime("6:05 P"), "18:05:00");
    EXPECT_EQ(StoredTime("19:05"), "19:05:00");
    EXPECT_EQ(StoredTime(" 00:00:00 "), "00:00:00");
    EXPECT_EQ(StoredDate("03/10/2024"), "2024-03-10");
    EXPECT_EQ(StoredDate("3/1/2024"), "2024-03-01");
    EXPECT_EQ(StoredDate("2024-02-29"), "2024-02-29");
    EXPECT_EQ(StoredDateTime("03/10/2024 7:05 PM"), "2024-03-10 19:05:00");
    EXPECT_EQ(StoredDateTime("9:00 AM"), "09:00:00");
}

TEST(StoredForms, RejectsTextsThatAreNoDateOrTime)
{
    for (const char* text :
         {"", "24:00", "13:00 PM", "7:60 AM", "7 PM", "7:05 PMX", "07:05' --", "1:2", "abc"})
        EXPECT_FALSE(StoredTime(text)) << text;
    for (const char* text :
         {"02/30/2024", "2023-02-29", "13/01/2024", "03/10/24", "2024-3-1", "03/10/2024 7:05 PM"})
        EXPECT_FALSE(StoredDate(text)) << text;
    EXPECT_FALSE(StoredDateTime("03/10/2024 25:00"));
}

TEST(StoredForms, ShownWithTheProgramsFormats)
{
    EXPECT_EQ(FormatStored("19:05:00", "hh:mm AMPM"), "07:05 PM");
    EXPECT_EQ(FormatStored("00:00:00", "h:nn AM/PM"), "12:00 AM");
    EXPECT_EQ(FormatStored("2024-03-10", "mm/dd/yyyy"), "03/10/2024");
    EXPECT_EQ(FormatStored("2024-03-10", "ddd, mmmm,dd,yyyy"), "Sun, March,10,2024");
    EXPECT_EQ(FormatStored("2024-03-10", "y"), "70");
    EXPECT_EQ(FormatStored("2024-03-10 19:05:00", "mm/dd/yyyy hh:nn:ss"), "03/10/2024 19:05:00");
    EXPECT_FALSE(FormatStored("not a date", "mm/dd/yyyy"));
    // Every clock text of the pick lists comes back as it went in.
    for (int hour = 0; hour < 24; ++hour) {
        const std::string text =
            std::to_string(hour % 12 == 0 ? 12 : hour % 12) + ":00 " + (hour < 12 ? "AM" : "PM");
        EXPECT_EQ(FormatStored(*StoredTime(text), "h:nn AM/PM"), text);
    }
}
