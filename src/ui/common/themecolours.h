// SPDX-License-Identifier: GPL-3.0-or-later
// The windows' colours were chosen for a light desktop. On a dark Qt palette they are carried
// over so that they read: backgrounds darkened (keeping their hue), texts lightened, black
// text the palette's own. On a light palette they stay as they are.
#pragma once

#include <QColor>
#include <QPalette>

// True when the palette's base (the background of lists and fields) is dark.
bool DarkPalette(const QPalette& palette);

// A background colour of the light design, for this palette.
QColor ThemedBackground(const QColor& light, const QPalette& palette);

// A text or line colour of the light design, for this palette.
QColor ThemedText(const QColor& light, const QPalette& palette);
