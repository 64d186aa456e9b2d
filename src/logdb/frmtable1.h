// "Quillmere DataBase": the records of the open year file one at a time, the day's
// forecast as the fill wrote it, the moon picture, and the angler's catch entries, which
// are edited only between Edit and Update.
#pragma once

#include "logdb/datacontrol.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class DataBar;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

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
    QAction* mnuExit = nullptr;
    std::int16_t SortIndex = 1;

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
    // Reposition's steps; each leaves its display alone when the record lacks its column.
    void ShowTimes();
    void ShowNotes();
    void ShowMoon();

    LogContext Ctx;
    std::vector<std::unique_ptr<BoundControl>> Bindings;
    bool FirstActivation = true;
    QWidget* Owner = nullptr; // the window this one belongs to, whose closing asks too
};
