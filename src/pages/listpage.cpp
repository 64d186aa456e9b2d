// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/listpage.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

std::size_t DrawListPage(QPainter& p, const QRectF& area, const std::vector<std::string>& lines,
                         std::size_t first)
{
    QFont font(QStringLiteral("Times New Roman"), 12);
    font.setBold(true);
    p.setFont(font); // point sizes follow the painter's device
    p.setPen(Qt::black);
    const QFontMetricsF metrics(font, p.device());
    double y = area.top() + metrics.ascent();
    std::size_t i = first;
    for (; i < lines.size() && (y + metrics.descent() <= area.bottom() || i == first); ++i) {
        p.drawText(QPointF(area.left(), y), QString::fromStdString(lines[i]));
        y += metrics.lineSpacing();
    }
    return i;
}

PageDrawing ListDrawing(std::vector<std::string> printed)
{
    return [printed = std::move(printed), next = std::size_t(0)](QPainter& p, const QRectF& area,
                                                                 int page) mutable {
        if (page == 0)
            next = 0;
        next = DrawListPage(p, area, printed, next);
        return next < printed.size();
    };
}
