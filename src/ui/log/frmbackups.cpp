// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmbackups.h"

#include "logdb/backups.h"
#include "platform/clock.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

QString Title() { return FrmBackups::tr("Backups"); }

QString WhenText(const QString& backup)
{
    return BackupTime(backup).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

FrmBackups::FrmBackups(const LogContext& context, const QString& yearFile, QWidget* parent)
    : QDialog(parent), Ctx(context), YearFile(yearFile)
{
    setWindowTitle(Title());
    BackupList = new QListWidget(this);
    BackupList->setObjectName(QStringLiteral("BackupList"));
    CmdRestore = new QPushButton(tr("Restore"), this);
    CmdRestore->setObjectName(QStringLiteral("CmdRestore"));
    CmdRestore->setToolTip(tr(" Put the selected copy in the place of the file "));
    CmdClose = new QPushButton(tr("Close"), this);
    CmdClose->setObjectName(QStringLiteral("CmdClose"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(
        new QLabel(tr("Copies of %1, newest first:").arg(QFileInfo(yearFile).fileName()), this), 0,
        0, 1, 2);
    grid->addWidget(BackupList, 1, 0, 3, 1);
    grid->addWidget(CmdRestore, 1, 1);
    grid->addWidget(CmdClose, 3, 1, Qt::AlignBottom);
    grid->setRowStretch(2, 1);
    resize(380, 280);
    connect(CmdRestore, &QPushButton::clicked, this, &FrmBackups::CmdRestore_Click);
    connect(CmdClose, &QPushButton::clicked, this, &QDialog::close);
    RefreshList();
}

void FrmBackups::RefreshList()
{
    BackupList->clear();
    for (const QString& backup : ListBackups(YearFile)) {
        auto* item = new QListWidgetItem(WhenText(backup), BackupList);
        item->setData(Qt::UserRole, backup);
    }
}

void FrmBackups::CmdRestore_Click()
{
    const QListWidgetItem* item = BackupList->currentItem();
    if (!item || !item->isSelected()) {
        Ctx.Messages.MsgBox(tr("No Backup Selected! "), MsgButtons::OK, Title());
        return;
    }
    const QString backup = item->data(Qt::UserRole).toString();
    const QString name = QFileInfo(YearFile).fileName();
    if (Ctx.Messages.MsgBox(tr("Restore %1 as it was on %2? The file as it is now is "
                               "kept as a backup.")
                                .arg(name, WhenText(backup)),
                            MsgButtons::YesNo, Title(), MsgIcon::Question) != MsgResult::Yes)
        return;
    DbResult restored;
    {
        const BusyPointer busy;
        restored = RestoreBackup(YearFile, backup, Clock::Now());
    }
    if (restored)
        Ctx.Messages.MsgBox(tr("%1 now holds the copy of %2.").arg(name, WhenText(backup)),
                            MsgButtons::OK, Title());
    else
        Ctx.Messages.MsgBox(tr("%1 could not be restored: %2").arg(name, restored.Message),
                            MsgButtons::OK, Title(), MsgIcon::Critical);
    RefreshList();
}
