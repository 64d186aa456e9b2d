// SPDX-License-Identifier: GPL-3.0-or-later
// The month at a glance: the month's lunar events on one time line, with the days along the
// bottom, the principal phases on tall stems, perigee and apogee on middle stems and the
// greatest declinations on short ones. The chart's layout is worked out first, without Qt;
// the drawing paints it in twips on any painter (the window, a printer, a PDF file).
#pragma once

#include "pages/pages.h"

#include <cstdint>
#include <string>
#include <vector>

class Calendar;
class QPainter;

// The chart's picture in the window, in twips.
constexpr double GlancePictureWidth = 9600, GlancePictureHeight = 2400;

struct TwipsBox {
    double Left = 0, Top = 0, Width = 0, Height = 0;
    double Bottom() const { return Top + Height; }
};

struct GlanceStem {
    double X = 0, Top = 0; // the stem runs from the axis up to Top
    int PhaseSymbol = 0;   // the picture above a phase stem (stockpictures), else 0
    TwipsBox Picture;      // where that picture goes
    std::string Label;     // "Perigee", "Apogee", "Max N Decl.", "Max S Decl." or empty
    TwipsBox LabelBox;     // the label's text: beside the stem, clear of the other stems
};

struct GlanceDay {
    int Day = 0;
    double X = 0; // the day's position; its number is printed at (X, axis)
    std::vector<GlanceStem> Stems;
};

struct GlanceChart {
    std::string Title; // "Lunar Events for Feb/2024"
    std::string Place; // the location's name, printed after the title
    double Width = 0, Height = 0, Axis = 0;
    std::vector<GlanceDay> Days;
};

// The chart of the month `cal` shows (its year tables set for CurMonth and CurYear) on a
// picture `width` by `height` twips; southernHemisphere is -1 in the south.
GlanceChart GlanceChartOf(const Calendar& cal, std::int16_t southernHemisphere, double width,
                          double height);

// Paints the chart in twips with its top-left corner at the painter's origin.
void DrawGlanceChart(QPainter& painter, const GlanceChart& chart);

// The printed page: the title line, then the chart 200 twips below the top at 1.3 times its
// size (smaller only where the paper is smaller); landscape.
PageDrawing GlanceChartDrawing(GlanceChart chart);
constexpr QPageLayout::Orientation GlanceChartOrientation = QPageLayout::Landscape;
