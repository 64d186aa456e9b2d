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
