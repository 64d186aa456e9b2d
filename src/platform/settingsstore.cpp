// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settingsstore.h"

#include <QFile>
#include <QSettings>

namespace {
QSettings Open(const QString& file)
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quillmere"), file);
}
const QString Section = QStringLiteral("Settings/");
} // namespace

SettingsStore::SettingsStore(QString file) : FileName(std::move(file)) {}

SettingsStore SettingsStore::ReadOnly(QString file)
{
    SettingsStore store(std::move(file));
    store.InMemory = true;
    return store;
}

QString SettingsStore::Read(const QString& key, const QString& defaultText) const
{
    if (InMemory && Removed.contains(key))
        return defaultText;
    if (InMemory && (MemoryCleared || Memory.contains(key)))
        return Memory.value(key, defaultText);
    const QVariant v = Open(FileName).value(Section + key, defaultText);
    // An unquoted comma makes QSettings split the text; the parts were separated by a comma
    // and the blanks around it, which the file's writer most likely meant as ", ".
    if (v.typeId() == QMetaType::QStringList)
        return v.toStringList().join(QStringLiteral(", "));
    return v.toString();
}

void SettingsStore::Write(const QString& key, const QString& text)
{
    if (InMemory) {
        Removed.remove(key);
        Memory.insert(key, text);
    } else
        Open(FileName).setValue(Section + key, text);
}

bool SettingsStore::Contains(const QString& key) const
{
    if (InMemory && Removed.contains(key))
        return false;
    if (InMemory && (MemoryCleared || Memory.contains(key)))
        return Memory.contains(key);
    return Open(FileName).contains(Section + key);
}

void SettingsStore::Remove(const QString& key)
{
    if (!InMemory) {
        Open(FileName).remove(Section + key);
        return;
    }
    Memory.remove(key);
    Removed.insert(key);
}

void SettingsStore::DeleteAll()
{
    if (InMemory) {
        Memory.clear();
        MemoryCleared = true;
        return;
    }
    Open(FileName).clear();
}

QString SettingsStore::KeepCopy(QString& kept) const
{
    kept.clear();
    const QString path = FilePath();
    if (InMemory || !QFile::exists(path))
        return {};
    const QString copy = path + QStringLiteral(".bak");
    QFile::remove(copy);
    QFile file(path);
    if (!file.copy(copy))
        return QStringLiteral("cannot copy %1 to %2: %3").arg(path, copy, file.errorString());
    kept = copy;
    return {};
}

bool SettingsStore::Flush()
{
    if (InMemory)
        return true;
    QSettings settings = Open(FileName);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString SettingsStore::FilePath() const { return Open(FileName).fileName(); }
