// SPDX-License-Identifier: GPL-3.0-or-later
// "Database Functions": the year files of the program's folder, and creating, opening,
// deleting, compacting and repairing them. Creating a file fills it with the year's
// forecasts; opening one shows the record browser.
#pragma once

#include "db/datacontrol.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <cstdint>
#include <functional>

class QListWidget;
class QProgressBar;
class QPushButton;

class FrmSelectDB : public QDialog {
    Q_OBJECT

public:
    explicit FrmSelectDB(const LogContext& context, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void DBFiles_Click();
    void DBFiles_DblClick();
    void OpenDBFile_Click();
    void CmdCreate_Click();
    void DeleteDBFile_Click();
    void CmdCompact_Click();
    void CmdRepair_Click();
    void CloseSelectDB_Click();
    void CmdBackups_Click();
    void CmdImport_Click();
    void CmdExport_Click();

    // Creates and fills the year's file, or leaves an existing one as it is. False when the
    // fill failed; the unfinished file is then gone and DBPath empty.
    bool CreateDB(std::int16_t year);

    // Shows the record browser on a year file, modally; tests put their own in its place.
    std::function<void(const QString& path)> ShowBrowser;
    // Shows the backups of a year file, modally.
    std::function<void(const QString& path)> ShowBackups;
    // Asks for the CSV or JSON file to import; empty when the user cancels.
    std::function<QString()> ChooseImportFile;
    // Asks for the CSV or JSON file to export to; empty when the user cancels.
    std::function<QString()> ChooseExportFile;

    QListWidget* DBFiles = nullptr;
    QPushButton* OpenDBFile = nullptr;
    QPushButton* CmdCreate = nullptr;
    QPushButton* DeleteDBFile = nullptr;
    QPushButton* CmdCompact = nullptr;
    QPushButton* CmdRepair = nullptr;
    QPushButton* CloseSelectDB = nullptr;
    QPushButton* CmdBackups = nullptr;
    QPushButton* CmdImport = nullptr;
    QPushButton* CmdExport = nullptr;
    QProgressBar* PBar1 = nullptr;
    DataControl Data0;

private:
    void BuildControls();
    void RefreshList();
    // The selected file's full path; shows "No File Selected! " and is empty when there is
    // none.
    QString SelectedOrComplain();
    // Closes this window and browses DBPath when that file is there.
    void CloseAndBrowse();
    // Writes the year's forecasts into the file being created, showing the progress.
    DbResult Fill(const QString& path, std::int16_t year);
    // Asks, for the year (0: every year) whose file is missing while a copy is kept, whether
    // to restore it, and restores it. True when the year's file is back.
    bool OfferRestore(int year);
    // A copy of the year file before it is edited, when it changed since the last one.
    void KeepBackup(const QString& path);

    LogContext Ctx;
};
