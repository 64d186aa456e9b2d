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
    const QString text = help.Browser->toPlainText();
    EXPECT_TRUE(text.contains("Major periods"));
    EXPECT_TRUE(text.contains("Best"));
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
    EXPECT_EQ(about.Email->text(), "Email");
    EXPECT_TRUE(about.lblVersion->text().contains(QUILLMERE_VERSION));
    EXPECT_TRUE(about.lblCredits->text().contains("GeoNames"));
    emit about.lblWeb->linkActivated("#");
    emit about.lblEmail->linkActivated("#");
    ASSERT_EQ(opened.size(), 2u);
    EXPECT_EQ(opened[0], std::make_pair(QString("open"), FrmAbout::WebAddress));
    EXPECT_EQ(opened[1], std::make_pair(QString("open"), "Mailto:" + FrmAbout::ContactAddress));
}
