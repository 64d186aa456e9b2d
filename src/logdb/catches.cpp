// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catches.h"

#include "db/jetsql.h"
#include "db/storedforms.h"
#include "logdb/backups.h"
#include "logdb/catchphotos.h"
#include "logdb/catchunits.h"
#include "logdb/logfiles.h"
#include "logdb/yearlock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

#include <algorithm>

namespace {

// The measures a catch may hold, in stored units.
constexpr int MostLengthMm = 5000;
constexpr int MostWeightG = 1000000;
constexpr double ColdestC = -50.0;
constexpr double WarmestC = 60.0;
constexpr double MostLatitude = 90.0;
constexpr double MostLongitude = 180.0;

const QString CatchColumns = QStringLiteral(
    "CatchID, JulianDate, CatchTime, Species, FishCount, LengthMm, WeightG, Released, Bait, "
    "Method, Spot, Latitude, Longitude, WaterTemp, AirTemp, Wind, Sky, Note");

QVariant Optional(const auto& value) { return value ? QVariant(*value) : QVariant(); }
QVariant TextOrNull(const QString& text) { return text.isEmpty() ? QVariant() : QVariant(text); }

template <typename T> std::optional<T> OptionalOf(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional<T>(value.value<T>());
}

Catch CatchOfRow(const QSqlQuery& q)
{
    int i = 0;
    Catch c;
    c.Id = q.value(i++).toLongLong();
    c.Date = q.value(i++).toString();
    c.Time = q.value(i++).toString();
    c.Species = q.value(i++).toString();
    c.Count = q.value(i++).toInt();
    c.LengthMm = OptionalOf<int>(q.value(i++));
    c.WeightG = OptionalOf<int>(q.value(i++));
    c.Released = q.value(i++).toInt() != 0;
    c.Bait = q.value(i++).toString();
    c.Method = q.value(i++).toString();
    c.Spot = q.value(i++).toString();
    c.Latitude = OptionalOf<double>(q.value(i++));
    c.Longitude = OptionalOf<double>(q.value(i++));
    c.WaterTemp = OptionalOf<double>(q.value(i++));
    c.AirTemp = OptionalOf<double>(q.value(i++));
    c.Wind = q.value(i++).toString();
    c.Sky = q.value(i++).toString();
    c.Note = q.value(i).toString();
    return c;
}

// The stored values in the order of CatchColumns after CatchID.
QVariantList ValuesOf(const Catch& c)
{
    return {c.Date,
            TextOrNull(c.Time),
            TextOrNull(c.Species),
            c.Count,
            Optional(c.LengthMm),
            Optional(c.WeightG),
            c.Released ? 1 : 0,
            TextOrNull(c.Bait),
            TextOrNull(c.Method),
            TextOrNull(c.Spot),
            Optional(c.Latitude),
            Optional(c.Longitude),
            Optional(c.WaterTemp),
            Optional(c.AirTemp),
            TextOrNull(c.Wind),
            TextOrNull(c.Sky),
            TextOrNull(c.Note)};
}

DbResult Run(QSqlQuery& q, const QString& sql, const QVariantList& values = {})
{
    if (!q.prepare(sql))
        return DbResult::Failure(ErrorText(q.lastError()));
    for (const QVariant& value : values)
        q.addBindValue(value);
    return q.exec() ? DbResult::Success() : DbResult::Failure(ErrorText(q.lastError()));
}

DbResult VersionOf(Database& db, int& version)
{
    QSqlQuery q(db.Connection());
    if (DbResult read = Run(q, QStringLiteral("PRAGMA user_version")); !read)
        return read;
    version = q.next() ? q.value(0).toInt() : 0;
    // A rebuilt file (a repair copies the tables, not the header) keeps the tables only.
    if (version == 0 && db.Tables().contains(QLatin1String(CatchTableName)))
        version = CatchSchemaVersion;
    return DbResult::Success();
}

DbResult ReadPhotos(Database& db, const QString& where, const QVariantList& values,
                    std::vector<Catch>& catches)
{
    std::map<qint64, Catch*> byId;
    for (Catch& c : catches)
        byId[c.Id] = &c;
    QSqlQuery q(db.Connection());
    q.setForwardOnly(true);
    if (DbResult read = Run(q,
                            QStringLiteral("SELECT p.CatchID, p.Photo FROM CatchPhotos p JOIN "
                                           "Catches c ON c.CatchID = p.CatchID %1 "
                                           "ORDER BY p.CatchID, p.Position")
                                .arg(where),
                            values);
        !read)
        return read;
    while (q.next())
        if (const auto found = byId.find(q.value(0).toLongLong()); found != byId.end())
            found->second->Photos << q.value(1).toString();
    return DbResult::Success();
}

// Opens a year file and reads its catch schema version (0: no catch tables yet).
DbResult OpenCatchFile(Database& db, const QString& yearFile, const QString& connect, int& version)
{
    const DbResult result = db.Open(yearFile, connect);
    return result ? VersionOf(db, version) : result;
}

// The catches the condition `where` over Catches c picks, with their photos.
DbResult ReadCatches(const QString& yearFile, const QString& connect, const QString& where,
                     const QVariantList& values, std::vector<Catch>& out)
{
    Database db;
    int version = 0;
    DbResult result = OpenCatchFile(db, yearFile, connect, version);
    if (!result || version == 0)
        return result;
    QSqlQuery q(db.Connection());
    q.setForwardOnly(true);
    result =
        Run(q,
            QStringLiteral("SELECT %1 FROM Catches c %2 ORDER BY JulianDate, CatchTime, CatchID")
                .arg(CatchColumns, where),
            values);
    if (!result)
        return result;
    std::vector<Catch> read;
    while (q.next())
        read.push_back(CatchOfRow(q));
    result = ReadPhotos(db, where, values, read);
    if (result)
        out.insert(out.end(), read.begin(), read.end());
    return result;
}

DbResult CheckDay(Database& db, const QString& date)
{
    QSqlQuery q(db.Connection());
    if (DbResult read =
            Run(q, QStringLiteral("SELECT COUNT(*) FROM table1 WHERE JulianDate = ?"), {date});
        !read)
        return read;
    if (!q.next() || q.value(0).toInt() == 0)
        return DbResult::Failure(
            QStringLiteral("The year file has no day %1 to hold the catch.").arg(date));
    return DbResult::Success();
}

DbResult WritePhotos(Database& db, const Catch& c)
{
    QSqlQuery q(db.Connection());
    if (DbResult cleared =
            Run(q, QStringLiteral("DELETE FROM CatchPhotos WHERE CatchID = ?"), {c.Id});
        !cleared)
        return cleared;
    for (qsizetype i = 0; i < c.Photos.size(); ++i)
        if (DbResult added = Run(q, QStringLiteral("INSERT INTO CatchPhotos VALUES (?, ?, ?)"),
                                 {c.Id, i, c.Photos[i]});
            !added)
            return added;
    return DbResult::Success();
}

DbResult Checked(Database& db, const Catch& c)
{
    if (const QString problem = CatchProblem(c); !problem.isEmpty())
        return DbResult::Failure(problem);
    return CheckDay(db, c.Date);
}

DbResult Insert(Database& db, Catch& c)
{
    if (DbResult good = Checked(db, c); !good)
        return good;
    QSqlQuery q(db.Connection());
    const QString columns = CatchColumns.section(QStringLiteral(", "), 1);
    if (DbResult added = Run(q,
                             QStringLiteral("INSERT INTO Catches (%1) VALUES (%2)")
                                 .arg(columns, Placeholders(static_cast<int>(ValuesOf(c).size()))),
                             ValuesOf(c));
        !added)
        return added;
    c.Id = q.lastInsertId().toLongLong();
    return WritePhotos(db, c);
}

// The day a stored catch belongs to, or a failure when there is no such catch.
DbResult DayOfCatch(Database& db, qint64 id, QString& date)
{
    QSqlQuery q(db.Connection());
    if (DbResult read =
            Run(q, QStringLiteral("SELECT JulianDate FROM Catches WHERE CatchID = ?"), {id});
        !read)
        return read;
    if (!q.next())
        return DbResult::Failure(
            QStringLiteral("The catch is no longer in the year file; another program removed it."));
    date = q.value(0).toString();
    return DbResult::Success();
}

// The days' TotalTaken: the sum of their catches, or empty when they have none left.
DbResult FollowTotals(Database& db, const std::set<QString>& days)
{
    QSqlQuery q(db.Connection());
    for (const QString& day : days)
        if (DbResult set = Run(q,
                               QStringLiteral("UPDATE table1 SET TotalTaken = (SELECT "
                                              "SUM(FishCount) FROM Catches WHERE JulianDate = ?) "
                                              "WHERE JulianDate = ?"),
                               {day, day});
            !set)
            return set;
    return DbResult::Success();
}

// One change of the year file's catches: `change` runs in one transaction holding the year's
// lock and names the days it touched, whose totals then follow. A file without the catches'
// tables is backed up and gains them in the same transaction.
using CatchChange = std::function<DbResult(Database&, std::set<QString>& days)>;

DbResult ChangeCatches(const QString& yearFile, const QString& connect, const QDateTime& now,
                       const CatchChange& change)
{
    const YearFileLock lock(yearFile);
    if (!lock.Held())
        return DbResult::Failure(lock.Message());
    Database db;
    int version = 0;
    DbResult result = OpenCatchFile(db, yearFile, connect, version);
    if (result && version > CatchSchemaVersion)
        return DbResult::Failure(
            QStringLiteral("%1 was written by a newer Quillmere; its catches cannot be changed "
                           "here.")
                .arg(QFileInfo(yearFile).fileName()));
    if (result && version == 0)
        result = BackUpHoldingLock(yearFile, now);
    if (!result)
        return result;
    return db.InTransaction([&] {
        std::set<QString> days;
        DbResult done = version == 0 ? CreateCatchTables(db) : DbResult::Success();
        done = done ? change(db, days) : done;
        return done ? FollowTotals(db, days) : done;
    });
}

// The photos the stored catch shows.
DbResult PhotosOfCatch(Database& db, qint64 id, QStringList& photos)
{
    QSqlQuery q(db.Connection());
    if (DbResult read =
            Run(q, QStringLiteral("SELECT Photo FROM CatchPhotos WHERE CatchID = ?"), {id});
        !read)
        return read;
    while (q.next())
        photos << q.value(0).toString();
    return DbResult::Success();
}

// Whether a catch of one of the folder's year files shows the photo, the paths being relative
// to the folder; a file that cannot be read may show it. `yearFile` opens with `connect`.
bool PhotoInUse(const QString& yearFile, const QString& connect, const QString& photo)
{
    const QString folder = QFileInfo(yearFile).absolutePath();
    for (const QString& name : ListYearFiles(folder)) {
        const QString path = QDir(folder).filePath(name);
        Database db;
        int version = 0;
        const DbResult result = OpenCatchFile(
            db, path, QFileInfo(path) == QFileInfo(yearFile) ? connect : QString(), version);
        if (!result)
            return true;
        QSqlQuery q(db.Connection());
        if (version > 0 &&
            (!Run(q, QStringLiteral("SELECT 1 FROM CatchPhotos WHERE Photo = ?"), {photo}) ||
             q.next()))
            return true;
    }
    return false;
}

bool InRange(const std::optional<double>& value, double low, double high)
{
    return !value || (*value >= low && *value <= high);
}

} // namespace

DbResult CreateCatchTables(Database& db)
{
    QFile schema(QStringLiteral(":/logdb/catch_schema.sql"));
    if (!schema.open(QIODevice::ReadOnly))
        return DbResult::Failure(
            QStringLiteral("The catches' schema is missing from the program."));
    for (const std::string& statement : SplitSqlScript(schema.readAll().toStdString())) {
        QSqlQuery q(db.Connection());
        if (DbResult done = Run(q, QString::fromStdString(statement)); !done)
            return done;
    }
    return DbResult::Success();
}

DbResult CatchSchemaOf(const QString& yearFile, int& version, const QString& connect)
{
    Database db;
    return OpenCatchFile(db, yearFile, connect, version);
}

DbResult ReadDayCatches(const QString& yearFile, const QString& date, std::vector<Catch>& out,
                        const QString& connect)
{
    return ReadCatches(yearFile, connect, QStringLiteral("WHERE c.JulianDate = ?"), {date}, out);
}

DbResult ReadYearCatches(const QString& yearFile, std::vector<Catch>& out, const QString& connect)
{
    return ReadCatches(yearFile, connect, {}, {}, out);
}

DbResult ReadCatchSummaries(const QString& yearFile, const std::set<QString>& dates,
                            std::map<QString, DayCatchSummary>& out, const QString& connect)
{
    Database db;
    int version = 0;
    DbResult result = OpenCatchFile(db, yearFile, connect, version);
    if (!result || version == 0)
        return result;
    QSqlQuery q(db.Connection());
    q.setForwardOnly(true);
    result = Run(q, QStringLiteral("SELECT JulianDate, Species, FishCount, Released, LengthMm, "
                                   "WeightG FROM Catches ORDER BY JulianDate, CatchTime, CatchID"));
    std::map<QString, DayCatchSummary> read;
    while (result && q.next()) {
        const QString date = q.value(0).toString();
        if (!dates.contains(date))
            continue;
        DayCatchSummary& day = read[date];
        const QString species = q.value(1).toString();
        const bool named = !species.isEmpty();
        if (named && std::ranges::none_of(day.Species, [&](const QString& s) {
                return s.toCaseFolded() == species.toCaseFolded();
            }))
            day.Species << species;
        const int count = q.value(2).toInt();
        day.Fish += count;
        day.Released += q.value(3).toInt() != 0 ? count : 0;
        for (auto [most, column] : {std::pair{&day.LongestMm, 4}, std::pair{&day.HeaviestG, 5}})
            if (const auto measure = OptionalOf<int>(q.value(column)))
                *most = std::max(most->value_or(*measure), *measure);
    }
    if (result)
        out = std::move(read);
    return result;
}

QString CatchProblem(const Catch& c)
{
    if (!StoredDate(c.Date.toStdString()) ||
        StoredDate(c.Date.toStdString()) != c.Date.toStdString())
        return QStringLiteral("\"%1\" is not a date of the log").arg(c.Date);
    if (!c.Time.isEmpty() && StoredTime(c.Time.toStdString()) != c.Time.toStdString())
        return QStringLiteral("\"%1\" is not a time of day").arg(c.Time);
    if (c.Count < 1 || c.Count > MostFishPerCatch)
        return QStringLiteral("A catch counts 1 to %1 fish, not %2")
            .arg(MostFishPerCatch)
            .arg(c.Count);
    if (c.LengthMm && (*c.LengthMm < 0 || *c.LengthMm > MostLengthMm))
        return QStringLiteral("A length of %1 mm is out of range").arg(*c.LengthMm);
    if (c.WeightG && (*c.WeightG < 0 || *c.WeightG > MostWeightG))
        return QStringLiteral("A weight of %1 g is out of range").arg(*c.WeightG);
    if (!InRange(c.WaterTemp, ColdestC, WarmestC) || !InRange(c.AirTemp, ColdestC, WarmestC))
        return QStringLiteral("A temperature is outside %1 to %2 °C").arg(ColdestC).arg(WarmestC);
    if (c.Latitude.has_value() != c.Longitude.has_value() ||
        !InRange(c.Latitude, -MostLatitude, MostLatitude) ||
        !InRange(c.Longitude, -MostLongitude, MostLongitude))
        return QStringLiteral("A spot's place needs a latitude from -90 to 90 and a longitude "
                              "from -180 to 180");
    return {};
}

DbResult AddCatch(const QString& yearFile, Catch& c, const QDateTime& now, const QString& connect)
{
    std::vector<Catch> one{c};
    DbResult added = AddCatches(yearFile, one, now, connect);
    if (added)
        c.Id = one.front().Id;
    return added;
}

DbResult AddCatches(const QString& yearFile, std::vector<Catch>& catches, const QDateTime& now,
                    const QString& connect)
{
    std::vector<Catch> added = catches;
    DbResult result =
        ChangeCatches(yearFile, connect, now, [&](Database& db, std::set<QString>& days) {
            for (Catch& c : added) {
                if (DbResult done = Insert(db, c); !done)
                    return done;
                days.insert(c.Date);
            }
            return DbResult::Success();
        });
    if (result)
        catches = std::move(added);
    return result;
}

DbResult UpdateCatch(const QString& yearFile, const Catch& c, const QDateTime& now,
                     const QString& connect)
{
    return ChangeCatches(yearFile, connect, now, [&](Database& db, std::set<QString>& days) {
        QString before;
        DbResult result = DayOfCatch(db, c.Id, before);
        result = result ? Checked(db, c) : result;
        if (!result)
            return result;
        QStringList sets = CatchColumns.split(QStringLiteral(", ")).mid(1);
        for (QString& column : sets)
            column += QStringLiteral(" = ?");
        QVariantList values = ValuesOf(c);
        values << c.Id;
        QSqlQuery q(db.Connection());
        result = Run(q,
                     QStringLiteral("UPDATE Catches SET %1 WHERE CatchID = ?")
                         .arg(sets.join(QStringLiteral(", "))),
                     values);
        days.insert(before);
        days.insert(c.Date);
        return result ? WritePhotos(db, c) : result;
    });
}

DbResult RemoveCatch(const QString& yearFile, qint64 id, const QDateTime& now,
                     const QString& connect)
{
    QStringList photos;
    DbResult removed =
        ChangeCatches(yearFile, connect, now, [&](Database& db, std::set<QString>& days) {
            QString day;
            if (DbResult found = DayOfCatch(db, id, day); !found)
                return found;
            QSqlQuery q(db.Connection());
            DbResult result = PhotosOfCatch(db, id, photos);
            result = result
                         ? Run(q, QStringLiteral("DELETE FROM CatchPhotos WHERE CatchID = ?"), {id})
                         : result;
            result = result ? Run(q, QStringLiteral("DELETE FROM Catches WHERE CatchID = ?"), {id})
                            : result;
            days.insert(day);
            return result;
        });
    // Once the catch is gone for good; a photo that will not go stays as a harmless file.
    for (const QString& photo : removed ? photos : QStringList())
        if (const PhotoFile file = LookUpPhoto(yearFile, photo);
            !file.Missing && !PhotoInUse(yearFile, connect, photo))
            QFile::remove(file.Path);
    return removed;
}

DbResult ReplaceDayCatches(Database& db, const QString& date, std::vector<Catch>& catches)
{
    int version = 0;
    DbResult result = VersionOf(db, version);
    result = result && version == 0 ? CreateCatchTables(db) : result;
    QSqlQuery q(db.Connection());
    result = result ? Run(q,
                          QStringLiteral("DELETE FROM CatchPhotos WHERE CatchID IN (SELECT "
                                         "CatchID FROM Catches WHERE JulianDate = ?)"),
                          {date})
                    : result;
    result = result ? Run(q, QStringLiteral("DELETE FROM Catches WHERE JulianDate = ?"), {date})
                    : result;
    for (Catch& c : catches)
        result = result ? Insert(db, c) : result;
    return result ? FollowTotals(db, {date}) : result;
}

DbResult SpeciesList(const QString& folder, QStringList& species)
{
    std::map<QString, QString> byFolded; // case-folded name -> as first written
    for (const QString& name : ListYearFiles(folder)) {
        Database db;
        int version = 0;
        const QString path = QDir(folder).filePath(name);
        const DbResult result = OpenCatchFile(db, path, {}, version);
        if (!result)
            return DbResult::Failure(QStringLiteral("%1: %2").arg(name, result.Message));
        if (version == 0)
            continue;
        QSqlQuery q(db.Connection());
        if (DbResult read = Run(q, QStringLiteral("SELECT Species FROM Catches WHERE Species "
                                                  "IS NOT NULL ORDER BY CatchID"));
            !read)
            return DbResult::Failure(QStringLiteral("%1: %2").arg(name, read.Message));
        while (q.next()) {
            const QString written = q.value(0).toString();
            byFolded.try_emplace(written.toCaseFolded(), written);
        }
    }
    species.clear();
    for (const auto& [folded, written] : byFolded)
        species << written;
    return DbResult::Success();
}
