#include "logdb/logreport.h"

#include "db/datacontrol.h"
#include "db/storedforms.h"
#include "logdb/reportlines.h"

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

} // namespace

QString BuildReportText(DataControl& data, bool ampm, const std::function<void(int)>& progress)
{
    std::string text;
    const int count = data.RecordCount();
    text.reserve(std::size_t(count) * 96);
    if (count > 0)
        data.MoveFirst();
    for (int i = 1; i <= count; ++i) {
        text += ReportLine(i, RecordOf(data), ampm);
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
