// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/twipspicture.h"

#include "pages/twips.h"

#include <QPainter>

void TwipsPicture::SetDrawing(Drawing drawing)
{
    Draw = std::move(drawing);
    update();
}

void TwipsPicture::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!Draw)
        return;
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    Draw(p);
}
