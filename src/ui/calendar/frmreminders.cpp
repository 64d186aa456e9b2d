// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/frmreminders.h"

#include "model/currentlocation.h"
#include "model/settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

FrmReminders::FrmReminders(Settings& settings, QWidget* parent) : QDialog(parent), Config(settings)
{
    setWindowTitle(tr("Reminders"));
    CboLocation = new QComboBox(this);
    for (int n = 1; n <= LocationCount; ++n) {
        const Location& loc = Config.Locations[std::size_t(n)];
        Options[std::size_t(n)] = loc.Reminder;
        CboLocation->addItem(QString::fromStdString(
            LocationMenuCaption(n, loc.Name, n == Config.DefaultLocation())));
    }
    ChkMajors = new QCheckBox(tr("Major periods"), this);
    ChkMinors = new QCheckBox(tr("Minor periods"), this);
    ChkSun = new QCheckBox(tr("Sunrise and sunset"), this);
    SpnLead = new QSpinBox(this);
    SpnLead->setRange(ShortestReminderLead, LongestReminderLead);
    SpnLead->setSuffix(tr(" min"));
    OptEveryDay = new QRadioButton(tr("Every day"), this);
    OptBestDays = new QRadioButton(tr("Best days only"), this);

    auto* events = new QGroupBox(tr("Tell me before"), this);
    auto* eventRows = new QVBoxLayout(events);
    for (QWidget* w : std::initializer_list<QWidget*>{ChkMajors, ChkMinors, ChkSun})
        eventRows->addWidget(w);
    auto* days = new QGroupBox(tr("On"), this);
    auto* dayRows = new QVBoxLayout(days);
    dayRows->addWidget(OptEveryDay);
    dayRows->addWidget(OptBestDays);
    auto* form = new QFormLayout;
    form->addRow(tr("Location:"), CboLocation);
    form->addRow(tr("Minutes before:"), SpnLead);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(events);
    layout->addWidget(days);
    layout->addWidget(buttons);

    connect(CboLocation, &QComboBox::currentIndexChanged, this,
            [this](int index) { CboLocation_Change(index + 1); });
    connect(buttons, &QDialogButtonBox::accepted, this, &FrmReminders::CmdOK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    CboLocation->setCurrentIndex(Config.CurLoc - 1);
    CboLocation_Change(Config.CurLoc);
}

void FrmReminders::KeepShown()
{
    if (Shown < 1)
        return;
    ReminderOption& o = Options[std::size_t(Shown)];
    o.Majors = ChkMajors->isChecked();
    o.Minors = ChkMinors->isChecked();
    o.SunEvents = ChkSun->isChecked();
    o.LeadMinutes = std::int16_t(SpnLead->value());
    o.BestDaysOnly = OptBestDays->isChecked();
}

void FrmReminders::CboLocation_Change(int n)
{
    KeepShown();
    Shown = n;
    const ReminderOption& o = Options[std::size_t(n)];
    ChkMajors->setChecked(o.Majors);
    ChkMinors->setChecked(o.Minors);
    ChkSun->setChecked(o.SunEvents);
    SpnLead->setValue(o.LeadMinutes);
    (o.BestDaysOnly ? OptBestDays : OptEveryDay)->setChecked(true);
}

void FrmReminders::CmdOK_Click()
{
    KeepShown();
    for (int n = 1; n <= LocationCount; ++n)
        Config.Locations[std::size_t(n)].Reminder = Options[std::size_t(n)];
    accept();
}
