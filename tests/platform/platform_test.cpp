// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock.h"
#include "platform/programfolder.h"
#include "platform/singleinstance.h"
#include "platform/systemlocale.h"
#include "support/testenv.h"

#include <QDir>

#include <gtest/gtest.h>

#include <tuple>

// Only a short date that begins with "31" puts the day first; a date that is not numeric
// (the C locale's) keeps the program's month first and slash.
TEST(DateOrder, DayFirstOnlyWhenTheShortDateBeginsWith31)
{
    for (const auto& [text, monthFirst, separator] : {std::tuple{"31.12.97", false, '.'},
                                                      {"12/31/1997", true, '/'},
                                                      {"97-12-31", true, '-'},
                                                      {"31 Dec 1997", true, '/'}}) {
        const DateOrder order = DateOrderFromShortDate(text);
        EXPECT_EQ(order.MonthFirstDates, monthFirst) << text;
        EXPECT_EQ(order.DateSeparator, QChar(separator)) << text;
    }
}

TEST(SingleInstance, SecondCopyIsRefusedUntilTheFirstEnds)
{
    auto first = std::make_unique<SingleInstance>(QStringLiteral("lock-test"));
    ASSERT_TRUE(first->Acquire());
    SingleInstance second(QStringLiteral("lock-test"));
    EXPECT_FALSE(second.Acquire());
    first.reset();
    EXPECT_TRUE(SingleInstance(QStringLiteral("lock-test")).Acquire());
}

TEST(Clock, FixedByEnvironment)
{
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    EXPECT_EQ(Clock::Now(), QDateTime(QDate(2024, 3, 10), QTime(7, 30)));
    qunsetenv("QUILLMERE_NOW");
    EXPECT_LE(std::abs(Clock::Now().secsTo(QDateTime::currentDateTime())), 2);
}

TEST(ProgramFolder, CreatedAndSeededWithoutOverwritingTheUsersFiles)
{
    const QString home = testenv::FreshDir("folder-test") + "/Quillmere";
    qputenv("QUILLMERE_HOME", home.toLocal8Bit());
    EXPECT_EQ(ProgramFolder::Path(), home);
    EXPECT_TRUE(QDir(home).exists());
    EXPECT_EQ(ProgramFolder::File("2004.mdb"), home + "/2004.mdb");
}
