// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's "Edit A Location" menu opens the editor modally with the main window out
// of view until it closes, and comes back showing the location as stored whichever way the
// editor closes.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/locations/frmlocation.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

struct MainWindow {
    MainWindow() : Instance(QStringLiteral("locationmenu-test"))
    {
        qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
        App.Messages.Script([](const ShownMessage&) { return MsgResult::OK; });
        Started = StartUp(App, true, Instance) == StartOutcome::Run;
        W = std::make_unique<FrmCalendar>(App);
        W->show();
    }
    // Triggers location n's menu item and lets the step work on the editor while it is open.
    void Edit(int n, const std::function<void(FrmLocation&)>& step)
    {
        QTimer::singleShot(0, [&] {
            auto* editor = qobject_cast<FrmLocation*>(QApplication::activeModalWidget());
            ASSERT_NE(editor, nullptr);
            Title = editor->windowTitle();
            MainVisibleMeanwhile = W->isVisible();
            step(*editor);
        });
        W->Loc[std::size_t(n)]->trigger();
    }

    AppState App;
    SingleInstance Instance;
    bool Started = false;
    std::unique_ptr<FrmCalendar> W;
    QString Title;
    bool MainVisibleMeanwhile = true;
};

void Pick(QComboBox* box, const QString& text, FrmLocation& editor, int index)
{
    box->setCurrentIndex(box->findText(text));
    editor.Combo_Click(index);
}

// Sunrise at the place on 10 March 2024 in local standard time, hours, from PyEphem (upper
// limb at -34', no refraction model beyond that).
double EphemSunrise(double lonEast, double latNorth, int hoursEast)
{
    const QString script = QString("import ephem\n"
                                   "o = ephem.Observer(); o.lat = '%1'; o.lon = '%2'\n"
                                   "o.pressure = 0; o.horizon = '-0:34'\n"
                                   "o.date = ephem.Date('2024/3/10 00:00') - %3 * ephem.hour\n"
                                   "t = o.next_rising(ephem.Sun()).datetime()\n"
                                   "print((t.hour + t.minute / 60 + t.second / 3600 + %3) % 24)\n")
                               .arg(latNorth)
                               .arg(lonEast)
                               .arg(hoursEast);
    QProcess python;
    python.start("/usr/bin/python3", {"-c", script});
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

// Picking Sydney in location 3's editor moves the main window there, its sunrise as PyEphem
// has it; closing the editor without Done stores nothing.
TEST(LocationMenu, EditsReachTheMainWindowOnlyThroughDone)
{
    MainWindow m;
    ASSERT_TRUE(m.Started);
    m.Edit(3, [](FrmLocation& e) {
        Pick(e.Combo[0], "Australia", e, 0);
        Pick(e.Combo[1], "Sydney", e, 1);
        e.CloseLocation->click();
    });
    EXPECT_EQ(m.Title, "Location #3 ");
    EXPECT_FALSE(m.MainVisibleMeanwhile);
    EXPECT_TRUE(m.W->isVisible());
    EXPECT_EQ(m.App.Config.CurLoc, 3);
    EXPECT_EQ(m.W->StatusPanels[0]->text(), "Sydney, Australia");
    EXPECT_EQ(m.W->Here.LocationCaption, "Sydney, Australia  Long=151.21 E Lat=33.87 S "
                                         "TimeZone=-10  Time=STD Hemisphere=Southern ");
    const double reference = EphemSunrise(151.21, -33.87, 10);
    ASSERT_GT(reference, 5.0);
    EXPECT_NEAR(ClockHours(m.W->Label[14]->text()), reference, 1.0 / 60 + 1e-9)
        << m.W->Label[14]->text().toStdString();

    m.Edit(4, [](FrmLocation& e) {
        e.Text[4]->setText("Not kept");
        e.VsbDegLon->setValue(10);
        e.reject(); // the window's close box
    });
    EXPECT_TRUE(m.W->isVisible());
    EXPECT_EQ(m.App.Config.CurLoc, 4);
    EXPECT_NE(m.App.Config.Locations[4].Name, "Not kept");
    EXPECT_TRUE(m.W->Loc[4]->text().startsWith("# 4 "));
}
