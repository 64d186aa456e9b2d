// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"

#include "astro/timebase.h"
#include "logdb/logfiles.h"
#include "platform/clock.h"
#include "platform/programfolder.h"
#include "platform/settingsio.h"
#include "platform/singleinstance.h"
#include "platform/systemlocale.h"
#include "text/version.h"
#include "ui/common/appstate.h"

#include <QApplication>
#include <QEvent>
#include <QLoggingCategory>
#include <QPalette>
#include <QWidget>

#include <cstdio>

namespace {

Q_LOGGING_CATEGORY(StartupLog, "quillmere.startup", QtWarningMsg)

// Watches the window for its first paint, says so, and goes.
class FirstPaintWatch : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            qCInfo(StartupLog) << "first paint";
            watched->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }
};

const char* const UsageLine = "Usage: quillmere [--reset | --help | --version]";

const char* const HelpText =
    R"(Quillmere: a month calendar of solunar fishing forecasts, with a fishing log.

  --reset    start with the default settings; the stored ones are kept as
             Quillmere.ini.bak beside them
  --help     this text
  --version  the program's version

Qt's own options (-style, -platform, ...) work as Qt describes them. The fishing log on the
command line is quillmere-log, the forecasts quillmere-forecast.
)";

// The first start is recorded beside the settings, in a file a reset does not wipe, so that
// after a reset the defaults apply unchanged.
bool FirstStart()
{
    SettingsStore install(QStringLiteral("Install"));
    if (install.Contains(QStringLiteral("Started")))
        return false;
    install.Write(QStringLiteral("Started"), Clock::Now().toString(Qt::ISODate));
    install.Flush();
    return true;
}

// The settings are reset only after the stored ones are kept as a copy; a line on stderr
// says what was done.
void ResetSettings(SettingsStore& store)
{
    QString kept;
    if (const QString failed = store.KeepCopy(kept); !failed.isEmpty()) {
        std::fprintf(stderr, "Stored settings not reset: %s\n", qUtf8Printable(failed));
        return;
    }
    store.DeleteAll();
    if (!store.Flush())
        std::fprintf(stderr, "Stored settings could not be reset: %s is not writable.\n",
                     qUtf8Printable(store.FilePath()));
    else if (kept.isEmpty())
        std::fputs("Stored settings reset to their defaults.\n", stderr);
    else
        std::fprintf(stderr,
                     "Stored settings reset to their defaults; the old ones are kept in %s.\n",
                     qUtf8Printable(kept));
}

QString BadSettingText(const SettingError& e)
{
    return QStringLiteral("The stored setting \"%1\" holds \"%2\", which is not %3.\n\n"
                          "Start Quillmere once with --reset (quillmere --reset) to restore the "
                          "default settings; the present ones are kept as Quillmere.ini.bak.")
        .arg(QString::fromStdString(e.Key), QString::fromStdString(e.Text),
             QString::fromStdString(e.Expected));
}
} // namespace

StartRequest ReadStartArguments(const QStringList& arguments)
{
    using Kind = StartRequest::Kind;
    if (arguments.isEmpty())
        return {};
    const QString& first = arguments.front();
    if (arguments.size() > 1)
        return {Kind::Unknown, arguments.join(QLatin1Char(' '))};
    if (first == QStringLiteral("--reset"))
        return {Kind::Reset, first};
    if (first == QStringLiteral("--help") || first == QStringLiteral("-h"))
        return {Kind::Help, first};
    if (first == QStringLiteral("--version"))
        return {Kind::Version, first};
    return {Kind::Unknown, first};
}

int AnswerStartRequest(const StartRequest& request, std::ostream& out, std::ostream& err)
{
    switch (request.What) {
    case StartRequest::Kind::Help:
        out << UsageLine << "\n\n" << HelpText;
        return 0;
    case StartRequest::Kind::Version:
        out << VersionLine("quillmere");
        return 0;
    default:
        err << "quillmere: '" << request.Argument.toStdString() << "' is not an option; "
            << UsageLine << "\n";
        return 2;
    }
}

StartOutcome StartUp(AppState& app, bool reset, SingleInstance& instance)
{
    Settings& s = app.Config;
    s.DaylightBias = SystemDaylightBias();
    if (!instance.Acquire()) {
        // The running copy comes to the front; only one that cannot be reached is reported.
        if (!instance.AskToRaise())
            app.Messages.MsgBox(QStringLiteral("Program Already Running!"), MsgButtons::OK,
                                QStringLiteral("Error Loading"));
        return StartOutcome::AlreadyRunning;
    }
    if (reset)
        ResetSettings(app.Store);

    const DateOrder order = SystemDateOrder();
    s.MonthFirstDates = order.MonthFirstDates;
    s.DateSeparator = order.DateSeparator.toLatin1();

    const QDate today = Clock::Now().date();
    s.SelectedJD = CivilToJd(today.year(), today.month(), today.day());

    if (FirstStart() && !reset)
        WriteFirstStartValues(app.Store);
    try {
        LoadSettings(s, app.Store);
    } catch (const SettingError& e) {
        app.Messages.MsgBox(BadSettingText(e), MsgButtons::OK, QStringLiteral("Error Loading"),
                            MsgIcon::Critical);
        return StartOutcome::BadSetting;
    }
    s.CurLoc = s.DefaultLocation();
    const QString folder = ProgramFolder::Path();
    if (folder.isEmpty())
        app.Messages.MsgBox(QStringLiteral("The program folder for the fishing log and the help "
                                           "cannot be created. Check that your home folder is "
                                           "writable, or set QUILLMERE_HOME to a folder that is."),
                            MsgButtons::OK, QStringLiteral("Quillmere"), MsgIcon::Exclamation);
    else
        CleanLeftovers(folder); // what a crash of a create or compaction left behind
    return StartOutcome::Run;
}

void ReportFirstPaint(QWidget& window)
{
    if (StartupLog().isInfoEnabled())
        window.installEventFilter(new FirstPaintWatch(&window));
}

void ApplyRequestedPalette()
{
    if (qEnvironmentVariable("QUILLMERE_PALETTE") != QStringLiteral("dark"))
        return;
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QColor window(53, 53, 53), base(42, 42, 42), accent(42, 130, 218);
    QPalette p;
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, Qt::white);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, window.lighter(125));
    p.setColor(QPalette::ToolTipBase, window);
    p.setColor(QPalette::ToolTipText, Qt::white);
    p.setColor(QPalette::Text, Qt::white);
    p.setColor(QPalette::Button, window);
    p.setColor(QPalette::ButtonText, Qt::white);
    p.setColor(QPalette::BrightText, Qt::red);
    p.setColor(QPalette::Link, accent);
    p.setColor(QPalette::Highlight, accent);
    p.setColor(QPalette::HighlightedText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, Qt::gray);
    QApplication::setPalette(p);
}
