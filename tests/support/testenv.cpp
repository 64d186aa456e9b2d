// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testenv.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

#include <gtest/gtest.h>

namespace {
std::unique_ptr<QTemporaryDir>& RootDir()
{
    static std::unique_ptr<QTemporaryDir> dir; // owned for the whole test run
    return dir;
}

void SetEnv(const char* name, const QString& path)
{
    QDir().mkpath(path);
    ::setenv(name, QDir::toNativeSeparators(path).toLocal8Bit().constData(), 1);
}
} // namespace

namespace testenv {

void Isolate()
{
    RootDir() = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/quillmere-test-XXXXXX");
    const QString root = RootDir()->path();
    SetEnv("HOME", root + "/home");
    SetEnv("XDG_CONFIG_HOME", root + "/config");
    SetEnv("XDG_DATA_HOME", root + "/data");
    SetEnv("XDG_RUNTIME_DIR", root + "/runtime");
    QFile::setPermissions(root + "/runtime",
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    SetEnv("QUILLMERE_HOME", root + "/quillmere");
    if (!std::getenv("QT_QPA_PLATFORM"))
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

QString Root() { return RootDir()->path(); }

QString FreshDir(const QString& name)
{
    QDir dir(Root() + "/" + name);
    dir.removeRecursively();
    QDir().mkpath(dir.path());
    return dir.path();
}

QByteArray FileBytes(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
}

std::vector<QStringList> DataRows(const QString& path)
{
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(FileBytes(path)).split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        rows.push_back(line.split('|'));
        for (QString& field : rows.back())
            field = field.trimmed();
    }
    EXPECT_FALSE(rows.empty()) << path.toStdString();
    return rows;
}

} // namespace testenv
