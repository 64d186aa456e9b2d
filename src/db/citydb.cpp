// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/citydb.h"

#include "db/datacontrol.h"

#include <QDir>
#include <QFileInfo>

void CityDb::Attach(DataControl& data, const QString& folder)
{
    data.SetDatabaseName(QDir(folder).filePath(FileName));
    data.SetConnect(Connect);
}

QStringList CityDb::FieldValues(DataControl& data, const QString& field)
{
    QStringList values;
    const int index = data.FieldIndex(field);
    if (index < 0 || data.RecordCount() == 0)
        return values;
    for (DbResult moved = data.MoveFirst(); moved && !data.IsEOF(); moved = data.MoveNext())
        values << data.Field(index).toString();
    data.MoveFirst();
    return values;
}

QString CityDb::Unreadable(const QString& folder, const QString& reason)
{
    const QString path = QDir(folder).filePath(FileName);
    if (!QFileInfo::exists(path))
        return QStringLiteral("The city list %1 is missing; type the place by hand.").arg(path);
    return QStringLiteral("The city list %1 cannot be read: %2").arg(path, reason);
}
