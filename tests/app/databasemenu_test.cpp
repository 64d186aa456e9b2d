// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's "DataBase" entry: the log's "Database Functions" window, modal, for the
// shown year, with the main window out of view until it closes.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/log/frmselectdb.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

TEST(FrmCalendar, DataBaseMenuOpensDatabaseFunctionsModallyForTheShownYear)
{
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    AppState app;
    app.Messages.Script([](const ShownMessage&) { return MsgResult::No; });
    SingleInstance instance(QStringLiteral("databasemenu-test"));
    ASSERT_EQ(StartUp(app, true, instance), StartOutcome::Run);
    FrmCalendar w(app);
    w.show();
    EXPECT_EQ(w.menuBar()->actions().first(), w.RunDataBase);
    EXPECT_EQ(w.RunDataBase->text(), "&DataBase");

    QString title;
    bool mainVisible = true;
    QTimer::singleShot(0, [&] {
        auto* select = qobject_cast<FrmSelectDB*>(QApplication::activeModalWidget());
        ASSERT_NE(select, nullptr);
        title = select->windowTitle();
        mainVisible = w.isVisible();
        select->CmdCreate->click(); // answered No: the window closes, nothing is created
    });
    w.RunDataBase->trigger();
    EXPECT_EQ(title, "Database Functions");
    EXPECT_FALSE(mainVisible);
    EXPECT_TRUE(w.isVisible());
    ASSERT_EQ(app.Messages.Shown().size(), 1u);
    EXPECT_EQ(app.Messages.Shown()[0].Text, "Create DataBase for 2024");
}
