// The main month window: the month grid, the selected day's details, the moon picture, the
// hour and year bars, the status bar with the location and the rating legend, and the menus.
// It owns the navigation state; the numbers come from the calendar module and the engine.
#pragma once

#include "app/currentlocation.h"

#include <QMainWindow>

#include <array>

struct AppState;
class DayCellWidget;
class QAction;
class QGroupBox;
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
    void mnuexit_Click();
    void DST_Click(int index);
    void Mouse_Click(int index);
    void Pangle_Click(int index);
    void DLoc_Click(int index);
    void HelpContents_Click();
    void MnuAbout_Click();
    void VsbHour_Scroll();
    void Label15_Click();
    void StatusBar1_MouseMove(int xTwips);
    void RunDataBase_Click();

    // The location-dependent parts of the window: captions, menus, status bar, hour label.
    void ApplyCurrentLocation();

    // Controls, by their names.
    QPushButton* IncMonth = nullptr;
    QPushButton* DecMonth = nullptr;
    QPushButton* CmdNOW = nullptr;
    std::array<DayCellWidget*, 37> txtpic{};
    QScrollBar* VsbYear = nullptr;
    QScrollBar* VsbHour = nullptr;
    std::array<QLabel*, 33> Label{}; // the indices the window uses; others stay null
    QLabel* PicM = nullptr;
    QLabel* ToPict = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    std::array<QLabel*, 5> StatusPanels{}; // location, then the four legend panels
    QTimer* Timer1 = nullptr;

    QAction* RunDataBase = nullptr;
    QAction* mnuexit = nullptr;
    std::array<QAction*, 2> DST{};
    std::array<QAction*, 2> Mouse{};
    std::array<QAction*, 2> Pangle{};
    std::array<QAction*, 11> DLoc{}; // 1..10
    std::array<QAction*, 11> Loc{};  // 1..10
    QAction* HelpContents = nullptr;
    QAction* MnuAbout = nullptr;

    CurrentLocation Here;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildDetailsPanel(QWidget* central);
    void BuildMenus();
    void BuildStatusBar();
    void RecordPosition();
    QLabel* MakeLabel(int index, QWidget* parent, const QRect& geometry);

    AppState& App;
};
