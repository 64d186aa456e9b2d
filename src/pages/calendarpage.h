// SPDX-License-Identifier: GPL-3.0-or-later
// The printed month calendar: a page of day boxes with each day's phase and rating pictures,
// its number and its majors and minors. What goes in each box is worked out first, without
// Qt; the drawing then paints it in twips on any painter (the print window's preview, a
// printer, a PDF file).
#pragma once

#include "pages/pages.h"

#include <QSizeF>

#include <cstdint>
#include <string>
#include <vector>

class Astronomy;
class Calendar;
class QPainter;

struct CalendarPageBox {
    int Day = 0;
    int Row = 0, Column = 0; // grid position, Sunday in column 0
    int PhaseSymbol = 0;     // the picture to paint, hemisphere applied (stockpictures), 0 none
    int Rating = 0;          // 1..4, 0 none
    std::string Majors;      // "6:05 P/6:31 A"
    std::string Minors;
};

struct CalendarPage {
    std::string Title; // "February   2024"
    std::string Place; // the location's name, printed beside the title
    int Rows = 0;
    std::vector<CalendarPageBox> Boxes;
};

// The weekday header printed above the boxes.
extern const char* const CalendarPageHeader;
// Box size and the header's height, in twips.
constexpr int CalendarBoxWidth = 1325, CalendarBoxHeight = 1000, CalendarHeaderHeight = 450;
constexpr int CalendarLegendHeight = 350; // the line of the place and the rating legend
// The page's drawing is always this large (six rows, and below them the place, the title and
// the rating legend), so that every month prints at the same scale.
const QSizeF CalendarPageTwips(7 * CalendarBoxWidth, CalendarHeaderHeight + 6 * CalendarBoxHeight +
                                                         650 + CalendarLegendHeight);

// The month `cal` shows (its year tables set for CurMonth and CurYear), with each day's
// forecast computed by the engine at its observer; southernHemisphere is -1 in the south.
CalendarPage CalendarPageOf(Astronomy& engine, const Calendar& cal,
                            std::int16_t southernHemisphere);

// Paints the page in twips with its top-left corner at the painter's origin.
void DrawCalendarPage(QPainter& painter, const CalendarPage& page);

// The page for printing: 1.2 times the drawing's true size, smaller only where the paper's
// printable area is smaller; landscape.
PageDrawing CalendarPageDrawing(CalendarPage page);
constexpr QPageLayout::Orientation CalendarPageOrientation = QPageLayout::Landscape;
