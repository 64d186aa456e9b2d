// SPDX-License-Identifier: GPL-3.0-or-later
// A push button of the program's windows: its caption, the object name the tests find it by
// and its tool tip. Enter in a dialog never presses it (no auto-default).
#pragma once

#include <QPushButton>

inline QPushButton* Button(const QString& caption, const QString& name, const QString& tip,
                           QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}
