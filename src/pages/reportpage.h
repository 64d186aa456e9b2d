// SPDX-License-Identifier: GPL-3.0-or-later
// The log's report drawn on any paged device (a printer or a PDF writer), in Courier 10.
#pragma once

#include "pages/pages.h"

#include <QFont>
#include <QString>

// Courier 10 (or the system's fixed-pitch font when there is no Courier).
QFont ReportFont();

// The pages of the report text (ReportPages) for the printer layer, in Courier 10.
PageDrawing ReportDrawing(const QString& text);

// Writes the pages of the report text to a PDF file; the words of the failure, or nothing.
QString PrintReportToPdf(const QString& path, const QString& text);

inline constexpr auto ReportDocumentTitle = "Quillmere DataBase Report";
