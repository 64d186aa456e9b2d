// SPDX-License-Identifier: GPL-3.0-or-later
// The catches' photos as thumbnails: each file is read once, at thumbnail size, and kept until
// the file changes, so moving the browser between days costs no image decoding.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QPixmap>
#include <QSize>
#include <QString>

class PhotoThumbnails {
public:
    // side: the longest side of a thumbnail, in device-independent pixels.
    explicit PhotoThumbnails(int side) : Side(side) {}

    // The thumbnail of the photo file; null when the file is missing or not a picture.
    QPixmap Thumbnail(const QString& path);
    int ThumbnailSide() const { return Side; }

private:
    struct Entry {
        QDateTime Modified;
        qint64 Size = 0;
        QPixmap Picture;
    };
    int Side;
    QHash<QString, Entry> Cache;
};

// What a thumbnail stands in for a photo whose file cannot be read: a crossed frame.
QPixmap MissingPhotoPicture(int side);
