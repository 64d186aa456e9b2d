// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/printer.h"

#include "ui/common/messageservice.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace {
PrintOutcome ToPdf(MessageService& messages, const QString& path, const QString& title,
                   const QPageLayout& layout, const PageDrawing& draw)
{
    const QString error = WritePdf(path, title, layout, draw);
    if (error.isEmpty())
        return PrintOutcome::Printed;
    messages.MsgBox(error, MsgButtons::OK, QStringLiteral("Quillmere"), MsgIcon::Exclamation);
    return PrintOutcome::Failed;
}
} // namespace

PrintOutcome PrintDocument(QWidget* parent, MessageService& messages, const QString& title,
                           const PageDrawing& draw, QPageLayout::Orientation orientation)
{
    const QString fixedPdf = qEnvironmentVariable("QUILLMERE_PRINT_PDF");
    if (!fixedPdf.isEmpty())
        return ToPdf(messages, fixedPdf, title, DefaultPageLayout(orientation), draw);

    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    printer.setPageOrientation(orientation);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted)
        return PrintOutcome::NotPrinted;
    // "Print to File" goes through the same safe file writing as every PDF.
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty())
        return ToPdf(messages, printer.outputFileName(), title, printer.pageLayout(), draw);
    // The painter's origin is the printable area's top-left corner.
    const QRectF area(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
    return PaintPages(printer, area, draw) ? PrintOutcome::Printed : PrintOutcome::NotPrinted;
}
