// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchvalues.h"

#include "db/storedforms.h"

namespace {

std::optional<QVariant> TakenValue(const QString& typed, QString& why)
{
    bool ok = false;
    const int taken = typed.toInt(&ok);
    if (ok && taken >= 0 && taken <= MostTaken)
        return QVariant(taken);
    why = QStringLiteral("\"%1\" is not a whole number from 0 to %2").arg(typed).arg(MostTaken);
    return std::nullopt;
}

// "7:00 am", "07:30 PM", "19:30" -> "7:00 AM", "7:30 PM", "7:30 PM".
std::optional<QVariant> PeakTimeValue(const QString& typed, QString& why)
{
    const std::optional<std::string> stored = StoredTime(typed.toStdString());
    if (!stored) {
        why = QStringLiteral("\"%1\" is not a time of day").arg(typed);
        return std::nullopt;
    }
    const int hour = std::stoi(stored->substr(0, 2));
    return QVariant(QStringLiteral("%1:%2 %3")
                        .arg((hour + 11) % 12 + 1)
                        .arg(QString::fromStdString(stored->substr(3, 2)))
                        .arg(hour < 12 ? QStringLiteral("AM") : QStringLiteral("PM")));
}

} // namespace

std::optional<QVariant> CatchValue(const QString& column, const QString& typed, QString& why)
{
    const QString trimmed = typed.trimmed();
    if (trimmed.isEmpty())
        return QVariant();
    if (column.compare(QStringLiteral("TotalTaken"), Qt::CaseInsensitive) == 0)
        return TakenValue(trimmed, why);
    if (column.compare(QStringLiteral("PeakTime"), Qt::CaseInsensitive) == 0)
        return PeakTimeValue(trimmed, why);
    return QVariant(typed);
}
