// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/glancechart.h"

#include "calendar/calendar.h"
#include "db/qtext.h"
#include "pages/pages.h"
#include "pages/stockpictures.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {
constexpr double AxisAboveBottom = 300, StemRight = 100, Tick = 100, LineHeight = 200;
constexpr double PhaseStem = 1100, PerigeeStem = 700, DeclinationStem = 400;
constexpr double PictureWidth = 400, PictureHeight = 300;
constexpr double PrintScale = 1.3, PictureBelowTop = 200, TitleLine = 280;

GlanceStem Stem(double x, double axis, double height)
{
    GlanceStem s;
    s.X = x + StemRight;
    s.Top = axis - height;
    return s;
}

constexpr double LabelGap = 40, LabelPoints = 8;

GlanceStem Labelled(double x, double axis, double height, const char* label, double above)
{
    GlanceStem s = Stem(x, axis, height);
    s.Label = label;
    const QFontMetricsF metrics(TwipsFont(QStringLiteral("Arial"), LabelPoints, false));
    s.LabelBox = {s.X + LabelGap, s.Top - above,
                  metrics.horizontalAdvance(QString::fromLatin1(label)), LineHeight};
    return s;
}

bool Overlap(const TwipsBox& a, const TwipsBox& b)
{
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Bottom() &&
           b.Top < a.Bottom();
}

// What a label must keep clear of: every stem but its own (as a line from the axis up), every
// phase picture and the labels placed before it.
std::vector<TwipsBox> Obstacles(const GlanceChart& chart, const GlanceStem* own)
{
    std::vector<TwipsBox> boxes;
    bool placedBefore = true; // the labels before own's are placed; the later ones are not yet
    for (const GlanceDay& day : chart.Days)
        for (const GlanceStem& s : day.Stems) {
            if (&s == own) {
                placedBefore = false;
                continue;
            }
            boxes.push_back({s.X - LabelGap / 2, s.Top, LabelGap, chart.Axis - s.Top});
            if (s.PhaseSymbol > 0)
                boxes.push_back(s.Picture);
            if (!s.Label.empty() && placedBefore)
                boxes.push_back(s.LabelBox);
        }
    return boxes;
}

bool Clear(const TwipsBox& box, const std::vector<TwipsBox>& obstacles)
{
    return std::none_of(obstacles.begin(), obstacles.end(),
                        [&box](const TwipsBox& o) { return Overlap(box, o); });
}

// A label stands beside its stem's top, on the right or else on the left; where both sides
// are crossed by a neighbour's stem or picture it rises above them, its stem with it.
void PlaceLabel(const GlanceChart& chart, GlanceStem& s)
{
    const std::vector<TwipsBox> obstacles = Obstacles(chart, &s);
    TwipsBox box = s.LabelBox;
    if (Clear(box, obstacles))
        return;
    box.Left = s.X - LabelGap - box.Width;
    if (Clear(box, obstacles)) {
        s.LabelBox = box;
        return;
    }
    box.Left = s.LabelBox.Left;
    for (const TwipsBox& o : obstacles)
        if (o.Left < box.Left + box.Width && box.Left < o.Left + o.Width)
            box.Top = std::min(box.Top, o.Top - box.Height);
    box.Top = std::max(0.0, box.Top);
    s.LabelBox = box;
    s.Top = std::min(s.Top, box.Top + box.Height / 2);
}

} // namespace

GlanceChart GlanceChartOf(const Calendar& cal, std::int16_t southernHemisphere, double width,
                          double height)
{
    GlanceChart chart;
    chart.Title =
        "Lunar Events for " + MonthAbbrev(cal.CurMonth) + "/" + std::to_string(cal.CurYear);
    chart.Width = width;
    chart.Height = height;
    chart.Axis = height - AxisAboveBottom;
    const int n = cal.MonthDays;
    const double w = width / n - 20;
    const int first = cal.MonthStartDoy[std::size_t(cal.CurMonth)];
    for (int d = 1; d <= n; ++d) {
        const DayMarks& r = cal.YearDays[std::size_t(first + d - 1)];
        GlanceDay day;
        day.Day = d;
        day.X = d * w;
        if (r.Phase >= 1 && r.Phase <= 4) {
            GlanceStem s = Stem(day.X, chart.Axis, PhaseStem);
            s.PhaseSymbol = HemispherePhaseSymbol(r.Phase, southernHemisphere == -1);
            s.Picture = {s.X - 200, s.Top - 300, PictureWidth, PictureHeight};
            day.Stems.push_back(s);
        }
        if (r.Perigee == 2)
            day.Stems.push_back(Labelled(day.X, chart.Axis, PerigeeStem, "Apogee", 150));
        else if (r.Perigee == 1)
            day.Stems.push_back(Labelled(day.X, chart.Axis, PerigeeStem, "Perigee", 150));
        if (r.Declination == 2 || r.Declination == 1)
            day.Stems.push_back(Labelled(day.X, chart.Axis, DeclinationStem,
                                         r.Declination == 2 ? "Max S Decl." : "Max N Decl.", 175));
        chart.Days.push_back(std::move(day));
    }
    for (GlanceDay& day : chart.Days)
        for (GlanceStem& s : day.Stems)
            if (!s.Label.empty())
                PlaceLabel(chart, s);
    return chart;
}

void DrawGlanceChart(QPainter& p, const GlanceChart& chart)
{
    p.save();
    p.setPen(QPen(Qt::black, 15));
    p.setFont(TwipsFont(QStringLiteral("Arial"), 8, false));
    p.drawLine(QPointF(0, chart.Axis), QPointF(chart.Width, chart.Axis));
    for (const GlanceDay& day : chart.Days) {
        for (const GlanceStem& s : day.Stems) {
            p.drawLine(QPointF(s.X, chart.Axis), QPointF(s.X, s.Top));
            if (s.PhaseSymbol > 0) {
                // The symbol is square; it sits centred in its box, on the stem's top.
                const TwipsBox& b = s.Picture;
                PaintPhase(p, QRectF(b.Left + (b.Width - b.Height) / 2, b.Top, b.Height, b.Height),
                           s.PhaseSymbol);
            }
            if (!s.Label.empty())
                p.drawText(QRectF(s.LabelBox.Left, s.LabelBox.Top, 2000, s.LabelBox.Height),
                           Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, Q(s.Label));
        }
        const double tickX = day.X + StemRight;
        p.drawLine(QPointF(tickX, chart.Axis), QPointF(tickX, chart.Axis - Tick));
        p.drawText(QRectF(day.X, chart.Axis + 20, 400, LineHeight),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, QString::number(day.Day));
    }
    p.restore();
}

PageDrawing GlanceChartDrawing(GlanceChart chart)
{
    return [chart = std::move(chart)](QPainter& p, const QRectF& area, int) {
        PlaceTwips(p, area, QSizeF(chart.Width, PictureBelowTop + chart.Height), PrintScale);
        p.setFont(TwipsFont(QStringLiteral("Arial"), 10, false));
        p.drawText(QRectF(0, TitleLine, chart.Width, TitleLine), Qt::AlignLeft | Qt::AlignTop,
                   Q(chart.Place.empty() ? chart.Title : chart.Title + "  " + chart.Place));
        p.translate(0, PictureBelowTop);
        DrawGlanceChart(p, chart);
        return false;
    };
}
