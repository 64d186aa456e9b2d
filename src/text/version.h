// SPDX-License-Identifier: GPL-3.0-or-later
// The line every Quillmere program prints for --version.
#pragma once

#include <string>

inline std::string VersionLine(const std::string& program)
{
    return program + " " + QUILLMERE_VERSION + "\n";
}
