// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/reportpage.h"

#include "logdb/reportlines.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <memory>

namespace {
// Every page holds its three title lines and at most 58 report lines.
constexpr int LinesPerPage = 61;
} // namespace

QFont ReportFont()
{
    QFont font(QStringLiteral("Courier"), 10);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    return font;
}

PageDrawing ReportDrawing(const QString& text)
{
    const auto pages = std::make_shared<const std::vector<std::vector<std::string>>>(
        ReportPages(text.toStdString()));
    return [pages](QPainter& painter, const QRectF& area, int page) {
        painter.setFont(ReportFont());
        const QFontMetricsF metrics(painter.font(), painter.device());
        // The font's own spacing, unless 61 lines would then not fit the page.
        const double step = std::min(metrics.lineSpacing(), area.height() / LinesPerPage);
        double y = area.top() + metrics.ascent();
        for (const std::string& line : pages->at(std::size_t(page))) {
            painter.drawText(QPointF(area.left(), y), QString::fromStdString(line));
            y += step;
        }
        return std::size_t(page) + 1 < pages->size();
    };
}

QString PrintReportToPdf(const QString& path, const QString& text)
{
    return WritePdf(path, QString::fromLatin1(ReportDocumentTitle), DefaultPageLayout(),
                    ReportDrawing(text));
}
