// SPDX-License-Identifier: GPL-3.0-or-later
// What the program learns from the computer at start: the daylight bias of its time zone and
// the order and separator of its short dates.
#pragma once

#include <QString>

struct DateOrder {
    bool MonthFirstDates = true;
    QChar DateSeparator = QLatin1Char('/');
};

// The computer's daylight bias in minutes (normally -60). A zone without daylight saving
// reports -60 too, so that choosing "Daylight Savings" still means one hour.
int SystemDaylightBias();

// The date order read from the short-date text of 31 December 1997: "31..." is day first,
// anything else month first; the separator is its third character. A short date that is not
// numeric ("31 Dec 1997" under the C locale) counts as month first with "/".
DateOrder DateOrderFromShortDate(const QString& text);
DateOrder SystemDateOrder();
