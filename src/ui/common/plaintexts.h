// SPDX-License-Identifier: GPL-3.0-or-later
// The texts the plain C++ layers (calendar, viewrules) hand the windows, in the user's
// language. Those layers cannot use Qt, so their texts are translated where a window shows
// them, under the one context "PlainTexts"; plaintexts.cpp lists them for lupdate.
#pragma once

#include <QString>

#include <string_view>

// The translation of `text`; a text without one (a clock time, a number) comes back as it is.
QString PlainText(std::string_view text);
