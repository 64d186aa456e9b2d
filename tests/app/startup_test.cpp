// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"
#include "platform/programfolder.h"
#include "platform/singleinstance.h"
#include "support/testenv.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace {
// A computer on which Quillmere has never run.
void NeverStarted()
{
    SettingsStore().DeleteAll();
    SettingsStore(QStringLiteral("Install")).DeleteAll();
}

// The stored values of the keys, joined by '|'.
QString Stored(const QStringList& keys)
{
    QStringList values;
    for (const QString& key : keys)
        values << SettingsStore().Read(key, "");
    return values.join('|');
}

StartOutcome Start(AppState& app, bool reset = false)
{
    app.Messages.Script({});
    SingleInstance instance(QStringLiteral("startup-test"));
    return StartUp(app, reset, instance);
}
} // namespace

// The first start writes the initial values, makes the default location current, seeds the
// program folder and removes what a create that a crash interrupted left under a temporary
// name.
TEST(StartUp, FirstStartWritesInitialValuesAndMakesTheDefaultLocationCurrent)
{
    NeverStarted();
    const QString leftover = ProgramFolder::File("2031.mdb.creating");
    testenv::WriteFile(leftover, "half a year of forecasts");
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    AppState app;
    ASSERT_EQ(Start(app), StartOutcome::Run);
    qunsetenv("QUILLMERE_NOW");
    EXPECT_EQ(app.Config.Locations[8].Name, "Pittsburgh, PA");
    EXPECT_EQ(Stored({"Usr5Long", "DefLoc"}), "84.39|1");
    EXPECT_EQ(app.Config.CurLoc, 1);
    EXPECT_DOUBLE_EQ(app.Config.SelectedJD, 2460379.5); // 2024-03-10 at 0h
    EXPECT_TRUE(app.Messages.Shown().empty());
    EXPECT_TRUE(QFile::exists(ProgramFolder::File("Quillmere.html")));
    EXPECT_FALSE(QFile::exists(leftover));
}

// A reset (its message and kept copy are the program's test below) brings back the defaults;
// a value that cannot be read ends the start with a message naming its key.
TEST(StartUp, ResetBringsBackTheDefaultsAndABadValueIsNamed)
{
    NeverStarted();
    AppState first;
    ASSERT_EQ(Start(first), StartOutcome::Run);
    SettingsStore().Write("DefLoc", "4");
    SettingsStore().Write("TimeFormats", "0");
    AppState reset;
    ASSERT_EQ(Start(reset, true), StartOutcome::Run);
    EXPECT_EQ(std::tie(reset.Config.CurLoc, reset.Config.TimeFormats, reset.Config.FormLeft),
              std::tuple(1, 1, 300));

    SettingsStore().Write("MoonColor", "white");
    AppState bad;
    EXPECT_EQ(Start(bad), StartOutcome::BadSetting);
    ASSERT_EQ(bad.Messages.Shown().size(), 1u);
    EXPECT_TRUE(bad.Messages.Shown()[0].Text.contains("\"MoonColor\""));
    EXPECT_TRUE(bad.Messages.Shown()[0].Text.contains("--reset"));
}

TEST(StartUp, SecondCopyIsRefusedWithoutTouchingTheSettings)
{
    NeverStarted();
    SingleInstance running(QStringLiteral("startup-test"));
    ASSERT_TRUE(running.Acquire());
    AppState app;
    EXPECT_EQ(Start(app), StartOutcome::AlreadyRunning);
    ASSERT_EQ(app.Messages.Shown().size(), 1u);
    EXPECT_EQ(app.Messages.Shown()[0].Title + ": " + app.Messages.Shown()[0].Text,
              "Error Loading: Program Already Running!");
    EXPECT_EQ(app.Messages.Shown()[0].Buttons, MsgButtons::OK);
    EXPECT_FALSE(SettingsStore().Contains("Usr1Long"));
}

// The main window opens where it was and saves its place and the locations on closing.
TEST(FrmCalendar, SavesItsPlaceOnClose)
{
    NeverStarted();
    AppState app;
    ASSERT_EQ(Start(app, true), StartOutcome::Run);
    app.Config.Locations[2].Longitude = 80.2;
    {
        FrmCalendar w(app);
        w.show();
        EXPECT_EQ(w.pos(), QPoint(20, 20)); // 300 twips
        w.move(40, 60);
        w.mnuexit->trigger();
    }
    EXPECT_EQ(Stored({"FormLeft", "FormTop", "Usr2Long", "Usr1TZ"}), "600|900|80.20| 6");
    { // closed maximized: the top left corner
        FrmCalendar w(app);
        w.showMaximized();
        w.close();
    }
    EXPECT_EQ(Stored({"FormLeft", "FormTop"}), "0|0");
}

// The built program started as a terminal or a file manager starts it, with settings of its
// own: --help, --version and what it does not take leave the settings file byte for byte;
// Qt's own options are Qt's; --reset keeps the old file as Quillmere.ini.bak and says so.
TEST(Program, OnlyResetTouchesTheStoredSettings)
{
    const QString root = testenv::FreshDir("program-arguments");
    const QString ini = root + "/config/Quillmere/Quillmere.ini";
    QDir().mkpath(root + "/config/Quillmere");
    QDir().mkpath(root + "/runtime");
    QFile::setPermissions(root + "/runtime",
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const QByteArray stored = "[Settings]\nUsr1Name=Caddo Lake\nUsr1Long=94.05\nDefLoc=1\n";
    testenv::WriteFile(ini, stored);
    const auto start = [&](QProcess& program, const QStringList& args) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_CONFIG_HOME", root + "/config");
        env.insert("XDG_RUNTIME_DIR", root + "/runtime");
        env.insert("QUILLMERE_HOME", root + "/home");
        env.insert("QT_QPA_PLATFORM", "offscreen");
        program.setProcessEnvironment(env);
        program.start(QUILLMERE_PROGRAM, args);
    };
    for (const QStringList& row : testenv::DataRows(QUILLMERE_PROGRAM_ARGUMENTS)) {
        const std::string where = row[0].toStdString();
        QProcess program;
        start(program, QString(row[0]).replace("ROOT", root).split(' ', Qt::SkipEmptyParts));
        ASSERT_TRUE(program.waitForFinished(30000)) << where;
        EXPECT_EQ(program.exitCode(), row[1].toInt()) << where;
        const QString out = program.readAllStandardOutput(), err = program.readAllStandardError();
        EXPECT_EQ(out.left(row[2].size()), row[2]) << where;
        EXPECT_EQ(err.left(row[3].size()), row[3]) << where;
        EXPECT_EQ(err.count('\n'), row[3].isEmpty() ? 0 : 1) << where;
        EXPECT_EQ(testenv::FileBytes(ini), stored) << where;
        EXPECT_FALSE(QFile::exists(ini + ".bak")) << where;
    }

    QProcess reset;
    reset.setReadChannel(QProcess::StandardError);
    start(reset, {"--reset"});
    QByteArray said;
    while (!said.contains('\n') && reset.waitForReadyRead(30000))
        said += reset.readAllStandardError();
    EXPECT_EQ(said, "Stored settings reset to their defaults; the old ones are kept in " +
                        QFile::encodeName(ini) + ".bak.\n");
    EXPECT_EQ(testenv::FileBytes(ini + ".bak"), stored);
    EXPECT_FALSE(testenv::FileBytes(ini).contains("Caddo Lake"));
    reset.kill();
    reset.waitForFinished();
}
