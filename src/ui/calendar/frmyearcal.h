// SPDX-License-Identifier: GPL-3.0-or-later
// The year calendar window: the twelve months of a year as small calendars, a year bar, and a
// double click that returns to the main window on the chosen month.
#pragma once

#include "calendar/yearcal.h"

#include <QDialog>
#include <QString>

#include <array>
#include <functional>

class Astronomy;
class QLabel;

// A row of day numbers (a weekday header, or a month's days with five blanks per weekday
// before the 1st), painted in seven columns that wrap into week rows, sized by its font.
class WeekColumns : public QWidget {
public:
    WeekColumns(int rows, QWidget* parent);
    void setText(const QString& text);
    const QString& text() const { return Shown; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    int ColumnWidth() const;
    int RowHeight() const;
    int Rows;
    QString Shown;
};
class QPushButton;
class QScrollBar;

class FrmYearCal : public QDialog {
    Q_OBJECT
public:
    // What the window needs of the main window: its calendar and engine, and two steps it
    // asks of it when it returns (move the main year bar, redraw the month).
    struct MainWindow {
        Calendar& Cal;
        Astronomy& Engine;
        std::int16_t SouthernHemisphere = 0;
        std::function<void(int year)> SetYear;
        std::function<void()> RefreshMonth;
    };
    explicit FrmYearCal(MainWindow main, QWidget* parent = nullptr);

    // Shows the window with the bar on the shown year and the months filled.
    void ShowYearCal();
    void FillYearCal();

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void Form_Deactivate();
    void vsbyearcal_Change();
    void vsbyearcal_Scroll();
    void Labmonth_Click(int month);
    void Labmonth_DblClick(int month);
    void Labmonth_MouseMove(int month);
    void cmdexit_Click();

    QScrollBar* vsbyearcal = nullptr;
    std::array<QLabel*, 13> Labname{}; // 1..12
    std::array<WeekColumns*, 13> Labcaption{};
    std::array<WeekColumns*, 13> Labmonth{};
    QPushButton* cmdexit = nullptr;
    bool Changed = false;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void MarkMonth(int month);
    void ReturnToMain();
    int MonthOf(QObject* label) const;

    MainWindow Main;
};
