// Quillmere: a fishing calendar. Any command-line argument resets the stored settings.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv)
{
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    // The desktop matches the windows to the installed launcher and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.quillmere.Quillmere"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("io.github.quillmere.Quillmere")));
    AppState app;
    SingleInstance instance;
    switch (StartUp(app, qapp.arguments().mid(1), instance)) {
    case StartOutcome::AlreadyRunning:
        return 0;
    case StartOutcome::BadSetting:
        return 1;
    case StartOutcome::Run:
        break;
    }
    FrmCalendar window(app);
    window.show();
    return QApplication::exec();
}
