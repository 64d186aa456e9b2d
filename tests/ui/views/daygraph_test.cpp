// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "ui/views/daygraph.h"

#include <QDir>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The graph of a day of 2024 at a place, shown.
struct Graph {
    Astronomy Engine;
    Calendar Cal;
    std::unique_ptr<DayGraph> W;
    Graph(double lonWest, double latNorth, std::int16_t zone, int month, int day)
    {
        Engine.Site.SetPlace(lonWest, latNorth, zone);
        Cal.CurYear = 2024;
        Cal.CurMonth = std::int16_t(month);
        Cal.SetYearTables(Engine, 0);
        const DayMarks& marks = Cal.YearDays[std::size_t(DayOfYearOf(2024, month, day))];
        W = std::make_unique<DayGraph>(
            Engine, DayGraph::Day{CivilToJd(2024, month, day), marks, true, true});
        W->show();
    }
    std::string Text(int i) const { return W->Label[std::size_t(i)]->text().toStdString(); }
};

// The caption names the day; activation draws the day, shows the moon's age and opens with
// Sun and Moon at their noon places, as the pointer at the middle of the line shows them.
TEST(DayGraphWindow, PointerReadsTheClockAndTheSky)
{
    Graph g(92.42, 31.25, 6, 6, 20);
    EXPECT_EQ(g.W->windowTitle(), "Daily Conditions For 06/20/2024");
    EXPECT_EQ(g.W->Series.Twilights.size(), 6u);
    EXPECT_EQ(g.Text(11),
              std::to_string(g.Cal.YearDays[std::size_t(DayOfYearOf(2024, 6, 20))].MoonAge) +
                  " Days");
    EXPECT_EQ(g.Text(0), "12:00 PM");
    const SkyReadout noon = GetPicData(g.Engine, CivilToJd(2024, 6, 20) + 0.5);
    EXPECT_DOUBLE_EQ(g.W->Sky.SunAzimuth, noon.SunAzimuth);
    EXPECT_DOUBLE_EQ(g.W->Sky.MoonElevation, noon.MoonElevation);
    EXPECT_EQ(g.Text(4).substr(0, 3), std::to_string(int(noon.SunAzimuth)).substr(0, 3));
    g.W->PicTi_MouseMove(3500.0, 300.0);
    EXPECT_EQ(g.W->PicTi->toolTip().left(9), " Sunrise ");
    // Below the depth that names the day's part the tip stays as it was; off the line the
    // clock is emptied.
    g.W->PicTi_MouseMove(100.0, 1400.0);
    EXPECT_EQ(g.W->PicTi->toolTip().left(9), " Sunrise ");
    g.W->PicTi_MouseMove(7000.0, 300.0);
    EXPECT_EQ(g.Text(0), "");
    EXPECT_EQ(g.W->PicTi->toolTip(), " Night ");
    g.W->Label_MouseMove(4);
    EXPECT_EQ(g.W->Label[4]->toolTip(), " Click To Close ");
    g.W->CloseCmd_Click();
    EXPECT_FALSE(g.W->isVisible());
}

// A real pointer move over the time line's pixels reaches the same handler.
TEST(DayGraphWindow, MouseOverTheLine)
{
    Graph g(92.42, 31.25, 6, 6, 20);
    QTest::mouseMove(g.W->PicTi, QPoint(g.W->PicTi->width() / 2, 10));
    EXPECT_EQ(g.Text(0), "12:00 PM");
}

// The graph of a summer day at Alexandria with the Moon's marks, and of a June day at 65
// degrees north, for a person to look at.
TEST(DayGraphWindow, SavesScreenshots)
{
    const QDir dir(QUILLMERE_SCREENSHOTS);
    Graph summer(92.42, 31.25, 6, 6, 20);
    summer.W->PicTi_MouseMove(7.5 / 24.0 * 7000.0, 300.0);
    EXPECT_TRUE(summer.W->grab().save(dir.filePath("DayGraph-alexandria.png")));
    Graph north(-25.0, 65.0, -2, 6, 21);
    north.W->PicTi_MouseMove(0.5 * 7000.0, 300.0);
    EXPECT_TRUE(north.W->grab().save(dir.filePath("DayGraph-65north.png")));
    Graph perigee(92.42, 31.25, 6, 3, 10);
    perigee.W->PicTi_MouseMove(20.0 / 24.0 * 7000.0, 300.0);
    EXPECT_TRUE(perigee.W->grab().save(dir.filePath("DayGraph-perigee.png")));
}

} // namespace
