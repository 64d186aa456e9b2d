// SPDX-License-Identifier: GPL-3.0-or-later
// "Monthly Data for <location>": the shown month's times, one line per day, with buttons that
// copy the list to the clipboard and print it. The main window is out of view while it is
// open.
#pragma once

#include <QWidget>

#include <array>
#include <string>
#include <vector>

class Astronomy;
class Calendar;
class MessageService;
class QLabel;
class QPlainTextEdit;
class QPushButton;

class FrmList : public QWidget {
    Q_OBJECT

public:
    // `mainWindow` is shown again when this window closes.
    FrmList(Astronomy& engine, const Calendar& cal, std::string locationName, bool ampm,
            MessageService& messages, QWidget* mainWindow);

    void Form_Load();
    void Form_Activate();  // builds the list
    void Command1_Click(); // close
    void Command2_Click(); // clipboard
    void Command3_Click(); // print
    void PrintTheTable();

    QPlainTextEdit* Text1 = nullptr;
    std::array<QLabel*, 4> Label{};
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    std::vector<std::string> Lines; // the list's day lines

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Astronomy& Engine;
    const Calendar& Cal;
    std::string LocationName;
    bool AmPm;
    MessageService& Messages;
    QWidget* MainWindow;
};
