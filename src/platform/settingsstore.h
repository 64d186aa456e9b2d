// SPDX-License-Identifier: GPL-3.0-or-later
// The per-user settings store: application "Quillmere", one section "Settings", every value
// text. An INI file under $XDG_CONFIG_HOME/Quillmere/.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

class SettingsStore {
public:
    // `file` names the INI file inside the application's folder; the settings proper live in
    // "Quillmere", the record of the first start in "Install" (which a reset must not wipe).
    explicit SettingsStore(QString file = QStringLiteral("Quillmere"));
    // A store that reads the file but keeps its writes in memory, for the command-line
    // programs, which must never change the stored settings.
    static SettingsStore ReadOnly(QString file = QStringLiteral("Quillmere"));

    // A value written by hand with commas (QSettings would read it as a list) is read whole.
    QString Read(const QString& key, const QString& defaultText) const;
    void Write(const QString& key, const QString& text);
    bool Contains(const QString& key) const;
    // Deletes one key, so that reading it gives the default (in memory only, for a read-only
    // store).
    void Remove(const QString& key);
    // Deletes every key of the application.
    void DeleteAll();
    // Copies the file to "<file>.bak" in place of an older copy; `kept` is the copy's path,
    // empty when there is no file to keep. The reason when the copy cannot be made.
    QString KeepCopy(QString& kept) const;
    // Writes pending changes to disk; false when the file cannot be written.
    bool Flush();
    QString FilePath() const;

private:
    QString FileName;
    bool InMemory = false;
    bool MemoryCleared = false; // DeleteAll in memory: the file's values no longer count
    QHash<QString, QString> Memory;
    QSet<QString> Removed; // keys removed in memory: they read as missing
};
