// The log's report over a data control's records, and its pages drawn on any paged device
// (a printer or a PDF writer). No widgets: the report window and the command line share it.
#pragma once

#include <QFont>
#include <QString>

#include <functional>

class DataControl;
class QPagedPaintDevice;

// The report text of the control's records from the first to the last, in record-source
// order; progress is told the number of lines made so far. The last record stays current.
QString BuildReportText(DataControl& data, bool ampm,
                        const std::function<void(int lines)>& progress = {});

// Courier 10 (or the system's fixed-pitch font when there is no Courier).
QFont ReportFont();

// Draws the pages of the report text (ReportPages) in Courier 10, starting on the device's
// current page; the device's document is finished when its painter ends.
bool PaintReportPages(QPagedPaintDevice& device, const QString& text);

// Prints the report text to a PDF file; the words of the failure, or nothing.
QString PrintReportToPdf(const QString& path, const QString& text);
