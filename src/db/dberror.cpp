// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/dberror.h"

#include <QFile>
#include <QFileInfo>

#include <sys/statvfs.h>
#include <unistd.h>

namespace {

// SQLite's primary result codes and the extended ones told apart here
// (sqlite.org/rescode.html); the primary code is the low byte of an extended one.
constexpr int PrimaryMask = 0xFF;
constexpr int Busy = 5, Locked = 6, ReadOnly = 8, IoError = 10, Corrupt = 11, Full = 13,
              CantOpen = 14, NotADatabase = 26;
constexpr int ReadOnlyMoved = ReadOnly | (4 << 8);     // SQLITE_READONLY_DBMOVED
constexpr int ReadOnlyDirectory = ReadOnly | (6 << 8); // SQLITE_READONLY_DIRECTORY

bool OnReadOnlyDisk(const QString& path)
{
    struct statvfs disk {};
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    return ::statvfs(folder.constData(), &disk) == 0 && (disk.f_flag & ST_RDONLY) != 0;
}

bool MayWrite(const QString& path)
{
    return ::access(QFile::encodeName(path).constData(), W_OK) == 0;
}

// Why the file or its journal beside it cannot be written, as far as the file system tells.
QString WhyNotWritable(const QString& path)
{
    if (path.isEmpty())
        return QStringLiteral("the file cannot be written: it or its folder is read-only, or "
                              "permission is denied");
    const QString folder = QFileInfo(path).absolutePath();
    if (OnReadOnlyDisk(path))
        return QStringLiteral("the disk that holds it is mounted read-only (read-only file "
                              "system)");
    if (!MayWrite(path))
        return QStringLiteral("permission denied: this user may not write the file");
    if (!MayWrite(folder))
        return QStringLiteral("permission denied: this user may not write in its folder, where "
                              "the engine keeps its journal");
    const QString journal = path + QStringLiteral("-journal");
    if (QFileInfo(journal).isDir())
        return QStringLiteral("a folder named %1 stands where the engine writes its journal")
            .arg(QFileInfo(journal).fileName());
    return {};
}

QString CauseOf(int code, const QString& path)
{
    switch (code) {
    case ReadOnlyMoved:
        return QStringLiteral("the file was moved, deleted or replaced while it was open; open "
                              "it again");
    case ReadOnlyDirectory:
        return QStringLiteral("permission denied: its folder cannot be written");
    default:
        break;
    }
    switch (code & PrimaryMask) {
    case Busy:
    case Locked:
        return QStringLiteral("the file is locked: another program is writing it; try again "
                              "when it has finished");
    case ReadOnly:
        return WhyNotWritable(path);
    case IoError:
    case CantOpen: {
        if (!path.isEmpty() && QFileInfo(path).isDir())
            return QStringLiteral("it is a folder, not a file");
        const QString why = WhyNotWritable(path);
        return why.isEmpty() || path.isEmpty()
                   ? QStringLiteral("the disk could not be read or written (an input/output "
                                    "error of the disk or its file system)")
                   : why;
    }
    case Corrupt:
        return QStringLiteral("the file is damaged; repair it");
    case Full:
        return QStringLiteral("the disk is full; make room on it and try again");
    case NotADatabase:
        return QStringLiteral("it is not a database file (another kind of file, or damaged "
                              "beyond its first page)");
    default:
        return {};
    }
}

} // namespace

QString ErrorText(const QSqlError& error, const QString& path)
{
    const QString engine = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    bool numeric = false;
    const int code = error.nativeErrorCode().toInt(&numeric);
    const QString cause = numeric ? CauseOf(code, path) : QString();
    return cause.isEmpty() ? engine : QStringLiteral("%1 (%2)").arg(cause, engine);
}
