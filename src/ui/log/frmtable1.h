// SPDX-License-Identifier: GPL-3.0-or-later
// "Quillmere DataBase": the records of the open year file one at a time, the day's
// forecast as the fill wrote it, the moon picture, and the angler's catch entries, which
// are edited only between Edit and Update.
#pragma once

#include "db/datacontrol.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class CatchList;
class DataBar;
class QAction;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QScrollArea;
class QVBoxLayout;
class QMenuBar;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
struct QueryForm;

class frmTable1 : public QDialog {
    Q_OBJECT

public:
    explicit frmTable1(const LogContext& context, QWidget* parent = nullptr);
    ~frmTable1() override;

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    void Data1_Reposition();
    void Data1_Error(const QString& message);
    void cmdEdit_Click();
    void cmdUpdate_Click();
    void txtFields_Click(int index);
    void Combo4_Click();
    void mnuExit_Click();
    // A click on the waxing note checks the matching moon condition of the query builder.
    void Label7_Click();
    // Before the records are replaced: an entry being edited is saved or discarded as the
    // user answers; false when the user keeps editing.
    bool Data1_Validate();

    // The query builder and the windows over the selection (frmtable1query.cpp).
    void cmdSelect_Click();
    void SortByCombo_Click();
    void mnuMonths_Click(int index);
    void mnuYears_Click(int index);
    void Command1_Click(); // All Records
    void Command2_Click(); // Clear Text
    void Command3_Click(); // Clear Checks
    void Command4_Click(); // Report
    void mnutableview_Click();
    void Text6_Click(int index);
    void Text1_Click();
    void Text2_Click();
    void Combo2_Click();
    void MonthList_Click();
    void DOWList_Click();
    void TimeCombo_Click();
    // Shows TimeCombo over Text1 (1), Text2 (2), Text6(10) (3) or Text6(11) (4).
    void Calling_TimeCombo(int which);

    // Every way out of the window while a record is being edited comes here first: asks
    // "Save changes to this day?" and saves or discards the edit. False when the user chose
    // Cancel or the save failed; the edit then stays open.
    bool ConfirmLeaveEditing();

    DataControl Data1;
    DataBar* Data1Bar = nullptr;            // Data1's arrows and record counter
    std::array<QLineEdit*, 19> txtFields{}; // the indices the window uses; 16 stays null
    std::array<QLineEdit*, 4> FakeTextBox{};
    QLineEdit* Text3 = nullptr;
    QLineEdit* Text4 = nullptr;
    QLineEdit* Text5 = nullptr;
    QPlainTextEdit* Text7 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QLabel* Label9 = nullptr;
    QLabel* QuarterFish = nullptr;
    QLabel* HalfFish = nullptr;
    QLabel* ThreeQuarterfish = nullptr;
    QLabel* WholeFish = nullptr;
    QLabel* PicM = nullptr;
    QComboBox* PeakTimeCombo = nullptr;
    QComboBox* Combo4 = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdUpdate = nullptr;
    CatchList* CatchesList = nullptr; // the day's catches
    QAction* mnuExit = nullptr;
    QAction* mnutableview = nullptr;
    std::int16_t SortIndex = 1;

    std::array<QCheckBox*, 14> Check1{};
    std::array<QLineEdit*, 12> Text6{};
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QComboBox* TimeCombo = nullptr;
    QComboBox* Combo2 = nullptr;
    QComboBox* MonthList = nullptr;
    QComboBox* DOWList = nullptr;
    QComboBox* SortByCombo = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    std::array<QAction*, 12> mnuMonths{};
    std::array<QAction*, 14> mnuYears{};

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override; // Escape
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QWidget* BuildDayPanel();
    QWidget* BuildCatchPanel();
    void BindControls();
    // Makes the owner's closing and the program's end ask about an open edit too.
    void WatchTheWayOut();
    void SetBrowsing(bool browsing);
    void OpenWithinScreen();
    void ClearDay();
    bool PeakTimeEdited() const;
    // The first catch entry that cannot be stored as typed, as the message saying why; empty
    // when every edited entry can.
    QString CatchEntryProblem() const;
    // Reposition's steps; each leaves its display alone when the record lacks its column.
    void ShowTimes();
    void ShowNotes();
    void ShowMoon();
    // After a catch was written: the day's record again, with the total its catches make.
    void ReloadDay();
    // The query builder's controls and menus (frmtable1query.cpp).
    QWidget* BuildQueryPanel();
    void BuildQueryMenus(QMenuBar* bar);
    void BuildPickers(QWidget* panel);
    QLineEdit* ValueBox(int box) const; // 0..11 Text6, 12 Text1, 13 Text2
    void ShowPicker(QComboBox* picker, QLineEdit* box);
    // Sets the record source, refreshes, and moves last and first when there are records.
    void ShowSource(const QString& recordSource);
    QueryForm QueryFormOfBoxes() const;
    void ShowQueryValues(const QueryForm& form);

    LogContext Ctx;
    std::vector<std::unique_ptr<BoundControl>> Bindings;
    bool FirstActivation = true;
    bool PeakTimePicked = false;      // an entry of PeakTimeCombo's list chosen since the last show
    int TimeComboServes = 1;          // the box TimeCombo fills, 1 to 4
    int PickerBox = 0;                // the Text6 box MonthList, DOWList or Combo2 fills
    QGridLayout* QueryGrid = nullptr; // the query panel's rows, where the pickers show
    QScrollArea* Scroll = nullptr;    // the three panels
    QWidget* Owner = nullptr;         // the window this one belongs to, whose closing asks too
};
