// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmreport.h"

#include "logdb/logreport.h"
#include "logdb/reportlines.h"
#include "pages/reportpage.h"
#include "pages/twips.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"
#include "ui/common/printer.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <array>

namespace {

// The headings above the report text, each as wide as its column in characters.
constexpr std::array<std::pair<const char*, int>, 9> Headings = {{{"Item #", 5},
                                                                  {"Date", 12},
                                                                  {"Major      1   ", 11},
                                                                  {"Major      2   ", 10},
                                                                  {"Minor      1   ", 10},
                                                                  {"Minor      2   ", 14},
                                                                  {" Rating", 6},
                                                                  {"Moon     %   ", 5},
                                                                  {"Moon    Age   ", 6}}};

} // namespace

frmReport::frmReport(const LogContext& context, const QString& recordSource, bool ampm,
                     QWidget* parent)
    : QDialog(parent), Ctx(context), Source(recordSource), AmPm(ampm)
{
    setWindowTitle(tr("Quillmere DataBase Report"));
    setModal(true);
    auto* bar = new QMenuBar(this);
    mnuPrint = bar->addAction(tr("&Print"));
    mnuPrint->setShortcut(QKeySequence::Print);
    mnuPrint->setObjectName(QStringLiteral("mnuPrint"));
    mnuExit = bar->addAction(tr("&Close"));
    mnuExit->setObjectName(QStringLiteral("mnuExit"));
    mnuExit->setShortcut(QKeySequence::Close);
    R1 = new QPlainTextEdit(this);
    R1->setObjectName(QStringLiteral("R1"));
    R1->setReadOnly(true);
    R1->setLineWrapMode(QPlainTextEdit::NoWrap);
    R1->setFont(ReportFont());
    ProgressBar1 = new QProgressBar(this);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addWidget(BuildHeadings());
    layout->addWidget(R1, 1);
    layout->addWidget(ProgressBar1);
    const QFontMetrics metrics(R1->font());
    resize(metrics.horizontalAdvance(QString(82, QLatin1Char('0'))) + 40, Twips(7000));

    connect(mnuPrint, &QAction::triggered, this, &frmReport::mnuPrint_Click);
    connect(mnuExit, &QAction::triggered, this, &frmReport::mnuExit_Click);
    Form_Load();
}

QWidget* frmReport::BuildHeadings()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    const int margin = R1->frameWidth() + int(R1->document()->documentMargin());
    layout->setContentsMargins(margin, 0, 0, 0);
    layout->setSpacing(0);
    const QFontMetrics metrics(R1->font());
    for (const auto& [caption, width] : Headings) {
        // The blanks inside a caption stand for its line break.
        QString text = QString::fromLatin1(caption).trimmed();
        text.replace(QRegularExpression(QStringLiteral(" {2,}")), QStringLiteral("\n"));
        auto* label = new QLabel(text, row);
        label->setFont(R1->font());
        label->setWordWrap(true);
        // A two-line heading is centred over its column, so that "Rating" and the "%" under
        // "Moon" beside it read apart.
        label->setAlignment((text.contains(QLatin1Char('\n')) ? Qt::AlignHCenter : Qt::AlignLeft) |
                            Qt::AlignBottom);
        label->setFixedWidth(metrics.horizontalAdvance(QString(width, QLatin1Char('0'))));
        layout->addWidget(label);
    }
    layout->addStretch(1);
    return row;
}

void frmReport::Form_Load()
{
    Data1.SetDatabaseName(Ctx.State.DBPath);
    Data1.SetRecordSource(Source);
    DbResult opened = Data1.Refresh();
    opened = opened && Data1.RecordCount() > 0 ? Data1.MoveLast() : opened;
    opened = opened && Data1.RecordCount() > 0 ? Data1.MoveFirst() : opened;
    if (!opened) {
        Ctx.Messages.MsgBox(tr("Data error event hit err:") + opened.Message);
        return;
    }
    ProgressBar1->setRange(0, Data1.RecordCount());
    ProgressBar1->show();
    const BusyPointer busy;
    SetText(BuildReportText(Data1, AmPm, [this](int lines) { ProgressBar1->setValue(lines); }));
}

void frmReport::SetText(const QString& text)
{
    Text = text;
    QString shown = text;
    R1->setPlainText(shown.remove(QLatin1Char('\r')));
}

void frmReport::mnuPrint_Click()
{
    SetText(TextForPrinting(Text));
    PrintDocument(this, Ctx.Messages, QString::fromLatin1(ReportDocumentTitle),
                  ReportDrawing(Text));
}

void frmReport::mnuExit_Click() { close(); }
