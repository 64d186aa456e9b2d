// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/plaintexts.h"

#include <QCoreApplication>

#include <array>
#include <string>

namespace {
constexpr const char* Context = "PlainTexts";

// The plain layers' texts a window shows, named here so that lupdate extracts them into the
// translations: month names (calendar), the day panel's captions (viewrules), the record
// browser's conditions and orders (logdb).
[[maybe_unused]] constexpr std::array Sources = {
    QT_TRANSLATE_NOOP("PlainTexts", "January"),
    QT_TRANSLATE_NOOP("PlainTexts", "February"),
    QT_TRANSLATE_NOOP("PlainTexts", "March"),
    QT_TRANSLATE_NOOP("PlainTexts", "April"),
    QT_TRANSLATE_NOOP("PlainTexts", "May"),
    QT_TRANSLATE_NOOP("PlainTexts", "June"),
    QT_TRANSLATE_NOOP("PlainTexts", "July"),
    QT_TRANSLATE_NOOP("PlainTexts", "August"),
    QT_TRANSLATE_NOOP("PlainTexts", "September"),
    QT_TRANSLATE_NOOP("PlainTexts", "October"),
    QT_TRANSLATE_NOOP("PlainTexts", "November"),
    QT_TRANSLATE_NOOP("PlainTexts", "December"),
    QT_TRANSLATE_NOOP("PlainTexts", "Rise"),
    QT_TRANSLATE_NOOP("PlainTexts", "Set"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon is Up"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon has Set"),
    QT_TRANSLATE_NOOP("PlainTexts", " Length of day, Sunrise to Sunset "),
    // The record browser's conditions, orders and day selections (logdb).
    QT_TRANSLATE_NOOP("PlainTexts", "Months Between"),
    QT_TRANSLATE_NOOP("PlainTexts", "(1 - 12)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Major1 Between"),
    QT_TRANSLATE_NOOP("PlainTexts", "Days of Week"),
    QT_TRANSLATE_NOOP("PlainTexts", "(1-7, 1=Sun..7=Sat)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon Age"),
    QT_TRANSLATE_NOOP("PlainTexts", "(1-29)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Illumination Percent Between"),
    QT_TRANSLATE_NOOP("PlainTexts", "(Moon illumination 1-100)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Daylight Hours >"),
    QT_TRANSLATE_NOOP("PlainTexts", "(Greater than 1-14)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Best Fishing Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Very Good Fishing Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Either Major Between"),
    QT_TRANSLATE_NOOP("PlainTexts", "Total Taken >="),
    QT_TRANSLATE_NOOP("PlainTexts", "(Greater than or equal to)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon Waxing"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon Waning"),
    QT_TRANSLATE_NOOP("PlainTexts", "Moon At Perigee"),
    QT_TRANSLATE_NOOP("PlainTexts", "All Rated Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Date"),
    QT_TRANSLATE_NOOP("PlainTexts", "Major1"),
    QT_TRANSLATE_NOOP("PlainTexts", "Day of Week"),
    QT_TRANSLATE_NOOP("PlainTexts", "Rated Fishing Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Total Taken"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sorted by Date"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sorted by Major1"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sorted by Day of Week"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sorted by Fish Rating"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sorted by Total Taken"),
    QT_TRANSLATE_NOOP("PlainTexts", "Apogee Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Perigee Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Day before/after and Perigee"),
    QT_TRANSLATE_NOOP("PlainTexts", "Weekends (Friday and Saturday)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Weekends(Saturday and Sunday)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Weekends(Friday - Sunday)"),
    QT_TRANSLATE_NOOP("PlainTexts", "Week Days"),
    QT_TRANSLATE_NOOP("PlainTexts", "Sundays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Mondays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Tuesdays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Wednesdays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Thursdays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Fridays"),
    QT_TRANSLATE_NOOP("PlainTexts", "Saturdays"),
};
} // namespace

QString PlainText(std::string_view text)
{
    return QCoreApplication::translate(Context, std::string(text).c_str());
}
