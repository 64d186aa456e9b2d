// The per-user settings store: application "Quillmere", one section "Settings", every value
// text. An INI file under $XDG_CONFIG_HOME/Quillmere/.
#pragma once

#include <QString>

class SettingsStore {
public:
    // `file` names the INI file inside the application's folder; the settings proper live in
    // "Quillmere", the record of the first start in "Install" (which a reset must not wipe).
    explicit SettingsStore(QString file = QStringLiteral("Quillmere"));

    QString Read(const QString& key, const QString& defaultText) const;
    void Write(const QString& key, const QString& text);
    bool Contains(const QString& key) const;
    // Deletes every key of the application.
    void DeleteAll();
    // Writes pending changes to disk; QSettings otherwise does it on destruction.
    void Flush();
    QString FilePath() const;

private:
    QString FileName;
};
