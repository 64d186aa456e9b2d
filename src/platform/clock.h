// Today's date and the time of day. $QUILLMERE_NOW (an ISO date-time such as
// 2024-03-10T07:30:00) fixes the clock, so tests and screenshots see a known day.
#pragma once

#include <QDateTime>

namespace Clock {
QDateTime Now();
} // namespace Clock
