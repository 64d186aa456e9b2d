// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/views/frmglance.h"

#include "calendar/calendar.h"
#include "pages/twips.h"
#include "ui/common/printer.h"
#include "ui/common/twipspicture.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

FrmGlance::FrmGlance(const Calendar& cal, std::int16_t southernHemisphere, std::string place,
                     MessageService& messages, QWidget* mainWindow)
    : QWidget(nullptr, Qt::Window), Cal(cal), Southern(southernHemisphere), Place(std::move(place)),
      Messages(messages), MainWindow(mainWindow)
{
    setAttribute(Qt::WA_DeleteOnClose);
    Pic = new TwipsPicture(this);
    Pic->setFixedSize(Twips(GlancePictureWidth), Twips(GlancePictureHeight));
    Pic->SetDrawing([this](QPainter& p) { DrawGlanceChart(p, Chart); });
    Cmd[0] = new QPushButton(tr("Close"), this);
    Cmd[1] = new QPushButton(tr("Print"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Cmd[1]);
    buttons->addWidget(Cmd[0]);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Pic);
    layout->addLayout(buttons);
    for (int i = 0; i < 2; ++i)
        connect(Cmd[std::size_t(i)], &QPushButton::clicked, this, [this, i] { Cmd_Click(i); });
    Form_Load();
}

void FrmGlance::Form_Load()
{
    adjustSize();
    const QRect screen = this->screen()->geometry();
    move(screen.left() + (screen.width() - width()) / 2,
         screen.top() + (screen.height() - height()) / 2);
}

void FrmGlance::Form_Activate()
{
    Chart = GlanceChartOf(Cal, Southern, GlancePictureWidth, GlancePictureHeight);
    Chart.Place = Place;
    setWindowTitle(QString::fromStdString(Chart.Title));
    Pic->update();
}

void FrmGlance::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        Form_Activate();
}

void FrmGlance::Cmd_Click(int index)
{
    if (index == 0) {
        close();
        return;
    }
    PrintDocument(this, Messages, QString::fromStdString(Chart.Title), GlanceChartDrawing(Chart),
                  GlanceChartOrientation);
}

void FrmGlance::closeEvent(QCloseEvent* event)
{
    if (MainWindow)
        MainWindow->show();
    QWidget::closeEvent(event);
}
