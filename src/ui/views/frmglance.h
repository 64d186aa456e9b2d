// SPDX-License-Identifier: GPL-3.0-or-later
// "Lunar Events for Mon/Year": the month at a glance, centred on the screen, with a button
// that prints the chart. The main window is out of view while it is open.
#pragma once

#include "pages/glancechart.h"

#include <QWidget>

#include <array>
#include <string>

class Calendar;
class MessageService;
class QPushButton;
class TwipsPicture;

class FrmGlance : public QWidget {
    Q_OBJECT

public:
    // The chart of the month at the place; `mainWindow` is shown again when this window closes.
    FrmGlance(const Calendar& cal, std::int16_t southernHemisphere, std::string place,
              MessageService& messages, QWidget* mainWindow);

    void Form_Load();
    void Form_Activate(); // draws the chart of the calendar's month
    void Cmd_Click(int index);

    TwipsPicture* Pic = nullptr;
    std::array<QPushButton*, 2> Cmd{}; // 0 closes, 1 prints
    GlanceChart Chart;                 // what the picture shows

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    const Calendar& Cal;
    std::int16_t Southern;
    std::string Place;
    MessageService& Messages;
    QWidget* MainWindow;
};
