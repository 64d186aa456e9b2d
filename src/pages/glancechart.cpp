#include "pages/glancechart.h"

#include "calendar/calendar.h"
#include "db/qtext.h"
#include "pages/pages.h"
#include "pages/stockpictures.h"

#include <QPainter>

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

GlanceStem Labelled(double x, double axis, double height, const char* label, double left,
                    double above)
{
    GlanceStem s = Stem(x, axis, height);
    s.Label = label;
    s.LabelBox = {s.X - left, s.Top - above, 0, LineHeight};
    return s;
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
            day.Stems.push_back(Labelled(day.X, chart.Axis, PerigeeStem, "Apogee", 350, 150));
        else if (r.Perigee == 1)
            day.Stems.push_back(Labelled(day.X, chart.Axis, PerigeeStem, "Perigee", 300, 150));
        if (r.Declination == 2 || r.Declination == 1)
            day.Stems.push_back(Labelled(day.X, chart.Axis, DeclinationStem,
                                         r.Declination == 2 ? "Max S Decl." : "Max N Decl.", 350,
                                         175));
        chart.Days.push_back(std::move(day));
    }
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
                   Q(chart.Title));
        p.translate(0, PictureBelowTop);
        DrawGlanceChart(p, chart);
        return false;
    };
}
