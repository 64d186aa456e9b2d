// The log's report over a data control's records, and its pages drawn on any paged device
// (a printer or a PDF writer). No widgets: the report window and the command line share it.
#pragma once

#include "logdb/database.h"
#include "platform/pages.h"

#include <QFont>
#include <QString>

#include <functional>

class DataControl;

// The report text of the control's records from the first to the last, in record-source
// order; progress is told the number of lines made so far. The last record stays current.
QString BuildReportText(DataControl& data, bool ampm,
                        const std::function<void(int lines)>& progress = {});

// Courier 10 (or the system's fixed-pitch font when there is no Courier).
QFont ReportFont();

// The report text of the records of a record source on the file.
DbResult ReadReportText(const QString& path, const QString& recordSource, bool ampm, QString& text);

// The report text as a print makes it: the text with a dash line and a line end appended.
QString TextForPrinting(const QString& text);

// The pages of the report text (ReportPages) for the printer layer, in Courier 10.
PageDrawing ReportDrawing(const QString& text);

// Writes the pages of the report text to a PDF file; the words of the failure, or nothing.
QString PrintReportToPdf(const QString& path, const QString& text);

inline constexpr auto ReportDocumentTitle = "Quillmere DataBase Report";
