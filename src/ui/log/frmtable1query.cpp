// SPDX-License-Identifier: GPL-3.0-or-later
// The record browser's query builder: the fourteen conditions with their value boxes and
// pickers, the orders, the Months and Days menus, All Records, and the grid view and the
// report over the records shown.
#include "ui/log/frmtable1.h"

#include "astro/astronomy.h"
#include "db/storedforms.h"
#include "logdb/querybuilder.h"
#include "logdb/queryrun.h"
#include "ui/common/button.h"
#include "ui/common/fittext.h"
#include "ui/common/messageservice.h"
#include "ui/common/plaintexts.h"
#include "ui/log/frmreport.h"
#include "ui/log/frmtable2.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>
#include <functional>

namespace {

// Tells of a left click released on the watched widget.
class ClickFilter : public QObject {
public:
    ClickFilter(QObject* parent, std::function<void()> clicked)
        : QObject(parent), clicked_(std::move(clicked))
    {
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease)
            clicked_();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> clicked_;
};

// The grid column of the conditions' hints, where a picker shows beside its box.
constexpr int HintColumn = 3;

void OnClick(QWidget* widget, std::function<void()> clicked)
{
    widget->installEventFilter(new ClickFilter(widget, std::move(clicked)));
}

} // namespace

QWidget* frmTable1::BuildQueryPanel()
{
    auto* panel = new QGroupBox(tr("Select Data Where"), this);
    auto* grid = new QGridLayout(panel);
    QueryGrid = grid;
    for (std::size_t b = 0; b < Text6.size(); ++b) {
        Text6[b] = new QLineEdit(panel);
        Text6[b]->setObjectName(QStringLiteral("Text6%1").arg(b));
        FixToText(Text6[b],
                  b >= 10 ? QStringList{QStringLiteral("00:00 AM"), QStringLiteral("00:00 PM")}
                          : QStringList{tr("Fri-Sun")});
        OnClick(Text6[b], [this, b] { Text6_Click(int(b)); });
    }
    Text1 = new QLineEdit(panel);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text2 = new QLineEdit(panel);
    Text2->setObjectName(QStringLiteral("Text2"));
    for (QLineEdit* clock : {Text1, Text2})
        FixToText(clock, {QStringLiteral("00:00 AM"), QStringLiteral("00:00 PM")});
    // Typed clock times are shown as the list writes them ("7:30 PM").
    for (QLineEdit* clock : {Text1, Text2, Text6[10], Text6[11]}) {
        connect(clock, &QLineEdit::editingFinished, this, [clock] {
            if (const auto shown = ClockBoxText(clock->text().toStdString()))
                clock->setText(QString::fromStdString(*shown));
        });
    }
    OnClick(Text1, [this] { Text1_Click(); });
    OnClick(Text2, [this] { Text2_Click(); });
    // Typing answers the box itself: the picker beside it is no longer wanted.
    for (int box = 0; box < ValueBoxCount; ++box)
        connect(ValueBox(box), &QLineEdit::textEdited, this, [this] {
            for (QComboBox* picker : {TimeCombo, Combo2, MonthList, DOWList})
                picker->hide();
        });

    const auto& conditions = QueryConditions();
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        const int row = int(i);
        Check1[i] = new QCheckBox(PlainText(conditions[i].Caption), panel);
        Check1[i]->setObjectName(QStringLiteral("Check1%1").arg(i));
        grid->addWidget(Check1[i], row, 0);
        for (std::size_t k = 0; k < conditions[i].Boxes.size(); ++k)
            grid->addWidget(ValueBox(conditions[i].Boxes[k]), row, 1 + int(k));
        if (!conditions[i].Hint.empty())
            grid->addWidget(new QLabel(PlainText(conditions[i].Hint), panel), row, HintColumn);
    }
    const int rows = int(conditions.size());
    SortByCombo = new QComboBox(panel);
    SortByCombo->setObjectName(QStringLiteral("SortByCombo"));
    grid->addWidget(new QLabel(tr("Sort By"), panel), rows, 0, Qt::AlignRight);
    grid->addWidget(SortByCombo, rows, 1, 1, 3);

    cmdSelect = Button(tr("Select Data Where"), QStringLiteral("cmdSelect"),
                       tr(" Select Data From Conditions of CheckBoxes "), panel);
    Command1 = Button(tr("All Records"), QStringLiteral("Command1"),
                      tr(" Display ALL Records in Database "), panel);
    Command2 = Button(tr("Clear Text"), QStringLiteral("Command2"), tr(" Clear TextBoxes "), panel);
    Command3 = Button(tr("Clear Checks"), QStringLiteral("Command3"),
                      tr(" UnCheck ALL CheckBoxes "), panel);
    Command4 = Button(tr("Report"), QStringLiteral("Command4"),
                      tr(" Display Report for Current Records "), panel);
    grid->addWidget(cmdSelect, rows + 1, 0);
    grid->addWidget(Command1, rows + 1, 1, 1, 2);
    grid->addWidget(Command4, rows + 1, 3);
    grid->addWidget(Command2, rows + 2, 0);
    grid->addWidget(Command3, rows + 2, 1, 1, 2);
    grid->setRowStretch(rows + 3, 1);
    grid->setColumnStretch(HintColumn, 1);
    BuildPickers(panel);

    connect(cmdSelect, &QPushButton::clicked, this, &frmTable1::cmdSelect_Click);
    connect(Command1, &QPushButton::clicked, this, &frmTable1::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &frmTable1::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &frmTable1::Command3_Click);
    connect(Command4, &QPushButton::clicked, this, &frmTable1::Command4_Click);
    connect(SortByCombo, &QComboBox::activated, this, &frmTable1::SortByCombo_Click);
    OnClick(Label7, [this] { Label7_Click(); });
    return panel;
}

void frmTable1::BuildPickers(QWidget* panel)
{
    // A picker is an aid: it never takes the keys meant for a box, and opens when clicked.
    const auto picker = [panel](const QString& name) {
        auto* list = new QComboBox(panel);
        list->setObjectName(name);
        list->setMaxVisibleItems(14);
        list->setFocusPolicy(Qt::NoFocus);
        list->hide();
        return list;
    };
    TimeCombo = picker(QStringLiteral("TimeCombo"));
    Combo2 = picker(QStringLiteral("Combo2"));
    MonthList = picker(QStringLiteral("MonthList"));
    DOWList = picker(QStringLiteral("DOWList"));
    connect(TimeCombo, &QComboBox::activated, this, &frmTable1::TimeCombo_Click);
    connect(Combo2, &QComboBox::activated, this, &frmTable1::Combo2_Click);
    connect(MonthList, &QComboBox::activated, this, &frmTable1::MonthList_Click);
    connect(DOWList, &QComboBox::activated, this, &frmTable1::DOWList_Click);
}

void frmTable1::BuildQueryMenus(QMenuBar* bar)
{
    mnutableview = bar->addAction(tr("&Table View"));
    mnutableview->setObjectName(QStringLiteral("mnutableview"));
    connect(mnutableview, &QAction::triggered, this, &frmTable1::mnutableview_Click);
    QMenu* mnuMonth = bar->addMenu(tr("&Months"));
    for (std::size_t k = 0; k < mnuMonths.size(); ++k) {
        // "January" to "December", as the browser writes month names.
        const auto name = FormatStored(
            QStringLiteral("2001-%1-01").arg(k + 1, 2, 10, QChar('0')).toStdString(), "mmmm");
        mnuMonths[k] = mnuMonth->addAction(PlainText(name.value_or("")));
        connect(mnuMonths[k], &QAction::triggered, this, [this, k] { mnuMonths_Click(int(k)); });
    }
    QMenu* mnuYear = bar->addMenu(tr("&Days"));
    for (std::size_t k = 0; k < mnuYears.size(); ++k) {
        mnuYears[k] = mnuYear->addAction(PlainText(DaySelections()[k].Caption));
        connect(mnuYears[k], &QAction::triggered, this, [this, k] { mnuYears_Click(int(k)); });
    }
}

QLineEdit* frmTable1::ValueBox(int box) const
{
    return box == Text1Box ? Text1 : box == Text2Box ? Text2 : Text6[std::size_t(box)];
}

QueryForm frmTable1::QueryFormOfBoxes() const
{
    QueryForm form;
    for (std::size_t i = 0; i < Check1.size(); ++i)
        form.Checked[i] = Check1[i]->isChecked();
    for (int box = 0; box < ValueBoxCount; ++box)
        form.Values[std::size_t(box)] = ValueBox(box)->text().toStdString();
    return form;
}

void frmTable1::ShowQueryValues(const QueryForm& form)
{
    for (int box = 0; box < ValueBoxCount; ++box)
        ValueBox(box)->setText(QString::fromStdString(form.Values[std::size_t(box)]));
}

void frmTable1::ShowSource(const QString& recordSource)
{
    Data1.SetRecordSource(recordSource);
    DbResult shown = Data1.Refresh();
    if (shown && Data1.RecordCount() > 0) {
        shown = Data1.MoveLast();
        shown = shown ? Data1.MoveFirst() : shown;
    }
    if (!shown)
        Data1_Error(shown.Message);
}

bool frmTable1::Data1_Validate() { return ConfirmLeaveEditing(); }

void frmTable1::cmdSelect_Click()
{
    if (!Data1_Validate())
        return;
    const Selection selection = SelectDataWhere(Ctx.State.DBPath, QueryFormOfBoxes(), SortIndex);
    if (!selection.Error.isEmpty()) {
        Ctx.Messages.MsgBox(selection.Error);
        return;
    }
    SortIndex = std::max<std::int16_t>(SortIndex, 1);
    ShowSource(selection.RecordSource);
    Label9->setText(PlainText(selection.Caption.toStdString()));
    if (!selection.Refused.isEmpty())
        Ctx.Messages.MsgBox(tr("These steps of the selection could not run and were "
                               "passed over:\n") +
                            selection.Refused.join(QLatin1Char('\n')));
}

void frmTable1::SortByCombo_Click() { SortIndex = std::int16_t(SortByCombo->currentIndex() + 1); }

void frmTable1::mnuMonths_Click(int index)
{
    if (!Data1_Validate())
        return;
    Command2_Click();
    Command3_Click();
    ShowSource(QString::fromStdString(MonthSource(index + 1)));
    // The month boxes are left empty; the next selection reads them as the whole year.
    Text6[1]->clear();
    Text6[2]->clear();
}

void frmTable1::mnuYears_Click(int index)
{
    if (!Data1_Validate())
        return;
    ShowSource(QString::fromStdString(DaySelections()[std::size_t(index)].RecordSource));
}

void frmTable1::Command1_Click()
{
    if (!Data1_Validate())
        return;
    ShowSource(QStringOf(AllRecordsSource));
    if (const DbResult copied = CopyAllRecordsToWorkTable(Ctx.State.DBPath); !copied)
        Data1_Error(copied.Message);
}

void frmTable1::Command2_Click()
{
    for (int box = 0; box < ValueBoxCount; ++box) {
        if (box != 1 && box != 2)
            ValueBox(box)->clear();
    }
}

void frmTable1::Command3_Click()
{
    for (QCheckBox* check : Check1)
        check->setChecked(false);
}

void frmTable1::Command4_Click()
{
    if (!Data1_Validate())
        return;
    frmReport report(Ctx, Data1.RecordSource(), Ctx.Engine.Site.AMPM, this);
    report.exec();
    Form_Activate();
}

void frmTable1::mnutableview_Click()
{
    frmTable2 grid(Ctx, Data1.RecordSource(), this);
    grid.exec();
    Form_Activate();
}

void frmTable1::Label7_Click()
{
    const auto waxing = NumberOf(Data1.Field("Waxing"));
    if (!waxing)
        return;
    Check1[10]->setChecked(*waxing == 1);
    Check1[11]->setChecked(*waxing != 1);
}

void frmTable1::ShowPicker(QComboBox* picker, QLineEdit* box)
{
    for (QComboBox* other : {TimeCombo, Combo2, MonthList, DOWList})
        other->setVisible(other == picker);
    // Over the hint of the box's row: the box stays in view and keeps the focus.
    int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
    QueryGrid->getItemPosition(QueryGrid->indexOf(box), &row, &column, &rowSpan, &columnSpan);
    picker->setGeometry(QueryGrid->cellRect(row, HintColumn).x(), box->y(),
                        std::max(box->width(), picker->sizeHint().width()), box->height());
    picker->setCurrentIndex(std::max(0, picker->findText(box->text())));
    picker->raise();
}

void frmTable1::Text6_Click(int index)
{
    PickerBox = index;
    QLineEdit* box = Text6[std::size_t(index)];
    if (index == 1 || index == 2)
        ShowPicker(MonthList, box);
    else if (index == 3 || index == 4)
        ShowPicker(DOWList, box);
    else if (index == 10 || index == 11)
        Calling_TimeCombo(index - 7);
    else
        ShowPicker(Combo2, box);
}

void frmTable1::Text1_Click() { Calling_TimeCombo(1); }
void frmTable1::Text2_Click() { Calling_TimeCombo(2); }

void frmTable1::Calling_TimeCombo(int which)
{
    TimeComboServes = which;
    const std::array<QLineEdit*, 4> boxes = {Text1, Text2, Text6[10], Text6[11]};
    ShowPicker(TimeCombo, boxes[std::size_t(std::clamp(which, 1, 4) - 1)]);
}

void frmTable1::TimeCombo_Click()
{
    const std::array<QLineEdit*, 4> boxes = {Text1, Text2, Text6[10], Text6[11]};
    boxes[std::size_t(std::clamp(TimeComboServes, 1, 4) - 1)]->setText(TimeCombo->currentText());
    TimeCombo->hide();
}

void frmTable1::Combo2_Click()
{
    Text6[std::size_t(PickerBox)]->setText(
        QString::fromStdString(PickedNumber(PickerBox, Combo2->currentText().toInt())));
    Combo2->hide();
}

void frmTable1::MonthList_Click()
{
    Text6[std::size_t(PickerBox)]->setText(MonthList->currentText());
    MonthList->hide();
}

void frmTable1::DOWList_Click()
{
    QueryForm form = QueryFormOfBoxes();
    PickDayOfWeek(form, PickerBox, DOWList->currentIndex() + 1);
    ShowQueryValues(form);
    DOWList->hide();
}
