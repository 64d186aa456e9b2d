// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/photothumbs.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPalette>

QPixmap PhotoThumbnails::Thumbnail(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    Entry& entry = Cache[file.absoluteFilePath()];
    if (entry.Modified == file.lastModified() && entry.Size == file.size())
        return entry.Picture;
    // Decoding at the thumbnail's size lets JPEG skip most of the work.
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize full = reader.size();
    if (full.isValid())
        reader.setScaledSize(full.scaled(Side, Side, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    entry = {file.lastModified(), file.size(),
             image.isNull() ? QPixmap() : QPixmap::fromImage(image)};
    return entry.Picture;
}

QPixmap MissingPhotoPicture(int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(QPalette().color(QPalette::PlaceholderText), 2));
    const QRect frame = picture.rect().adjusted(2, 2, -2, -2);
    painter.drawRect(frame);
    painter.drawLine(frame.topLeft(), frame.bottomRight());
    painter.drawLine(frame.topRight(), frame.bottomLeft());
    return picture;
}
