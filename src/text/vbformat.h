// SPDX-License-Identifier: GPL-3.0-or-later
// The Format patterns the program's texts use, written once, with Visual Basic's rules:
// numbers round half away from zero on their 15-digit decimal form (so 1.005 -> "1.01",
// where printf would give "1.00"); '0' forces a digit, '#' shows one only when needed.
#pragma once

#include <string>
#include <string_view>

// Number patterns such as "0#", "000", "##0.#0", "###.00", "#####".
std::string VbFormat(double value, std::string_view pattern);

// Date patterns over a date serial (days since 30 December 1899 0h, the fraction the time of
// day): "mm/dd/yyyy", "hh:mm AMPM", "h:nn AM/PM", "dd/mm/yyyy hh:nn:ss",
// "ddd, mmmm,dd,yyyy", "y" (day of year), "w" (weekday, Sunday 1), "m" (month).
std::string VbFormatDate(double serial, std::string_view pattern);
