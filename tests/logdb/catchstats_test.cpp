// SPDX-License-Identifier: GPL-3.0-or-later
// Catch statistics over a hand-built year whose catches were counted by hand.
#include "logdb/catchstats.h"
#include "support/testenv.h"

#include <gtest/gtest.h>

namespace {

CatchDay Day(int month, int day, int rating, int moonAge, std::optional<int> taken,
             std::string peak = {}, std::vector<double> periods = {}, std::string notes = {})
{
    return {2024,   month,           day,
            rating, moonAge,         std::move(periods),
            taken,  std::move(peak), std::move(notes)};
}

// Nine days of January and February 2024 (1 January was a Monday); the comment gives the
// weekday, the phase the moon's age falls in, and the peak time's distance from the nearest
// period.
std::vector<CatchDay> HandBuiltYear()
{
    return {
        Day(1, 6, 4, 25, 5, "7:00 AM", {6.5, 18.9}),        // Sat, Last Quarter, 30 min
        Day(1, 7, 4, 26, 3, "12:00 AM", {23.75, 11.5}),     // Sun, New Moon, 15 min over midnight
        Day(1, 10, 3, 0, 4, "11:00 PM", {0.25, 12.7}),      // Wed, New Moon, 75 min over midnight
        Day(1, 14, 0, 4, {}, {}, {}, "skunked"),            // Sun, First Quarter, notes only
        Day(1, 25, 4, 14, 0, "6:00 PM", {17.0, 5.0, 11.2}), // Thu, Full Moon, 60 min
        Day(2, 1, 1, 21, 2, "3:00 PM", {9.0, 21.4}),        // Thu, Last Quarter, 6 h, no minors
        Day(2, 2, 0, 22, 1, {}, {}, "  "),                  // Fri, Last Quarter, total only
        Day(2, 3, 4, 23, {}, {}, {3.0}, "   "),             // blank notes: not fished
        Day(2, 4, 0, 29, {}, "5:00 AM"),                    // Sun, New Moon, peak without periods
    };
}

} // namespace

// Which days count as fished (a filled total, nought too, a peak time or a note) and each
// group's days, total and rate, the peak time's distance taken to the nearest period over
// midnight too; and the summary line.
TEST(CatchStatistics, GroupsAHandBuiltYearAsCountedByHand)
{
    const CatchStatistics stats = ComputeCatchStatistics(HandBuiltYear());
    std::string expected;
    for (const QString& line :
         QString::fromUtf8(testenv::FileBytes(QUILLMERE_TESTDATA "/catch_statistics.txt"))
             .split('\n'))
        if (!line.isEmpty() && !line.startsWith('#'))
            expected += line.toStdString() + "\n";
    EXPECT_EQ(CatchTableText(stats), expected);
    EXPECT_EQ(CatchSummary(stats),
              "On Best days you took 2.7 fish per day fished, on unrated days 0.3");
}
