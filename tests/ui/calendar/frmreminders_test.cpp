// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/settings.h"
#include "ui/calendar/frmreminders.h"

#include <QCheckBox>
#include <QComboBox>
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
        EXPECT_EQ(std::tuple(w.ChkSun->isChecked(), w.ChkMajors->isChecked(), w.SpnLead->value(),
                             w.OptBestDays->isChecked()),
                  std::tuple(true, false, 90, true));
        w.OptEveryDay->setChecked(true);
        w.CboLocation->setCurrentIndex(1);
        EXPECT_TRUE(w.ChkMajors->isChecked());
        if (!ok) {
            w.reject();
            EXPECT_TRUE(edited.Locations == s.Locations);
            continue;
        }
        w.CmdOK_Click();
        Settings expected = s;
        expected.Locations[2].Reminder = {.Majors = true, .LeadMinutes = 15};
        expected.Locations[5].Reminder = {.SunEvents = true, .LeadMinutes = 90};
        EXPECT_TRUE(edited.Locations == expected.Locations);
    }
}
