-- The catches of the log's days, beside table1: any number per day, keyed to the day's
-- JulianDate (the date stays the same through repairs and imports; a record number may not).
-- Lengths are whole millimetres, weights whole grams, temperatures degrees Celsius; the
-- windows convert for imperial units. Times are HH:MM:SS of the day the catch belongs to.
-- PRAGMA user_version records the layout: 0 a file without catches' tables, 1 this one.
-- A year file gains these tables, in one transaction after a backup, with its first catch.
CREATE TABLE Catches (
    CatchID INTEGER PRIMARY KEY AUTOINCREMENT,
    JulianDate DATE NOT NULL,
    CatchTime TIME,
    Species VARCHAR(100) COLLATE NOCASE,
    FishCount INTEGER NOT NULL DEFAULT 1,
    LengthMm INTEGER,
    WeightG INTEGER,
    Released SMALLINT NOT NULL DEFAULT 0,
    Bait VARCHAR(255) COLLATE NOCASE,
    Method VARCHAR(255) COLLATE NOCASE,
    Spot VARCHAR(255) COLLATE NOCASE,
    Latitude DOUBLE,
    Longitude DOUBLE,
    WaterTemp DOUBLE,
    AirTemp DOUBLE,
    Wind VARCHAR(100) COLLATE NOCASE,
    Sky VARCHAR(100) COLLATE NOCASE,
    Note TEXT COLLATE NOCASE
);
CREATE INDEX CatchesByDay ON Catches (JulianDate, CatchTime);
-- A catch's photos in the order shown; Photo is relative to the year file's folder.
CREATE TABLE CatchPhotos (
    CatchID INTEGER NOT NULL,
    Position INTEGER NOT NULL,
    Photo TEXT NOT NULL,
    PRIMARY KEY (CatchID, Position)
);
PRAGMA user_version = 1;
