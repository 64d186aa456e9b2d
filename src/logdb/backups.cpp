// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/backups.h"

#include "logdb/yearlock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <utility>

#include <sys/stat.h>

namespace {

const QString TimeFormat = QStringLiteral("yyyy-MM-dd_HH-mm-ss");
const QString Extension = QStringLiteral(".mdb");
constexpr qsizetype YearPrefix = 5;    // "2024_"
constexpr mode_t NewFolderMode = 0777; // narrowed by the user's umask

QString YearOf(const QString& yearFile) { return QFileInfo(yearFile).fileName().left(4); }

// The n of a copy named "..._n.mdb" (the n-th made within one second); 1 for the first copy.
int CopyNumber(const QString& name)
{
    const qsizetype stem = YearPrefix + TimeFormat.size();
    return name.size() > stem + Extension.size()
               ? name.mid(stem + 1).chopped(Extension.size()).toInt()
               : 1;
}

DbResult ReadAll(const QString& path, QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return DbResult::Failure(
            QStringLiteral("Cannot read '%1': %2").arg(path, file.errorString()));
    bytes = file.readAll();
    return DbResult::Success();
}

// Writes under a temporary name, syncs, then renames into place in one step.
DbResult WriteWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return DbResult::Failure(
            QStringLiteral("Cannot write '%1': %2").arg(path, file.errorString()));
    return DbResult::Success();
}

// A name no other backup has, even for two copies made within one second: the copy number
// goes on from the highest of that second, since a pruned first copy's name would otherwise be
// taken again and the newest copy sorted as the oldest.
QString FreeBackupPath(const QString& yearFile, const QDateTime& now)
{
    const QString name = BackupFileName(yearFile, now);
    int last = 0;
    for (const QString& backup : ListBackups(yearFile))
        if (BackupTime(backup) == BackupTime(name))
            last = std::max(last, CopyNumber(QFileInfo(backup).fileName()));
    const QDir folder(BackupFolder(yearFile));
    return folder.filePath(last == 0 ? name
                                     : name.chopped(Extension.size()) +
                                           QStringLiteral("_%1").arg(last + 1) + Extension);
}

DbResult Prune(const QString& yearFile)
{
    const QStringList backups = ListBackups(yearFile);
    for (qsizetype i = BackupsKeptPerYear; i < backups.size(); ++i)
        if (!QFile::remove(backups[i]))
            return DbResult::Failure(QStringLiteral("Cannot delete the old backup '%1'.")
                                         .arg(QFileInfo(backups[i]).fileName()));
    return DbResult::Success();
}

DbResult BackUpBytes(const QString& yearFile, const QByteArray& bytes, const QDateTime& now)
{
    const QString folder = BackupFolder(yearFile);
    if (::mkdir(QFile::encodeName(folder).constData(), NewFolderMode) != 0 && errno != EEXIST)
        return DbResult::Failure(QStringLiteral("Cannot create the folder '%1': %2.")
                                     .arg(folder, QString::fromLocal8Bit(std::strerror(errno))));
    if (DbResult written = WriteWhole(FreeBackupPath(yearFile, now), bytes); !written)
        return written;
    return Prune(yearFile);
}

} // namespace

QString BackupFolder(const QString& yearFile)
{
    return QFileInfo(yearFile).absoluteDir().filePath(QStringLiteral("backups"));
}

QString BackupFileName(const QString& yearFile, const QDateTime& taken)
{
    return YearOf(yearFile) + '_' + taken.toString(TimeFormat) + QStringLiteral(".mdb");
}

QStringList ListBackups(const QString& yearFile)
{
    const QDir folder(BackupFolder(yearFile));
    QStringList names =
        folder.entryList({YearOf(yearFile) + QStringLiteral("_*.mdb")}, QDir::Files);
    names.removeIf([](const QString& name) { return !BackupTime(name).isValid(); });
    // Newest first by time and copy number: by name, a tenth copy within one second ("_10")
    // would sort before the second ("_2") and be pruned first.
    std::ranges::sort(names, std::greater<>(), [](const QString& name) {
        return std::pair(BackupTime(name), CopyNumber(name));
    });
    for (QString& name : names)
        name = folder.filePath(name);
    return names;
}

QDateTime BackupTime(const QString& backup)
{
    const QString name = QFileInfo(backup).fileName();
    return QDateTime::fromString(name.mid(YearPrefix, TimeFormat.size()), TimeFormat);
}

DbResult BackUpHoldingLock(const QString& yearFile, const QDateTime& now)
{
    if (!QFileInfo::exists(yearFile))
        return DbResult::Success(); // a deleted year being restored: nothing to keep
    QByteArray current;
    if (DbResult read = ReadAll(yearFile, current); !read)
        return read;
    const QStringList backups = ListBackups(yearFile);
    QByteArray newest;
    if (!backups.isEmpty() && ReadAll(backups.front(), newest) && newest == current)
        return DbResult::Success();
    return BackUpBytes(yearFile, current, now);
}

// Under the year's lock, so that the copy is never taken in the middle of another program's
// write.
DbResult BackUpIfChanged(const QString& yearFile, const QDateTime& now)
{
    const YearFileLock lock(yearFile);
    return lock.Held() ? BackUpHoldingLock(yearFile, now) : DbResult::Failure(lock.Message());
}

DbResult RestoreBackup(const QString& yearFile, const QString& backup, const QDateTime& now)
{
    const YearFileLock lock(yearFile);
    if (!lock.Held())
        return DbResult::Failure(lock.Message());
    // Read before backing up: keeping ten may delete the very copy being restored.
    QByteArray restored;
    if (DbResult read = ReadAll(backup, restored); !read)
        return read;
    if (DbResult kept = BackUpHoldingLock(yearFile, now); !kept)
        return DbResult::Failure(kept.Message + QStringLiteral(" Nothing was restored."));
    return WriteWhole(yearFile, restored);
}
