// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own small pictures: the rating fish of the month grid and the status bar,
// and the four moon-phase symbols. Each is painted at any size, so printed pages stay sharp.
#pragma once

#include <QPixmap>

class QPainter;

// A quarter, half, three-quarter or whole fish for ratings 1..4.
QPixmap FishPicture(int rating);
void PaintFish(QPainter& painter, const QRectF& box, int rating);

// Moon-phase symbols as the northern sky shows them: 1 new, 2 first quarter (lit on the
// right), 3 full, 4 last quarter (lit on the left).
QPixmap PhaseSymbol(int phase);
void PaintPhase(QPainter& painter, const QRectF& box, int phase);

// The symbol that shows `phase` (1..4) in the hemisphere: the south sees the quarters lit on
// the other side.
int HemispherePhaseSymbol(int phase, bool southern);
