// SPDX-License-Identifier: GPL-3.0-or-later
// The day detail window: one day's sun and moon details and its events, beside the month grid
// so that it does not cover the chosen day. The main window places it and fills its labels.
#pragma once

#include "viewrules/daydetails.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QPushButton;
class QTimer;

class FrmDetail : public QDialog {
    Q_OBJECT
public:
    explicit FrmDetail(QWidget* parent = nullptr);

    // The day the caption names (month first as the platform writes dates, or day first with
    // the platform's separator).
    struct DateOrder {
        bool MonthFirst = true;
        char Separator = '/';
    };
    void SetDay(int year, int month, int day, DateOrder order);
    // Empties every value label, then writes the given ones.
    void ShowLines(const DetailLines& lines);

    // Handlers, connected explicitly and callable from tests.
    void Form_Activate();
    void CMDClose_Click();
    void Form_Click();
    void Label_Click(int index);
    void Label_MouseMove(int index);

    std::array<QLabel*, FirstEventLabel + EventLabelCount> Label{}; // the value labels
    QPushButton* CMDClose = nullptr;
    QTimer* Timer1 = nullptr;
    // The platform's beep; tests count the beeps instead.
    std::function<void()> Beep;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    int Year = 2000, Month = 1, Day = 1;
    DateOrder Order;
};
