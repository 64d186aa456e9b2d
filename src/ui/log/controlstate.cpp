// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/controlstate.h"

#include <QAction>
#include <QWidget>

void DisableControl(QWidget* control) { control->setEnabled(false); }
void EnableControl(QWidget* control) { control->setEnabled(true); }
void DisableControl(QAction* control) { control->setEnabled(false); }
void EnableControl(QAction* control) { control->setEnabled(true); }
