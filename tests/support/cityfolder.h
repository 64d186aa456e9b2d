// SPDX-License-Identifier: GPL-3.0-or-later
// A fresh folder holding a copy of the built city database, for the window tests.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace cityfolder {
// A new folder below the test root with Encdb.MDB copied in (or without it).
QString Make(const QString& name, bool withCityList = true);
// The first column of every row of a plain SQL query on the folder's Encdb.MDB.
QStringList Column(const QString& folder, const QString& sql, const QVariantList& values = {});
// Runs one statement on the folder's Encdb.MDB; false when it fails.
bool Exec(const QString& folder, const QString& sql, const QVariantList& values = {});
} // namespace cityfolder
