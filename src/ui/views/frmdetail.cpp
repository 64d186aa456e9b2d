// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/views/frmdetail.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {
constexpr int SectionGap = 8;

// The rows of the window: a caption and the value label beside it, the Sun first.
struct Row {
    const char* Caption;
    int Value;
};
constexpr std::array<Row, 13> Rows = {{{"Sun Rise/Set", 17},
                                       {"Sun Transit", 8},
                                       {"Elev", 13},
                                       {"Sun Azimuth Rise/Set", 14},
                                       {"Civil Twilight", 5},
                                       {"Nautical Twight", 6},
                                       {"Astronomical Twilight", 7},
                                       {"Moon Rise/Set", 15},
                                       {"Moon Transit", 18},
                                       {"Elev", 20},
                                       {"Moon Azimuth Rise/Set", 22},
                                       {"Moon's Age (days)", 9},
                                       {"Illumination  ", 24}}};
} // namespace

FrmDetail::FrmDetail(QWidget* parent) : QDialog(parent), Beep([] { QApplication::beep(); })
{
    BuildControls();
    connect(CMDClose, &QPushButton::clicked, this, &FrmDetail::CMDClose_Click);
}

void FrmDetail::BuildControls()
{
    // Captions beside their values, the Sun's rows apart from the Moon's, the day's events
    // under them; the window takes the size its rows need in its font.
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(1);
    const QString widestValue = QStringLiteral("00:00 AM/00:00 PM");
    int row = 0;
    const auto valueLabel = [this, grid, &row, &widestValue](int index, int column, int span) {
        auto* label = new QLabel(this);
        label->setObjectName(QString("Label%1").arg(index));
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widestValue));
        label->setMouseTracking(true);
        label->installEventFilter(this);
        Label[std::size_t(index)] = label;
        grid->addWidget(label, row, column, 1, span);
    };
    for (const Row& r : Rows) {
        auto* caption = new QLabel(QString::fromLatin1(r.Caption), this);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(caption, row, 0);
        valueLabel(r.Value, 1, 1);
        ++row;
        if (r.Value == 7) // a gap between the Sun's rows and the Moon's
            grid->setRowMinimumHeight(row++, SectionGap);
    }
    grid->setRowMinimumHeight(row++, SectionGap);
    for (int i = 0; i < EventLabelCount; ++i, ++row)
        valueLabel(FirstEventLabel + i, 0, 2);
    for (QLabel* label : Label)
        if (label)
            label->setTextInteractionFlags(Qt::NoTextInteraction);
    CMDClose = new QPushButton(tr("Close"), this);
    grid->addWidget(CMDClose, row, 1, Qt::AlignRight);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    Timer1 = new QTimer(this);
    Timer1->setInterval(10000);
}

void FrmDetail::SetDay(int year, int month, int day, DateOrder order)
{
    Year = year;
    Month = month;
    Day = day;
    Order = order;
}

void FrmDetail::ShowLines(const DetailLines& lines)
{
    for (QLabel* label : Label)
        if (label)
            label->clear();
    for (const auto& [i, text] : lines)
        Label.at(std::size_t(i))->setText(QString::fromStdString(text));
}

void FrmDetail::Form_Activate()
{
    setWindowTitle(QString::fromStdString(
        DetailsCaption(Year, Month, Day, Order.MonthFirst, Order.Separator)));
}

void FrmDetail::CMDClose_Click()
{
    Timer1->stop();
    close();
}

void FrmDetail::Form_Click()
{
    Beep();
    Timer1->stop();
}

void FrmDetail::Label_Click(int) { Form_Click(); }

void FrmDetail::Label_MouseMove(int index)
{
    Label.at(std::size_t(index))->setToolTip(tr("Click to Halt Timer"));
}

void FrmDetail::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Form_Activate();
}

void FrmDetail::closeEvent(QCloseEvent* event)
{
    Timer1->stop();
    QDialog::closeEvent(event);
}

void FrmDetail::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Form_Click();
}

bool FrmDetail::eventFilter(QObject* watched, QEvent* event)
{
    const auto it = std::find(Label.begin(), Label.end(), watched);
    if (it != Label.end() && *it) {
        const int index = int(it - Label.begin());
        if (event->type() == QEvent::MouseMove)
            Label_MouseMove(index);
        if (event->type() == QEvent::MouseButtonRelease) {
            Label_Click(index);
            return true; // one beep: the click does not go on to the window
        }
    }
    return QDialog::eventFilter(watched, event);
}
