// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/programfolder.h"
#include "ui/calendar/helpwindow.h"

#include <QFile>
#include <QTextBrowser>

#include <gtest/gtest.h>

TEST(HelpWindow, ShowsTheShippedHelpFromTheProgramFolder)
{
    const QString file = ProgramFolder::File("Quillmere.html");
    ASSERT_TRUE(QFile::exists(file)) << "the program folder was not seeded with the help";
    HelpWindow help(file);
    EXPECT_TRUE(help.Browser->toPlainText().contains("Major periods"));
    HelpWindow missing(file + ".gone");
    EXPECT_TRUE(missing.Browser->toPlainText().contains("is missing"));
}
