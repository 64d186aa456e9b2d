// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/calendarpage.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/qtext.h"
#include "pages/pages.h"
#include "pages/stockpictures.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <array>

const char* const CalendarPageHeader =
    "        Sun               Mon               Tue              Wed                Thu       "
    "        Fri                   Sat";

namespace {
constexpr double PrintScale = 1.2;
const QString PageFont = QStringLiteral("Arial");

// Offsets inside a box, in twips.
constexpr double Inset = 50, PictureSize = 330, FishWidth = 680, FishHeight = 280;
constexpr double FishTop = 330, MajorsTop = 600, MinorsTop = 800;

// Each weekday's name centred over its column, whatever the font.
void DrawHeader(QPainter& p)
{
    const QStringList names =
        QString::fromLatin1(CalendarPageHeader).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < int(names.size()); ++i)
        p.drawText(QRectF(i * CalendarBoxWidth, 0, CalendarBoxWidth, CalendarHeaderHeight),
                   Qt::AlignHCenter | Qt::AlignVCenter, names[i]);
}

void DrawBox(QPainter& p, const CalendarPageBox& b)
{
    const QRectF box(b.Column * CalendarBoxWidth, CalendarHeaderHeight + b.Row * CalendarBoxHeight,
                     CalendarBoxWidth, CalendarBoxHeight);
    p.setPen(QPen(Qt::black, 15));
    p.setBrush(Qt::NoBrush);
    p.drawRect(box);
    if (b.PhaseSymbol > 0)
        PaintPhase(
            p,
            QRectF(box.right() - Inset - PictureSize, box.top() + Inset, PictureSize, PictureSize),
            b.PhaseSymbol);
    if (b.Rating > 0)
        PaintFish(p, QRectF(box.left() + Inset, box.top() + FishTop, FishWidth, FishHeight),
                  b.Rating);
    p.setFont(TwipsFont(PageFont, 10, true));
    p.drawText(QRectF(box.left() + Inset, box.top() + Inset, 600, 280),
               Qt::AlignLeft | Qt::AlignTop, QString::number(b.Day));
    p.setFont(TwipsFont(PageFont, 7, false));
    const QRectF line(box.left() + Inset, 0, CalendarBoxWidth - 2 * Inset, 200);
    p.drawText(line.translated(0, box.top() + MajorsTop), Qt::AlignLeft | Qt::AlignTop,
               Q(b.Majors));
    p.drawText(line.translated(0, box.top() + MinorsTop), Qt::AlignLeft | Qt::AlignTop,
               Q(b.Minors));
}
} // namespace

CalendarPage CalendarPageOf(Astronomy& engine, const Calendar& cal, std::int16_t southernHemisphere)
{
    CalendarPage page;
    page.Title = std::string(MonthNames[std::size_t(cal.CurMonth)]) + "  " + " " +
                 std::to_string(cal.CurYear);
    const DayForecast& f = engine.Forecast;
    const double monthStart = cal.MonthStartJD[std::size_t(cal.CurMonth)];
    for (int d = 1; d <= cal.MonthDays; ++d) {
        CalendarPageBox b;
        const int cell = cal.FirstWeekday + d - 1;
        b.Day = d;
        b.Row = cell / 7;
        b.Column = cell % 7;
        const DayMarks& r =
            cal.YearDays[std::size_t(cal.MonthStartDoy[std::size_t(cal.CurMonth)] + d - 1)];
        if (r.Phase >= 1 && r.Phase <= 4)
            b.PhaseSymbol = HemispherePhaseSymbol(r.Phase, southernHemisphere == -1);
        if (r.Rating >= 1 && r.Rating <= 4)
            b.Rating = r.Rating;
        engine.ComputeDay(monthStart + d - 1);
        b.Majors = ShortClock(f.Major1Text) + "/" + ShortClock(f.Major2Text);
        b.Minors = ShortClock(f.Minor1Text) + "/" + ShortClock(f.Minor2Text);
        page.Boxes.push_back(std::move(b));
        page.Rows = cell / 7 + 1;
    }
    return page;
}

// The fish of ratings 4 down to 1 with their words, right-aligned within the line.
void DrawRatingLegend(QPainter& p, const QRectF& line)
{
    static constexpr std::array<const char*, 4> Words = {"Best", "V.Good", "Good", "Fair"};
    constexpr double LegendFishWidth = 450, LegendFishHeight = 190, Space = 80;
    p.setFont(TwipsFont(PageFont, 9, false));
    const QFontMetricsF metrics(p.font());
    double width = 0;
    for (const char* word : Words)
        width +=
            LegendFishWidth + Space + metrics.horizontalAdvance(QLatin1String(word)) + 2 * Space;
    double x = line.right() - width;
    for (std::size_t k = 0; k < Words.size(); ++k) {
        PaintFish(
            p,
            QRectF(x, line.center().y() - LegendFishHeight / 2, LegendFishWidth, LegendFishHeight),
            int(Words.size() - k));
        x += LegendFishWidth + Space;
        const QString word = QLatin1String(Words[k]);
        p.drawText(QRectF(x, line.top(), metrics.horizontalAdvance(word) + Space, line.height()),
                   Qt::AlignLeft | Qt::AlignVCenter, word);
        x += metrics.horizontalAdvance(word) + 2 * Space;
    }
}

void DrawCalendarPage(QPainter& p, const CalendarPage& page)
{
    p.save();
    p.setPen(Qt::black);
    p.setFont(TwipsFont(PageFont, 10, true));
    DrawHeader(p);
    for (const CalendarPageBox& b : page.Boxes)
        DrawBox(p, b);
    p.setPen(Qt::black);
    const QRectF foot(0, CalendarHeaderHeight + 6 * CalendarBoxHeight + 100,
                      CalendarPageTwips.width(), 500);
    p.setFont(TwipsFont(PageFont, 16, true));
    p.drawText(foot, Qt::AlignHCenter | Qt::AlignVCenter, Q(page.Title));
    const QRectF under(0, foot.bottom(), foot.width(), CalendarLegendHeight);
    p.setFont(TwipsFont(PageFont, 10, false));
    p.drawText(under, Qt::AlignLeft | Qt::AlignVCenter, Q(page.Place));
    DrawRatingLegend(p, under);
    p.restore();
}

PageDrawing CalendarPageDrawing(CalendarPage page)
{
    return [page = std::move(page)](QPainter& p, const QRectF& area, int) {
        PlaceTwips(p, area, CalendarPageTwips, PrintScale);
        DrawCalendarPage(p, page);
        return false;
    };
}
