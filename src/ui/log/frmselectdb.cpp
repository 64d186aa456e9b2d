// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmselectdb.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "logdb/backups.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "logdb/yearplace.h"
#include "platform/clock.h"
#include "ui/common/busypointer.h"
#include "ui/common/button.h"
#include "ui/common/messageservice.h"
#include "ui/log/exportcatches.h"
#include "ui/log/frmbackups.h"
#include "ui/log/frmtable1.h"
#include "ui/log/importcatches.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

FrmSelectDB::FrmSelectDB(const LogContext& context, QWidget* parent) : QDialog(parent), Ctx(context)
{
    setWindowTitle(tr("Database Functions"));
    setModal(true);
    BuildControls();
    ShowBrowser = [this](const QString& path) {
        frmTable1 browser(Ctx, parentWidget());
        browser.Data1.SetDatabaseName(path);
        browser.exec();
    };
    ShowBackups = [this](const QString& path) {
        FrmBackups backups(Ctx, path, this);
        backups.exec();
    };
    ChooseImportFile = [this] {
        return QFileDialog::getOpenFileName(this, tr("Import Catches"), QString(),
                                            tr("Log exports (*.csv *.json);;All files (*)"));
    };
    ChooseExportFile = [this] {
        return QFileDialog::getSaveFileName(this, tr("Export Catches"), QString(),
                                            tr("CSV files (*.csv);;JSON files (*.json)"));
    };
    Form_Load();
}

void FrmSelectDB::BuildControls()
{
    DBFiles = new QListWidget(this);
    DBFiles->setObjectName(QStringLiteral("DBFiles"));
    DBFiles->setToolTip(tr(" DoubleClick on Year of Interest "));
    OpenDBFile = Button(tr("Open"), QStringLiteral("OpenDBFile"), tr(" Open Selected File "), this);
    CmdCreate = Button(tr("Create"), QStringLiteral("CmdCreate"), {}, this);
    DeleteDBFile =
        Button(tr("Delete"), QStringLiteral("DeleteDBFile"), tr(" Delete Selected File "), this);
    CmdCompact = Button(tr("Compact"), QStringLiteral("CmdCompact"), {}, this);
    CmdRepair = Button(tr("Repair"), QStringLiteral("CmdRepair"), {}, this);
    CmdImport = Button(tr("Import"), QStringLiteral("CmdImport"),
                       tr(" Import Catches from a CSV or JSON File into the Selected Year "), this);
    CmdExport = Button(tr("Export"), QStringLiteral("CmdExport"),
                       tr(" Export the Selected Year with its Catches as CSV or JSON "), this);
    CmdBackups = Button(tr("Backups"), QStringLiteral("CmdBackups"),
                        tr(" Restore an Earlier Copy of the Selected File "), this);
    CloseSelectDB =
        Button(tr("Close"), QStringLiteral("CloseSelectDB"), tr(" Close and Exit "), this);
    PBar1 = new QProgressBar(this);
    PBar1->setObjectName(QStringLiteral("PBar1"));
    PBar1->hide();

    auto* grid = new QGridLayout(this);
    grid->addWidget(DBFiles, 0, 0, 9, 1);
    int row = 0;
    for (QPushButton* b : {OpenDBFile, CmdCreate, DeleteDBFile, CmdCompact, CmdRepair, CmdImport,
                           CmdExport, CmdBackups})
        grid->addWidget(b, row++, 1);
    grid->setRowStretch(row++, 1);
    grid->addWidget(CloseSelectDB, row, 1);
    grid->addWidget(PBar1, 9, 0, 1, 2);
    resize(300, 300);

    connect(DBFiles, &QListWidget::itemSelectionChanged, this, &FrmSelectDB::DBFiles_Click);
    connect(DBFiles, &QListWidget::itemDoubleClicked, this, &FrmSelectDB::DBFiles_DblClick);
    connect(OpenDBFile, &QPushButton::clicked, this, &FrmSelectDB::OpenDBFile_Click);
    connect(CmdCreate, &QPushButton::clicked, this, &FrmSelectDB::CmdCreate_Click);
    connect(DeleteDBFile, &QPushButton::clicked, this, &FrmSelectDB::DeleteDBFile_Click);
    connect(CmdCompact, &QPushButton::clicked, this, &FrmSelectDB::CmdCompact_Click);
    connect(CmdRepair, &QPushButton::clicked, this, &FrmSelectDB::CmdRepair_Click);
    connect(CloseSelectDB, &QPushButton::clicked, this, &FrmSelectDB::CloseSelectDB_Click);
    connect(CmdBackups, &QPushButton::clicked, this, &FrmSelectDB::CmdBackups_Click);
    connect(CmdImport, &QPushButton::clicked, this, &FrmSelectDB::CmdImport_Click);
    connect(CmdExport, &QPushButton::clicked, this, &FrmSelectDB::CmdExport_Click);
}

void FrmSelectDB::Form_Load()
{
    CleanLeftovers(Ctx.Folder);
    RefreshList();
    OfferRestore(0);
    OpenDBFile->setEnabled(true);
}

void FrmSelectDB::RefreshList()
{
    DBFiles->clear();
    DBFiles->addItems(ListYearFiles(Ctx.Folder));
}

void FrmSelectDB::DBFiles_Click()
{
    if (const QListWidgetItem* item = DBFiles->currentItem(); item && item->isSelected())
        Ctx.State.DBPath = QDir(Ctx.Folder).filePath(item->text());
}

QString FrmSelectDB::SelectedOrComplain()
{
    const QListWidgetItem* item = DBFiles->currentItem();
    if (!item || !item->isSelected()) {
        Ctx.Messages.MsgBox(tr("No File Selected! "), MsgButtons::OKCancel);
        return {};
    }
    return QDir(Ctx.Folder).filePath(item->text());
}

void FrmSelectDB::DBFiles_DblClick() { OpenDBFile_Click(); }

void FrmSelectDB::OpenDBFile_Click()
{
    const QString path = SelectedOrComplain();
    if (path.isEmpty())
        return;
    Ctx.State.DBPath = path;
    CloseAndBrowse();
}

void FrmSelectDB::CloseAndBrowse()
{
    close();
    // With no year file chosen yet, or one deleted since, there is nothing to browse.
    if (!Ctx.State.DBPath.isEmpty() && QFile::exists(Ctx.State.DBPath)) {
        KeepBackup(Ctx.State.DBPath);
        ShowBrowser(Ctx.State.DBPath);
    }
}

void FrmSelectDB::KeepBackup(const QString& path)
{
    if (const DbResult kept = BackUpIfChanged(path, Clock::Now()); !kept)
        Ctx.Messages.MsgBox(tr("No backup of %1 could be made: %2\nThe file opens as it is.")
                                .arg(QFileInfo(path).fileName(), kept.Message),
                            MsgButtons::OK, tr("Backups"), MsgIcon::Exclamation);
}

void FrmSelectDB::CmdCreate_Click()
{
    const QString Y = QString::number(Ctx.CurYear).trimmed();
    const MsgResult answer = Ctx.Messages.MsgBox(tr("Create DataBase for ") + Y, MsgButtons::YesNo);
    if (answer == MsgResult::Yes && !CreateDB(Ctx.CurYear))
        return; // the window stays, so that Create can be tried again
    CloseAndBrowse();
}

bool FrmSelectDB::CreateDB(std::int16_t year)
{
    const QString Y = QString::number(year);
    Ctx.State.DBPath = QDir(Ctx.Folder).filePath(YearFileName(year));
    if (QFile::exists(Ctx.State.DBPath)) {
        Ctx.Messages.MsgBox(tr("DataBase already exists for ") + Y, MsgButtons::OKCancel);
        return true;
    }
    if (OfferRestore(year))
        return true;
    CreateYearResult created;
    {
        const BusyPointer busy;
        created = CreateYearFile(Ctx.Folder, year,
                                 [this, year](const QString& path) { return Fill(path, year); });
        PBar1->hide();
    }
    if (parentWidget())
        parentWidget()->show();
    RefreshList();
    if (created.Outcome == CreateYearResult::Status::Failed) {
        Ctx.State.DBPath.clear();
        Ctx.Messages.MsgBox(tr("The DataBase for %1 could not be created: %2\n"
                               "No file was kept; use Create to try again.")
                                .arg(Y, created.Message),
                            MsgButtons::OK, tr("Create DataBase"), MsgIcon::Critical);
        return false;
    }
    return true;
}

DbResult FrmSelectDB::Fill(const QString& path, std::int16_t year)
{
    Astronomy engine = Ctx.Engine;
    const Calendar cal = YearCalendar(engine, year, Ctx.SouthernHemisphere);
    PBar1->setRange(1, cal.YearSlots - 1);
    PBar1->show();
    const DbResult filled = FillYearFile(Data0, path, engine, cal, Ctx.DaylightBias,
                                         [this](int day, int) { PBar1->setValue(day); });
    return filled ? WriteYearPlace(path, PlaceOfEngine(engine, Ctx.PlaceName)) : filled;
}

bool FrmSelectDB::OfferRestore(int year)
{
    for (const RestorableYear& kept : RestorableYears(Ctx.Folder)) {
        if (kept.Year != year && year != 0)
            continue;
        const QString name = YearFileName(kept.Year);
        const MsgResult answer =
            Ctx.Messages.MsgBox(tr("%1 is missing, but a copy of it is kept as %2.\n"
                                   "Restore %1 from that copy?")
                                    .arg(name, QFileInfo(kept.Copy).fileName()),
                                MsgButtons::YesNo, tr("Restore DataBase"), MsgIcon::Question);
        if (answer != MsgResult::Yes)
            continue;
        if (const DbResult restored = RestoreYearFile(Ctx.Folder, kept); !restored) {
            Ctx.Messages.MsgBox(tr("%1 could not be restored: %2\n"
                                   "The copy is kept as it was.")
                                    .arg(name, restored.Message),
                                MsgButtons::OK, tr("Restore DataBase"), MsgIcon::Critical);
            continue;
        }
        RefreshList();
        if (kept.Year == year)
            return true;
    }
    return false;
}

void FrmSelectDB::DeleteDBFile_Click()
{
    const QString path = SelectedOrComplain();
    if (path.isEmpty())
        return;
    const MsgResult answer =
        Ctx.Messages.MsgBox(tr("Confirm to Delete Selected File "), MsgButtons::YesNoDefaultNo);
    if (answer == MsgResult::Yes) {
        // The year goes to the backups first, where Backups and restore find it again.
        if (const DbResult kept = BackUpIfChanged(path, Clock::Now()); !kept)
            Ctx.Messages.MsgBox(kept.Message + tr(" The file is not deleted."), MsgButtons::OK,
                                windowTitle(), MsgIcon::Critical);
        else
            DeleteYearFile(path);
    }
    RefreshList();
}

void FrmSelectDB::CmdCompact_Click()
{
    if (SelectedOrComplain().isEmpty())
        return;
    const QString title = tr("Compact DataBases");
    DbResult compacted;
    {
        const BusyPointer busy;
        compacted = CompactDB(Ctx.State.DBPath);
    }
    Ctx.Messages.MsgBox(compacted ? tr("Compacting Completed!") : tr("Error Compacting Database!"),
                        MsgButtons::OK, title);
}

void FrmSelectDB::CmdRepair_Click()
{
    if (SelectedOrComplain().isEmpty())
        return;
    RepairReport repaired;
    {
        const BusyPointer busy;
        repaired = RepairYearFile(Ctx.State.DBPath);
    }
    Ctx.Messages.MsgBox(repaired.Result ? tr("Repair Completed!\n") + repaired.Summary()
                                        : tr("Error Repairing Database!\n%1\nThe file is kept "
                                             "as it was.")
                                              .arg(repaired.Result.Message),
                        MsgButtons::OK, tr("Repair DataBases"));
}

void FrmSelectDB::CloseSelectDB_Click() { close(); }

void FrmSelectDB::CmdBackups_Click()
{
    // With no file selected, a deleted year shown in the main window is found in the backups.
    const QListWidgetItem* item = DBFiles->currentItem();
    if (const auto deleted = DeletedYear(Ctx.Folder, Ctx.CurYear);
        deleted && (!item || !item->isSelected())) {
        ShowBackups(QDir(Ctx.Folder).filePath(YearFileName(Ctx.CurYear)));
        return;
    }
    if (const QString path = SelectedOrComplain(); !path.isEmpty())
        ShowBackups(path);
}

void FrmSelectDB::CmdImport_Click()
{
    const QString path = SelectedOrComplain();
    if (path.isEmpty())
        return;
    if (const QString csv = ChooseImportFile(); !csv.isEmpty())
        ImportCatches(Ctx, path, csv);
}

void FrmSelectDB::CmdExport_Click()
{
    const QString path = SelectedOrComplain();
    if (path.isEmpty())
        return;
    if (const QString target = ChooseExportFile(); !target.isEmpty())
        ExportCatches(Ctx, path, target);
}
