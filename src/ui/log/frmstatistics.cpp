// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmstatistics.h"

#include "logdb/catchdays.h"
#include "logdb/logfiles.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"
#include "ui/log/catchtabs.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QValueAxis>

#include <algorithm>

namespace {

QString Text(const std::string& text) { return QString::fromStdString(text); }

// The days fished printed over each bar, kept in place whenever the plot area moves.
void AddDayCounts(QChart* chart, QBarSeries* series, const CatchGrouping& grouping)
{
    std::vector<std::pair<QGraphicsSimpleTextItem*, QPointF>> counts;
    for (size_t i = 0; i < grouping.Groups.size(); ++i) {
        const CatchGroup& g = grouping.Groups[i];
        auto* item = new QGraphicsSimpleTextItem(QString::number(g.DaysFished), chart);
        item->setZValue(10);
        item->setBrush(chart->titleBrush()); // the theme's text colour
        counts.emplace_back(item, QPointF(double(i), g.PerDay()));
    }
    QObject::connect(chart, &QChart::plotAreaChanged, chart, [chart, series, counts] {
        for (const auto& [item, value] : counts) {
            const QPointF top = chart->mapToPosition(value, series);
            const QRectF box = item->boundingRect();
            item->setPos(top.x() - box.width() / 2, top.y() - box.height() - 2);
        }
    });
}

// A chart in the dark theme on a dark window, so that its texts and grid read there too.
QChart* BarChart(const CatchGrouping& grouping, const QPalette& palette)
{
    constexpr int DarkWindow = 128;
    auto* chart = new QChart;
    chart->setTheme(palette.color(QPalette::Window).lightness() < DarkWindow
                        ? QChart::ChartThemeDark
                        : QChart::ChartThemeLight);
    chart->setTitle(Text(grouping.Title));
    chart->legend()->hide();
    auto* rates = new QBarSet(FrmStatistics::tr("Fish per day fished"));
    QStringList names;
    double highest = 0;
    for (const CatchGroup& g : grouping.Groups) {
        *rates << g.PerDay();
        names << Text(g.Name);
        highest = std::max(highest, g.PerDay());
    }
    auto* series = new QBarSeries;
    series->append(rates);
    chart->addSeries(series);
    auto* x = new QBarCategoryAxis;
    x->append(names);
    x->setTitleText(FrmStatistics::tr("The number over each bar: days fished"));
    auto* y = new QValueAxis;
    y->setTitleText(FrmStatistics::tr("Fish per day fished"));
    y->setRange(0, highest > 0 ? highest * 1.2 : 1.0); // room for the counts over the bars
    y->applyNiceNumbers();
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    series->attachAxis(x);
    series->attachAxis(y);
    AddDayCounts(chart, series, grouping);
    return chart;
}

} // namespace

FrmStatistics::FrmStatistics(const LogContext& context, const QString& yearFile, QWidget* parent)
    : QDialog(parent), Ctx(context), YearFile(yearFile)
{
    setWindowTitle(tr("Catch Statistics"));
    BuildControls();
    ScopeCombo_Click();
    OpenWithinScreen();
}

void FrmStatistics::BuildControls()
{
    ScopeCombo = new QComboBox(this);
    ScopeCombo->setObjectName(QStringLiteral("ScopeCombo"));
    ScopeCombo->addItem(tr("This year's file (%1)").arg(QFileInfo(YearFile).fileName()));
    ScopeCombo->addItem({});
    Summary = new QLabel(this);
    Summary->setObjectName(QStringLiteral("Summary"));
    Summary->setWordWrap(true);
    QFont bigger = Summary->font();
    bigger.setBold(true);
    bigger.setPointSizeF(bigger.pointSizeF() * 1.25);
    Summary->setFont(bigger);

    Tabs = new QTabWidget(this);
    Tabs->tabBar()->setUsesScrollButtons(false); // every tab's caption whole, none hidden
    for (size_t i = 0; i < Stats.Groupings.size(); ++i) {
        auto* view = new QChartView(Tabs);
        view->setRenderHint(QPainter::Antialiasing);
        Charts.push_back(view);
    }
    Table = new QTableWidget(0, 4, this);
    Table->setObjectName(QStringLiteral("Table"));
    Table->verticalHeader()->hide();
    Table->verticalHeader()->setDefaultSectionSize(Table->fontMetrics().height() + 6);
    Table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    CmdCopy = new QPushButton(tr("Copy"), this);
    CmdCopy->setObjectName(QStringLiteral("CmdCopy"));
    CmdCopy->setToolTip(tr(" Copy the figures for a spreadsheet "));
    auto* tablePage = new QWidget(Tabs);
    auto* tableLayout = new QVBoxLayout(tablePage);
    tableLayout->addWidget(Table);
    tableLayout->addWidget(CmdCopy, 0, Qt::AlignRight);

    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(tr("Records:"), this));
    top->addWidget(ScopeCombo, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(Summary);
    layout->addWidget(Tabs, 1);

    connect(ScopeCombo, &QComboBox::activated, this, &FrmStatistics::ScopeCombo_Click);
    connect(CmdCopy, &QPushButton::clicked, this, &FrmStatistics::CmdCopy_Click);
    // The tab captions come with the figures; the pages are added once.
    for (QChartView* view : Charts)
        Tabs->addTab(view, {});
    Tabs->addTab(tablePage, tr("Table"));
    CatchCharts = new CatchPages(Tabs, Ctx.Units);
}

QStringList FrmStatistics::ChosenFiles() const
{
    if (ScopeCombo->currentIndex() == 0)
        return {YearFile};
    QStringList paths;
    for (const QString& name : ListYearFiles(Ctx.Folder))
        paths << QDir(Ctx.Folder).filePath(name);
    return paths;
}

void FrmStatistics::ScopeCombo_Click()
{
    ScopeCombo->setItemText(
        1, tr("Every year file in the folder (%1)").arg(ListYearFiles(Ctx.Folder).size()));
    DbResult read;
    {
        const BusyPointer busy;
        read = CatchStatisticsOf(ChosenFiles(), Stats);
        read = read ? CatchBreakdownOf(ChosenFiles(), Breakdown) : read;
    }
    if (!read) {
        Stats = ComputeCatchStatistics({});
        Breakdown = ComputeCatchBreakdown({});
        Ctx.Messages.MsgBox(tr("The log could not be read: %1").arg(read.Message), MsgButtons::OK,
                            tr("Catch Statistics"), MsgIcon::Exclamation);
    }
    ShowFigures();
}

void FrmStatistics::ShowFigures()
{
    Summary->setText(Text(CatchSummary(Stats)));
    for (size_t i = 0; i < Charts.size(); ++i) {
        QChart* old = Charts[i]->chart();
        Charts[i]->setChart(BarChart(Stats.Groupings[i], palette()));
        delete old;
        Tabs->setTabText(int(i), Text(Stats.Groupings[i].Title));
    }
    FillTable();
    CatchCharts->Show(Breakdown);
}

// The table shows the very lines that Copy puts on the clipboard.
void FrmStatistics::FillTable()
{
    QStringList lines = Text(CatchTableText(Stats)).split('\n', Qt::SkipEmptyParts);
    Table->setHorizontalHeaderLabels(lines.takeFirst().split('\t'));
    Table->clearSpans();
    Table->setRowCount(int(lines.size()));
    for (int row = 0; row < lines.size(); ++row) {
        const QStringList cells = lines[row].split('\t');
        for (int column = 0; column < Table->columnCount(); ++column) {
            auto* item = new QTableWidgetItem(cells.value(column));
            if (column > 0)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            Table->setItem(row, column, item);
        }
        if (cells.size() == 1) { // a grouping's title
            QFont bold = Table->font();
            bold.setBold(true);
            Table->item(row, 0)->setFont(bold);
            Table->setSpan(row, 0, 1, Table->columnCount());
        }
    }
    Table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void FrmStatistics::CmdCopy_Click()
{
    QGuiApplication::clipboard()->setText(Text(CatchTableText(Stats)));
}

// The charts' customary size, or wider when the tabs need it, within the screen.
void FrmStatistics::OpenWithinScreen()
{
    constexpr QSize ChartRoom(900, 600);
    QSize size = ChartRoom.expandedTo(minimumSizeHint());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size());
    resize(size);
}

void ShowStatistics(const LogContext& context, const QString& yearFile, QWidget* parent)
{
    FrmStatistics window(context, yearFile, parent);
    window.exec();
}
