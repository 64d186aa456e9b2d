// SPDX-License-Identifier: GPL-3.0-or-later
// The main month window: the month grid, the selected day's details, the moon picture, the
// hour and year bars, the status bar with the location and the rating legend, and the menus.
// It owns the navigation state; the numbers come from the calendar module and the engine.
#pragma once

#include "calendar/calendar.h"
#include "model/currentlocation.h"
#include "viewrules/daypanel.h"

#include <QMainWindow>
#include <QPixmap>

#include <array>
#include <string>
#include <vector>

struct AppState;
class DayCellWidget;
class FrmDetail;
class FrmPrint;
class QAction;
class QGroupBox;
class QLayout;
class QLabel;
class QPushButton;
class QScrollBar;
class QStatusBar;
class QTimer;

class FrmCalendar : public QMainWindow {
    Q_OBJECT
public:
    explicit FrmCalendar(AppState& app, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void Form_Activate();
    void Form_MouseMove();
    void IncMonth_Click();
    void DecMonth_Click();
    void CmdNOW_Click();
    void VsbYear_Change();
    void VsbYear_Scroll();
    void VsbHour_Change();
    void Timer1_Timer();
    void txtpic_Click(int index);
    void txtpic_MouseMove(int index);
    void txtpic_MouseDown(int index, Qt::MouseButton button = Qt::LeftButton);
    void txtpic_DblClick(int index);
    void mnuyearly_Click();
    void PicM_Click();
    void PicM_MouseMove();
    void mnuexit_Click();
    void DST_Click(int index);
    void Mouse_Click(int index);
    void Pangle_Click(int index);
    // "Reminders...": the reminder options of the ten locations.
    void Reminders_Click();
    void DLoc_Click(int index);
    // "Edit A Location": the location editor on location index, the main window out of view.
    void Loc_Click(int index);
    void HelpContents_Click();
    void MnuAbout_Click();
    void VsbHour_Scroll();
    void Label15_Click();
    void StatusBar1_MouseMove(int xTwips);
    void RunDataBase_Click();
    void PrintCalendar_Click();
    void AtAGlance_Click();
    void ShowList_Click();

    // The location-dependent parts of the window: captions, menus, status bar, hour label,
    // hemisphere pictures.
    void ApplyCurrentLocation();
    // Redraws the shown month and recomputes the selected day: day selectDay of the month when
    // given (the last day when the month is shorter), else today in today's month, else day 1.
    void RefreshMonth(int selectDay = 0);
    // The shown month becomes month/year, the bars follow, the month is drawn once.
    void ShowMonth(int year, int month, int selectDay = 0);
    // The framed day moves by days, into the next or previous month if need be; the details
    // beside the grid follow it.
    void MoveSelection(int days);
    // "24-Hour Clock": the AMPM setting off or on, everywhere the program shows a time.
    void Clock24_Click();
    // The month grid's moon-phase pictures for the current hemisphere.
    void SetHemispherePictures();
    // Fills the day details beside the grid from the selected day's forecast.
    void DoLabels();
    // Opens the day detail window beside the grid, away from the cell, and fills it.
    void DisplayDetails(double jd, int cell);
    // The modal day graph of the selected day.
    void ShowDayGraph();

    // Controls, by their names.
    QPushButton* IncMonth = nullptr;
    QPushButton* DecMonth = nullptr;
    QPushButton* CmdNOW = nullptr;
    std::array<DayCellWidget*, MonthGridCells> txtpic{};
    QScrollBar* VsbYear = nullptr;
    QScrollBar* VsbHour = nullptr;
    std::array<QLabel*, 33> Label{}; // the indices the window uses; others stay null
    QLabel* PicM = nullptr;
    QLabel* ToPict = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    std::array<QLabel*, 5> StatusPanels{}; // location, then the four legend panels
    QTimer* Timer1 = nullptr;

    QAction* RunDataBase = nullptr;
    QAction* mnuyearly = nullptr;
    QAction* PrintCalendar = nullptr;
    QAction* AtAGlance = nullptr;
    QAction* ShowList = nullptr;
    FrmPrint* PrintWindow = nullptr; // made on first use
    QAction* mnuexit = nullptr;
    std::array<QAction*, 3> DST{}; // "Daylight Savings", "Standard", "Local Clock"
    std::array<QAction*, 2> Mouse{};
    std::array<QAction*, 2> Pangle{};
    QAction* Reminders = nullptr;
    std::array<QAction*, 11> DLoc{}; // 1..10
    std::array<QAction*, 11> Loc{};  // 1..10
    QAction* Clock24 = nullptr;
    QAction* HelpContents = nullptr;
    QAction* MnuAbout = nullptr;

    // Picture slots: ratings 1..4, phases 20..23 (quarters by hemisphere), 30..31; the stock
    // phase images in ImageA 3, 8, 9, 10.
    std::array<QPixmap, 34> Pic{};
    std::array<QPixmap, 11> ImageA{};

    CurrentLocation Here;
    ZoneRules HereClock;                // the current location's zone, as last loaded
    std::vector<std::string> ZonesTold; // unknown zone names already reported
    // Navigation state.
    std::int16_t SelDay = 1;
    int LastHoveredCell = -1;
    struct ComputedDay {
        int Year = 0, Month = 0, Day = 0;
        bool operator==(const ComputedDay&) const = default;
    };
    ComputedDay LastComputedDay;
    bool ComputingSuppressed = true;
    DayPanel Panel;              // what DoLabels last showed
    FrmDetail* Detail = nullptr; // the day detail window, made on the first double click
    int DetailCell = -1;         // the cell it shows

signals:
    // The window has saved the settings and closed; whoever runs it decides whether to quit
    // (always when `exiting`, through Exit).
    void Closed(bool exiting);
    // A location's reminder options were changed.
    void RemindersChanged();

protected:
    // Each time the window is shown (at start and when it comes back from a window that hid
    // it), it activates: the selected day at noon at the current location.
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // Arrows move the framed day, Page Up/Down the month (with Ctrl the year), Home goes to
    // today, Enter opens the day's details.
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool Exiting = false; // Exit was chosen

    void BuildControls();
    QLayout* BuildMonthGrid(QWidget* central);
    QLayout* BuildDetailsPanel(QWidget* central);
    void BuildMenus();
    void BuildStatusBar();
    void RecordPosition();
    void ConnectHandlers();
    void DrawMonthCells();
    double CellJD(int cell) const;
    // Now on the current location's clock under "Local Clock", else on the computer's.
    QDateTime PlaceNow() const;
    void SelectCell(int index);
    int FramedDay() const;
    // Sets the year and hour bars without their change events, and shows the hour.
    void SetBars(int year, int minutes);
    void ShowHour(int minutes);
    void ComputeAtNoon();
    // ComputeSunDay, ComputeDay, DoLabels and the moon picture for SelectedJD.
    void ComputeSelectedDay();
    void DrawMoonPicture(bool parallacticView);
    void ShowLabelToolTip(int index);
    QLabel* MakeLabel(int index, QWidget* parent);

    AppState& App;
};
