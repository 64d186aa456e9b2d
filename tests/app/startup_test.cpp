#include "app/startup.h"
#include "platform/programfolder.h"
#include "platform/singleinstance.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>

namespace {
// A computer on which Quillmere has never run.
void NeverStarted()
{
    SettingsStore().DeleteAll();
    SettingsStore(QStringLiteral("Install")).DeleteAll();
}

StartOutcome Start(AppState& app, const QStringList& args = {})
{
    app.Messages.Script({});
    SingleInstance instance(QStringLiteral("startup-test"));
    return StartUp(app, args, instance);
}
} // namespace

TEST(StartUp, FirstStartWritesInitialValuesAndMakesTheDefaultLocationCurrent)
{
    NeverStarted();
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    AppState app;
    ASSERT_EQ(Start(app), StartOutcome::Run);
    EXPECT_EQ(app.Config.Locations[8].Name, "Pittsburgh, PA");
    EXPECT_EQ(SettingsStore().Read("Usr5Long", ""), "84.39");
    EXPECT_EQ(app.Config.CurLoc, 1);
    EXPECT_DOUBLE_EQ(app.Config.SelectedJD, 2460379.5); // 2024-03-10 at 0h
    EXPECT_TRUE(app.Messages.Shown().empty());
    EXPECT_TRUE(QFile::exists(ProgramFolder::File("Quillmere.html"))); // created and seeded
    qunsetenv("QUILLMERE_NOW");
}

// A create that a crash interrupted leaves only forecasts under a temporary name: the next
// start removes it.
TEST(StartUp, RemovesWhatAnInterruptedCreateLeft)
{
    NeverStarted();
    const QString leftover = ProgramFolder::File("2031.mdb.creating");
    QFile file(leftover);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("half a year of forecasts");
    file.close();
    AppState app;
    ASSERT_EQ(Start(app), StartOutcome::Run);
    EXPECT_FALSE(QFile::exists(leftover));
}

TEST(StartUp, AnyArgumentResetsToTheDefaultsTable)
{
    NeverStarted();
    AppState first;
    ASSERT_EQ(Start(first), StartOutcome::Run);
    SettingsStore().Write("DefLoc", "4");
    SettingsStore().Write("TimeFormats", "0");
    AppState reset;
    testing::internal::CaptureStderr();
    ASSERT_EQ(Start(reset, {"--version"}), StartOutcome::Run);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Stored settings reset to their defaults.\n");
    EXPECT_EQ(reset.Config.CurLoc, 1);
    EXPECT_EQ(reset.Config.TimeFormats, 1);
    EXPECT_EQ(reset.Config.FormLeft, 300);
    EXPECT_EQ(reset.Config.Locations[8].Name, "Pittsburg, PA"); // not a first start
    EXPECT_DOUBLE_EQ(reset.Config.Locations[5].Longitude, 84.79);
}

TEST(StartUp, SecondCopyIsRefusedWithoutTouchingTheSettings)
{
    NeverStarted();
    SingleInstance running(QStringLiteral("startup-test"));
    ASSERT_TRUE(running.Acquire());
    AppState app;
    EXPECT_EQ(Start(app), StartOutcome::AlreadyRunning);
    ASSERT_EQ(app.Messages.Shown().size(), 1u);
    EXPECT_EQ(app.Messages.Shown()[0].Text, "Program Already Running!");
    EXPECT_EQ(app.Messages.Shown()[0].Title, "Error Loading");
    EXPECT_EQ(app.Messages.Shown()[0].Buttons, MsgButtons::OK);
    EXPECT_FALSE(SettingsStore().Contains("Usr1Long"));
}

TEST(StartUp, BadStoredValueEndsTheStartWithAMessageNamingTheKey)
{
    NeverStarted();
    AppState first;
    ASSERT_EQ(Start(first), StartOutcome::Run);
    SettingsStore().Write("MoonColor", "white");
    AppState app;
    EXPECT_EQ(Start(app), StartOutcome::BadSetting);
    ASSERT_EQ(app.Messages.Shown().size(), 1u);
    EXPECT_TRUE(app.Messages.Shown()[0].Text.contains("\"MoonColor\""));
    EXPECT_TRUE(app.Messages.Shown()[0].Text.contains("any argument"));
}

TEST(FrmCalendar, OpensAtTheStoredPlaceAndSavesOnClose)
{
    NeverStarted();
    AppState app;
    ASSERT_EQ(Start(app, {"x"}), StartOutcome::Run);
    app.Config.Locations[2].Longitude = 80.2;
    {
        FrmCalendar w(app);
        w.show();
        EXPECT_EQ(w.windowTitle(), "Quillmere");
        EXPECT_EQ(w.pos(), QPoint(20, 20)); // 300 twips
        EXPECT_EQ(w.height(), 426);         // 6390 twips
        EXPECT_EQ(w.mnuexit->text(), "E&xit");
        w.move(40, 60);
        w.mnuexit->trigger();
    }
    SettingsStore store;
    EXPECT_EQ(store.Read("FormLeft", ""), "600");
    EXPECT_EQ(store.Read("FormTop", ""), "900");
    EXPECT_EQ(store.Read("Usr2Long", ""), "80.20");
    EXPECT_EQ(store.Read("Usr1TZ", ""), " 6");
}

TEST(FrmCalendar, ClosingMaximizedStoresTheTopLeftCorner)
{
    NeverStarted();
    AppState app;
    ASSERT_EQ(Start(app, {"x"}), StartOutcome::Run);
    {
        FrmCalendar w(app);
        w.showMaximized();
        w.close();
    }
    EXPECT_EQ(SettingsStore().Read("FormLeft", ""), "0");
    EXPECT_EQ(SettingsStore().Read("FormTop", ""), "0");
}

// Settings that cannot be saved are reported with the file's name; No keeps the window open,
// Yes closes it without saving.
TEST(FrmCalendar, ClosingSaysWhenTheSettingsCannotBeSaved)
{
    NeverStarted();
    AppState app;
    ASSERT_EQ(Start(app, {"x"}), StartOutcome::Run);
    const QString path = app.Store.FilePath();
    QFile::remove(path);
    ASSERT_TRUE(QDir().mkpath(path)); // a folder where the file should be: not writable
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
        EXPECT_EQ(app.Messages.Shown().size(), 2u);
        EXPECT_FALSE(w.isVisible());
    }
    QDir(path).removeRecursively();
}
