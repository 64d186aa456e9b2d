// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/settings.h"
#include "ui/calendar/frmreminders.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPalette>
#include <QRadioButton>
#include <QSpinBox>

#include <gtest/gtest.h>

// Each location keeps its own choices while the window is open; OK puts all of them into the
// settings, Cancel none.
TEST(FrmReminders, KeepsEachLocationsChoicesUntilOK)
{
    Settings s;
    s.CurLoc = 2;
    s.Locations[2].Name = "Miami, FL";
    s.Locations[5].Reminder = {.SunEvents = true, .LeadMinutes = 90, .BestDaysOnly = true};
    for (const bool ok : {false, true}) {
        Settings edited = s;
        FrmReminders w(edited);
        EXPECT_EQ(w.CboLocation->currentText(), "# 2 Miami, FL");
        w.ChkMajors->setChecked(true);
        w.SpnLead->setValue(15);
        w.CboLocation->setCurrentIndex(4); // location 5
        EXPECT_TRUE(w.ChkSun->isChecked());
        EXPECT_FALSE(w.ChkMajors->isChecked());
        EXPECT_EQ(w.SpnLead->value(), 90);
        EXPECT_TRUE(w.OptBestDays->isChecked());
        w.OptEveryDay->setChecked(true);
        w.CboLocation->setCurrentIndex(1);
        EXPECT_TRUE(w.ChkMajors->isChecked());
        if (!ok) {
            w.reject();
            EXPECT_TRUE(edited.Locations == s.Locations);
            continue;
        }
        w.CmdOK_Click();
        EXPECT_TRUE(edited.Locations[2].Reminder ==
                    (ReminderOption{.Majors = true, .LeadMinutes = 15}));
        EXPECT_TRUE(edited.Locations[5].Reminder ==
                    (ReminderOption{.SunEvents = true, .LeadMinutes = 90}));
        EXPECT_FALSE(edited.Locations[1].Reminder.Any());
    }
}

// Laid out by its content: no control is narrower than its text at the palette the desktop
// gives, dark included.
TEST(FrmReminders, ControlsAreAsWideAsTheirTexts)
{
    Settings s;
    FrmReminders w(s);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2d, 0x2d, 0x2d));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Button, QColor(0x3c, 0x3c, 0x3c));
    dark.setColor(QPalette::ButtonText, Qt::white);
    w.setPalette(dark);
    w.show();
    for (QWidget* c : std::initializer_list<QWidget*>{w.ChkMajors, w.ChkMinors, w.ChkSun,
                                                      w.OptEveryDay, w.OptBestDays, w.SpnLead})
        EXPECT_GE(c->width(), c->sizeHint().width()) << c->metaObject()->className();
    EXPECT_TRUE(w.grab().save(QStringLiteral(QUILLMERE_SCREENSHOTS "/frmreminders.png")));
}
