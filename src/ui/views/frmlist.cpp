// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/views/frmlist.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/qtext.h"
#include "pages/listpage.h"
#include "ui/common/busypointer.h"
#include "ui/common/button.h"
#include "ui/common/printer.h"
#include "viewrules/monthlylist.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

FrmList::FrmList(Astronomy& engine, const Calendar& cal, std::string locationName, bool ampm,
                 MessageService& messages, QWidget* mainWindow)
    : QWidget(nullptr, Qt::Window), Engine(engine), Cal(cal), LocationName(std::move(locationName)),
      AmPm(ampm), Messages(messages), MainWindow(mainWindow)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The columns in a fixed-pitch font at the window's size, so that every row's times line
    // up whatever digits they hold; the month and year above them in bold.
    QFont columns = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    columns.setPointSizeF(font().pointSizeF());
    for (auto& label : Label) {
        label = new QLabel(this);
        label->setFont(columns);
    }
    QFont heading = font();
    heading.setBold(true);
    Label[0]->setFont(heading);
    Label[1]->setFont(heading);
    Text1 = new QPlainTextEdit(this);
    Text1->setReadOnly(true);
    Text1->setFont(columns);
    Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
    Command1 = Button(tr("&Close"), QStringLiteral("Command1"), tr(" Close List Screen "), this);
    Command2 =
        Button(tr("Clip&Board"), QStringLiteral("Command2"), tr(" Copy text to clipboard "), this);
    Command3 = Button(tr("&Print"), QStringLiteral("Command3"), tr(" Print a Calendar "), this);
    auto* month = new QHBoxLayout;
    month->addWidget(Label[0]);
    month->addWidget(Label[1]);
    month->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* b : {Command1, Command2, Command3})
        buttons->addWidget(b);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(month);
    layout->addWidget(Label[2]);
    layout->addWidget(Label[3]);
    layout->addWidget(Text1);
    layout->addLayout(buttons);
    connect(Command1, &QPushButton::clicked, this, &FrmList::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &FrmList::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &FrmList::Command3_Click);
    Form_Load();
}

void FrmList::Form_Load()
{
    // Wide enough for the longest line of the list and its headings, and most of the
    // screen's height.
    constexpr int LongestLine = 90; // characters of a list line, its heading included
    const QRect screen = this->screen()->availableGeometry();
    const int line = Text1->fontMetrics().horizontalAdvance(QString(LongestLine, QLatin1Char('0')));
    const int chrome = 2 * (Text1->frameWidth() + layout()->contentsMargins().left()) +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
                       2 * int(Text1->document()->documentMargin());
    resize(std::min(screen.width(), line + chrome), std::min(screen.height() * 9 / 10, 760));
}

void FrmList::Form_Activate()
{
    const BusyPointer busy;
    setWindowTitle(Q("Monthly Data for " + LocationName));
    Label[0]->setText(Q(MonthAbbrev(Cal.CurMonth)));
    Label[1]->setText(QString::number(Cal.CurYear));
    Label[2]->setText(QString::fromLatin1(MonthlyListHeadings[0]));
    Label[3]->setText(QString::fromLatin1(MonthlyListHeadings[1]));
    layout()->activate(); // the labels' new widths, before the list is painted
    Lines =
        MonthlyListLines(Engine, Cal.MonthStartJD[std::size_t(Cal.CurMonth)], Cal.MonthDays, AmPm);
    QString text;
    for (const std::string& line : Lines)
        text += Q(line) + QLatin1Char('\n');
    Text1->setPlainText(text);
}

void FrmList::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        Form_Activate();
}

void FrmList::Command1_Click() { close(); }

void FrmList::Command2_Click()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(Q(MonthlyListClipboard(Cal.CurMonth, Cal.CurYear, Lines)));
}

void FrmList::Command3_Click() { PrintTheTable(); }

void FrmList::PrintTheTable()
{
    PrintDocument(this, Messages, Q(MonthAbbrev(Cal.CurMonth) + " " + std::to_string(Cal.CurYear)),
                  ListDrawing(MonthlyListPrinted(Cal.CurMonth, Cal.CurYear, Lines)));
}

void FrmList::closeEvent(QCloseEvent* event)
{
    if (MainWindow)
        MainWindow->show();
    QWidget::closeEvent(event);
}
