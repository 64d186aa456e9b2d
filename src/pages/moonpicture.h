// SPDX-License-Identifier: GPL-3.0-or-later
// The Moon's phase picture: a disc lit at the illuminated percentage on the side the phase
// puts it, the percentage written on it in red, and, for the main window, the same picture
// turned by the parallactic angle so that it shows the Moon as it stands in the sky.
#pragma once

#include "model/settings.h"

#include <QImage>

#include <array>
#include <cstdint>
#include <optional>

// Aspect (vertical over horizontal) minus 1 of the terminator ellipse, by shape number 0..50.
extern const std::array<double, 51> TerminatorAspect;

// What the picture shows.
struct MoonLook {
    std::int16_t IllumPercent = 0;              // 0..100
    std::int16_t Waxing = 0;                    // 1 waxing, 0 waning
    std::int16_t SouthernHemisphere = 0;        // -1 south of the equator: the lit side swaps
    std::uint32_t MoonColor = DefaultMoonColor; // the lit part, 0x00BBGGRR
    std::uint32_t BackColor = 0xC0C0C0;         // the picture box behind the disc
    // When set, no box: the picture is transparent around the disc and the disc's rim takes
    // this colour, so that a disc of any colour shows on any background.
    std::optional<std::uint32_t> Rim;
};

// The main window's turned view; the log browser has none.
struct MoonTurn {
    double MoonAltitude = 0.0;         // radians; below 0 the turned view is hidden
    double MoonParallacticAngle = 0.0; // radians
    bool ParallacticAngle = false;     // the "Parallactic On" option
    QSize ToPictSize;
};

struct MoonPictures {
    QImage PicM;
    QImage ToPict; // null when the turned view is hidden
};

// The disc alone: black outline (or Rim) and dark part, lit part in MoonColor, on BackColor
// (or transparent).
QImage DrawMoonDisc(QSize size, const MoonLook& look);

// The disc with the percentage, and the turned view when asked for and the Moon is up.
MoonPictures DrawMoon(QSize picSize, const MoonLook& look, const std::optional<MoonTurn>& turn);

// Copies the source rectangle x1 <= x < x2, y1 <= y < y2 turned by angle (radians) about the
// source point (cx, cy) so that it lands on (dx, dy) of the target, pixel by pixel. Target
// row 0 and column 0 are never written; target pixels that map outside the rectangle keep
// their colour. Both images hold 32-bit pixels (RGB32 or ARGB32).
void RotatePicture(const QImage& source, QImage& target, double angle, int x1, int y1, int x2,
                   int y2, int cx, int cy, int dx, int dy);

// Fills the 4-connected region around seed with fill, up to pixels of the border colour, in
// an image of 32-bit pixels (RGB32 or ARGB32).
void FloodFill(QImage& image, QPoint seed, QRgb fill, QRgb border);
