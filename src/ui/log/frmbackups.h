// SPDX-License-Identifier: GPL-3.0-or-later
// "Backups": the copies kept of one year file, newest first, and restoring one of them.
#pragma once

#include "logdb/logstate.h"

#include <QDialog>

class QListWidget;
class QPushButton;

class FrmBackups : public QDialog {
    Q_OBJECT

public:
    FrmBackups(const LogContext& context, const QString& yearFile, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void CmdRestore_Click();

    QListWidget* BackupList = nullptr;
    QPushButton* CmdRestore = nullptr;
    QPushButton* CmdClose = nullptr;

private:
    void RefreshList();

    LogContext Ctx;
    QString YearFile;
};
