// SPDX-License-Identifier: GPL-3.0-or-later
// The day detail window's values and event lines against PyEphem and the US Naval
// Observatory, kept in data/; the day graph window's pointer.
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "platform/timezones.h"
#include "support/testenv.h"
#include "ui/views/daygraph.h"
#include "viewrules/daydetails.h"

#include <QDate>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

namespace {

std::vector<QStringList> DataRows(const QString& name)
{
    return testenv::DataRows(QStringLiteral(QUILLMERE_VIEWS_DATA "/") + name);
}

// Minutes of the day of "hh:mm", "hh:mm AM" or "hh:mm PM".
int ClockMinutes(const QString& text)
{
    const QStringList parts = text.trimmed().split(QRegularExpression("[: ]"));
    EXPECT_GE(parts.size(), 2) << text.toStdString();
    const int hour = parts.value(0).toInt(), minute = parts.value(1).toInt();
    if (parts.size() < 3)
        return hour * 60 + minute;
    return (hour % 12 + (parts[2] == "PM" ? 12 : 0)) * 60 + minute;
}

struct Place {
    Astronomy Engine;
    Calendar Cal;
    Place(double lonWest, double latNorth, std::int16_t zone, QDate day, const QString& zoneName)
    {
        Engine.Site.SetPlace(lonWest, latNorth, zone);
        Engine.Site.HourInstant = 0.5 + Engine.Site.ZoneDays; // the hour bar at noon
        if (!zoneName.isEmpty()) {
            Engine.Site.Clock =
                LoadZoneRules(zoneName.toStdString(), day.year() - 1, day.year() + 1);
            Engine.Site.TimeFormats = LocalClockMode;
        }
        Cal.CurYear = std::int16_t(day.year());
        Cal.CurMonth = std::int16_t(day.month());
        Cal.SetYearTables(Engine, latNorth < 0 ? -1 : 0);
    }
    DetailLines Details(QDate day, bool ampm)
    {
        return DoDetails(Engine, Cal, CivilToJd(day.year(), day.month(), day.day()), ampm);
    }
};

} // namespace

// Every value of 20 June 2024 at Alexandria; the window shows them under its caption, and the
// solstice is the day's only event.
TEST(DoDetails, SummerDayAtAlexandriaAgreesWithEphem)
{
    const QDate day(2024, 6, 20);
    Place p(92.42, 31.25, 6, day, {});
    const DetailLines d = p.Details(day, true);
    for (const QStringList& row : DataRows("alexandria_2024-06-20.txt")) {
        const QString shown = QString::fromStdString(d.at(row[0].toInt()));
        const QStringList halves = row[1] == "text" ? QStringList{shown} : shown.split('/');
        ASSERT_EQ(halves.size(), row.size() - 2) << shown.toStdString();
        for (int i = 0; i < halves.size(); ++i) {
            const QString& want = row[i + 2];
            if (row[1] == "clock")
                EXPECT_NEAR(ClockMinutes(halves[i]), ClockMinutes(want), 2) << shown.toStdString();
            else if (row[1] == "degrees")
                EXPECT_NEAR(halves[i].toDouble(), want.toDouble(), 0.5) << shown.toStdString();
            else
                EXPECT_EQ(halves[i], want);
        }
    }
    EXPECT_TRUE(d.at(FirstEventLabel).starts_with("Summer Solstice "));
    for (int i = 1; i < EventLabelCount; ++i)
        EXPECT_EQ(d.at(FirstEventLabel + i), "");

    EXPECT_EQ(DetailsCaption(2024, 3, 5, false, '.'), "Details for 5.3.2024"); // day first
}

TEST(DoDetails, EventLinesNameTheDaysEventsOnThePlacesClock)
{
    for (const QStringList& row : DataRows("event_lines.txt")) {
        const QDate day = QDate::fromString(row[4], Qt::ISODate);
        const bool ampm = row[5] == "1";
        Place p(row[1].toDouble(), row[2].toDouble(), std::int16_t(row[3].toInt()), day, row[0]);
        const DetailLines d = p.Details(day, ampm);
        const std::string where = row.join(' ').toStdString();
        QString found;
        for (int i = 0; i < EventLabelCount; ++i)
            if (QString line = QString::fromStdString(d.at(FirstEventLabel + i));
                line.startsWith(row[6] + ' '))
                found = line.mid(row[6].size()).trimmed();
        ASSERT_FALSE(found.isEmpty()) << where;
        EXPECT_EQ(found.size(), ampm ? 8 : 5) << where << ": " << found.toStdString();
        EXPECT_NEAR(ClockMinutes(found), ClockMinutes(row[7]), row[8].toInt())
            << where << ": " << found.toStdString();
    }
}

// The caption names the day; activation draws the day, shows the moon's age and opens with
// Sun and Moon at their noon places, as the pointer at the middle of the line shows them; the
// pointer over the line reads the clock and names the part of the day.
TEST(DayGraphWindow, PointerReadsTheClockAndTheSky)
{
    Place p(92.42, 31.25, 6, QDate(2024, 6, 20), {});
    Astronomy& engine = p.Engine;
    const double jd = CivilToJd(2024, 6, 20);
    const DayMarks& marks = p.Cal.YearDays[std::size_t(DayOfYearOf(2024, 6, 20))];
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
