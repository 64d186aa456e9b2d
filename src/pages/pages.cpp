// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/pages.h"

#include "logdb/logfiles.h"

#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace {
constexpr double TwipsPerInch = 1440.0;
constexpr double TwipsPerPoint = 20.0;
// The first bytes of every PDF file.
const QByteArray PdfMagic = QByteArrayLiteral("%PDF-");

QString CannotWrite(const QString& path, const QString& reason)
{
    return QStringLiteral("Could not write the PDF file %1: %2.")
        .arg(QFileInfo(path).absoluteFilePath(), reason);
}

} // namespace

bool IsPdfOrAbsent(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return true;
    return file.open(QIODevice::ReadOnly) && file.read(PdfMagic.size()) == PdfMagic;
}

bool PaintPages(QPagedPaintDevice& device, const QRectF& area, const PageDrawing& draw)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int page = 0;; ++page) {
        painter.save();
        const bool more = draw(painter, area, page);
        painter.restore();
        if (!more)
            break;
        device.newPage();
    }
    return painter.end();
}

QPageLayout DefaultPageLayout(QPageLayout::Orientation orientation)
{
    const bool us = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageLayout(QPageSize(us ? QPageSize::Letter : QPageSize::A4), orientation,
                       QMarginsF(0.5, 0.5, 0.5, 0.5), QPageLayout::Inch);
}

QString WritePdf(const QString& path, const QString& title, const QPageLayout& layout,
                 const PageDrawing& draw)
{
    if (!IsPdfOrAbsent(path))
        return CannotWrite(path, QStringLiteral("it is not a PDF, so it is left as it is"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return CannotWrite(path, file.errorString());
    {
        QPdfWriter writer(&file);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Quillmere"));
        writer.setPageLayout(layout);
        const QRectF area(QPointF(0, 0),
                          QSizeF(writer.pageLayout().paintRectPixels(writer.resolution()).size()));
        if (!PaintPages(writer, area, draw)) {
            file.cancelWriting();
            return CannotWrite(path, QStringLiteral("the page could not be drawn"));
        }
    }
    if (!file.commit())
        return CannotWrite(path, file.errorString());
    // The file's bytes went to the disk before the rename; the rename itself follows here.
    if (FileOps ops; !ops.Sync(path))
        return CannotWrite(path, ops.Cause());
    return {};
}

double PlaceTwips(QPainter& painter, const QRectF& area, const QSizeF& contentTwips, double scale)
{
    const QPaintDevice* device = painter.device();
    const double perTwipX = device->logicalDpiX() / TwipsPerInch;
    const double perTwipY = device->logicalDpiY() / TwipsPerInch;
    const double fits = std::min(area.width() / (contentTwips.width() * perTwipX),
                                 area.height() / (contentTwips.height() * perTwipY));
    const double used = std::min(scale, fits);
    const double spare = area.width() - contentTwips.width() * perTwipX * used;
    painter.translate(area.left() + std::max(0.0, spare) / 2, area.top());
    painter.scale(used * perTwipX, used * perTwipY);
    return used;
}

QFont TwipsFont(const QString& family, double points, bool bold)
{
    QFont font(family);
    font.setPixelSize(int(std::lround(points * TwipsPerPoint)));
    font.setBold(bold);
    return font;
}
