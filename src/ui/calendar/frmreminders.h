// SPDX-License-Identifier: GPL-3.0-or-later
// The reminder options of the ten locations: which events (major and minor periods, sunrise
// and sunset), how many minutes before, and on every day or the best days only. The choices
// are kept per location while the window is open and go into the settings on OK.
#pragma once

#include "model/location.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QRadioButton;
class QSpinBox;
struct Settings;

class FrmReminders : public QDialog {
    Q_OBJECT
public:
    FrmReminders(Settings& settings, QWidget* parent = nullptr);

    // Shows the options of location n (1..10).
    void CboLocation_Change(int n);
    // Puts every location's options into the settings and closes.
    void CmdOK_Click();

    QComboBox* CboLocation = nullptr;
    QCheckBox* ChkMajors = nullptr;
    QCheckBox* ChkMinors = nullptr;
    QCheckBox* ChkSun = nullptr;
    QSpinBox* SpnLead = nullptr;
    QRadioButton* OptEveryDay = nullptr;
    QRadioButton* OptBestDays = nullptr;

private:
    Settings& Config;
    std::array<ReminderOption, LocationCount + 1> Options{};
    int Shown = 0;

    void KeepShown();
};
