// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchphotos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 CopyChunkBytes = 1024 * 1024;

bool SameBytes(const QString& a, const QString& b)
{
    QFile first(a);
    QFile second(b);
    if (first.size() != second.size() || !first.open(QIODevice::ReadOnly) ||
        !second.open(QIODevice::ReadOnly))
        return false;
    while (!first.atEnd())
        if (first.read(CopyChunkBytes) != second.read(CopyChunkBytes))
            return false;
    return true;
}

// The picture's own name in the folder, or "pike_2.jpg" when that holds another picture;
// `same` tells that the name already holds this very picture.
QString FreeName(const QDir& folder, const QFileInfo& source, bool& same)
{
    QString name = source.fileName();
    for (int n = 2; QFileInfo::exists(folder.filePath(name)); ++n) {
        if (SameBytes(source.filePath(), folder.filePath(name))) {
            same = true;
            return name;
        }
        const QString suffix = source.suffix();
        name = source.completeBaseName() + QStringLiteral("_%1").arg(n) +
               (suffix.isEmpty() ? QString() : '.' + suffix);
    }
    same = false;
    return name;
}

// Copies under a temporary name, synced, renamed into place.
DbResult CopySafely(QFile& from, const QString& to)
{
    QSaveFile out(to);
    if (!out.open(QIODevice::WriteOnly))
        return DbResult::Failure(QStringLiteral("Cannot write the photo '%1': %2")
                                     .arg(QFileInfo(to).fileName(), out.errorString()));
    while (!from.atEnd()) {
        const QByteArray chunk = from.read(CopyChunkBytes);
        if (chunk.isEmpty() && from.error() != QFile::NoError)
            return DbResult::Failure(
                QStringLiteral("Cannot read the photo: %1").arg(from.errorString()));
        if (out.write(chunk) != chunk.size())
            break;
    }
    if (!out.commit())
        return DbResult::Failure(QStringLiteral("Cannot write the photo '%1': %2")
                                     .arg(QFileInfo(to).fileName(), out.errorString()));
    return DbResult::Success();
}

} // namespace

DbResult AddPhoto(const QString& yearFile, const QString& source, QString& relative)
{
    QFile from(source);
    if (!QFileInfo(source).isFile() || !from.open(QIODevice::ReadOnly))
        return DbResult::Failure(
            QStringLiteral("Cannot read the photo '%1': %2").arg(source, from.errorString()));
    if (from.size() > MostPhotoBytes)
        return DbResult::Failure(QStringLiteral("The photo '%1' is larger than %2 MB.")
                                     .arg(QFileInfo(source).fileName())
                                     .arg(MostPhotoBytes / (1024 * 1024)));
    const QDir base = QFileInfo(yearFile).absoluteDir();
    const QString subfolder =
        QStringLiteral("%1/%2").arg(PhotoFolderName, QFileInfo(yearFile).fileName().left(4));
    if (!base.mkpath(subfolder))
        return DbResult::Failure(
            QStringLiteral("Cannot create the folder '%1'.").arg(base.filePath(subfolder)));
    bool same = false;
    const QString name = FreeName(QDir(base.filePath(subfolder)), QFileInfo(source), same);
    if (!same)
        if (DbResult copied = CopySafely(from, base.filePath(subfolder + '/' + name)); !copied)
            return copied;
    relative = subfolder + '/' + name;
    return DbResult::Success();
}

PhotoFile LookUpPhoto(const QString& yearFile, const QString& relative)
{
    const QDir base = QFileInfo(yearFile).absoluteDir();
    PhotoFile photo{QDir::cleanPath(base.filePath(relative)), false, {}};
    const bool inside = QDir::isRelativePath(relative) &&
                        photo.Path.startsWith(QDir::cleanPath(base.absolutePath()) + '/');
    if (!inside || !QFileInfo(photo.Path).isFile()) {
        photo.Missing = true;
        photo.Message = QStringLiteral("The photo %1 is missing.").arg(relative);
    }
    return photo;
}
