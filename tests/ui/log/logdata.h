// SPDX-License-Identifier: GPL-3.0-or-later
// The reference data of the log window tests, read from tests/ui/log/data.
#pragma once

#include "logdb/catches.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

namespace logtest {

// The rows of a data file of this folder's data/, split at the separator; blank lines and
// '#' lines left out.
inline std::vector<QStringList> DataRows(const QString& name, QChar separator)
{
    QFile file(QStringLiteral(QUILLMERE_LOG_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "cannot read " << name.toStdString();
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith('#'))
            rows.push_back(line.split(separator));
    return rows;
}

} // namespace logtest
