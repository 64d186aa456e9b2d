// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's "open" operation, for web and mail links.
#pragma once

#include <QString>

// Hands `file` (a web address, or "Mailto:" and an address) to the desktop. Only the "open"
// operation exists here; `parameters` and `folder` are passed on for links that take them.
bool OpenLink(const QString& operation, const QString& file, const QString& parameters = {},
              const QString& folder = {});
