#include "ui/views/daygraph.h"

#include "astro/astronomy.h"
#include "db/qtext.h"
#include "pages/twips.h"
#include "text/vbformat.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace {
constexpr std::uint32_t Night = 0x400000, SunYellow = 65535, MoonWhite = 0xFFFFFF;
constexpr std::uint32_t StripBack = 0x603010, TickRed = 0x0000FF;
constexpr int Left = 16, LineWidth = 728, StripWidth = 520;

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
    // The day's events in boxes across the upper middle of the line.
    p.setFont(font());
    double x = 8;
    for (const std::string& e : s.EventTexts) {
        const QString t = Q(e);
        const QRectF box(x, h * 0.34, p.fontMetrics().horizontalAdvance(t) + 8,
                         p.fontMetrics().height() + 2);
        p.fillRect(box, Qt::white);
        p.drawRect(box);
        p.drawText(box, Qt::AlignCenter, t);
        x = box.right() + 8;
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
    setWindowTitle(QStringLiteral("Daily Conditions"));
    setModal(true);
    BuildControls();
    connect(PicTi, &DayTimeLine::PointerMoved, this, &DayGraph::PicTi_MouseMove);
    connect(CloseCmd, &QPushButton::clicked, this, &DayGraph::CloseCmd_Click);
    Form_Load();
}

QLabel* DayGraph::MakeLabel(int index, const QString& text, const QRect& geometry)
{
    return Adopt(index, new QLabel(text, this), geometry);
}

QLabel* DayGraph::Adopt(int index, QLabel* label, const QRect& geometry)
{
    label->setObjectName(QString("Label%1").arg(index));
    label->setGeometry(geometry);
    Label[std::size_t(index)] = label;
    if (index <= 11) {
        label->setMouseTracking(true);
        label->installEventFilter(this);
    }
    return label;
}

void DayGraph::BuildControls()
{
    BuildLegend();
    PicTi = new DayTimeLine(this);
    PicTi->setGeometry(Left, 34, LineWidth, DayTimeLine::BandHeight + 18);
    QFont bold = font();
    bold.setBold(true);
    MakeLabel(0, {}, {Left, 158, 120, 20})->setFont(bold);
    MakeLabel(10, QStringLiteral("Moon's Age:"), {Left + LineWidth - 170, 158, 90, 20});
    MakeLabel(11, {}, {Left + LineWidth - 80, 158, 80, 20})->setFont(bold);

    const int readX = Left + StripWidth + 24;
    constexpr int azY = 204, elY = 258;
    MakeLabel(6, QStringLiteral("Azimuth"), {readX, azY + 4, 70, 20});
    MakeLabel(7, QStringLiteral("Elevation"), {readX, elY + 4, 70, 20});
    auto* sunHead = new QLabel(QStringLiteral("Sun"), this);
    sunHead->setGeometry(readX + 76, azY - 22, 60, 18);
    auto* moonHead = new QLabel(QStringLiteral("Moon"), this);
    moonHead->setGeometry(readX + 140, azY - 22, 60, 18);

    PicAZ = new SkyStrip(SkyStrip::Scale::Azimuth, this);
    PicAZ->setGeometry(Left, azY, StripWidth, 28);
    PicAZ->setToolTip(QStringLiteral(" Azimuth of Sun and Moon "));
    Adopt(3,
          new ScaleLabel(QStringLiteral("0                      90                     180        "
                                        "           270               360"),
                         this),
          {Left, azY + 28, StripWidth, 16});
    PicEL = new SkyStrip(SkyStrip::Scale::Elevation, this);
    PicEL->setGeometry(Left, elY, StripWidth, 28);
    PicEL->setToolTip(QStringLiteral(" Each Tick is 10 Degrees of Elevation "));
    MakeLabel(2, QStringLiteral("0"), {Left + 4, elY + 28, 30, 16});
    MakeLabel(1, QStringLiteral("90"), {Left + StripWidth - 24, elY + 28, 20, 16})
        ->setAlignment(Qt::AlignRight);

    // The read-outs: Sun and Moon azimuth, Sun and Moon elevation.
    MakeLabel(4, {}, {readX + 76, azY + 4, 62, 20});
    MakeLabel(5, {}, {readX + 140, azY + 4, 62, 20});
    MakeLabel(8, {}, {readX + 76, elY + 4, 62, 20});
    MakeLabel(9, {}, {readX + 140, elY + 4, 62, 20});

    CloseCmd = new QPushButton(QStringLiteral("Close"), this);
    CloseCmd->setGeometry(Left + LineWidth - 90, 312, 90, 28);
    CloseCmd->setToolTip(QStringLiteral(" Return to Calendar "));
    setFixedSize(Left * 2 + LineWidth, 352);
}

// Colour swatches and their names in one row above the line.
void DayGraph::BuildLegend()
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
    int x = Left;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        QLabel* swatch = MakeLabel(int(14 + 2 * i), {}, {x, 10, 14, 14});
        swatch->setAutoFillBackground(true);
        swatch->setFrameShape(QFrame::Box);
        QPalette palette = swatch->palette();
        palette.setColor(QPalette::Window, VbColor(entries[i].Colour));
        swatch->setPalette(palette);
        const QString name = QString::fromLatin1(entries[i].Name);
        const int w = fontMetrics().horizontalAdvance(name) + 4;
        MakeLabel(int(15 + 2 * i), name, {x + 18, 8, w, 18});
        x += 18 + w + 12;
    }
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
    Label.at(std::size_t(index))->setToolTip(QStringLiteral(" Click To Close "));
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
