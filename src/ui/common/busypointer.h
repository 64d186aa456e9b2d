// SPDX-License-Identifier: GPL-3.0-or-later
// The hourglass pointer for as long as a handler works.
#pragma once

#include <QApplication>

class BusyPointer {
public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};
