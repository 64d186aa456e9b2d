// SPDX-License-Identifier: GPL-3.0-or-later
// The plain C++ layers' texts (UTF-8 std::string) as Qt's, converted in one place for every
// layer that shows or stores them through Qt.
#pragma once

#include <QString>

#include <string>

inline QString Q(const std::string& s) { return QString::fromStdString(s); }
