// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "ui/views/daygraph.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

// The caption names the day; activation draws the day, shows the moon's age and opens with
// Sun and Moon at their noon places, as the pointer at the middle of the line shows them; the
// pointer over the line reads the clock and names the part of the day.
TEST(DayGraphWindow, PointerReadsTheClockAndTheSky)
{
    Astronomy engine;
    engine.Site.SetPlace(92.42, 31.25, 6);
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 6;
    cal.SetYearTables(engine, 0);
    const double jd = CivilToJd(2024, 6, 20);
    const DayMarks& marks = cal.YearDays[std::size_t(DayOfYearOf(2024, 6, 20))];
    DayGraph w(engine, DayGraph::Day{jd, marks, true, true});
    w.show();
    const auto text = [&w](int i) { return w.Label[std::size_t(i)]->text().toStdString(); };
    EXPECT_EQ(w.windowTitle(), "Daily Conditions For 06/20/2024");
    EXPECT_EQ(w.Series.Twilights.size(), 6u);
    EXPECT_EQ(text(11), std::to_string(marks.MoonAge) + " Days");
    EXPECT_EQ(text(0), "12:00 PM");
    const SkyReadout noon = GetPicData(engine, jd + 0.5);
    EXPECT_DOUBLE_EQ(w.Sky.MoonElevation, noon.MoonElevation);
    EXPECT_EQ(text(4).substr(0, 3), std::to_string(int(noon.SunAzimuth)).substr(0, 3));
    w.PicTi_MouseMove(3500.0, 300.0);
    EXPECT_EQ(w.PicTi->toolTip().left(9), " Sunrise ");
    // Below the depth that names the day's part the tip stays as it was; off the line the
    // clock is emptied.
    w.PicTi_MouseMove(100.0, 1400.0);
    EXPECT_EQ(w.PicTi->toolTip().left(9), " Sunrise ");
    w.PicTi_MouseMove(7000.0, 300.0);
    EXPECT_EQ(text(0), "");
    EXPECT_EQ(w.PicTi->toolTip(), " Night ");
    // A real pointer move over the line's pixels reaches the same handler.
    QTest::mouseMove(w.PicTi, QPoint(w.PicTi->width() / 2, 10));
    EXPECT_EQ(text(0), "12:00 PM");
    w.CloseCmd_Click();
    EXPECT_FALSE(w.isVisible());
}
