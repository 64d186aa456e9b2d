// SPDX-License-Identifier: GPL-3.0-or-later
// The one application state: the settings, the store they come from, the message service,
// the engine and the calendar. main() owns it and hands references to the windows; tests
// build fresh ones.
#pragma once

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "logdb/logstate.h"
#include "model/settings.h"
#include "platform/settingsstore.h"
#include "ui/common/messageservice.h"

struct AppState {
    Settings Config;
    SettingsStore Store;
    MessageService Messages;
    Astronomy Astro;
    Calendar Cal;
    LogState Log;
};
