// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/forecast/pdfpages.h"

#include "pages/calendarpage.h"
#include "pages/glancechart.h"
#include "pages/listpage.h"
#include "pages/pages.h"
#include "viewrules/monthlylist.h"

std::string WritePdfPages(const ForecastRequest& r, const ForecastPlace& place,
                          const std::string& placeName)
{
    ForecastRun run(place);
    Calendar& cal = run.Cal;
    cal.CurYear = std::int16_t(r.Year);
    cal.CurMonth = std::int16_t(r.Month);
    cal.SetYearTables(run.Engine, run.SouthernHemisphere);
    QString title;
    PageDrawing drawing;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    if (r.What == Command::CalendarPage) {
        CalendarPage page = CalendarPageOf(run.Engine, cal, run.SouthernHemisphere);
        page.Place = placeName;
        title = QString::fromStdString(page.Title);
        drawing = CalendarPageDrawing(std::move(page));
        orientation = CalendarPageOrientation;
    } else if (r.What == Command::Glance) {
        GlanceChart chart =
            GlanceChartOf(cal, run.SouthernHemisphere, GlancePictureWidth, GlancePictureHeight);
        chart.Place = placeName;
        title = QString::fromStdString(chart.Title);
        drawing = GlanceChartDrawing(std::move(chart));
        orientation = GlanceChartOrientation;
    } else {
        const auto lines = MonthlyListLines(run.Engine, cal.MonthStartJD[std::size_t(r.Month)],
                                            cal.MonthDays, place.AmPm);
        title = QString::fromStdString("Monthly Data for " + placeName);
        drawing = ListDrawing(MonthlyListPrinted(r.Month, r.Year, lines));
    }
    return WritePdf(QString::fromStdString(r.Pdf), title, DefaultPageLayout(orientation), drawing)
        .toStdString();
}
