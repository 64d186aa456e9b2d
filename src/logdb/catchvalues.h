// SPDX-License-Identifier: GPL-3.0-or-later
// The angler's catch entries as the log keeps them: Total Taken is a whole number of fish
// from 0 to 100, Peak Time a time of day written as the browser's hour list writes it
// ("7:00 AM"), Taken With and Notes text. The record browser and the import read what was
// typed with these rules, so both keep the same values and refuse the same ones.
#pragma once

#include <QString>
#include <QVariant>

#include <optional>

inline constexpr int MostTaken = 100;

// The value to store in the catch column (TotalTaken, TakenWith, PeakTime, Notes) for the
// typed text: NULL for a blank entry, the number, the time in the list's form, or the text
// as typed. Nothing when the text cannot be kept; `why` then says so, quoting it:
// "\"150\" is not a whole number from 0 to 100".
std::optional<QVariant> CatchValue(const QString& column, const QString& typed, QString& why);
