// SPDX-License-Identifier: GPL-3.0-or-later
// The stored forms of clock and date texts, from a table of texts as typed in the program's
// formats, and shown again with its formats.
#include "db/storedforms.h"
#include "support/testenv.h"

#include <gtest/gtest.h>

TEST(StoredForms, TextsBecomeSortableValuesOrAreRefusedAndAreShownAgain)
{
    for (const QStringList& row : testenv::DataRows(QUILLMERE_TESTDATA "/stored_forms.txt")) {
        const std::string text = row[1].toStdString();
        const auto stored = row[0] == "time"    ? StoredTime(text)
                            : row[0] == "date"  ? StoredDate(text)
                            : row[0] == "shown" ? FormatStored(text, row[2].toStdString())
                                                : StoredDateTime(text);
        EXPECT_EQ(stored.value_or("-"), row.back().toStdString()) << row.join('|').toStdString();
    }
    // Every clock text of the pick lists comes back as it went in.
    for (int hour = 0; hour < 24; ++hour) {
        const std::string text =
            std::to_string(hour % 12 == 0 ? 12 : hour % 12) + ":00 " + (hour < 12 ? "AM" : "PM");
        EXPECT_EQ(FormatStored(*StoredTime(text), "h:nn AM/PM"), text);
    }
}
