// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/locations/frmlocation.h"

#include "db/citydb.h"
#include "db/qtext.h"
#include "model/locationrules.h"
#include "platform/timezones.h"
#include "ui/common/fittext.h"
#include "ui/common/messageservice.h"
#include "ui/locations/editdb.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int MostHundredths = 99;
// The degree boxes Text(0) to Text(3), as the messages name them.
constexpr const char* DegreeBoxNames[] = {"Longitude degrees", "Longitude hundredths",
                                          "Latitude degrees", "Latitude hundredths"};

// A degree scroll bar whose upper arrow raises the value, as the box beside it reads: the
// largest value sits at the top, and the arrows' and pages' steps run that way.
QScrollBar* DegreeBar(QWidget* parent, int maximum)
{
    auto* bar = new QScrollBar(Qt::Vertical, parent);
    bar->setRange(0, maximum);
    bar->setInvertedAppearance(true);
    bar->setInvertedControls(true);
    QObject::connect(bar, &QAbstractSlider::actionTriggered, bar, [bar](int action) {
        const int step = action == QAbstractSlider::SliderSingleStepSub   ? bar->singleStep()
                         : action == QAbstractSlider::SliderSingleStepAdd ? -bar->singleStep()
                         : action == QAbstractSlider::SliderPageStepSub   ? bar->pageStep()
                         : action == QAbstractSlider::SliderPageStepAdd   ? -bar->pageStep()
                                                                          : 0;
        if (step != 0)
            bar->setSliderPosition(std::clamp(bar->value() + step, bar->minimum(), bar->maximum()));
    });
    return bar;
}

QLineEdit* Box(QWidget* parent, const char* tip, const QString& widest = {})
{
    auto* box = new QLineEdit(parent);
    box->setToolTip(QString::fromLatin1(tip));
    if (!widest.isEmpty())
        FitToText(box, {widest});
    return box;
}

QRadioButton* Option(QWidget* parent, const char* caption, const char* tip)
{
    auto* option = new QRadioButton(QString::fromLatin1(caption), parent);
    option->setToolTip(QString::fromLatin1(tip));
    return option;
}

// Degrees, hundredths and the two sides on one row.
QHBoxLayout* DegreeRow(const std::array<QWidget*, 6>& parts)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    for (QWidget* part : parts)
        row->addWidget(part);
    row->addStretch(1);
    return row;
}

} // namespace

FrmLocation::FrmLocation(const LocationContext& context, QWidget* parent)
    : QDialog(parent), Ctx(context)
{
    setWindowTitle(tr("User Location"));
    BuildControls();
    ConnectHandlers();
    Form_Load();
}

void FrmLocation::BuildControls()
{
    const QString degrees = QStringLiteral("000");
    Text[0] = Box(this, " Integer Degrees of Longitude ", degrees);
    VsbDegLon = DegreeBar(this, MostLongitude);
    Text[1] = Box(this, " Decimal degreesof longitude = Minutes/60 ", degrees);
    VsbFracLon = DegreeBar(this, MostHundredths);
    SSOption[0] = Option(this, "W", " Selects West Longitudes ");
    SSOption[1] = Option(this, "E", " Selects East Longitudes ");
    Text[2] = Box(this, " Integer Degrees of Latitude ", degrees);
    VsbDegLat = DegreeBar(this, MostLatitude);
    Text[3] = Box(this, " Decimal Degress of Latitude = Minutes/60 ", degrees);
    VsbFracLat = DegreeBar(this, MostHundredths);
    SSOption[2] = Option(this, "N", " Selects North Latitudes ");
    SSOption[3] = Option(this, "S", " Selects South Latitudes ");
    for (std::size_t i = 0; i < DegreeBars().size(); ++i)
        Text[i]->setMaximumWidth(Text[i]->minimumWidth());
    for (int pair = 0; pair < 2; ++pair) {
        auto* group = new QButtonGroup(this);
        group->addButton(SSOption[std::size_t(2 * pair)]);
        group->addButton(SSOption[std::size_t(2 * pair + 1)]);
    }

    const QString longName = QStringLiteral("Saint Petersburg, Florida");
    Text[4] = Box(this, " Name of Location ", longName);
    Text[6] = Box(this, " Current Default Location ", tr("Default"));
    Text[6]->setText(tr("Default"));
    Text[5] = Box(this, " Name of current Default Location ", longName);
    Text[5]->setReadOnly(true);
    Text[6]->setReadOnly(true);

    List1 = new QListWidget(this);
    List1->setToolTip(tr(" Click on Desired Time Zone "));

    for (std::size_t i = 0; i < 2; ++i) {
        Combo[i] = new QComboBox(this);
        Combo[i]->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    CityNote = new QLabel(this);
    CityNote->setWordWrap(true);

    TzCombo = new QComboBox(this);
    TzCombo->setObjectName(QStringLiteral("TzCombo"));
    TzCombo->setEditable(true);
    TzCombo->setInsertPolicy(QComboBox::NoInsert);
    TzCombo->setToolTip(tr(" Type part of a zone (Kolkata, Oslo) or pick one; empty "
                           "for the whole-hour zone only "));
    TzCombo->addItem(QString());
    for (const std::string& name : ZoneNames())
        TzCombo->addItem(Q(name));
    TzCombo->completer()->setFilterMode(Qt::MatchContains);
    TzCombo->completer()->setCompletionMode(QCompleter::PopupCompletion);

    CmdDefault = new QPushButton(tr("Make Default"), this);
    CmdDefault->setToolTip(tr(" Make Displayed Data the Default "));
    CmdEdit = new QPushButton(tr("Edit DB"), this);
    CloseLocation = new QPushButton(tr("&Done"), this);
    CloseLocation->setToolTip(tr(" Click When Finished "));
    LayOut();
}

// The place on the left, the time zones on the right, the city pickers, the Local Clock zone
// and the buttons below; the window keeps the size they need.
void FrmLocation::LayOut()
{
    auto* place = new QVBoxLayout;
    place->addWidget(new QLabel(tr("Longitude"), this));
    place->addLayout(
        DegreeRow({Text[0], VsbDegLon, Text[1], VsbFracLon, SSOption[0], SSOption[1]}));
    place->addWidget(new QLabel(tr("Latitude"), this));
    place->addLayout(
        DegreeRow({Text[2], VsbDegLat, Text[3], VsbFracLat, SSOption[2], SSOption[3]}));
    place->addWidget(new QLabel(tr("Name"), this));
    place->addWidget(Text[4]);
    auto* defaultRow = new QHBoxLayout;
    defaultRow->addWidget(Text[6]);
    defaultRow->addWidget(Text[5], 1);
    place->addLayout(defaultRow);
    place->addStretch(1);
    auto* zones = new QVBoxLayout;
    zones->addWidget(new QLabel(tr("Time Zone"), this));
    zones->addWidget(List1, 1);

    auto* grid = new QGridLayout(this);
    grid->addLayout(place, 0, 0, 1, 2);
    grid->addLayout(zones, 0, 2);
    grid->addWidget(new QLabel(tr("State"), this), 1, 0);
    grid->addWidget(new QLabel(tr("City"), this), 1, 1, 1, 2);
    grid->addWidget(Combo[0], 2, 0);
    grid->addWidget(Combo[1], 2, 1, 1, 2);
    grid->addWidget(CityNote, 3, 0, 1, 3);
    auto* clock = new QHBoxLayout;
    clock->addWidget(new QLabel(tr("Local Clock zone"), this));
    clock->addWidget(TzCombo, 1);
    grid->addLayout(clock, 4, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CmdDefault);
    buttons->addWidget(CmdEdit);
    buttons->addStretch(1);
    buttons->addWidget(CloseLocation);
    grid->addLayout(buttons, 5, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setSizeConstraint(QLayout::SetMinimumSize);
    // The tab order follows the rows: the place, the zone list, the pickers, the buttons.
    QWidget* previous = Text[0];
    for (QWidget* next : std::initializer_list<QWidget*>{
             VsbDegLon, Text[1], VsbFracLon, SSOption[0], SSOption[1], Text[2], VsbDegLat, Text[3],
             VsbFracLat, SSOption[2], SSOption[3], Text[4], List1, Combo[0], Combo[1], TzCombo,
             CmdDefault, CmdEdit, CloseLocation}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void FrmLocation::ConnectHandlers()
{
    connect(VsbDegLon, &QScrollBar::valueChanged, this, &FrmLocation::VsbDegLon_Change);
    connect(VsbFracLon, &QScrollBar::valueChanged, this, &FrmLocation::VsbFracLon_Change);
    connect(VsbDegLat, &QScrollBar::valueChanged, this, &FrmLocation::VsbDegLat_Change);
    connect(VsbFracLat, &QScrollBar::valueChanged, this, &FrmLocation::VsbFracLat_Change);
    connect(List1, &QListWidget::currentRowChanged, this, &FrmLocation::List1_Click);
    for (int i = 0; i < 2; ++i)
        connect(Combo[std::size_t(i)], &QComboBox::activated, this, [this, i] { Combo_Click(i); });
    connect(CmdDefault, &QPushButton::clicked, this, &FrmLocation::CmdDefault_Click);
    connect(CmdEdit, &QPushButton::clicked, this, &FrmLocation::CmdEdit_Click);
    connect(CloseLocation, &QPushButton::clicked, this, &FrmLocation::CloseLocation_Click);
    // A zone typed and left is checked then, not first when the editor closes.
    connect(TzCombo->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (TzCombo->currentText().trimmed() != TzRefused)
            TzNameIsUsable();
    });
    for (int i = 0; i < int(DegreeBars().size()); ++i)
        connect(Text[std::size_t(i)], &QLineEdit::editingFinished, this, [this, i] {
            if (Text[std::size_t(i)]->isModified())
                Text_Typed(i);
        });
}

Location& FrmLocation::Current() { return Ctx.Locations[std::size_t(Ctx.CurLoc)]; }

void FrmLocation::Form_Load()
{
    Filling = true;
    for (const TimeZoneEntry& entry : TimeZoneEntries()) {
        auto* item = new QListWidgetItem(Q(entry.Text), List1);
        item->setData(Qt::UserRole, int(entry.Value));
    }
    SelectTimeZone(Current().TimeZone);
}

void FrmLocation::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        Form_Activate();
}

void FrmLocation::Form_Activate()
{
    Populate();
    Filling = false;
    ComboFilling = true;
    FillStates();
    ComboFilling = false;
}

void FrmLocation::SelectTimeZone(int zone)
{
    ChosenTimeZone = std::int16_t(zone);
    List1->setCurrentRow(IsListedTimeZone(zone) ? TimeZoneListPosition(zone) : -1);
}

void FrmLocation::SelectTzName(const std::string& name)
{
    const int row = TzCombo->findText(Q(name));
    TzCombo->setCurrentIndex(row);
    if (row < 0)
        TzCombo->setEditText(Q(name)); // kept as stored, for the user to correct
}

void FrmLocation::Populate()
{
    const Location& loc = Current();
    const DegreeParts lon = SplitDegrees(loc.Longitude);
    const DegreeParts lat = SplitDegrees(loc.Latitude);
    VsbDegLon->setValue(lon.Whole);
    VsbFracLon->setValue(lon.Hundredths);
    VsbDegLat->setValue(lat.Whole);
    VsbFracLat->setValue(lat.Hundredths);
    // A value that did not change sends no change event; the boxes are written anyway.
    VsbDegLon_Change();
    VsbFracLon_Change();
    VsbDegLat_Change();
    VsbFracLat_Change();
    SSOption[loc.Longitude < 0 ? 1 : 0]->setChecked(true);
    SSOption[loc.Latitude < 0 ? 3 : 2]->setChecked(true);
    SelectTimeZone(loc.TimeZone);
    SelectTzName(loc.TzName);
    Text[4]->setText(Q(loc.Name));
    Text[5]->setText(Q(Ctx.Locations[std::size_t(DefaultLocationNumber(Ctx.DefLoc))].Name));
}

void FrmLocation::VsbDegLon_Change() { Text[0]->setText(Q(Pad(VsbDegLon->value()))); }
void FrmLocation::VsbFracLon_Change() { Text[1]->setText(Q(PadFrac(VsbFracLon->value()))); }
void FrmLocation::VsbDegLat_Change() { Text[2]->setText(Q(PadFrac(VsbDegLat->value()))); }
void FrmLocation::VsbFracLat_Change() { Text[3]->setText(Q(PadFrac(VsbFracLat->value()))); }

std::array<QScrollBar*, 4> FrmLocation::DegreeBars() const
{
    return {VsbDegLon, VsbFracLon, VsbDegLat, VsbFracLat};
}

void FrmLocation::ShowDegreeBar(int box)
{
    const std::array<void (FrmLocation::*)(), 4> change = {
        &FrmLocation::VsbDegLon_Change, &FrmLocation::VsbFracLon_Change,
        &FrmLocation::VsbDegLat_Change, &FrmLocation::VsbFracLat_Change};
    (this->*change[std::size_t(box)])();
}

void FrmLocation::Warn(const QString& text)
{
    Ctx.Messages.MsgBox(text, MsgButtons::OK, windowTitle(), MsgIcon::Exclamation);
}

bool FrmLocation::Text_Typed(int box)
{
    QScrollBar* bar = DegreeBars()[std::size_t(box)];
    const QString typed = Text[std::size_t(box)]->text();
    bool whole = false;
    const int value = typed.trimmed().toInt(&whole);
    if (!whole || value < bar->minimum() || value > bar->maximum()) {
        Warn(tr("%1: \"%2\" is not a whole number from %3 to %4.")
                 .arg(QLatin1String(DegreeBoxNames[box]), typed)
                 .arg(bar->minimum())
                 .arg(bar->maximum()));
        return false; // the text stays for correcting; the bar keeps its value
    }
    bar->setValue(value);
    ShowDegreeBar(box); // the bar's digits, even when the value did not change
    return true;
}

bool FrmLocation::NameIsUsable()
{
    const QString name = Text[4]->text().trimmed();
    if (name.isEmpty())
        Warn(tr("The location needs a name: type one, or pick a state and a city."));
    else if (name.size() > MaxLocationNameLength)
        Warn(tr("A location's name holds at most %1 characters; this one has %2.")
                 .arg(MaxLocationNameLength)
                 .arg(name.size()));
    return !name.isEmpty() && name.size() <= MaxLocationNameLength;
}

bool FrmLocation::TzNameIsUsable()
{
    const QString name = TzCombo->currentText().trimmed();
    if (name.isEmpty() || ZoneKnown(name.toStdString())) {
        TzRefused.clear();
        return true;
    }
    TzRefused = name;
    Warn(tr("\"%1\" is not a time zone this computer knows: pick one from the list "
            "(Asia/Kolkata, Europe/Oslo) or leave the box empty for the whole-hour "
            "zone only.")
             .arg(name));
    return false;
}

bool FrmLocation::TypedEntriesAreUsable()
{
    for (int box = 0; box < int(DegreeBars().size()); ++box) {
        if (Text[std::size_t(box)]->isModified() && !Text_Typed(box))
            return false;
    }
    const double lon = JoinDegrees(VsbDegLon->value(), VsbFracLon->value(), false);
    const double lat = JoinDegrees(VsbDegLat->value(), VsbFracLat->value(), false);
    if (lon > MostLongitude || lat > MostLatitude) {
        Warn(tr("A longitude runs to %1 degrees and a latitude to %2; %3.%4 is beyond.")
                 .arg(MostLongitude)
                 .arg(MostLatitude)
                 .arg(Text[lon > MostLongitude ? 0 : 2]->text(),
                      Text[lon > MostLongitude ? 1 : 3]->text()));
        return false;
    }
    return NameIsUsable() && TzNameIsUsable();
}

void FrmLocation::List1_Click()
{
    if (Filling || List1->currentItem() == nullptr)
        return;
    ChosenTimeZone = std::int16_t(List1->currentItem()->data(Qt::UserRole).toInt());
}

void FrmLocation::ShowCityNote(const QString& text)
{
    CityNote->setText(text);
    CityNote->setVisible(!text.isEmpty());
}

bool FrmLocation::FillStates()
{
    CityDb::Attach(Data1, Ctx.Folder);
    Data1.SetRecordSource(QStringLiteral("Select Distinct State from Table1"));
    Combo[0]->clear();
    Combo[1]->clear();
    const DbResult read = Data1.Refresh();
    if (!read) {
        ShowCityNote(CityDb::Unreadable(Ctx.Folder, read.Message));
        return false;
    }
    Data1.MoveLast();
    Data1.MoveFirst();
    Combo[0]->addItems(CityDb::FieldValues(Data1, QStringLiteral("State")));
    Combo[0]->setCurrentIndex(-1);
    ShowCityNote(Combo[0]->count() == 0
                     ? tr("The city list holds no cities; type the place by hand.")
                     : QString());
    return true;
}

void FrmLocation::FillCities(const QString& state)
{
    Data1.SetRecordSource(
        QStringLiteral("Select * from Table1 where State = ? Order by State, City"), {state});
    Combo[1]->clear();
    if (const DbResult read = Data1.Refresh(); !read) {
        ShowCityNote(CityDb::Unreadable(Ctx.Folder, read.Message));
        return;
    }
    Data1.MoveLast();
    Data1.MoveFirst();
    Combo[1]->addItems(CityDb::FieldValues(Data1, QStringLiteral("City")));
    Combo[1]->setCurrentIndex(-1);
}

void FrmLocation::Combo_Click(int index)
{
    if (ComboFilling)
        return;
    if (index == 0)
        FillCities(Combo[0]->currentText());
    else
        PickCity(Combo[0]->currentText(), Combo[1]->currentText());
}

void FrmLocation::PickCity(const QString& state, const QString& city)
{
    Data1.SetRecordSource(QStringLiteral("Select * from Table1 where State = ? AND City = ? "),
                          {state, city});
    if (const DbResult read = Data1.Refresh(); !read) {
        Ctx.Messages.MsgBox(CityDb::Unreadable(Ctx.Folder, read.Message));
        return;
    }
    const QString place = city + QStringLiteral(", ") + state;
    if (Data1.RecordCount() == 0) {
        Ctx.Messages.MsgBox(place + tr(" is no longer in the city list."));
        return;
    }
    const auto lon = NumberOf(Data1.Field(QStringLiteral("LongInDegrees")));
    const auto lat = NumberOf(Data1.Field(QStringLiteral("LatInDegrees")));
    const auto zone = NumberOf(Data1.Field(QStringLiteral("Timezone")));
    if (!lon || !lat || !zone || std::fabs(*lon) > 180 || std::fabs(*lat) > 90 ||
        *zone != std::trunc(*zone) || !IsListedTimeZone(int(*zone))) {
        Ctx.Messages.MsgBox(tr("The city list's record of %1 lacks a usable longitude, "
                               "latitude or whole-hour time zone (-12 to 12).")
                                .arg(place));
        return;
    }
    const DegreeParts lonParts = SplitDegrees(*lon);
    const DegreeParts latParts = SplitDegrees(*lat);
    VsbDegLon->setValue(lonParts.Whole);
    VsbFracLon->setValue(lonParts.Hundredths);
    VsbDegLat->setValue(latParts.Whole);
    VsbFracLat->setValue(latParts.Hundredths);
    const auto letter = [this](const char* field) {
        return Data1.Field(QString::fromLatin1(field)).toString().trimmed().toUpper();
    };
    SSOption[letter("LongChar") == "W" ? 0 : 1]->setChecked(true);
    SSOption[letter("LatChar") == "S" ? 3 : 2]->setChecked(true);
    SelectTimeZone(int(*zone));
    SelectTzName(Data1.Field(QStringLiteral("TzName")).toString().toStdString());
    Text[4]->setText(place);
}

void FrmLocation::CmdDefault_Click()
{
    if (!NameIsUsable())
        return;
    Ctx.DefLoc = std::to_string(Ctx.CurLoc);
    Current().Name = Text[4]->text().toStdString();
    Text[5]->setText(Text[4]->text());
}

void FrmLocation::CmdEdit_Click()
{
    if (ShowEditor) {
        ShowEditor();
    } else {
        EditDB editor(Ctx.Messages, Ctx.Folder, this);
        editor.exec();
    }
    Form_Activate(); // back from the editor: the fields and the state list again
}

void FrmLocation::CloseLocation_Click()
{
    if (!TypedEntriesAreUsable())
        return; // the editor stays open to correct them
    Location& loc = Current();
    loc.Longitude = JoinDegrees(VsbDegLon->value(), VsbFracLon->value(), SSOption[1]->isChecked());
    loc.Latitude = JoinDegrees(VsbDegLat->value(), VsbFracLat->value(), SSOption[3]->isChecked());
    loc.TimeZone = ChosenTimeZone;
    loc.TzName = TzCombo->currentText().trimmed().toStdString();
    loc.Name = Text[4]->text().toStdString();
    accept();
}
