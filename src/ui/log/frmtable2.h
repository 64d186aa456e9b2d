// SPDX-License-Identifier: GPL-3.0-or-later
// The grid view of the record browser's selection: one row per record in the browser's
// order, the columns the angler reads at a glance, then the day's catches (species, fish,
// released, longest and heaviest in the chosen units), and a double click on a row that takes
// the browser back to that day.
#pragma once

#include "db/datacontrol.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <vector>

class DataBar;
class QAction;
class QStandardItemModel;
class QTableView;

class frmTable2 : public QDialog {
    Q_OBJECT

public:
    // recordSource: the browser's record source when the grid opens.
    frmTable2(const LogContext& context, const QString& recordSource, QWidget* parent = nullptr);
    ~frmTable2() override;

    void Form_Load();
    void Form_Activate();
    void Data1_Reposition();
    void Data1_Error(const QString& message);
    // The grid's row choice: the picked day becomes the browser's find-this-record number.
    void DBGrid1_DblClick(int row);
    void mnuExit_Click();
    void Form_Unload();

    DataControl Data1;
    DataBar* Data1Bar = nullptr;
    QTableView* DBGrid1 = nullptr;
    QAction* mnuExit = nullptr;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void FillGrid();
    void FillCatchColumns(const std::vector<QString>& dates);
    void SetColumns();
    void ShowColumn(int position, const QString& caption, int widthTwips);
    void FitWindowToColumns();
    void GridRowChanged(int row);

    LogContext Ctx;
    QString Source;
    QStandardItemModel* Rows = nullptr;
};
