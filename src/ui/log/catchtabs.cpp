// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/catchtabs.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QEvent>
#include <QGraphicsSimpleTextItem>
#include <QStackedBarSeries>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int MostSpeciesBars = 12; // the rest stay in the copied figures
constexpr double HeadRoom = 1.2;    // above the highest bar, for the counts over it
enum ChartIndex { SpeciesChart, PeriodChart, HourChart, SpotChart, WaterChart, ChartCount };
// The bars of the periods chart, in CatchPeriod order: short enough to stand under a bar.
const std::array<const char*, CatchPeriodCount> PeriodBars = {
    QT_TRANSLATE_NOOP("CatchPages", "Major period"),
    QT_TRANSLATE_NOOP("CatchPages", "Minor period"),
    QT_TRANSLATE_NOOP("CatchPages", "Sunrise/set ±1 h"),
    QT_TRANSLATE_NOOP("CatchPages", "Other times"), QT_TRANSLATE_NOOP("CatchPages", "No time")};

// A chart in the window's colours: dark on a dark palette.
void ApplyTheme(QChart* chart, const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    chart->setTheme(dark ? QChart::ChartThemeDark : QChart::ChartThemeLight);
    chart->setBackgroundBrush(palette.brush(QPalette::Base));
    for (QGraphicsItem* item : chart->childItems())
        if (auto* count = qgraphicsitem_cast<QGraphicsSimpleTextItem*>(item))
            count->setBrush(chart->titleBrush());
}

QString Text(const std::string& text) { return QString::fromStdString(text); }

// The fish taken printed over each bar, kept in place whenever the plot area moves.
void AddFishCounts(QChart* chart, QAbstractSeries* series, const std::vector<CatchTally>& bars)
{
    std::vector<std::pair<QGraphicsSimpleTextItem*, QPointF>> counts;
    for (size_t i = 0; i < bars.size(); ++i) {
        if (bars[i].Fish == 0)
            continue;
        auto* item = new QGraphicsSimpleTextItem(QString::number(bars[i].Fish), chart);
        item->setZValue(10);
        counts.emplace_back(item, QPointF(double(i), double(bars[i].Fish)));
    }
    QObject::connect(chart, &QChart::plotAreaChanged, chart, [chart, series, counts] {
        for (const auto& [item, value] : counts) {
            const QPointF top = chart->mapToPosition(value, series);
            const QRectF box = item->boundingRect();
            item->setPos(top.x() - box.width() / 2, top.y() - box.height() - 2);
        }
    });
}

QChart* TallyChart(const QString& title, const std::vector<CatchTally>& bars,
                   const QStringList& names)
{
    auto* chart = new QChart;
    chart->setTitle(title);
    auto* kept = new QBarSet(CatchPages::tr("Kept"));
    auto* released = new QBarSet(CatchPages::tr("Released"));
    long highest = 0;
    for (const CatchTally& t : bars) {
        *kept << double(t.Fish - t.Released);
        *released << double(t.Released);
        highest = std::max(highest, t.Fish);
    }
    auto* series = new QStackedBarSeries;
    series->append(kept);
    series->append(released);
    chart->addSeries(series);
    auto* x = new QBarCategoryAxis;
    x->append(names);
    x->setTitleText(CatchPages::tr("The number over each bar: fish taken"));
    auto* y = new QValueAxis;
    y->setTitleText(CatchPages::tr("Fish"));
    y->setRange(0, highest > 0 ? double(highest) * HeadRoom : 1.0);
    y->applyNiceNumbers();
    y->setLabelFormat(QStringLiteral("%d"));
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    series->attachAxis(x);
    series->attachAxis(y);
    chart->legend()->setAlignment(Qt::AlignTop);
    AddFishCounts(chart, series, bars);
    return chart;
}

QStringList NamesOf(const std::vector<CatchTally>& bars)
{
    QStringList names;
    for (const CatchTally& t : bars)
        names << Text(t.Name);
    return names;
}

QChartView* NewView(QWidget* parent)
{
    auto* view = new QChartView(parent);
    view->setRenderHint(QPainter::Antialiasing);
    return view;
}

void SetChart(QChartView* view, QChart* chart)
{
    QChart* old = view->chart();
    ApplyTheme(chart, view->palette());
    view->setChart(chart);
    delete old;
}

} // namespace

bool CatchPages::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        auto* view = static_cast<QChartView*>(watched);
        ApplyTheme(view->chart(), view->palette());
    }
    return QObject::eventFilter(watched, event);
}

QString WaterBandName(const CatchTally& band, UnitSystem units)
{
    if (!band.BandLow)
        return Text(band.Name);
    const auto degrees = [units](double celsius) {
        return QString::number(
            std::lround(units == UnitSystem::Metric ? celsius : CelsiusToFahrenheit(celsius)));
    };
    const auto unit = TemperatureUnit(units);
    return CatchPages::tr("%1 to %2 %3")
        .arg(degrees(*band.BandLow), degrees(*band.BandLow + WaterBandDegrees),
             QString::fromUtf8(unit.data(), qsizetype(unit.size())));
}

CatchPages::CatchPages(QTabWidget* tabs, UnitSystem units) : QObject(tabs), Units(units)
{
    // One "Catches" tab holds the catch charts' own tabs, so that the window stays as wide as
    // the day statistics' tabs need.
    Pages = new QTabWidget(tabs);
    Pages->setObjectName(QStringLiteral("CatchPages"));
    Pages->tabBar()->setUsesScrollButtons(false);
    for (int i = 0; i < ChartCount; ++i) {
        Charts.push_back(NewView(Pages));
        Charts.back()->installEventFilter(this);
    }
    auto* timePage = new QWidget(Pages);
    auto* timeLayout = new QVBoxLayout(timePage);
    timeLayout->setContentsMargins(0, 0, 0, 0);
    timeLayout->addWidget(Charts[PeriodChart]);
    timeLayout->addWidget(Charts[HourChart]);
    Pages->addTab(Charts[SpeciesChart], tr("By species"));
    Pages->addTab(timePage, tr("By time of day"));
    Pages->addTab(Charts[SpotChart], tr("By spot"));
    Pages->addTab(Charts[WaterChart], tr("By water temperature"));
    tabs->addTab(Pages, tr("Catches"));
}

void CatchPages::Show(const CatchBreakdown& breakdown)
{
    const std::vector<CatchTally> species(
        breakdown.BySpecies.begin(),
        breakdown.BySpecies.begin() +
            std::min<std::ptrdiff_t>(MostSpeciesBars, std::ssize(breakdown.BySpecies)));
    SetChart(Charts[SpeciesChart], TallyChart(tr("Fish by species"), species, NamesOf(species)));
    const std::vector<CatchTally> periods(breakdown.ByPeriod.begin(), breakdown.ByPeriod.end());
    QStringList periodNames;
    for (const char* bar : PeriodBars)
        periodNames << tr(bar);
    SetChart(Charts[PeriodChart],
             TallyChart(tr("Fish by the day's periods and the sun"), periods, periodNames));
    const std::vector<CatchTally> hours(breakdown.ByHour.begin(), breakdown.ByHour.end());
    QStringList hourNames;
    for (int h = 0; h < int(hours.size()); ++h)
        hourNames << QString::number(h);
    SetChart(Charts[HourChart], TallyChart(tr("Fish by clock hour"), hours, hourNames));
    SetChart(Charts[SpotChart],
             TallyChart(tr("Fish by spot"), breakdown.BySpot, NamesOf(breakdown.BySpot)));
    QStringList bands;
    for (const CatchTally& band : breakdown.ByWaterTemp)
        bands << WaterBandName(band, Units);
    SetChart(Charts[WaterChart],
             TallyChart(tr("Fish by water temperature"), breakdown.ByWaterTemp, bands));
}
