// SPDX-License-Identifier: GPL-3.0-or-later
// "User Location": edits the current one of the ten locations. Degrees and hundredths of
// longitude and latitude are typed or set with scroll bars and E/W, N/S options, the time
// zone is picked from a list, the name is typed; or a state and a city picked from the city
// database fill them all. "&Done" stores the edit once every entry is usable; closing the
// window any other way stores nothing.
#pragma once

#include "db/datacontrol.h"
#include "model/location.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <functional>
#include <string>

class MessageService;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QScrollBar;

// What the editor works on: the ten locations, the current and the default one, the folder
// that holds Encdb.MDB.
struct LocationContext {
    MessageService& Messages;
    LocationTable& Locations;
    std::int16_t& CurLoc;
    std::string& DefLoc;
    QString Folder;
};

class FrmLocation : public QDialog {
    Q_OBJECT

public:
    explicit FrmLocation(const LocationContext& context, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void Form_Activate();
    void VsbDegLon_Change();
    void VsbFracLon_Change();
    void VsbDegLat_Change();
    void VsbFracLat_Change();
    void List1_Click();
    void Combo_Click(int index);
    void CmdDefault_Click();
    void CmdEdit_Click();
    void CloseLocation_Click();
    // A degree box Text(0) to Text(3) typed into: its scroll bar takes the whole number when
    // the bar's range holds it; otherwise a message says why, the bar keeps its value and the
    // text stays to be corrected. False in that case.
    bool Text_Typed(int box);

    // Copies the current location into the controls.
    void Populate();

    // Opens the city database editor, modally; tests put their own in its place.
    std::function<void()> ShowEditor;

    std::array<QLineEdit*, 7> Text{};
    QScrollBar* VsbDegLon = nullptr;
    QScrollBar* VsbFracLon = nullptr;
    QScrollBar* VsbDegLat = nullptr;
    QScrollBar* VsbFracLat = nullptr;
    std::array<QRadioButton*, 4> SSOption{}; // 0 W, 1 E, 2 N, 3 S
    QListWidget* List1 = nullptr;
    std::array<QComboBox*, 2> Combo{}; // State, City
    QLabel* CityNote = nullptr;        // says why the city lists are empty
    // The location's zone of the tz database, typed with completion or picked from the
    // system's zones; the empty first entry is none (the whole-hour zone only).
    QComboBox* TzCombo = nullptr;
    QPushButton* CmdDefault = nullptr;
    QPushButton* CmdEdit = nullptr;
    QPushButton* CloseLocation = nullptr;
    DataControl Data1;

    // The zone chosen in the list, stored into the location by "&Done".
    std::int16_t ChosenTimeZone = 0;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void LayOut();
    void ConnectHandlers();
    Location& Current();
    std::array<QScrollBar*, 4> DegreeBars() const; // behind Text(0) to Text(3)
    void ShowDegreeBar(int box); // the bar's value into its box, as its change event writes it
    void Warn(const QString& text);
    // The name box's text can name a location; a message says why not otherwise.
    bool NameIsUsable();
    // The zone box is empty or names a zone the computer knows; a message says why not.
    bool TzNameIsUsable();
    // Every typed entry can be stored: the degree boxes, the place within 180 and 90 degrees,
    // the name. The first that cannot is said in a message.
    bool TypedEntriesAreUsable();
    void SelectTimeZone(int zone);
    void SelectTzName(const std::string& name);
    void ShowCityNote(const QString& text);
    // The state list from the city database; false with the reason shown when it cannot be read.
    bool FillStates();
    void FillCities(const QString& state);
    void PickCity(const QString& state, const QString& city);

    LocationContext Ctx;
    bool Filling = true;       // from load until Populate: list clicks change nothing
    bool ComboFilling = false; // while the state list is filled: combo clicks change nothing
    QString TzRefused;         // the zone text last said to be unknown, said once when left
};
