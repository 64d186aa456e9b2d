// SPDX-License-Identifier: GPL-3.0-or-later
// Printing into a PDF read back by pdftotext, what a print refuses to write over, the
// cancelled dialog, and the placing of a page of twips on the paper.
#include "pages/pages.h"
#include "support/pdftext.h"
#include "support/testenv.h"
#include "ui/common/messageservice.h"
#include "ui/common/printer.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {
// Two pages, each with its own line of text.
bool TwoPages(QPainter& p, const QRectF& area, int page)
{
    p.setFont(QFont(QStringLiteral("DejaVu Sans"), 14));
    p.drawText(area.topLeft() + QPointF(0, 400), QString("Page number %1 of two").arg(page + 1));
    return page == 0;
}

// Prints TwoPages into the file, as $QUILLMERE_PRINT_PDF names it; what was said goes to `said`.
PrintOutcome PrintTo(const QString& path, QStringList& said)
{
    MessageService messages;
    messages.Script([&said](const ShownMessage& m) {
        said << m.Text;
        return MsgResult::OK;
    });
    ::setenv("QUILLMERE_PRINT_PDF", path.toLocal8Bit().constData(), 1);
    const PrintOutcome outcome = PrintDocument(nullptr, messages, "Two pages", TwoPages);
    ::unsetenv("QUILLMERE_PRINT_PDF");
    return outcome;
}
} // namespace

// A PDF, new or earlier, gets every page without a dialog; a missing folder, or a file that is
// not a PDF (a year file chosen by a slip), is refused in one line and left byte for byte.
TEST(Printer, PrintsEveryPageIntoTheNamedPdfAndNeverOverAnotherFile)
{
    const QString dir = testenv::FreshDir("print");
    const struct {
        const char* Name;
        QByteArray Bytes; // written first when not empty
        const char* Said; // the message's words; empty when printed
    } cases[] = {
        {"out.pdf", {}, ""},
        {"earlier.pdf", "%PDF-1.4 an earlier report", ""},
        {"no such folder/out.pdf", {}, "no such folder/out.pdf"},
        {"2024.mdb", QByteArrayLiteral("SQLite format 3\0 the year's days"), "it is not a PDF"},
        {"notes.txt", "a note", "it is not a PDF"},
    };
    for (const auto& c : cases) {
        const QString path = dir + "/" + c.Name;
        if (!c.Bytes.isEmpty())
            testenv::WriteFile(path, c.Bytes);
        QStringList said;
        const bool printed = *c.Said == '\0';
        EXPECT_EQ(PrintTo(path, said), printed ? PrintOutcome::Printed : PrintOutcome::Failed);
        if (printed) {
            EXPECT_EQ(said, QStringList()) << c.Name;
            EXPECT_TRUE(testenv::PdfText(path).contains("Page number 2 of two")) << c.Name;
            continue;
        }
        ASSERT_EQ(said.size(), 1) << c.Name;
        EXPECT_TRUE(said[0].contains(c.Said) && !said[0].contains('\n')) << c.Name;
        EXPECT_EQ(QFile::exists(path) ? testenv::FileBytes(path) : QByteArray(), c.Bytes);
    }
}

// Without $QUILLMERE_PRINT_PDF the print dialog opens; cancelling it prints nothing, calls no
// drawing and says nothing.
TEST(Printer, ACancelledDialogPrintsNothingAndSaysNothing)
{
    bool dialogShown = false;
    QTimer::singleShot(0, [&dialogShown] {
        if (auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialogShown = true;
            d->reject();
        }
    });
    MessageService messages;
    bool drawn = false;
    const auto draw = [&drawn](QPainter&, const QRectF&, int) { return drawn = true, false; };
    EXPECT_EQ(PrintDocument(nullptr, messages, "x", draw), PrintOutcome::NotPrinted);
    EXPECT_TRUE(dialogShown);
    EXPECT_FALSE(drawn);
    EXPECT_TRUE(messages.Shown().empty());
}

TEST(PlaceTwips, ScalesToTheAskedSizeCentredAndShrinksToFitThePaper)
{
    QImage device(10, 10, QImage::Format_RGB32);
    device.setDotsPerMeterX(int(300 / 0.0254 + 0.5)); // 300 dpi
    device.setDotsPerMeterY(int(300 / 0.0254 + 0.5));
    QPainter p(&device);
    // 1440 twips = 1 inch = 300 device pixels at true size; 1.2 times gives 360, and 7 inches
    // take 2520 of the 3000 pixels, centred.
    const QSizeF page(1440 * 7, 1440 * 5);
    EXPECT_DOUBLE_EQ(PlaceTwips(p, QRectF(0, 0, 3000, 3000), page, 1.2), 1.2);
    EXPECT_NEAR(p.transform().map(QPointF(0, 0)).x(), 240.0, 0.5);
    EXPECT_NEAR(p.transform().map(QPointF(1440, 0)).x(), 240.0 + 360.0, 0.5);
    p.resetTransform();
    // Letter's printable width at 300 dpi (7.5 in) cannot take 7 in at 1.2 times.
    EXPECT_NEAR(PlaceTwips(p, QRectF(50, 60, 2250, 3000), page, 1.2), 2250.0 / (7 * 300), 1e-9);
    EXPECT_NEAR(p.transform().map(QPointF(1440 * 7, 0)).x(), 50 + 2250.0, 0.5);
    EXPECT_NEAR(p.transform().map(QPointF(0, 0)).y(), 60.0, 1e-9);
}
