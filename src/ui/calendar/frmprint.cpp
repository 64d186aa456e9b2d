// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/frmprint.h"

#include "astro/astronomy.h"
#include "pages/twips.h"
#include "ui/common/printer.h"
#include "ui/common/twipspicture.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

FrmPrint::FrmPrint(Astronomy& engine, const Calendar& cal, MessageService& messages,
                   QWidget* parent)
    : QWidget(parent, Qt::Window), Engine(engine), Cal(cal), Messages(messages)
{
    setWindowTitle(tr("Print Calendar"));
    Pic[0] = new TwipsPicture(this);
    Pic[0]->setFixedSize(Twips(CalendarPageTwips.width()) + 1,
                         Twips(CalendarPageTwips.height()) + 1);
    Pic[0]->SetDrawing([this](QPainter& p) { DrawCalendarPage(p, Page); });
    Command1 = new QPushButton(tr("Close"), this);
    Command2 = new QPushButton(tr("Print"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command2);
    buttons->addWidget(Command1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Pic[0]);
    layout->addLayout(buttons);
    connect(Command1, &QPushButton::clicked, this, &FrmPrint::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &FrmPrint::Command2_Click);
}

void FrmPrint::PrintACalendar(std::int16_t southernHemisphere, const std::string& place)
{
    const DayForecast shown = Engine.Forecast; // the main window still reads it
    Page = CalendarPageOf(Engine, Cal, southernHemisphere);
    Page.Place = place;
    Engine.Forecast = shown;
    Pic[0]->update();
    show();
    raise();
}

void FrmPrint::Command1_Click() { close(); }

void FrmPrint::Command2_Click()
{
    PrintDocument(this, Messages, QString::fromStdString(Page.Title), CalendarPageDrawing(Page),
                  CalendarPageOrientation);
}
