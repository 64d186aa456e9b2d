// SPDX-License-Identifier: GPL-3.0-or-later
// "Print Calendar": the shown month as a printable calendar page, previewed in the window
// and printed on request at 1.2 times its size.
#pragma once

#include "pages/calendarpage.h"

#include <QWidget>

#include <array>

class Astronomy;
class Calendar;
class MessageService;
class QPushButton;
class TwipsPicture;

class FrmPrint : public QWidget {
    Q_OBJECT

public:
    FrmPrint(Astronomy& engine, const Calendar& cal, MessageService& messages,
             QWidget* parent = nullptr);

    // Draws the month the calendar shows at the place into the picture and shows the window;
    // the engine's forecast is left as it was.
    void PrintACalendar(std::int16_t southernHemisphere, const std::string& place);
    void Command1_Click(); // closes
    void Command2_Click(); // prints

    std::array<TwipsPicture*, 1> Pic{};
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    CalendarPage Page; // what the picture shows

private:
    Astronomy& Engine;
    const Calendar& Cal;
    MessageService& Messages;
};
