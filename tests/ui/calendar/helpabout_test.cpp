// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/programfolder.h"
#include "ui/calendar/frmabout.h"
#include "ui/calendar/helpwindow.h"

#include <QFile>
#include <QLabel>
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

TEST(FrmAbout, LinksOpenThroughTheDesktop)
{
    std::vector<std::pair<QString, QString>> opened;
    FrmAbout about(nullptr, [&](const QString& op, const QString& file) {
        opened.emplace_back(op, file);
        return true;
    });
    EXPECT_TRUE(about.lblCredits->text().contains("GeoNames"));
    emit about.lblWeb->linkActivated("#");
    emit about.lblEmail->linkActivated("#");
    EXPECT_EQ(opened, (decltype(opened){{"open", FrmAbout::WebAddress},
                                        {"open", "Mailto:" + FrmAbout::ContactAddress}}));
}
