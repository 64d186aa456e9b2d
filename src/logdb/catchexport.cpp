// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchexport.h"

#include "db/storedforms.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <map>

namespace {

enum CatchColumn {
    TimeCell,
    SpeciesCell,
    CountCell,
    LengthCell,
    WeightCell,
    ReleasedCell,
    BaitCell,
    MethodCell,
    SpotCell,
    LatitudeCell,
    LongitudeCell,
    WaterCell,
    AirCell,
    WindCell,
    SkyCell,
    NoteCell,
    PhotosCell,
    CatchCellCount
};

// The shortest text that reads back as the same double.
QString Exact(const std::optional<double>& value)
{
    return value ? QString::number(*value, 'g', QLocale::FloatingPointShortest) : QString();
}

QString Whole(const std::optional<int>& value)
{
    return value ? QString::number(*value) : QString();
}

template <typename T> bool ReadNumber(const QString& text, std::optional<T>& value)
{
    if (text.isEmpty())
        return true;
    bool ok = false;
    if constexpr (std::is_same_v<T, int>)
        value = text.toInt(&ok);
    else
        value = text.toDouble(&ok);
    return ok;
}

// The export text of a date's column, "07/04/2024", in stored form.
QString StoredDateOf(const QString& shown)
{
    const std::optional<std::string> stored = StoredDate(shown.toStdString());
    return stored ? QString::fromStdString(*stored) : QString();
}

QJsonValue JsonText(const QString& text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject CatchObject(const std::vector<QString>& cells)
{
    QJsonObject object;
    const auto& columns = CatchExportColumns();
    for (std::size_t i = 0; i < columns.size(); ++i)
        object.insert(columns[i], JsonText(cells[i]));
    QJsonArray photos;
    for (const QString& photo : cells[PhotosCell].split(PhotoSeparator, Qt::SkipEmptyParts))
        photos.append(photo);
    object.insert(columns[PhotosCell], photos);
    return object;
}

QString JsonCell(const QJsonValue& value)
{
    if (value.isArray()) {
        QStringList parts;
        for (const auto& part : value.toArray())
            parts << part.toString();
        return parts.join(PhotoSeparator);
    }
    return value.isNull() || value.isUndefined() ? QString() : value.toVariant().toString();
}

std::vector<std::string> Utf8(const std::vector<QString>& texts)
{
    std::vector<std::string> out;
    out.reserve(texts.size());
    for (const QString& text : texts)
        out.push_back(text.toStdString());
    return out;
}

} // namespace

const std::vector<QString>& CatchExportColumns()
{
    static const std::vector<QString> columns = {
        "CatchTime", "Species", "FishCount", "LengthMm",  "WeightG",   "Released",
        "Bait",      "Method",  "Spot",      "Latitude",  "Longitude", "WaterTemp",
        "AirTemp",   "Wind",    "Sky",       "CatchNote", "Photos"};
    return columns;
}

bool IsCatchExportColumn(const QString& name)
{
    const auto& columns = CatchExportColumns();
    return std::any_of(columns.begin(), columns.end(), [&](const QString& column) {
        return column.compare(name, Qt::CaseInsensitive) == 0;
    });
}

std::vector<QString> CatchCells(const Catch& c)
{
    return {c.Time,
            c.Species,
            QString::number(c.Count),
            Whole(c.LengthMm),
            Whole(c.WeightG),
            c.Released ? "1" : "0",
            c.Bait,
            c.Method,
            c.Spot,
            Exact(c.Latitude),
            Exact(c.Longitude),
            Exact(c.WaterTemp),
            Exact(c.AirTemp),
            c.Wind,
            c.Sky,
            c.Note,
            c.Photos.join(PhotoSeparator)};
}

std::optional<Catch> CatchOfCells(const QString& date, const std::vector<QString>& columns,
                                  const std::vector<QString>& cells, QString& why)
{
    std::vector<QString> own(CatchCellCount);
    bool any = false;
    const auto& names = CatchExportColumns();
    for (std::size_t i = 0; i < columns.size() && i < cells.size(); ++i)
        for (int k = 0; k < CatchCellCount; ++k)
            if (names[k].compare(columns[i], Qt::CaseInsensitive) == 0) {
                own[k] = cells[i];
                any = any || !cells[i].isEmpty();
            }
    if (!any)
        return std::nullopt;
    Catch c;
    c.Date = date;
    c.Time = own[TimeCell];
    c.Species = own[SpeciesCell];
    bool counted = false;
    c.Count = own[CountCell].isEmpty() ? 1 : own[CountCell].toInt(&counted);
    c.Released = own[ReleasedCell] == QLatin1String("1");
    c.Bait = own[BaitCell];
    c.Method = own[MethodCell];
    c.Spot = own[SpotCell];
    c.Wind = own[WindCell];
    c.Sky = own[SkyCell];
    c.Note = own[NoteCell];
    c.Photos = own[PhotosCell].split(PhotoSeparator, Qt::SkipEmptyParts);
    const bool numbers =
        (counted || own[CountCell].isEmpty()) && ReadNumber(own[LengthCell], c.LengthMm) &&
        ReadNumber(own[WeightCell], c.WeightG) && ReadNumber(own[LatitudeCell], c.Latitude) &&
        ReadNumber(own[LongitudeCell], c.Longitude) && ReadNumber(own[WaterCell], c.WaterTemp) &&
        ReadNumber(own[AirCell], c.AirTemp) &&
        (own[ReleasedCell].isEmpty() || own[ReleasedCell] == QLatin1String("0") || c.Released);
    why = numbers ? CatchProblem(c)
                  : QStringLiteral("the catch holds a cell that is not a number where one "
                                   "belongs (FishCount, LengthMm, WeightG, Released 0 or 1, "
                                   "Latitude, Longitude, WaterTemp, AirTemp)");
    if (!why.isEmpty())
        return std::nullopt;
    return c;
}

DbResult ExportCatchTable(const QString& path, bool ampm, CatchLogTable& out,
                          const QString& recordSource)
{
    if (DbResult read = ExportLogTable(path, ampm, out.Days, recordSource); !read)
        return read;
    std::vector<Catch> catches;
    if (DbResult read = ReadYearCatches(path, catches); !read)
        return read;
    std::map<QString, std::vector<std::vector<QString>>> byDate;
    for (const Catch& c : catches)
        byDate[c.Date].push_back(CatchCells(c));
    const auto dateColumn =
        std::find(out.Days.Columns.begin(), out.Days.Columns.end(), QStringLiteral("JulianDate")) -
        out.Days.Columns.begin();
    out.Catches.clear();
    for (const auto& row : out.Days.Rows) {
        const auto found = byDate.find(StoredDateOf(row[dateColumn]));
        out.Catches.push_back(found == byDate.end() ? std::vector<std::vector<QString>>{}
                                                    : found->second);
    }
    return DbResult::Success();
}

std::string CatchTableAsCsv(const CatchLogTable& table)
{
    std::vector<QString> header = table.Days.Columns;
    header.insert(header.end(), CatchExportColumns().begin(), CatchExportColumns().end());
    std::string out = CsvLine(Utf8(header));
    const std::vector<QString> noCatch(CatchExportColumns().size());
    for (std::size_t i = 0; i < table.Days.Rows.size(); ++i) {
        const auto& catches = table.Catches[i];
        for (std::size_t k = 0; k < std::max<std::size_t>(catches.size(), 1); ++k) {
            std::vector<QString> line = table.Days.Rows[i];
            const auto& cells = catches.empty() ? noCatch : catches[k];
            line.insert(line.end(), cells.begin(), cells.end());
            out += CsvLine(Utf8(line));
        }
    }
    return out;
}

std::string CatchTableAsJson(const CatchLogTable& table)
{
    QJsonArray days;
    for (std::size_t i = 0; i < table.Days.Rows.size(); ++i) {
        QJsonObject day;
        const auto& row = table.Days.Rows[i];
        for (std::size_t k = 0; k < table.Days.Columns.size() && k < row.size(); ++k)
            day.insert(table.Days.Columns[k], JsonText(row[k]));
        QJsonArray catches;
        for (const auto& cells : table.Catches[i])
            catches.append(CatchObject(cells));
        day.insert(CatchesKey, catches);
        days.append(day);
    }
    return QJsonDocument(days).toJson(QJsonDocument::Indented).toStdString();
}

DbResult RecordsOfJson(const QByteArray& json, std::vector<CsvRecord>& records)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull() || !document.isArray())
        return DbResult::Failure(
            document.isNull() ? QStringLiteral("The file is not JSON: %1").arg(error.errorString())
                              : QStringLiteral("The file is not a list of days."));
    std::vector<QString> dayKeys;
    const QJsonArray days = document.array();
    if (!days.isEmpty())
        for (const QString& key : days.first().toObject().keys())
            if (key != QLatin1String(CatchesKey))
                dayKeys.push_back(key);
    std::vector<QString> header = dayKeys;
    header.insert(header.end(), CatchExportColumns().begin(), CatchExportColumns().end());
    records = {{1, Utf8(header)}};
    int number = 1;
    for (const auto& value : days) {
        ++number; // a day's place in the list stands for its line
        const QJsonObject day = value.toObject();
        std::vector<QString> cells;
        cells.reserve(dayKeys.size());
        for (const QString& key : dayKeys)
            cells.push_back(JsonCell(day.value(key)));
        QJsonArray catches = day.value(CatchesKey).toArray();
        if (catches.isEmpty())
            catches.append(QJsonObject());
        for (const auto& c : catches) {
            std::vector<QString> line = cells;
            for (const QString& column : CatchExportColumns())
                line.push_back(JsonCell(c.toObject().value(column)));
            records.push_back({number, Utf8(line)});
        }
    }
    return DbResult::Success();
}
