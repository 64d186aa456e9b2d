// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/stockpictures.h"

#include <QPainter>
#include <QPainterPath>

namespace {
constexpr int FishWidth = 34, FishHeight = 14, PhaseSize = 17;
const QColor FishBody(0x1f, 0x6f, 0x8f), FishOutline(0x10, 0x30, 0x40);
const QColor Lit(0xff, 0xf4, 0xb0), Dark(0x30, 0x30, 0x40), Rim(0x60, 0x60, 0x60);

// Head on the left, tail fin on the right.
QPainterPath FishShape()
{
    QPainterPath fish;
    fish.addEllipse(QRectF(0.5, 2.0, 25.0, 10.0));
    QPainterPath tail;
    tail.moveTo(23.0, 7.0);
    tail.lineTo(33.5, 1.0);
    tail.lineTo(31.0, 7.0);
    tail.lineTo(33.5, 13.0);
    tail.closeSubpath();
    return fish.united(tail);
}

QPixmap Transparent(int w, int h)
{
    QPixmap p(w, h);
    p.fill(Qt::transparent);
    return p;
}
} // namespace

void PaintFish(QPainter& p, const QRectF& box, int rating)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(box.topLeft());
    p.scale(box.width() / FishWidth, box.height() / FishHeight);
    // The fish is shown from the head back: a quarter of its length per step of the rating.
    p.setClipRect(QRectF(0, 0, FishWidth * rating / 4.0, FishHeight));
    p.setPen(QPen(FishOutline, 1.0));
    p.setBrush(FishBody);
    p.drawPath(FishShape());
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(5.5, 6.0), 1.6, 1.6);
    p.restore();
}

QPixmap FishPicture(int rating)
{
    QPixmap pixmap = Transparent(FishWidth, FishHeight);
    QPainter p(&pixmap);
    PaintFish(p, QRectF(0, 0, FishWidth, FishHeight), rating);
    return pixmap;
}

void PaintPhase(QPainter& p, const QRectF& box, int phase)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(box.topLeft());
    p.scale(box.width() / PhaseSize, box.height() / PhaseSize);
    const QRectF disc(1.0, 1.0, PhaseSize - 2.0, PhaseSize - 2.0);
    p.setPen(QPen(Rim, 1.0));
    p.setBrush(phase == 3 ? Lit : Dark);
    p.drawEllipse(disc);
    if (phase == 2 || phase == 4) {
        // Lit half: start angle 90 degrees, sweeping clockwise for the right-hand half.
        p.setPen(Qt::NoPen);
        p.setBrush(Lit);
        p.drawPie(disc, 90 * 16, (phase == 2 ? -180 : 180) * 16);
    }
    p.restore();
}

QPixmap PhaseSymbol(int phase)
{
    QPixmap pixmap = Transparent(PhaseSize, PhaseSize);
    QPainter p(&pixmap);
    PaintPhase(p, QRectF(0, 0, PhaseSize, PhaseSize), phase);
    return pixmap;
}

int HemispherePhaseSymbol(int phase, bool southern)
{
    if (southern && (phase == 2 || phase == 4))
        return 6 - phase;
    return phase;
}
