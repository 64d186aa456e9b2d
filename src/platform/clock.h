// SPDX-License-Identifier: GPL-3.0-or-later
// Today's date and the time of day. $QUILLMERE_NOW (an ISO date-time such as
// 2024-03-10T07:30:00) fixes the clock, so tests and screenshots see a known day.
#pragma once

#include <QDateTime>

#include <string>

namespace Clock {
QDateTime Now();
// Now on the clock of the tz zone named (the computer's own clock when it names none known).
QDateTime NowIn(const std::string& zone);
} // namespace Clock
