#include "ui/views/frmdetail.h"

#include "pages/twips.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {
constexpr int RowHeight = 19, CaptionWidth = 150, ValueWidth = 170, Margin = 8;

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
    int y = Margin;
    const auto valueLabel = [this](int index, const QRect& geometry) {
        auto* label = new QLabel(this);
        label->setObjectName(QString("Label%1").arg(index));
        label->setGeometry(geometry);
        label->setMouseTracking(true);
        label->installEventFilter(this);
        Label[std::size_t(index)] = label;
    };
    for (const Row& r : Rows) {
        auto* caption = new QLabel(QString::fromLatin1(r.Caption), this);
        caption->setGeometry(Margin, y, CaptionWidth, RowHeight);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        valueLabel(r.Value, {Margin + CaptionWidth + 10, y, ValueWidth, RowHeight});
        // A gap between the Sun's rows and the Moon's.
        y += RowHeight + (r.Value == 7 ? 8 : 0);
    }
    y += 8;
    for (int i = 0; i < EventLabelCount; ++i, y += RowHeight)
        valueLabel(FirstEventLabel + i, {Margin, y, CaptionWidth + 10 + ValueWidth, RowHeight});
    for (QLabel* label : Label)
        if (label)
            label->setTextInteractionFlags(Qt::NoTextInteraction);
    CMDClose = new QPushButton(QStringLiteral("Close"), this);
    CMDClose->setGeometry(Margin + CaptionWidth + 10 + ValueWidth - 80, y + 6, 80, 26);
    setFixedSize(2 * Margin + CaptionWidth + 10 + ValueWidth, y + 6 + 26 + Margin);
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
    Label.at(std::size_t(index))->setToolTip(QStringLiteral("Click to Halt Timer"));
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
