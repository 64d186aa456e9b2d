// SPDX-License-Identifier: GPL-3.0-or-later
// Quillmere: a fishing calendar. It takes --reset, --help and --version; anything else is
// refused with a usage line, and touches nothing.
#include "app/startup.h"
#include "platform/reminderservice.h"
#include "platform/singleinstance.h"
#include "platform/translations.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/common/remindertray.h"

#include <QApplication>
#include <QIcon>

#include <iostream>

int main(int argc, char** argv)
{
    using Kind = StartRequest::Kind;
    // --help and --version are answered before a window system is needed.
    QStringList given;
    for (int i = 1; i < argc; ++i)
        given << QString::fromLocal8Bit(argv[i]);
    const StartRequest early = ReadStartArguments(given);
    if (early.What == Kind::Help || early.What == Kind::Version)
        return AnswerStartRequest(early, std::cout, std::cerr);
    QApplication qapp(argc, argv); // takes Qt's own options out of the list
    const StartRequest request = ReadStartArguments(qapp.arguments().mid(1));
    if (request.What != Kind::Run && request.What != Kind::Reset)
        return AnswerStartRequest(request, std::cout, std::cerr);
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    InstallTranslations(qapp);
    ApplyRequestedPalette();
    // The desktop matches the windows to the installed launcher and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.quillmere.Quillmere"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("io.github.quillmere.Quillmere")));
    AppState app;
    SingleInstance instance;
    switch (StartUp(app, request.What == Kind::Reset, instance)) {
    case StartOutcome::AlreadyRunning:
        return 0;
    case StartOutcome::BadSetting:
        return 1;
    case StartOutcome::Run:
        break;
    }
    FrmCalendar window(app);
    // The reminders go out while the program runs; the tray keeps it running for them when
    // the window is closed, and quits it otherwise.
    Notifier notifier;
    ReminderService reminders(app.Config, notifier);
    reminders.Start();
    ReminderTray tray(window, [&app] { return AnyReminders(app.Config); });
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&window, &FrmCalendar::Closed, &tray, &ReminderTray::WindowClosed);
    QObject::connect(&window, &FrmCalendar::RemindersChanged, &tray, &ReminderTray::Refresh);
    instance.Listen([&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    });
    ReportFirstPaint(window);
    window.show();
    return QApplication::exec();
}
