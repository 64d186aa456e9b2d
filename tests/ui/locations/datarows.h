// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a data file beside the tests, their fields split at '|'; lines that begin with
// '#' say what the rows mean.
#pragma once

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

inline std::vector<QStringList> DataRows(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << path.toStdString();
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (!line.isEmpty() && !line.startsWith('#'))
            rows.push_back(line.split('|'));
    return rows;
}
