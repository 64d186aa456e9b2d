#include "app/startup.h"

#include "astro/timebase.h"
#include "logdb/logfiles.h"
#include "platform/clock.h"
#include "platform/programfolder.h"
#include "platform/settingsio.h"
#include "platform/singleinstance.h"
#include "platform/systemlocale.h"
#include "ui/common/appstate.h"

#include <cstdio>

namespace {
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

// Any argument at all resets the settings; a one-line note on stderr makes sure that no
// argument (--version, --help) wipes them without a word.
void ResetSettings(SettingsStore& store)
{
    store.DeleteAll();
    if (store.Flush())
        std::fputs("Stored settings reset to their defaults.\n", stderr);
    else
        std::fprintf(stderr, "Stored settings could not be reset: %s is not writable.\n",
                     qUtf8Printable(store.FilePath()));
}

QString BadSettingText(const SettingError& e)
{
    return QStringLiteral("The stored setting \"%1\" holds \"%2\", which is not %3.\n\n"
                          "Start Quillmere once with any argument (for example: quillmere "
                          "--reset) to restore the default settings.")
        .arg(QString::fromStdString(e.Key), QString::fromStdString(e.Text),
             QString::fromStdString(e.Expected));
}
} // namespace

StartOutcome StartUp(AppState& app, const QStringList& arguments, SingleInstance& instance)
{
    Settings& s = app.Config;
    s.DaylightBias = SystemDaylightBias();
    if (!instance.Acquire()) {
        app.Messages.MsgBox(QStringLiteral("Program Already Running!"), MsgButtons::OK,
                            QStringLiteral("Error Loading"));
        return StartOutcome::AlreadyRunning;
    }
    const bool reset = !arguments.isEmpty();
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
