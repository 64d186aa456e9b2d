// SPDX-License-Identifier: GPL-3.0-or-later
// Sizes given in twips (1/1440 inch, 15 to a pixel at 96 dpi) and colours given as
// 0x00BBGGRR, converted in one place.
#pragma once

#include <QColor>

#include <cmath>
#include <cstdint>

constexpr int TwipsPerPixel = 15;

inline int Twips(double twips) { return static_cast<int>(std::lround(twips / TwipsPerPixel)); }
constexpr int PixelsToTwips(int pixels) { return pixels * TwipsPerPixel; }

// 0x00BBGGRR -> QColor (white 16777215, light grey 0xC0C0C0).
inline QColor VbColor(std::uint32_t bgr)
{
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}
inline std::uint32_t ToVbColor(const QColor& c)
{
    return std::uint32_t(c.red()) | std::uint32_t(c.green()) << 8 | std::uint32_t(c.blue()) << 16;
}
