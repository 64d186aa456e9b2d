// SPDX-License-Identifier: GPL-3.0-or-later
// The stored forms of clock and date texts, from a table of texts as typed in the program's
// formats, and shown again with its formats.
#include "db/storedforms.h"
#include "support/testenv.h"

#include <gtest/gtest.h>

TEST(StoredForms, ClockAndDateTextsBecomeSortableValuesOrAreRefused)
{
    for (const QStringList& row : testenv::DataRows(QUILLMERE_TESTDATA "/stored_forms.txt")) {
        const std::string text = row[1].toStdString();
        const auto stored = row[0] == "time"   ? StoredTime(text)
                            : row[0] == "date" ? StoredDate(text)
                                               : StoredDateTime(text);
        EXPECT_EQ(stored.value_or("-"), row[2].toStdString()) << row.join('|').toStdString();
    }
}

TEST(StoredForms, ShownWithTheProgramsFormats)
{
    EXPECT_EQ(FormatStored("19:05:00", "hh:mm AMPM"), "07:05 PM");
    EXPECT_EQ(FormatStored("00:00:00", "h:nn AM/PM"), "12:00 AM");
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
