// SPDX-License-Identifier: GPL-3.0-or-later
// What a printed PDF holds, read back by poppler's own tools (independent of Qt's writer).
#pragma once

#include <QString>

namespace testenv {
// The text of a PDF file as `pdftotext -layout` extracts it; empty when unreadable.
QString PdfText(const QString& path);
// The page count `pdfinfo` reports; 0 when unreadable.
int PdfPages(const QString& path);
} // namespace testenv
