-- The fishing log's template Default.mdb: one record per day of a year in table1.
-- The grid view addresses columns by position, so the order below is fixed:
-- DBID 0, JulianDate 1, IllumPercent 2, GraphicType 3, MoonAge 4, Waxing 5, Major1 6,
-- Major2 7, SunRise 11, SunSet 12.
-- Declared types carry the value kinds: DATE is stored as YYYY-MM-DD, TIME as HH:MM:SS,
-- so ordering and comparisons work on values.
CREATE TABLE table1 (
    DBID INTEGER PRIMARY KEY AUTOINCREMENT,
    JulianDate DATE,
    IllumPercent INTEGER,
    GraphicType SMALLINT,
    MoonAge SMALLINT,
    Waxing SMALLINT,
    Major1 TIME,
    Major2 TIME,
    MoonRise DOUBLE,
    MoonSet DOUBLE,
    DaylightHours DOUBLE,
    SunRise TIME,
    SunSet TIME,
    Minor1 DOUBLE,
    Minor2 DOUBLE,
    CivilTwilight VARCHAR(50),
    NauticalTwilight VARCHAR(50),
    AstronomicalTwilight VARCHAR(50),
    Month SMALLINT,
    DayOfWeek_ SMALLINT,
    Perigee SMALLINT,
    TotalTaken INTEGER,
    TakenWith VARCHAR(255),
    PeakTime VARCHAR(50),
    Notes TEXT
);
