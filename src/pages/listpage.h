// SPDX-License-Identifier: GPL-3.0-or-later
// The monthly data list on paper: its printed lines in "Times New Roman" bold 12, as many to
// a page as fit.
#pragma once

#include "pages/pages.h"

#include <string>
#include <vector>

// All the printed lines, as many pages as they need.
PageDrawing ListDrawing(std::vector<std::string> printed);

// Paints the lines from `first` on into `area` (device units); returns the index of the first
// line that did not fit, or lines.size() when all did.
std::size_t DrawListPage(QPainter& painter, const QRectF& area,
                         const std::vector<std::string>& lines, std::size_t first);
