// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up the main window's tests share: the window over the first-start settings at a
// fixed "now", shown, with the month and label helpers.
#pragma once

#include "platform/settingsio.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"

#include <QLabel>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>
#include <string>

class MainWindowTest : public ::testing::Test {
protected:
    explicit MainWindowTest(const char* now) : Now(now) {}
    void SetUp() override
    {
        qputenv("QUILLMERE_NOW", Now);
        SettingsStore().DeleteAll();
        WriteFirstStartValues(App.Store);
        LoadSettings(App.Config, App.Store);
        App.Config.CurLoc = App.Config.DefaultLocation();
        W = std::make_unique<FrmCalendar>(App);
        W->show();
    }
    void TearDown() override { qunsetenv("QUILLMERE_NOW"); }

    std::string Text(int label) const { return W->Label[std::size_t(label)]->text().toStdString(); }
    void SetMonth(int year, int month)
    {
        App.Cal.CurYear = std::int16_t(year);
        App.Cal.CurMonth = std::int16_t(month);
        W->VsbYear->setValue(year);
        W->RefreshMonth();
    }

    const char* Now;
    AppState App;
    std::unique_ptr<FrmCalendar> W;
};
