// SPDX-License-Identifier: GPL-3.0-or-later
// The clipping check of the window tests: every text a window shows in less than its whole
// width or height, and every visible child that lies outside its parent or its window.
#pragma once

#include <QFont>
#include <QStringList>
#include <QWidget>

namespace layoutcheck {

// One line per fault ("QLabel Label3 'Record: 1 of 2': needs 120 px, has 80 px"); empty when
// the shown window shows every text whole. Combo box items are measured in the open popup.
QStringList ClippedItems(QWidget& window);

// The application font as it would be at the given dots per inch (the offscreen platform has
// a fixed 96): the point size scaled by dpi / 96.
QFont FontAtDpi(const QFont& font96, int dpi);

} // namespace layoutcheck
