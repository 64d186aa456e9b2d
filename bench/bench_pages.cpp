// SPDX-License-Identifier: GPL-3.0-or-later
// Cost of the printed month views: a month's calendar page (its 29..31 forecasts, the drawing
// and the PDF file written and renamed into place), the month at a glance as a PDF, and the
// monthly list's lines.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "pages/calendarpage.h"
#include "pages/glancechart.h"
#include "pages/pages.h"
#include "viewrules/monthlylist.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

struct Month {
    Astronomy Engine;
    Calendar Cal;
    Month()
    {
        Engine.Site.SetPlace(92.42, 31.25, 6);
        Cal.CurYear = 2024;
        Cal.CurMonth = 2;
        Cal.SetYearTables(Engine, 0);
    }
};

void BM_CalendarPageToPdf(benchmark::State& state)
{
    Month m;
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.pdf"));
    for (auto _ : state) {
        const CalendarPage page = CalendarPageOf(m.Engine, m.Cal, 0);
        const QString error =
            WritePdf(path, QString::fromStdString(page.Title),
                     DefaultPageLayout(CalendarPageOrientation), CalendarPageDrawing(page));
        if (!error.isEmpty())
            state.SkipWithError(error.toStdString().c_str());
    }
}

void BM_GlanceChartToPdf(benchmark::State& state)
{
    Month m;
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("glance.pdf"));
    for (auto _ : state) {
        GlanceChart chart = GlanceChartOf(m.Cal, 0, GlancePictureWidth, GlancePictureHeight);
        const QString title = QString::fromStdString(chart.Title);
        const QString error = WritePdf(path, title, DefaultPageLayout(GlanceChartOrientation),
                                       GlanceChartDrawing(std::move(chart)));
        if (!error.isEmpty())
            state.SkipWithError(error.toStdString().c_str());
    }
}

void BM_MonthlyListLines(benchmark::State& state)
{
    Month m;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            MonthlyListLines(m.Engine, m.Cal.MonthStartJD[2], m.Cal.MonthDays, true));
}

} // namespace

BENCHMARK(BM_CalendarPageToPdf)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GlanceChartToPdf)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MonthlyListLines)->Unit(benchmark::kMillisecond);

// Drawing text needs the fonts of a GUI application; no window is opened.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
