// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/moonpicture.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

const std::array<double, 51> TerminatorAspect = {
    0,    0.03, 0.05, 0.07, 0.09, 0.12, 0.14, 0.17, 0.19, 0.22, 0.25, 0.28, 0.32,
    0.35, 0.39, 0.43, 0.47, 0.51, 0.56, 0.61, 0.66, 0.72, 0.78, 0.84, 0.91, 1.0,
    1.09, 1.18, 1.27, 1.37, 1.47, 1.61, 1.76, 1.91, 2.1,  2.3,  2.52, 2.8,  3.1,
    3.5,  4.0,  4.6,  5.3,  6.2,  7.4,  8.7,  11.0, 17.5, 25,   35,   45};

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Red = 0xFFFF0000;

QRgb RgbOf(std::uint32_t bgr)
{
    return qRgb(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

// The shape number: the lit percentage seen from the side the terminator arc is drawn on.
int ShapeNumber(int percent, int side)
{
    return side == 0 && percent > 0 && percent < 100 ? 100 - percent : percent;
}

// Draws the outline of the disc and, for a partial phase, the half of the terminator
// ellipse: its right half for a crescent shape, its left half for a gibbous one.
void DrawOutlines(QImage& image, QPointF centre, double R, int p)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QColor(Black), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, R, R);
    if (p < 1 || p > 99)
        return;
    const bool crescent = p <= 50;
    const double b = R / (1.0 + TerminatorAspect[std::size_t(crescent ? p : 101 - p)]);
    const QRectF ellipse(centre.x() - b, centre.y() - R, 2 * b, 2 * R);
    // Qt measures arcs in sixteenths of a degree, counter-clockwise from the positive x axis.
    painter.drawArc(ellipse, crescent ? -90 * 16 : 90 * 16, 180 * 16);
}

// The percentage from the disc's centre rightwards, in a font small enough to stay clear of
// the rim whatever the screen's resolution.
void PrintPercent(QImage& image, QPointF topLeft, int percent)
{
    constexpr int RimGap = 3, SmallestPixels = 6;
    QPainter painter(&image);
    // Solid red on the disc, no blended edge pixels.
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    QFont font = painter.font();
    font.setStyleStrategy(QFont::NoAntialias);
    const QString text = QStringLiteral(" %1%").arg(percent);
    const double room = std::min(image.width(), image.height()) / 2.0 - 2.0 - RimGap;
    font.setPixelSize(std::max(SmallestPixels, QFontMetrics(font).height()));
    while (font.pixelSize() > SmallestPixels && QFontMetrics(font).horizontalAdvance(text) > room)
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    painter.setPen(QColor(Red));
    painter.drawText(QPointF(topLeft.x(), topLeft.y() + QFontMetrics(font).ascent()), text);
}

// Redraws the rim in its own colour and clears the box beyond it.
void CutOutDisc(QImage& image, QPointF centre, double R, QRgb rim)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QColor(rim), 1));
    painter.drawEllipse(centre, R, R);
    painter.end();
    // The aliased rim's pixels lie within half a pixel of R. Pixel centres and the disc's
    // centre lie on half pixels, so the squared distances compare exactly.
    const double beyond = R + 1.0;
    const int width = image.width(), height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double dy = y + 0.5 - centre.y();
        for (int x = 0; x < width; ++x) {
            const double dx = x + 0.5 - centre.x();
            if (dx * dx + dy * dy > beyond * beyond)
                line[x] = qRgba(0, 0, 0, 0);
        }
    }
}

// What QImage::pixel and setPixel add to a 32-bit pixel: the opaque alpha of an RGB32 image.
QRgb AlphaOf(const QImage& image)
{
    return image.format() == QImage::Format_RGB32 ? 0xFF000000 : 0;
}

} // namespace

void FloodFill(QImage& image, QPoint seed, QRgb fill, QRgb border)
{
    if (!image.rect().contains(seed))
        return;
    const QRgb alpha = AlphaOf(image);
    const auto row = [&image](int y) { return reinterpret_cast<QRgb*>(image.scanLine(y)); };
    const auto open = [&](QRgb c) { return (c | alpha) != border && (c | alpha) != fill; };
    // Scanline by scanline: each pending point starts a run, filled whole, and seeds the runs
    // of open pixels above and below it.
    const int last = image.width() - 1;
    std::vector<QPoint> pending{seed};
    while (!pending.empty()) {
        const QPoint p = pending.back();
        pending.pop_back();
        QRgb* line = row(p.y());
        if (!open(line[p.x()]))
            continue;
        int left = p.x(), right = p.x();
        while (left > 0 && open(line[left - 1]))
            --left;
        while (right < last && open(line[right + 1]))
            ++right;
        std::fill(line + left, line + right + 1, fill | alpha);
        for (const int y : {p.y() - 1, p.y() + 1}) {
            if (y < 0 || y >= image.height())
                continue;
            const QRgb* next = row(y);
            for (int x = left; x <= right; ++x)
                if (open(next[x]) && (x == left || !open(next[x - 1])))
                    pending.emplace_back(x, y);
        }
    }
}

QImage DrawMoonDisc(QSize size, const MoonLook& look)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(RgbOf(look.BackColor));
    const int side = std::abs(look.Waxing + look.SouthernHemisphere);
    const double cx = size.width() / 2.0, cy = size.height() / 2.0;
    const double R = std::min(cx, cy) - 2.0;
    const int p = ShapeNumber(look.IllumPercent, side);
    DrawOutlines(image, {cx, cy}, R, p);

    const QRgb lit = RgbOf(look.MoonColor);
    const QPoint centre{int(cx), int(cy)};
    if (p <= 0 || p >= 100) {
        FloodFill(image, centre, p <= 0 ? Black : lit, Black);
    } else {
        const int y = int(cy);
        const QPoint left(int(std::lround(cx - R + 1.1)), y),
            right(int(std::lround(cx + R - 1.1)), y);
        FloodFill(image, left, side == 0 ? lit : Black, Black);
        FloodFill(image, right, side == 0 ? Black : lit, Black);
    }
    if (look.Rim)
        CutOutDisc(image, {cx, cy}, R, RgbOf(*look.Rim));
    return image;
}

MoonPictures DrawMoon(QSize picSize, const MoonLook& look, const std::optional<MoonTurn>& turn)
{
    MoonPictures result;
    result.PicM = DrawMoonDisc(picSize, look);
    const int W = picSize.width(), H = picSize.height();
    if (!turn || turn->MoonAltitude < 0 || !turn->ParallacticAngle) {
        // After the circles the drawing position is the disc's centre.
        PrintPercent(result.PicM, {W / 2.0, H / 2.0}, look.IllumPercent);
        return result;
    }
    // The southern disc is drawn half a turn round, so it turns by pi - q to stand as in the sky.
    const double angle = look.SouthernHemisphere == -1 ? Pi - turn->MoonParallacticAngle
                                                       : -turn->MoonParallacticAngle;
    result.ToPict = QImage(turn->ToPictSize, result.PicM.format());
    result.ToPict.fill(look.Rim ? qRgba(0, 0, 0, 0) : RgbOf(look.BackColor));
    const int tw = turn->ToPictSize.width(), th = turn->ToPictSize.height();
    RotatePicture(result.PicM, result.ToPict, angle, 0, 0, W - 1, H - 1, W / 2, H / 2, tw / 2,
                  th / 2);
    PrintPercent(result.ToPict, {tw / 2.0, th / 2.0}, look.IllumPercent);
    return result;
}

void RotatePicture(const QImage& source, QImage& target, double angle, int x1, int y1, int x2,
                   int y2, int cx, int cy, int dx, int dy)
{
    const double s = std::sin(angle), c = std::cos(angle);
    double minX = 1e300, maxX = -1e300, minY = 1e300, maxY = -1e300;
    for (const auto& [x, y] : {std::pair{x1, y1}, {x2, y1}, {x1, y2}, {x2, y2}}) {
        const double X = dx + (x - cx) * c + (y - cy) * s;
        const double Y = dy - (x - cx) * s + (y - cy) * c;
        minX = std::min(minX, X), maxX = std::max(maxX, X);
        minY = std::min(minY, Y), maxY = std::max(maxY, Y);
    }
    // Rows and columns beyond the target cannot be written.
    const int fromX = std::max(1, int(std::floor(minX))),
              toX = std::min(target.width() - 1, int(std::ceil(maxX)));
    const int fromY = std::max(1, int(std::floor(minY))),
              toY = std::min(target.height() - 1, int(std::ceil(maxY)));
    // Both images hold 32-bit pixels; the copy adds what pixel and setPixel would.
    const QRgb alpha = AlphaOf(source) | AlphaOf(target);
    const QRect inside = source.rect() & QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1));
    const uchar* bits = source.constBits();
    const qsizetype rowBytes = source.bytesPerLine();
    for (int Y = fromY; Y <= toY; ++Y) {
        auto* line = reinterpret_cast<QRgb*>(target.scanLine(Y));
        for (int X = fromX; X <= toX; ++X) {
            const int xs = int(std::trunc(cx + (X - dx) * c - (Y - dy) * s));
            const int ys = int(std::trunc(cy + (X - dx) * s + (Y - dy) * c));
            if (inside.contains(xs, ys))
                line[X] = reinterpret_cast<const QRgb*>(bits + ys * rowBytes)[xs] | alpha;
        }
    }
}
