// SPDX-License-Identifier: GPL-3.0-or-later
// The printer: the platform's print dialog over the printers CUPS knows, with "Print to File
// (PDF)" in the same dialog. With $QUILLMERE_PRINT_PDF set, documents go straight into that
// PDF file without a dialog (tests, scripts).
#pragma once

#include "pages/pages.h"

class MessageService;
class QWidget;

enum class PrintOutcome { Printed, NotPrinted, Failed };

// Prints the document. A cancelled dialog or a printer that cannot start prints nothing and
// says nothing (NotPrinted); a PDF file that cannot be written is reported in one line through
// `messages` (Failed).
PrintOutcome PrintDocument(QWidget* parent, MessageService& messages, const QString& title,
                           const PageDrawing& draw,
                           QPageLayout::Orientation orientation = QPageLayout::Portrait);
