// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/logreport.h"

#include "db/datacontrol.h"
#include "db/storedforms.h"
#include "logdb/catches.h"
#include "logdb/reportlines.h"

#include <map>

namespace {

std::optional<double> Serial(const QVariant& stored)
{
    return stored.isNull() ? std::nullopt : StoredSerial(stored.toString().toStdString());
}

ReportRecord RecordOf(const DataControl& data)
{
    ReportRecord r;
    r.JulianDate = Serial(data.Field(QStringLiteral("JulianDate")));
    r.Major1 = Serial(data.Field(QStringLiteral("Major1")));
    r.Major2 = Serial(data.Field(QStringLiteral("Major2")));
    r.Minor1 = NumberOf(data.Field(QStringLiteral("Minor1")));
    r.Minor2 = NumberOf(data.Field(QStringLiteral("Minor2")));
    r.GraphicType = NumberOf(data.Field(QStringLiteral("GraphicType")));
    r.IllumPercent = NumberOf(data.Field(QStringLiteral("IllumPercent")));
    r.MoonAge = NumberOf(data.Field(QStringLiteral("MoonAge")));
    return r;
}

ReportCatch ReportCatchOf(const Catch& c)
{
    return {c.Time.toStdString(), c.Species.toStdString(), c.Count, c.LengthMm, c.WeightG,
            c.Released,           c.Bait.toStdString()};
}

// The report lines of every catch of the file, by date.
std::map<QString, std::string> CatchLinesByDate(const QString& path)
{
    std::vector<Catch> catches;
    std::map<QString, std::string> lines;
    if (ReadYearCatches(path, catches)) // a file whose catches cannot be read reports its days
        for (const Catch& c : catches)
            lines[c.Date] += CatchReportLine(ReportCatchOf(c));
    return lines;
}

} // namespace

QString BuildReportText(DataControl& data, bool ampm, const std::function<void(int)>& progress)
{
    std::string text;
    const int count = data.RecordCount();
    text.reserve(std::size_t(count) * 96);
    if (count > 0)
        data.MoveFirst();
    const std::map<QString, std::string> catchLines = CatchLinesByDate(data.DatabaseName());
    for (int i = 1; i <= count; ++i) {
        text += ReportLine(i, RecordOf(data), ampm);
        if (const auto day = catchLines.find(data.Field(QStringLiteral("JulianDate")).toString());
            day != catchLines.end())
            text += day->second;
        if (progress)
            progress(i);
        if (i < count)
            data.MoveNext();
    }
    return QString::fromStdString(text);
}

DbResult ReadReportText(const QString& path, const QString& recordSource, bool ampm, QString& text)
{
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource(recordSource);
    if (DbResult read = data.Refresh(); !read)
        return read;
    text = BuildReportText(data, ampm);
    return DbResult::Success();
}

QString TextForPrinting(const QString& text)
{
    return text + QString::fromStdString(ReportDashLine()) +
           QString::fromLatin1(ReportLineEnd.data(), qsizetype(ReportLineEnd.size()));
}
