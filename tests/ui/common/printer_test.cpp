// SPDX-License-Identifier: GPL-3.0-or-later
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

struct PrintPdfTo {
    explicit PrintPdfTo(const QString& path)
    {
        ::setenv("QUILLMERE_PRINT_PDF", path.toLocal8Bit().constData(), 1);
    }
    ~PrintPdfTo() { ::unsetenv("QUILLMERE_PRINT_PDF"); }
};
} // namespace

TEST(Printer, PrintsEveryPageIntoTheNamedPdfWithoutADialog)
{
    const QString path = testenv::FreshDir("print") + "/out.pdf";
    const PrintPdfTo target(path);
    MessageService messages;
    EXPECT_EQ(PrintDocument(nullptr, messages, "Two pages", TwoPages), PrintOutcome::Printed);
    EXPECT_TRUE(messages.Shown().empty());
    EXPECT_EQ(testenv::PdfPages(path), 2);
    const QString text = testenv::PdfText(path);
    EXPECT_TRUE(text.contains("Page number 1 of two")) << text.toStdString();
    EXPECT_TRUE(text.contains("Page number 2 of two")) << text.toStdString();
}

TEST(Printer, AnUnwritablePdfIsReportedInOneLineAndAnEarlierFileStaysWhole)
{
    const QString dir = testenv::FreshDir("print-missing");
    MessageService messages;
    messages.Script([](const ShownMessage&) { return MsgResult::OK; });
    {
        const PrintPdfTo target(dir + "/no such folder/out.pdf");
        EXPECT_EQ(PrintDocument(nullptr, messages, "x", TwoPages), PrintOutcome::Failed);
    }
    ASSERT_EQ(messages.Shown().size(), 1u);
    const QString said = messages.Shown()[0].Text;
    EXPECT_TRUE(said.contains("no such folder/out.pdf")) << said.toStdString();
    EXPECT_FALSE(said.contains('\n'));

    // A read-only folder: the earlier file keeps its bytes.
    const QString kept = dir + "/kept.pdf";
    QFile earlier(kept);
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    earlier.write("earlier");
    earlier.close();
    QFile::setPermissions(dir, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const bool rootIgnoresPermissions = QFile(dir + "/probe").open(QIODevice::WriteOnly);
    if (!rootIgnoresPermissions) {
        const PrintPdfTo target(kept);
        EXPECT_EQ(PrintDocument(nullptr, messages, "x", TwoPages), PrintOutcome::Failed);
        QFile again(kept);
        ASSERT_TRUE(again.open(QIODevice::ReadOnly));
        EXPECT_EQ(again.readAll(), "earlier");
    }
    QFile::setPermissions(dir,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

// A print to a file that is not a PDF (a year file chosen by a slip) leaves it byte for byte
// and says why in one line; an earlier PDF is replaced.
TEST(Printer, NeverPrintsOverAFileThatIsNotAPdf)
{
    const QString dir = testenv::FreshDir("print-over");
    MessageService messages;
    messages.Script([](const ShownMessage&) { return MsgResult::OK; });
    const struct {
        const char* Name;
        QByteArray Bytes;
        PrintOutcome Outcome;
    } cases[] = {
        {"2024.mdb", QByteArray("SQLite format 3\0 the year's days", 34), PrintOutcome::Failed},
        {"notes.txt", "a note", PrintOutcome::Failed},
        {"earlier.pdf", "%PDF-1.4 an earlier report", PrintOutcome::Printed},
    };
    for (const auto& c : cases) {
        const QString path = dir + "/" + c.Name;
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.Bytes);
        file.close();
        const PrintPdfTo target(path);
        EXPECT_EQ(PrintDocument(nullptr, messages, "x", TwoPages), c.Outcome) << c.Name;
        const bool kept = testenv::FileBytes(path) == c.Bytes;
        EXPECT_EQ(kept, c.Outcome == PrintOutcome::Failed) << c.Name;
    }
    ASSERT_EQ(messages.Shown().size(), 2u);
    for (const ShownMessage& shown : messages.Shown()) {
        EXPECT_TRUE(shown.Text.contains("it is not a PDF")) << shown.Text.toStdString();
        EXPECT_FALSE(shown.Text.contains('\n'));
    }
    EXPECT_EQ(testenv::PdfPages(dir + "/earlier.pdf"), 2);
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
    // 1440 twips = 1 inch = 300 device pixels at true size; 1.2 times gives 360.
    const QSizeF page(1440 * 7, 1440 * 5);
    EXPECT_DOUBLE_EQ(PlaceTwips(p, QRectF(0, 0, 3000, 3000), page, 1.2), 1.2);
    // Centred across the 3000 pixels: 7 inches at 1.2 times take 2520.
    EXPECT_NEAR(p.transform().map(QPointF(0, 0)).x(), 240.0, 0.5);
    EXPECT_NEAR(p.transform().map(QPointF(1440, 0)).x(), 240.0 + 360.0, 0.5);
    p.resetTransform();
    // Letter's printable width at 300 dpi (7.5 in) cannot take 7 in at 1.2 times.
    const double used = PlaceTwips(p, QRectF(50, 60, 2250, 3000), page, 1.2);
    EXPECT_NEAR(used, 2250.0 / (7 * 300), 1e-9);
    EXPECT_NEAR(p.transform().map(QPointF(1440 * 7, 0)).x(), 50 + 2250.0, 0.5);
    EXPECT_NEAR(p.transform().map(QPointF(0, 0)).y(), 60.0, 1e-9);
}
