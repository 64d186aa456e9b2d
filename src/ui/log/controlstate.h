// SPDX-License-Identifier: GPL-3.0-or-later
// The log windows switch their controls between browsing and editing through these two.
#pragma once

class QAction;
class QWidget;

void DisableControl(QWidget* control);
void EnableControl(QWidget* control);
void DisableControl(QAction* control);
void EnableControl(QAction* control);
