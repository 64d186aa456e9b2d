// SPDX-License-Identifier: GPL-3.0-or-later
// The reference data of the log window tests, read from tests/ui/log/data.
#pragma once

#include "logdb/catches.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

namespace logtest {

// The rows of a data file of this folder's data/, split at the separator, "\n" read as a line
// break; blank lines and '#' lines left out.
inline std::vector<QStringList> DataRows(const QString& name, QChar separator)
{
    QFile file(QStringLiteral(QUILLMERE_LOG_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "cannot read " << name.toStdString();
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith('#'))
            rows.push_back(QString(line).replace("\\n", "\n").split(separator));
    return rows;
}

// The catches of a data file of rows "date|time|species|fish|released|length mm|weight g|water
// °C", a measure left empty when not known.
inline std::vector<Catch> CatchRows(const QString& name)
{
    std::vector<Catch> catches;
    for (const QStringList& f : DataRows(name, '|')) {
        Catch c{.Date = f[0],
                .Time = f[1],
                .Species = f[2],
                .Count = f[3].toInt(),
                .Released = f[4] == "1"};
        if (!f[5].isEmpty())
            c.LengthMm = f[5].toInt();
        if (!f[6].isEmpty())
            c.WeightG = f[6].toInt();
        if (!f[7].isEmpty())
            c.WaterTemp = f[7].toDouble();
        catches.push_back(c);
    }
    return catches;
}

} // namespace logtest
