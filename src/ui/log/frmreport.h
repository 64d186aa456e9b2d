// SPDX-License-Identifier: GPL-3.0-or-later
// The report of the record browser's selection: one fixed-width line per record under the
// column headings, in the browser's order, and printed in pages.
#pragma once

#include "db/datacontrol.h"
#include "logdb/logstate.h"

#include <QDialog>

class QAction;
class QPlainTextEdit;
class QProgressBar;

class frmReport : public QDialog {
    Q_OBJECT

public:
    // recordSource: the browser's record source when the report opens; ampm: clock texts of
    // the minors with AM/PM.
    frmReport(const LogContext& context, const QString& recordSource, bool ampm,
              QWidget* parent = nullptr);

    void Form_Load();
    // Appends a dash line to the text and prints the text in pages.
    void mnuPrint_Click();
    void mnuExit_Click();

    // The report text as it stands, lines ended by carriage return and line feed.
    QString ReportText() const { return Text; }

    DataControl Data1;
    QPlainTextEdit* R1 = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QAction* mnuPrint = nullptr;
    QAction* mnuExit = nullptr;

private:
    QWidget* BuildHeadings();
    void SetText(const QString& text);

    LogContext Ctx;
    QString Source;
    bool AmPm;
    QString Text;
};
