// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/locations/editdb.h"

#include "db/citydb.h"
#include "model/locationrules.h"
#include "ui/common/busypointer.h"
#include "ui/common/databar.h"
#include "ui/common/fittext.h"
#include "ui/common/messageservice.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr const char* Columns[] = {"LongLatID", "State",        "City",    "LongInDegrees",
                                   "LongChar",  "LatInDegrees", "LatChar", "Timezone"};
constexpr const char* Labels[] = {"ID ",       "State ",    "City ",    "Longitude ",
                                  "LongChar ", "Latitude ", "LatChar ", "TimeZone "};
constexpr const char* Captions[] = {"Close", "Edit",   "Add",  "Delete", "Update",
                                    "Find",  "Filter", "Load", "Cancel"};
constexpr const char* Tips[] = {" Close this form ",    " Edit this Record ",
                                " Add a new record ",   " Delete this record ",
                                " Update this Record ", " Find this City "};

const QString AllStates = QStringLiteral("select * from Table1 Order by State, City");
QString Title() { return EditDB::tr("Edit Database"); }

// What the location editor can use of a record, box by box: degrees in range with their
// hemisphere letters, and a whole-hour time zone.
struct FieldRule {
    std::size_t Box;
    int Low = 0, High = 0;    // a number in this range, when Letters is empty
    const char* Letters = ""; // else one of these two letters, in either case
};
constexpr std::size_t ZoneBox = 7;
constexpr FieldRule Rules[] = {
    {3, 0, MostLongitude},
    {4, 0, 0, "WE"},
    {5, 0, MostLatitude},
    {6, 0, 0, "NS"},
    {ZoneBox, LowestZone, HighestZone},
};

bool Follows(const FieldRule& rule, const QString& typed)
{
    const QString text = typed.trimmed();
    if (*rule.Letters != '\0')
        return text.size() == 1 && QString::fromLatin1(rule.Letters).contains(text.toUpper());
    const auto number = NumberOf(text);
    return number && *number >= rule.Low && *number <= rule.High &&
           (rule.Box != ZoneBox || *number == std::trunc(*number));
}

// "W or E", "a number of degrees from 0 to 180".
QString Wanted(const FieldRule& rule)
{
    if (*rule.Letters != '\0')
        return EditDB::tr("%1 or %2")
            .arg(QLatin1String(rule.Letters, 1), QLatin1String(rule.Letters + 1, 1));
    return (rule.Box == ZoneBox ? EditDB::tr("a whole number of hours from %1 to %2")
                                : EditDB::tr("a number of degrees from %1 to %2"))
        .arg(rule.Low)
        .arg(rule.High);
}

// A text box bound to a column: shows the stored value, gives back what the user typed.
class BoundText : public BoundControl {
public:
    explicit BoundText(QLineEdit* box) : box_(box) {}
    void ShowValue(const QVariant& stored) override
    {
        box_->setText(stored.toString());
        box_->setModified(false);
    }
    std::optional<QVariant> EditedValue() const override
    {
        return box_->isModified() ? std::optional<QVariant>(box_->text()) : std::nullopt;
    }

private:
    QLineEdit* box_;
};

} // namespace

EditDB::EditDB(MessageService& messages, const QString& folder, QWidget* parent)
    : QDialog(parent), Messages(messages), Folder(folder)
{
    setWindowTitle(Title());
    BuildControls();
    ConnectHandlers();
    Form_Load();
}

EditDB::~EditDB()
{
    for (const auto& binding : Bindings)
        Data1.Unbind(binding.get());
}

void EditDB::BuildControls()
{
    // The city's fields in a form, the state list and the data bar under them, the buttons
    // in a column beside; the window keeps the size they need.
    auto* fields = new QGridLayout;
    for (std::size_t i = 0; i < Text.size(); ++i) {
        auto* label = new QLabel(QString::fromLatin1(Labels[i]), this);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Text[i] = new QLineEdit(this);
        FitToText(Text[i], {QStringLiteral("Llanfairpwllgwyngyll")});
        Text[i]->installEventFilter(this);
        fields->addWidget(label, int(i), 0);
        fields->addWidget(Text[i], int(i), 1);
        Bindings.push_back(std::make_unique<BoundText>(Text[i]));
        Data1.Bind(QString::fromLatin1(Columns[i]), Bindings.back().get());
    }
    Text[0]->setReadOnly(true);
    Combo = new QComboBox(this);
    Combo->setToolTip(tr(" Show the cities of one state, or ALL "));
    Combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    Data1Bar = new DataBar(Data1, this);
    fields->addWidget(Combo, int(Text.size()), 0, 1, 2);
    fields->addWidget(Data1Bar, int(Text.size()) + 1, 0, 1, 2);

    auto* buttons = new QVBoxLayout;
    for (std::size_t i = 0; i < CmdB.size(); ++i) {
        CmdB[i] = new QPushButton(QString::fromLatin1(Captions[i]), this);
        CmdB[i]->setAutoDefault(false); // Enter moves between the boxes, it closes nothing
        if (i < std::size(Tips))
            CmdB[i]->setToolTip(QString::fromLatin1(Tips[i]));
        buttons->addWidget(CmdB[i]);
    }
    buttons->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(fields, 1);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void EditDB::ConnectHandlers()
{
    connect(&Data1, &DataControl::Reposition, this, &EditDB::Data1_Reposition);
    connect(Data1Bar, &DataBar::Error, this, [this](const QString& m) { Messages.MsgBox(m); });
    connect(Combo, &QComboBox::activated, this, &EditDB::Combo_Click);
    for (int i = 0; i < int(CmdB.size()); ++i)
        connect(CmdB[std::size_t(i)], &QPushButton::clicked, this, [this, i] { CmdB_Click(i); });
}

bool EditDB::Report(const DbResult& result)
{
    if (!result)
        Messages.MsgBox(result.Message, MsgButtons::OK, Title());
    return result.Ok;
}

void EditDB::Requery()
{
    if (Report(Data1.Refresh()) && Data1.RecordCount() > 0) {
        Data1.MoveLast();
        Data1.MoveFirst();
    }
}

void EditDB::Form_Load()
{
    CityDb::Attach(Data1, Folder);
    Data1.SetRecordSource(QStringLiteral("select distinct State from table1"));
    ButtonsON();
    TextOff();
    if (const DbResult read = Data1.Refresh(); !read) {
        Messages.MsgBox(CityDb::Unreadable(Folder, read.Message), MsgButtons::OK, Title());
        ButtonsOFF();
        CmdB[Load]->setEnabled(false);
        return;
    }
    Combo->addItem(tr("ALL"));
    Combo->addItems(CityDb::FieldValues(Data1, QStringLiteral("State")));
    Data1.SetRecordSource(QStringLiteral("select * from Table1 Order By State, City"));
    Report(Data1.Refresh());
}

void EditDB::Combo_Click()
{
    const QString state = Combo->currentText();
    if (Combo->currentIndex() == 0)
        Data1.SetRecordSource(AllStates);
    else
        Data1.SetRecordSource(QStringLiteral("select * from table1 where State = ? Order by City"),
                              {state});
    Requery();
}

void EditDB::Data1_Reposition()
{
    Data1Bar->SetCaption(tr("Record: %1 of %2 Record(s)")
                             .arg(Data1.AbsolutePosition() + 1)
                             .arg(Data1.RecordCount()));
}

void EditDB::ButtonsOFF()
{
    for (int i : {1, 2, 3, 4, 5, 6, 8})
        CmdB[std::size_t(i)]->setEnabled(false);
}

void EditDB::ButtonsON()
{
    for (int i = 1; i <= 6; ++i)
        CmdB[std::size_t(i)]->setEnabled(true);
    CmdB[Update]->setEnabled(false);
    CmdB[Cancel]->setEnabled(false);
}

void EditDB::TextOff()
{
    for (std::size_t i = 1; i < Text.size(); ++i)
        Text[i]->setEnabled(false);
}

void EditDB::TextOn()
{
    for (std::size_t i = 1; i < Text.size(); ++i)
        Text[i]->setEnabled(true);
}

void EditDB::CmdB_Click(int index)
{
    switch (index) {
    case Close:
        if (!ConfirmLeaveEditing())
            break;
        Report(Data1.Refresh());
        accept();
        break;
    case Edit:
    case Add:
        StartEdit(index == Add);
        break;
    case Delete:
        DeleteRecord();
        break;
    case Update:
        UpdateRecord();
        break;
    case Find:
        FindCity();
        break;
    case Filter:
        FilterCity();
        break;
    case Load:
        AddFromFile();
        break;
    case Cancel:
        CancelEdit();
        break;
    default:
        break;
    }
}

void EditDB::StartEdit(bool adding)
{
    if (!Report(adding ? Data1.AddNew() : Data1.Edit()))
        return;
    Data1Bar->setEnabled(false);
    ButtonsOFF();
    TextOn();
    CmdB[Update]->setEnabled(true);
    CmdB[Cancel]->setEnabled(true);
    Text[1]->setFocus();
}

QString EditDB::FieldProblem() const
{
    for (const FieldRule& rule : Rules) {
        const QString typed = Text[rule.Box]->text();
        if (!Follows(rule, typed))
            return tr("%1: \"%2\" is not %3.")
                .arg(QString::fromLatin1(Labels[rule.Box]).trimmed(), typed, Wanted(rule));
    }
    return {};
}

void EditDB::UpdateRecord()
{
    if (Text[1]->text().trimmed().isEmpty() || Text[2]->text().trimmed().isEmpty()) {
        Messages.MsgBox(tr("Missing Data!"));
        return;
    }
    // A record the location editor could not use is not stored; the edit stays open.
    if (const QString problem = FieldProblem(); !problem.isEmpty()) {
        Messages.MsgBox(problem, MsgButtons::OK, Title(), MsgIcon::Exclamation);
        return;
    }
    if (!Report(Data1.Update()))
        return; // still editing: the entry can be corrected or cancelled
    Data1Bar->setEnabled(true);
    Requery();
    ButtonsON();
    TextOff();
}

void EditDB::DeleteRecord()
{
    if (Messages.MsgBox(tr("Delete Current Record?"), MsgButtons::YesNo, tr("Delete Record")) !=
        MsgResult::Yes)
        return;
    ButtonsOFF();
    Report(Data1.Delete());
    ButtonsON();
    Requery();
}

bool EditDB::ConfirmLeaveEditing()
{
    if (Data1.EditMode() == DataControl::EditState::None)
        return true;
    const MsgResult answer =
        Messages.MsgBox(tr("Save changes to this city?"), MsgButtons::SaveDiscardCancel, Title(),
                        MsgIcon::Question);
    if (answer == MsgResult::Save)
        UpdateRecord();
    else if (answer == MsgResult::Discard)
        CancelEdit();
    return Data1.EditMode() == DataControl::EditState::None;
}

void EditDB::closeEvent(QCloseEvent* event)
{
    if (!ConfirmLeaveEditing()) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void EditDB::reject()
{
    if (ConfirmLeaveEditing())
        QDialog::reject();
}

void EditDB::CancelEdit()
{
    Data1.CancelUpdate();
    Requery();
    ButtonsON();
    TextOff();
    Data1Bar->setEnabled(true);
}

void EditDB::FindCity()
{
    ButtonsOFF();
    const QString name = Messages.InputBox(tr("Input CityName"), tr("City Name?"));
    if (!name.isEmpty() && Data1.RecordCount() > 0) {
        Data1.MoveFirst();
        if (Report(Data1.FindFirst(QStringLiteral("City = ?"), {name})) && Data1.NoMatch())
            Messages.MsgBox(tr("City NOT Found!"), MsgButtons::OK, tr("City Search"));
    } else if (!name.isEmpty()) {
        Messages.MsgBox(tr("City NOT Found!"), MsgButtons::OK, tr("City Search"));
    }
    ButtonsON();
}

void EditDB::FilterCity()
{
    ButtonsOFF();
    const QString answer = Messages.InputBox(tr("Input City"), tr("City?"));
    if (!answer.isEmpty()) {
        Data1.SetRecordSource(QStringLiteral("select * from Table1 where city = ? "),
                              {answer.toUpper()});
        if (Report(Data1.Refresh()) && Data1.RecordCount() >= 1) {
            Data1.MoveLast();
            Data1.MoveFirst();
        }
    }
    ButtonsON();
}

void EditDB::AddFromFile()
{
    BusyPointer busy;
    const int id = Data1.FieldIndex(QStringLiteral("LongLatID"));
    const int city = Data1.FieldIndex(QStringLiteral("City"));
    std::vector<RecordChange> changes;
    for (DbResult step = Data1.MoveFirst(); step && !Data1.IsEOF(); step = Data1.MoveNext()) {
        const QString name = Data1.Field(city).toString();
        const QString changed = QString::fromStdString(ToLowerCase(name.toStdString()));
        if (changed != name)
            changes.push_back({Data1.Field(id), {{QStringLiteral("City"), changed}}});
    }
    // One transaction for the whole walk: every city is changed, or on a failure none.
    Report(Data1.UpdateRecords(changes));
}

void EditDB::Text_KeyPress(int index)
{
    if (index >= 0 && index < int(Text.size()) - 1)
        Text[std::size_t(index + 1)]->setFocus();
}

bool EditDB::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const auto box = std::find(Text.begin(), Text.end(), watched);
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && box != Text.end() &&
            box != Text.end() - 1) {
            Text_KeyPress(int(box - Text.begin()));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
