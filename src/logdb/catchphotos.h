// SPDX-License-Identifier: GPL-3.0-or-later
// A catch's photos: copied into the "photos" folder beside the year files, so that the log
// and its pictures move together; the year file keeps the path relative to its own folder.
#pragma once

#include "db/database.h"

#include <QString>

// "photos": the folder beside the year files.
inline constexpr auto PhotoFolderName = "photos";
inline constexpr qint64 MostPhotoBytes = 64LL * 1024 * 1024;

// Copies the picture into "photos/<year>/" beside the year file under its own name (with a
// number added when that name is taken by another picture), written safely: a temporary
// name, synced, renamed into place. `relative` is then "photos/2024/pike.jpg". A file that
// cannot be read, or is larger than MostPhotoBytes, is refused with the reason.
DbResult AddPhoto(const QString& yearFile, const QString& source, QString& relative);

struct PhotoFile {
    QString Path; // full path
    bool Missing = false;
    QString Message; // "The photo photos/2024/pike.jpg is missing." when it is
};

// Where the photo stored as `relative` lies, and whether it is there. A path leading out of
// the folder is reported as missing.
PhotoFile LookUpPhoto(const QString& yearFile, const QString& relative);
