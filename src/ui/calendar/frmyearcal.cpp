#include "ui/calendar/frmyearcal.h"

#include "calendar/calendar.h"
#include "pages/twips.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace {
constexpr int MonthWidth = 168, MonthHeight = 124, Margin = 10, ColumnWidth = 23, RowHeight = 15;
constexpr int BlanksPerColumn = 5;

// A label whose text is a row of day numbers (a weekday header, or a month's days with five
// blanks per weekday before the 1st) and which paints it in seven columns, wrapping into week
// rows, whatever the font.
class WeekColumns : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setPen(palette().color(QPalette::WindowText));
        const QString t = text();
        const auto lead = std::find_if(t.begin(), t.end(), [](QChar c) { return c != ' '; });
        int column = int(lead - t.begin()) / BlanksPerColumn, row = 0;
        for (const QString& word : t.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            p.drawText(QRect(column * ColumnWidth, row * RowHeight, ColumnWidth, RowHeight),
                       Qt::AlignCenter, word);
            if (++column == 7) {
                column = 0;
                ++row;
            }
        }
    }
};
} // namespace

FrmYearCal::FrmYearCal(MainWindow main, QWidget* parent) : QDialog(parent), Main(std::move(main))
{
    setWindowTitle(QStringLiteral("Yearly Calendar"));
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
    for (int m = 1; m <= 12; ++m) {
        const int x = Margin + ((m - 1) % 4) * MonthWidth, y = Margin + ((m - 1) / 4) * MonthHeight;
        Labname[std::size_t(m)] = new QLabel(this);
        Labname[std::size_t(m)]->setGeometry(x, y, 7 * ColumnWidth, 16);
        Labname[std::size_t(m)]->setAlignment(Qt::AlignCenter);
        Labname[std::size_t(m)]->setFont(bold);
        Labcaption[std::size_t(m)] = new WeekColumns(this);
        Labcaption[std::size_t(m)]->setGeometry(x, y + 16, 7 * ColumnWidth, RowHeight);
        Labcaption[std::size_t(m)]->setFont(small);
        auto* days = new WeekColumns(this);
        days->setObjectName(QString("Labmonth%1").arg(m));
        days->setGeometry(x, y + 16 + RowHeight + 2, 7 * ColumnWidth, 6 * RowHeight);
        days->setFont(small);
        days->setAutoFillBackground(true);
        days->setToolTip(QStringLiteral(" DoubleClick to Select and Exit "));
        days->setMouseTracking(true);
        days->installEventFilter(this);
        Labmonth[std::size_t(m)] = days;
    }
    const int right = Margin + 4 * MonthWidth;
    vsbyearcal = new QScrollBar(Qt::Vertical, this);
    vsbyearcal->setGeometry(right, Margin, 18, 3 * MonthHeight - 8);
    vsbyearcal->setRange(FirstYear, LastYear);
    vsbyearcal->setTracking(false); // dragging scrolls; the change comes on release
    cmdexit = new QPushButton(QStringLiteral("Done-Exit"), this);
    cmdexit->setGeometry(right - 100, Margin + 3 * MonthHeight, 100, 28);
    setFixedSize(right + 18 + Margin, Margin + 3 * MonthHeight + 28 + Margin);
}

void FrmYearCal::Form_Load()
{
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
