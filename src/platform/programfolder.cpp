// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/programfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

namespace {
QString FolderPath()
{
    const QByteArray home = qgetenv("QUILLMERE_HOME");
    if (!home.isEmpty())
        return QString::fromLocal8Bit(home);
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("Quillmere"));
}

// Copies every file of the seed folder that the program folder does not hold yet; never
// overwrites the user's.
void SeedFrom(const QString& seed, const QString& folder)
{
    QDirIterator it(seed, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString from = it.next();
        const QString to = folder + "/" + QDir(seed).relativeFilePath(from);
        if (!QFile::exists(to)) {
            QDir().mkpath(QFileInfo(to).path());
            QFile::copy(from, to);
            QFile(to).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        }
    }
}

// The shipped files, and when running from the build tree the files the build made (the
// city database), which an installed program finds among the shipped ones.
void Seed(const QString& folder)
{
    const QString source = ProgramFolder::ShippedDataFolder();
    if (!source.isEmpty())
        SeedFrom(source + "/seed", folder);
    SeedFrom(QStringLiteral(QUILLMERE_BUILT_SEED_DIR), folder);
}
} // namespace

QString ProgramFolder::ShippedDataFolder()
{
    const QByteArray env = qgetenv("QUILLMERE_DATA");
    QStringList candidates;
    if (!env.isEmpty())
        candidates << QString::fromLocal8Bit(env);
    if (QCoreApplication::instance())
        candidates << QCoreApplication::applicationDirPath() + "/" QUILLMERE_BIN_TO_DATA
                   << QCoreApplication::applicationDirPath() + "/data";
    candidates << QStringLiteral(QUILLMERE_DATA_DIR);
    for (const QString& c : candidates)
        if (QDir(c).exists())
            return QDir(c).canonicalPath();
    return {};
}

QString ProgramFolder::Path()
{
    QString folder = FolderPath();
    if (!QDir().mkpath(folder))
        return {};
    Seed(folder);
    return folder;
}

QString ProgramFolder::File(const QString& name) { return QDir(Path()).filePath(name); }
