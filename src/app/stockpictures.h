// The program's own small pictures: the rating fish of the month grid and the status bar,
// and the four moon-phase symbols.
#pragma once

#include <QPixmap>

// A quarter, half, three-quarter or whole fish for ratings 1..4.
QPixmap FishPicture(int rating);

// Moon-phase symbols as the northern sky shows them: 1 new, 2 first quarter (lit on the
// right), 3 full, 4 last quarter (lit on the left).
QPixmap PhaseSymbol(int phase);
