// SPDX-License-Identifier: GPL-3.0-or-later
// Builds the city database Encdb.MDB from the GeoNames city list that Debian's libgeonames
// carries: encdbgen <schema.sql> <output file>. The rows depend only on the list and on the
// time-zone data, so two builds give the same rows. Written under a temporary name and
// renamed into place, so an interrupted build leaves no half-made file.
#include "db/citydb.h"
#include "db/database.h"
#include "db/jetsql.h"
#include "model/cityrows.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QSqlQuery>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>

#include <geonames.h>

namespace {

// A zone's standard offset: the smaller of its offsets in mid-January and mid-July, which is
// its winter time in either hemisphere. Read this way rather than from the zone's own notion
// of "standard", Dublin gets Greenwich time in winter (the rules write Irish summer time as
// its standard and winter as a negative daylight saving).
std::optional<int> StandardOffset(const char* zoneName)
{
    const QTimeZone zone{QByteArray(zoneName)};
    if (!zone.isValid())
        return std::nullopt;
    const auto offsetOn = [&zone](int month) {
        return zone.offsetFromUtc(QDateTime(QDate(2024, month, 15), QTime(12, 0), Qt::UTC));
    };
    return std::min(offsetOn(1), offsetOn(7));
}

std::vector<SourceCity> ReadGeoNames()
{
    std::vector<SourceCity> cities;
    const int count = geonames_get_n_cities();
    cities.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        GeonamesCity* c = geonames_get_city(i);
        cities.push_back(
            {geonames_city_get_name(c), geonames_city_get_state(c), geonames_city_get_country(c),
             geonames_city_get_country_code(c), geonames_city_get_latitude(c),
             geonames_city_get_longitude(c), geonames_city_get_population(c),
             StandardOffset(geonames_city_get_timezone(c)), geonames_city_get_timezone(c)});
        geonames_city_free(c);
    }
    return cities;
}

std::vector<FieldValues> Records(const std::vector<CityRow>& rows)
{
    std::vector<FieldValues> records;
    records.reserve(rows.size());
    qlonglong id = 0;
    for (const CityRow& r : rows) {
        records.push_back({{"LongLatID", ++id},
                           {"State", QString::fromStdString(r.State)},
                           {"City", QString::fromStdString(r.City)},
                           {"LongInDegrees", r.LongInDegrees},
                           {"LongChar", QString::fromStdString(r.LongChar)},
                           {"LatInDegrees", r.LatInDegrees},
                           {"LatChar", QString::fromStdString(r.LatChar)},
                           {"Timezone", int(r.Timezone)},
                           {"TzName", QString::fromStdString(r.TzName)}});
    }
    return records;
}

DbResult CreateSchema(Database& db, const QString& schemaPath)
{
    QFile schema(schemaPath);
    if (!schema.open(QIODevice::ReadOnly))
        return DbResult::Failure(QStringLiteral("Cannot read %1").arg(schemaPath));
    QSqlQuery q(db.Connection());
    for (const std::string& sql : SplitSqlScript(schema.readAll().toStdString())) {
        if (!q.exec(QString::fromStdString(sql)))
            return DbResult::Failure(ErrorText(q.lastError()));
    }
    return DbResult::Success();
}

DbResult Build(const QString& schemaPath, const QString& path)
{
    QFile::remove(path);
    if (!QFile(path).open(QIODevice::WriteOnly))
        return DbResult::Failure(QStringLiteral("Cannot create %1").arg(path));
    Database db;
    DbResult step = db.Open(path);
    step = step ? CreateSchema(db, schemaPath) : step;
    const std::vector<CityRow> rows = CityRows(ReadGeoNames());
    step = step ? db.InsertRecords(QStringLiteral("Table1"), Records(rows)) : step;
    step = step ? db.SetPassword(CityDb::Password) : step;
    if (step) {
        QSqlQuery vacuum(db.Connection());
        if (!vacuum.exec(QStringLiteral("VACUUM")))
            step = DbResult::Failure(ErrorText(vacuum.lastError()));
    }
    db.Close();
    if (step)
        std::printf("Encdb.MDB: %zu cities\n", rows.size());
    return step;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: encdbgen <schema.sql> <output file>\n");
        return 2;
    }
    const QString output = QString::fromLocal8Bit(argv[2]);
    const QString temporary = output + QStringLiteral(".part");
    const DbResult built = Build(QString::fromLocal8Bit(argv[1]), temporary);
    if (!built || !(QFile::remove(output) || !QFile::exists(output)) ||
        !QFile::rename(temporary, output)) {
        std::fprintf(stderr, "encdbgen: %s\n",
                     qPrintable(built ? QStringLiteral("cannot write ") + output : built.Message));
        QFile::remove(temporary);
        return 1;
    }
    return 0;
}
