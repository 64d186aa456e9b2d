// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes sized by what they show: a line edit's least width is the room its widest expected
// text needs in the box's own font and style, so a layout never squeezes it below that.
#pragma once

#include <QStringList>

class QLineEdit;

void FitToText(QLineEdit* box, const QStringList& widest);
// FitToText, and no wider: for boxes of values with a known widest form (times, numbers).
void FixToText(QLineEdit* box, const QStringList& widest);
