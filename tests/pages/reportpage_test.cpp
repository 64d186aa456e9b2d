// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/reportlines.h"
#include "pages/reportpage.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

// A full page (three title lines and 58 report lines) on a page a pixel a line short of the
// font's own spacing: all 61 lines are drawn, the last one ending inside the page.
TEST(ReportPage, SixtyOneLinesFitAShortPage)
{
    QImage image(600, 1500, QImage::Format_RGB32);
    image.fill(Qt::white);
    const double spacing = QFontMetricsF(ReportFont(), &image).lineSpacing();
    const double height = 61 * (spacing - 1.0);
    const QString text = QString::fromStdString("X" + std::string(ReportLineEnd)).repeated(58);
    QPainter painter(&image);
    ReportDrawing(text)(painter, QRectF(0, 0, 600, height), 0);
    painter.end();
    int lowest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            lowest = image.pixel(x, y) != qRgb(255, 255, 255) ? y : lowest;
    EXPECT_LT(lowest, height);
    EXPECT_GT(lowest, height - spacing);
}
