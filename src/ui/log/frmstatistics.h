// SPDX-License-Identifier: GPL-3.0-or-later
// "Catch Statistics": whether the angler's catches follow the forecast, over the open year
// file or every year file of the folder. A line in words, one bar chart per grouping with the
// days fished over each bar, and the figures as a table that can be copied.
#pragma once

#include "logdb/catchstats.h"
#include "logdb/catchtally.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <vector>

class CatchPages;
class QChartView;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;
class QTableWidget;

class FrmStatistics : public QDialog {
    Q_OBJECT

public:
    // yearFile: the year file the browser has open.
    FrmStatistics(const LogContext& context, const QString& yearFile, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void ScopeCombo_Click();
    void CmdCopy_Click();

    // The figures shown, for tests.
    const CatchStatistics& Figures() const { return Stats; }
    const CatchBreakdown& CatchFigures() const { return Breakdown; }

    QComboBox* ScopeCombo = nullptr;
    QLabel* Summary = nullptr;
    QTabWidget* Tabs = nullptr;
    std::vector<QChartView*> Charts; // in the order of CatchGroupingIndex
    QTableWidget* Table = nullptr;
    QPushButton* CmdCopy = nullptr;
    CatchPages* CatchCharts = nullptr; // the pages of the catches, after the table

private:
    void OpenWithinScreen();
    void BuildControls();
    QStringList ChosenFiles() const;
    void ShowFigures();
    void FillTable();

    LogContext Ctx;
    QString YearFile;
    CatchStatistics Stats;
    CatchBreakdown Breakdown;
};

// Opens the statistics of the year file modally.
void ShowStatistics(const LogContext& context, const QString& yearFile, QWidget* parent);
