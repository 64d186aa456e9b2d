-- The city database Encdb.MDB: one row per city, picked by state and city in the location
-- editor. Text compares ignore case, as the old file engine's did ('AUSTIN' finds Austin).
CREATE TABLE Table1 (
    LongLatID INTEGER PRIMARY KEY AUTOINCREMENT,
    State TEXT COLLATE NOCASE NOT NULL,
    City TEXT COLLATE NOCASE NOT NULL,
    LongInDegrees DOUBLE,
    LongChar TEXT COLLATE NOCASE,
    LatInDegrees DOUBLE,
    LatChar TEXT COLLATE NOCASE,
    Timezone INTEGER,
    TzName TEXT
);
CREATE INDEX Table1StateCity ON Table1 (State, City);
