// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/views/daygraph.h"

#include "astro/astronomy.h"
#include "db/qtext.h"
#include "pages/twips.h"
#include "text/vbformat.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

namespace {
constexpr std::uint32_t Night = 0x400000, SunYellow = 65535, MoonWhite = 0xFFFFFF;
constexpr std::uint32_t StripBack = 0x603010, TickRed = 0x0000FF;
constexpr int LineWidth = 560, StripWidth = 360, StripHeight = 28; // least sizes, pixels
constexpr int DesignLineWidth = 728;                               // its width at 96 dpi
constexpr int LegendPerRow = 4;

QString DegreesText(double degrees) { return Q(VbFormat(degrees, "##0.0")) + QChar(0x00B0); }

// A scale under a strip: the words of its text spread evenly over the strip's width, each
// centred over its tick (the strips keep 8 pixels free at either end).
class ScaleLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setPen(palette().color(QPalette::WindowText));
        const QStringList words = text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const double last = double(std::max<qsizetype>(1, words.size() - 1));
        for (qsizetype i = 0; i < words.size(); ++i) {
            const double w = p.fontMetrics().horizontalAdvance(words[i]);
            const double centre = 8.0 + (width() - 16.0) * double(i) / last;
            p.drawText(
                QPointF(std::clamp(centre - w / 2.0, 0.0, width() - w), p.fontMetrics().ascent()),
                words[i]);
        }
    }
};

// A body on a strip: filled when it is within the strip's range, an outline at the edge when
// it is not (below the horizon on the elevation strip).
void DrawBody(QPainter& p, double x, double y, std::uint32_t colour, bool inside)
{
    p.setPen(QPen(Qt::black, 1));
    p.setBrush(inside ? QBrush(VbColor(colour)) : QBrush(Qt::NoBrush));
    if (!inside)
        p.setPen(QPen(VbColor(colour), 2));
    p.drawEllipse(QPointF(x, y), 6, 6);
}
} // namespace

DayTimeLine::DayTimeLine(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

void DayTimeLine::SetSeries(const DayGraphSeries* series)
{
    Series = series;
    update();
}

double DayTimeLine::Px(double units) const { return units / TimeLineWidth * width(); }

double DayTimeLine::UnitsX(double px) const { return px * TimeLineWidth / width(); }

void DayTimeLine::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const int h = BandHeight;
    p.fillRect(QRect(0, 0, width(), h), VbColor(Night));
    p.fillRect(QRect(0, h, width(), height() - h), palette().color(QPalette::Window));
    if (!Series)
        return;
    const DayGraphSeries& s = *Series;
    const auto band = [&](const GraphBand& b) {
        p.fillRect(QRectF(Px(b.X0), 0, Px(b.X1) - Px(b.X0), h), VbColor(b.Color));
    };
    std::for_each(s.Daylight.begin(), s.Daylight.end(), band);
    std::for_each(s.Twilights.begin(), s.Twilights.end(), band);
    // Periods along the bottom, the Moon's marks from the top.
    const double barHalf = Px(PeriodBarWidth / 2.0);
    for (const GraphMark& m : s.Bars)
        p.fillRect(QRectF(Px(m.X) - barHalf, h * 0.72, 2 * barHalf, h * 0.28), VbColor(m.Color));
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.8);
    p.setFont(small);
    for (const GraphMark& m : s.MoonMarks) {
        const QRectF mark(Px(m.X) - 2, 0, 4, h * 0.3);
        p.fillRect(mark, VbColor(m.Color));
        p.setPen(Qt::black);
        p.drawRect(mark);
        // The mark's letter (R, T, S) in a white box beside it, on the inner side near the ends.
        const QString letter = Q(m.Name.substr(0, 1));
        const double w = p.fontMetrics().horizontalAdvance(letter) + 4;
        const double x = mark.right() + 2 + w <= width() ? mark.right() + 2 : mark.left() - 2 - w;
        const QRectF box(x, 0, w, p.fontMetrics().height());
        p.fillRect(box, Qt::white);
        p.drawText(box, Qt::AlignCenter, letter);
    }
    p.setPen(QPen(VbColor(TickRed), 2));
    for (double x : s.HourTicks)
        p.drawLine(QPointF(Px(x), h), QPointF(Px(x), h - h * 0.08));
    // The hour ruler under the line; noon's "12" stands on the line itself.
    p.setPen(palette().color(QPalette::WindowText));
    const QFontMetrics fm = p.fontMetrics();
    for (int hour = 0; hour <= 24; hour += 3) {
        const QString t = QString::number(hour);
        const double x = std::clamp(Px(hour * TimeLineWidth / 24.0) - fm.horizontalAdvance(t) / 2.0,
                                    0.0, double(width() - fm.horizontalAdvance(t)));
        p.drawText(QPointF(x, h + fm.ascent() + 2), t);
    }
    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    p.setPen(Qt::black);
    const QString noon = QStringLiteral("12");
    p.drawText(QPointF(Px(s.NoonX) - p.fontMetrics().horizontalAdvance(noon) / 2.0, h * 0.62),
               noon);
    // The day's events in boxes centred at their hour, within the line; a box that would
    // overlap the one before goes a row lower.
    p.setFont(font());
    QRectF before;
    for (std::size_t i = 0; i < s.EventTexts.size(); ++i) {
        const QString t = Q(s.EventTexts[i]);
        const double w = p.fontMetrics().horizontalAdvance(t) + 8;
        QRectF box(std::clamp(Px(s.EventX[i]) - w / 2, 0.0, std::max(0.0, width() - w)), h * 0.34,
                   w, p.fontMetrics().height() + 2);
        if (box.intersects(before))
            box.moveTop(before.bottom() + 1);
        p.fillRect(box, Qt::white);
        p.drawRect(box);
        p.drawText(box, Qt::AlignCenter, t);
        before = box;
    }
}

void DayTimeLine::mouseMoveEvent(QMouseEvent* e)
{
    const QPointF at = e->position();
    emit PointerMoved(UnitsX(at.x()), PixelsToTwips(int(at.y())));
}

SkyStrip::SkyStrip(Scale scale, QWidget* parent) : QWidget(parent), Kind(scale) {}

void SkyStrip::SetBodies(double sun, double moon)
{
    Sun = sun;
    Moon = moon;
    update();
}

double SkyStrip::Px(double degrees) const
{
    const double full = Kind == Scale::Azimuth ? 360.0 : 90.0;
    return std::clamp(degrees / full, 0.0, 1.0) * (width() - 16) + 8;
}

void SkyStrip::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), VbColor(StripBack));
    p.setPen(QPen(Qt::white, 1));
    const int step = Kind == Scale::Azimuth ? 90 : 10;
    for (int d = 0; d <= (Kind == Scale::Azimuth ? 360 : 90); d += step)
        p.drawLine(QPointF(Px(d), height()), QPointF(Px(d), height() - 6));
    // The Sun above the Moon, so that both show when they stand together.
    const bool azimuth = Kind == Scale::Azimuth;
    DrawBody(p, Px(Moon), height() * 0.62, MoonWhite, azimuth || (Moon >= 0.0 && Moon <= 90.0));
    DrawBody(p, Px(Sun), height() * 0.38, SunYellow, azimuth || (Sun >= 0.0 && Sun <= 90.0));
}

DayGraph::DayGraph(Astronomy& engine, Day day, QWidget* parent)
    : QDialog(parent), Engine(engine), Shown(std::move(day))
{
    setWindowTitle(tr("Daily Conditions"));
    setModal(true);
    BuildControls();
    connect(PicTi, &DayTimeLine::PointerMoved, this, &DayGraph::PicTi_MouseMove);
    connect(CloseCmd, &QPushButton::clicked, this, &DayGraph::CloseCmd_Click);
    Form_Load();
}

QLabel* DayGraph::MakeLabel(int index, const QString& text)
{
    return Adopt(index, new QLabel(text, this));
}

QLabel* DayGraph::Adopt(int index, QLabel* label)
{
    label->setObjectName(QString("Label%1").arg(index));
    Label[std::size_t(index)] = label;
    if (index <= 11) {
        label->setMouseTracking(true);
        label->installEventFilter(this);
    }
    return label;
}

void DayGraph::BuildControls()
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildLegend());
    PicTi = new DayTimeLine(this);
    PicTi->setMinimumWidth(LineWidth);
    resize(DesignLineWidth + 2 * layout->contentsMargins().left(), 0);
    PicTi->setFixedHeight(DayTimeLine::BandHeight + fontMetrics().height() + 4);
    layout->addWidget(PicTi);
    QFont bold = font();
    bold.setBold(true);
    auto* moment = new QHBoxLayout;
    moment->addWidget(MakeLabel(0, {}));
    Label[0]->setFont(bold);
    Label[0]->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(QStringLiteral("12:00 PM")));
    moment->addStretch();
    moment->addWidget(MakeLabel(10, tr("Moon's Age:")));
    moment->addWidget(MakeLabel(11, {}));
    Label[11]->setFont(bold);
    Label[11]->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(tr("29 Days")));
    layout->addLayout(moment);
    layout->addLayout(BuildSky());
    CloseCmd = new QPushButton(tr("Close"), this);
    CloseCmd->setToolTip(tr(" Return to Calendar "));
    layout->addWidget(CloseCmd, 0, Qt::AlignRight);
}

// The strips with their scales on the left, the read-outs for Sun and Moon on the right.
QLayout* DayGraph::BuildSky()
{
    PicAZ = new SkyStrip(SkyStrip::Scale::Azimuth, this);
    PicAZ->setToolTip(tr(" Azimuth of Sun and Moon "));
    PicEL = new SkyStrip(SkyStrip::Scale::Elevation, this);
    PicEL->setToolTip(tr(" Each Tick is 10 Degrees of Elevation "));
    for (SkyStrip* strip : {PicAZ, PicEL})
        strip->setMinimumSize(StripWidth, StripHeight);
    Adopt(3,
          new ScaleLabel(QStringLiteral("0                      90                     180        "
                                        "           270               360"),
                         this));
    auto* elevationScale = new QHBoxLayout;
    elevationScale->addWidget(MakeLabel(2, QStringLiteral("0")));
    elevationScale->addStretch();
    elevationScale->addWidget(MakeLabel(1, QStringLiteral("90")));

    auto* grid = new QGridLayout;
    grid->setColumnStretch(0, 1);
    grid->addWidget(new QLabel(tr("Sun"), this), 0, 2);
    grid->addWidget(new QLabel(tr("Moon"), this), 0, 3);
    grid->addWidget(PicAZ, 1, 0);
    grid->addWidget(Label[3], 2, 0);
    grid->addWidget(PicEL, 3, 0);
    grid->addLayout(elevationScale, 4, 0);
    grid->addWidget(MakeLabel(6, tr("Azimuth")), 1, 1);
    grid->addWidget(MakeLabel(7, tr("Elevation")), 3, 1);
    // The read-outs: Sun and Moon azimuth, Sun and Moon elevation.
    const int readout = fontMetrics().horizontalAdvance(DegreesText(-359.9)) + 4;
    for (const auto& [index, row, column] :
         {std::tuple{4, 1, 2}, {5, 1, 3}, {8, 3, 2}, {9, 3, 3}}) {
        grid->addWidget(MakeLabel(index, {}), row, column);
        Label[std::size_t(index)]->setMinimumWidth(readout);
    }
    return grid;
}

// Colour swatches and their names in two rows above the line.
QLayout* DayGraph::BuildLegend()
{
    struct Entry {
        std::uint32_t Colour;
        const char* Name;
    };
    static constexpr std::array<Entry, 7> entries = {{{SunYellow, "Sun"},
                                                      {0xFFC0C0, "Civil Twilight"},
                                                      {0xFF8080, "Nautical Twilight"},
                                                      {0xFF0000, "Astronomical Twilight"},
                                                      {0x0000FF, "Major Times"},
                                                      {0x80FF80, "Minor Times"},
                                                      {0xFFFFFF, "Moon"}}};
    auto* grid = new QGridLayout;
    const int side = fontMetrics().height() - 2;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        QLabel* swatch = MakeLabel(int(14 + 2 * i), {});
        swatch->setFixedSize(side, side);
        swatch->setAutoFillBackground(true);
        swatch->setFrameShape(QFrame::Box);
        QPalette palette = swatch->palette();
        palette.setColor(QPalette::Window, VbColor(entries[i].Colour));
        swatch->setPalette(palette);
        const int row = int(i) / LegendPerRow, column = 2 * (int(i) % LegendPerRow);
        grid->addWidget(swatch, row, column);
        grid->addWidget(MakeLabel(int(15 + 2 * i), QString::fromLatin1(entries[i].Name)), row,
                        column + 1);
    }
    grid->setColumnStretch(2 * LegendPerRow, 1);
    return grid;
}

void DayGraph::Form_Load()
{
    setWindowTitle(windowTitle() + " For " +
                   Q(JdToText(Shown.SelectedJD, Shown.MonthFirstDates).substr(0, 10)));
}

void DayGraph::Form_Activate()
{
    Engine.ComputeSunDay(Shown.SelectedJD);
    Engine.ComputeDay(Shown.SelectedJD);
    Series = DrawTimes(Engine.Forecast, Shown.Marks, SunAltitudesOfDay(Engine, Shown.SelectedJD));
    PicTi->SetSeries(&Series);
    Label[11]->setText(QString::number(Shown.Marks.MoonAge) + " Days");
    // The discs and read-outs open at noon, as if the pointer stood there.
    PicTi_MouseMove(TimeLineWidth / 2, DayPartTipDepth + 1);
}

void DayGraph::GetPicData(double jd)
{
    Sky = ::GetPicData(Engine, jd);
    PicAZ->SetBodies(Sky.SunAzimuth, Sky.MoonAzimuth);
    PicEL->SetBodies(Sky.SunElevation, Sky.MoonElevation);
    Label[4]->setText(DegreesText(Sky.SunAzimuth));
    Label[5]->setText(DegreesText(Sky.MoonAzimuth));
    Label[8]->setText(DegreesText(Sky.SunElevation));
    Label[9]->setText(DegreesText(Sky.MoonElevation));
}

void DayGraph::PicTi_MouseMove(double x, double y)
{
    if (x >= 0.0 && x < TimeLineWidth) {
        const double t = x / TimeLineWidth * 24.0;
        Label[0]->setText(Q(FormatClock(0, t, Shown.AmPm)));
        GetPicData(Shown.SelectedJD + t / 24.0);
    } else {
        Label[0]->clear();
    }
    if (y <= DayPartTipDepth)
        PicTi->setToolTip(Q(DayPartTip(Series, x, Shown.AmPm)));
}

void DayGraph::Label_MouseMove(int index)
{
    Label.at(std::size_t(index))->setToolTip(tr(" Click To Close "));
}

void DayGraph::CloseCmd_Click() { close(); }

void DayGraph::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        Form_Activate();
}

bool DayGraph::eventFilter(QObject* watched, QEvent* event)
{
    const auto it = std::find(Label.begin(), Label.begin() + 12, watched);
    if (it != Label.begin() + 12) {
        if (event->type() == QEvent::MouseMove)
            Label_MouseMove(int(it - Label.begin()));
        else if (event->type() == QEvent::MouseButtonRelease)
            CloseCmd_Click();
    }
    return QDialog::eventFilter(watched, event);
}
