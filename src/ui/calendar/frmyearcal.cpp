// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/frmyearcal.h"

#include "calendar/calendar.h"
#include "pages/twips.h"

#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int BlanksPerColumn = 5, DaysPerWeek = 7, WeekRows = 6, ColumnPadding = 6;

} // namespace

WeekColumns::WeekColumns(int rows, QWidget* parent) : QWidget(parent), Rows(rows) {}

void WeekColumns::setText(const QString& text)
{
    Shown = text;
    update();
}

QSize WeekColumns::sizeHint() const { return {DaysPerWeek * ColumnWidth(), Rows * RowHeight()}; }

int WeekColumns::ColumnWidth() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral("88")) + ColumnPadding;
}

int WeekColumns::RowHeight() const { return fontMetrics().height(); }

void WeekColumns::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setPen(palette().color(QPalette::WindowText));
    const auto lead = std::find_if(Shown.begin(), Shown.end(), [](QChar c) { return c != ' '; });
    int column = int(lead - Shown.begin()) / BlanksPerColumn, row = 0;
    const int w = width() / DaysPerWeek, h = RowHeight();
    for (const QString& word : Shown.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        p.drawText(QRect(column * w, row * h, w, h), Qt::AlignCenter, word);
        if (++column == DaysPerWeek) {
            column = 0;
            ++row;
        }
    }
}

FrmYearCal::FrmYearCal(MainWindow main, QWidget* parent) : QDialog(parent), Main(std::move(main))
{
    setWindowTitle(tr("Yearly Calendar"));
    setModal(true);
    BuildControls();
    connect(vsbyearcal, &QScrollBar::valueChanged, this, &FrmYearCal::vsbyearcal_Change);
    connect(vsbyearcal, &QScrollBar::sliderMoved, this, &FrmYearCal::vsbyearcal_Scroll);
    connect(cmdexit, &QPushButton::clicked, this, &FrmYearCal::cmdexit_Click);
    Form_Load();
}

void FrmYearCal::BuildControls()
{
    QFont bold = font();
    bold.setBold(true);
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.9);
    auto* months = new QGridLayout;
    for (int m = 1; m <= 12; ++m) {
        Labname[std::size_t(m)] = new QLabel(this);
        Labname[std::size_t(m)]->setAlignment(Qt::AlignCenter);
        Labname[std::size_t(m)]->setFont(bold);
        Labcaption[std::size_t(m)] = new WeekColumns(1, this);
        Labcaption[std::size_t(m)]->setFont(small);
        auto* days = new WeekColumns(WeekRows, this);
        days->setObjectName(QString("Labmonth%1").arg(m));
        days->setFont(small);
        days->setAutoFillBackground(true);
        days->setToolTip(tr(" DoubleClick to Select and Exit "));
        days->setMouseTracking(true);
        days->installEventFilter(this);
        Labmonth[std::size_t(m)] = days;
        auto* month = new QVBoxLayout;
        month->setSpacing(2);
        month->addWidget(Labname[std::size_t(m)]);
        month->addWidget(Labcaption[std::size_t(m)]);
        month->addWidget(days);
        month->addStretch();
        months->addLayout(month, (m - 1) / 4, (m - 1) % 4);
    }
    vsbyearcal = new QScrollBar(Qt::Vertical, this);
    vsbyearcal->setRange(FirstYear, LastYear);
    vsbyearcal->setTracking(false); // dragging scrolls; the change comes on release
    months->addWidget(vsbyearcal, 0, 4, 3, 1);
    cmdexit = new QPushButton(tr("Done-Exit"), this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(months);
    layout->addWidget(cmdexit, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmYearCal::Form_Load()
{
    adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    move((screen.width() - width()) / 2, (screen.height() - height()) / 2);
    Changed = false;
}

void FrmYearCal::ShowYearCal()
{
    vsbyearcal->blockSignals(true);
    vsbyearcal->setValue(Main.Cal.CurYear);
    vsbyearcal->blockSignals(false);
    FillYearCal();
    show();
}

void FrmYearCal::FillYearCal()
{
    const YearCalPage page = ::FillYearCal(Main.Cal, Main.Engine, Main.SouthernHemisphere);
    for (int m = 1; m <= 12; ++m) {
        const YearCalMonth& month = page.Months[std::size_t(m)];
        Labname[std::size_t(m)]->setText(QString::fromStdString(month.Name));
        Labcaption[std::size_t(m)]->setText(QString::fromStdString(month.Caption));
        Labmonth[std::size_t(m)]->setText(QString::fromStdString(month.Days));
    }
    MarkMonth(Main.Cal.CurMonth);
    setWindowTitle(QString::fromStdString(page.Caption));
    vsbyearcal->blockSignals(true);
    vsbyearcal->setValue(Main.Cal.CurYear);
    vsbyearcal->blockSignals(false);
}

// The chosen month's days in white, the others in black.
void FrmYearCal::MarkMonth(int month)
{
    for (int m = 1; m <= 12; ++m) {
        QPalette palette = Labmonth[std::size_t(m)]->palette();
        palette.setColor(QPalette::WindowText, VbColor(m == month ? 0xFFFFFF : 0x000000));
        palette.setColor(QPalette::Window, QColor(128, 128, 128));
        Labmonth[std::size_t(m)]->setPalette(palette);
    }
}

void FrmYearCal::vsbyearcal_Change()
{
    Main.Cal.CurYear = std::int16_t(vsbyearcal->value());
    FillYearCal();
    Changed = true;
}

void FrmYearCal::vsbyearcal_Scroll()
{
    Main.Cal.CurYear = std::int16_t(vsbyearcal->sliderPosition());
    FillYearCal();
}

void FrmYearCal::Labmonth_Click(int month)
{
    Changed = true;
    Main.Cal.CurMonth = std::int16_t(month);
    MarkMonth(month);
}

void FrmYearCal::Labmonth_DblClick(int month)
{
    Labmonth_Click(month);
    ReturnToMain();
}

void FrmYearCal::Labmonth_MouseMove(int month)
{
    Labmonth[std::size_t(month)]->setToolTip(
        " Double Click to Select " + QString::fromStdString(MonthAbbrev(month)) + " and Exit ");
}

void FrmYearCal::cmdexit_Click() { ReturnToMain(); }

// The shown year goes back to the main window, which redraws when anything was chosen.
void FrmYearCal::ReturnToMain()
{
    Main.Cal.CurYear = std::int16_t(vsbyearcal->value());
    close();
    Main.SetYear(Main.Cal.CurYear);
    if (Changed) {
        Main.RefreshMonth();
        Changed = false;
    }
}

void FrmYearCal::Form_Deactivate()
{
    Main.Cal.CurYear = std::int16_t(vsbyearcal->value());
    Main.SetYear(Main.Cal.CurYear);
}

void FrmYearCal::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible())
        Form_Deactivate();
    QDialog::changeEvent(event);
}

int FrmYearCal::MonthOf(QObject* label) const
{
    const auto it = std::find(Labmonth.begin() + 1, Labmonth.end(), label);
    return it == Labmonth.end() ? 0 : int(it - Labmonth.begin());
}

bool FrmYearCal::eventFilter(QObject* watched, QEvent* event)
{
    if (const int m = MonthOf(watched)) {
        if (event->type() == QEvent::MouseMove)
            Labmonth_MouseMove(m);
        else if (event->type() == QEvent::MouseButtonPress)
            Labmonth_Click(m);
        else if (event->type() == QEvent::MouseButtonDblClick)
            Labmonth_DblClick(m);
    }
    return QDialog::eventFilter(watched, event);
}
