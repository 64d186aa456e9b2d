// SPDX-License-Identifier: GPL-3.0-or-later
// "Edit Database": browses the city database by state, finds and filters cities, and adds,
// edits, deletes and corrects its records. Every name the user gives reaches the database
// as a bound value, so names with a quote ("Coeur d'Alene") work like any other.
#pragma once

#include "db/datacontrol.h"

#include <QDialog>

#include <array>
#include <memory>
#include <vector>

class DataBar;
class MessageService;
class QComboBox;
class QLineEdit;
class QPushButton;

class EditDB : public QDialog {
    Q_OBJECT

public:
    EditDB(MessageService& messages, const QString& folder, QWidget* parent = nullptr);
    ~EditDB() override;

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void Combo_Click();
    void CmdB_Click(int index);
    void Data1_Reposition();
    // Enter in one of the boxes 0..6: the focus moves to the next box.
    void Text_KeyPress(int index);

    void ButtonsOFF();
    void ButtonsON();
    void TextOff();
    void TextOn();
    // Capitalises the second word of every city of the shown records.
    void AddFromFile();

    enum Button { Close, Edit, Add, Delete, Update, Find, Filter, Load, Cancel };

    DataControl Data1;
    DataBar* Data1Bar = nullptr;
    std::array<QLineEdit*, 8> Text{};
    QComboBox* Combo = nullptr;
    std::array<QPushButton*, 9> CmdB{};

    // Every way out while a record is being edited or added comes here first: asks "Save
    // changes to this city?" and saves or discards it. False when the edit stays open (Cancel,
    // or an entry that cannot be saved).
    bool ConfirmLeaveEditing();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override; // Escape

private:
    void BuildControls();
    void ConnectHandlers();
    // Shows a failure of the database in words; true when the step succeeded.
    bool Report(const DbResult& result);
    // Refresh, move last, move first: the record count is then exact.
    void Requery();
    void StartEdit(bool adding);
    void UpdateRecord();
    // The first box whose text the location editor could not use, as the message saying so;
    // empty when every one is usable.
    QString FieldProblem() const;
    void DeleteRecord();
    void CancelEdit();
    void FindCity();
    void FilterCity();

    MessageService& Messages;
    QString Folder;
    std::vector<std::unique_ptr<BoundControl>> Bindings;
};
