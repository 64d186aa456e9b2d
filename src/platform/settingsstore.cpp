#include "platform/settingsstore.h"

#include <QSettings>

namespace {
QSettings Open(const QString& file)
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quillmere"), file);
}
const QString Section = QStringLiteral("Settings/");
} // namespace

SettingsStore::SettingsStore(QString file) : FileName(std::move(file)) {}

QString SettingsStore::Read(const QString& key, const QString& defaultText) const
{
    return Open(FileName).value(Section + key, defaultText).toString();
}

void SettingsStore::Write(const QString& key, const QString& text)
{
    Open(FileName).setValue(Section + key, text);
}

bool SettingsStore::Contains(const QString& key) const
{
    return Open(FileName).contains(Section + key);
}

void SettingsStore::DeleteAll() { Open(FileName).clear(); }

void SettingsStore::Flush() { Open(FileName).sync(); }

QString SettingsStore::FilePath() const { return Open(FileName).fileName(); }
