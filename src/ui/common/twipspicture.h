// SPDX-License-Identifier: GPL-3.0-or-later
// A picture box whose drawing is made in twips: it paints the drawing on white at screen
// scale (15 twips to a pixel), the way a printed page is previewed.
#pragma once

#include <QWidget>

#include <functional>

class TwipsPicture : public QWidget {
public:
    using Drawing = std::function<void(QPainter&)>;
    using QWidget::QWidget;

    void SetDrawing(Drawing drawing);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing Draw;
};
