// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"
#include "platform/programfolder.h"
#include "platform/singleinstance.h"
#include "support/testenv.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/locations/frmlocation.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTimer>

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

// Sunrise at Sydney on 10 March 2024 in its standard time (zone -10), hours, from PyEphem
// (upper limb at -34', no refraction model beyond that).
double EphemSydneySunrise()
{
    QProcess python;
    python.start("/usr/bin/python3",
                 {"-c", "import ephem\n"
                        "o = ephem.Observer(); o.lat = '-33.87'; o.lon = '151.21'\n"
                        "o.pressure = 0; o.horizon = '-0:34'\n"
                        "o.date = ephem.Date('2024/3/10 00:00') - 10 * ephem.hour\n"
                        "t = o.next_rising(ephem.Sun()).datetime()\n"
                        "print((t.hour + t.minute / 60 + t.second / 3600 + 10) % 24)\n"});
    python.waitForFinished(30000);
    return python.readAllStandardOutput().trimmed().toDouble();
}

double ClockHours(const QString& text)
{
    const auto m = QRegularExpression(R"((\d+):(\d+)\s*([AP]M)?)").match(text);
    const int hour = m.captured(1).toInt() % 12 + (m.captured(3) == "PM" ? 12 : 0);
    return hour + m.captured(2).toInt() / 60.0;
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
    QDir().mkdir(root + "/runtime",
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

// The main window's "Edit A Location" menu opens the editor modally with the main window out
// of view until it closes, and comes back showing the location as stored whichever way the
// editor closes.
// Picking Sydney in location 3's editor moves the main window there, its sunrise as PyEphem
// has it; closing the editor without Done stores nothing.
TEST(LocationMenu, EditsReachTheMainWindowOnlyThroughDone)
{
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    AppState app;
    app.Messages.Script([](const ShownMessage&) { return MsgResult::OK; });
    SingleInstance instance(QStringLiteral("locationmenu-test"));
    ASSERT_EQ(StartUp(app, true, instance), StartOutcome::Run);
    FrmCalendar w(app);
    w.show();
    QString title;
    bool mainVisibleMeanwhile = true;
    // Triggers location n's menu item and lets the step work on the editor while it is open.
    const auto edit = [&](int n, const std::function<void(FrmLocation&)>& step) {
        QTimer::singleShot(0, [&] {
            auto* editor = qobject_cast<FrmLocation*>(QApplication::activeModalWidget());
            ASSERT_NE(editor, nullptr);
            title = editor->windowTitle();
            mainVisibleMeanwhile = w.isVisible();
            step(*editor);
        });
        w.Loc[std::size_t(n)]->trigger();
    };
    edit(3, [](FrmLocation& e) {
        for (const auto& [box, text] : {std::pair{0, "Australia"}, {1, "Sydney"}}) {
            e.Combo[std::size_t(box)]->setCurrentIndex(e.Combo[std::size_t(box)]->findText(text));
            e.Combo_Click(box);
        }
        e.CloseLocation->click();
    });
    EXPECT_EQ(title, "Location #3 ");
    EXPECT_FALSE(mainVisibleMeanwhile);
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(app.Config.CurLoc, 3);
    EXPECT_EQ(w.StatusPanels[0]->text(), "Sydney, Australia");
    EXPECT_EQ(w.Here.LocationCaption, "Sydney, Australia  Long=151.21 E Lat=33.87 S "
                                      "TimeZone=-10  Time=STD Hemisphere=Southern ");
    const double reference = EphemSydneySunrise();
    ASSERT_GT(reference, 5.0);
    EXPECT_NEAR(ClockHours(w.Label[14]->text()), reference, 1.0 / 60 + 1e-9)
        << w.Label[14]->text().toStdString();

    edit(4, [](FrmLocation& e) {
        e.Text[4]->setText("Not kept");
        e.VsbDegLon->setValue(10);
        e.reject(); // the window's close box
    });
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(app.Config.CurLoc, 4);
    EXPECT_NE(app.Config.Locations[4].Name, "Not kept");
    EXPECT_TRUE(w.Loc[4]->text().startsWith("# 4 "));
}

// Settings that cannot be saved (a folder stands where the file goes, which stops root too) are
// reported with the file's name; No keeps the window open, Yes closes it without saving.
TEST(FrmCalendar, ClosingSaysWhenTheSettingsCannotBeSaved)
{
    NeverStarted();
    AppState app;
    ASSERT_EQ(Start(app, true), StartOutcome::Run);
    const QString path = app.Store.FilePath();
    QFile::remove(path);
    ASSERT_TRUE(QDir().mkpath(path));
    MsgResult answer = MsgResult::No;
    app.Messages.Script([&answer](const ShownMessage&) { return answer; });
    {
        FrmCalendar w(app);
        w.show();
        w.close();
        ASSERT_EQ(app.Messages.Shown().size(), 1u);
        EXPECT_TRUE(app.Messages.Shown()[0].Text.contains(path));
        EXPECT_TRUE(w.isVisible());
        answer = MsgResult::Yes;
        w.close();
        EXPECT_FALSE(w.isVisible());
    }
    QDir(path).removeRecursively();
}
