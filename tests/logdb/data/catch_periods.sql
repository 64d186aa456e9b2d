-- Each catch's period from the day's stored Major, Minor, SunRise and SunSet, over midnight:
-- within an hour of a major, within 35 minutes of a minor, within an hour of sunrise or
-- sunset, other hours, untimed. Gives the period, catches, fish and released fish.
WITH h AS (
  SELECT FishCount, Released,
         (julianday('2000-01-01 ' || CatchTime) - julianday('2000-01-01')) * 24 AS t,
         (julianday('2000-01-01 ' || Major1) - julianday('2000-01-01')) * 24 AS ma1,
         (julianday('2000-01-01 ' || Major2) - julianday('2000-01-01')) * 24 AS ma2,
         nullif(Minor1, -1) AS mi1, nullif(Minor2, -1) AS mi2,
         (julianday('2000-01-01 ' || SunRise) - julianday('2000-01-01')) * 24 AS sr,
         (julianday('2000-01-01 ' || SunSet) - julianday('2000-01-01')) * 24 AS ss
  FROM Catches JOIN table1 USING (JulianDate)),
d AS (
  SELECT FishCount, Released, t,
         min(abs(t - ma1), 24 - abs(t - ma1)) AS ma1, min(abs(t - ma2), 24 - abs(t - ma2)) AS ma2,
         min(abs(t - mi1), 24 - abs(t - mi1)) AS mi1, min(abs(t - mi2), 24 - abs(t - mi2)) AS mi2,
         min(abs(t - sr), 24 - abs(t - sr)) AS sr, min(abs(t - ss), 24 - abs(t - ss)) AS ss
  FROM h)
SELECT CASE WHEN t IS NULL THEN 'Time not recorded'
            WHEN ma1 <= 1 OR ma2 <= 1 THEN 'In a major period'
            WHEN mi1 <= 0.58 OR mi2 <= 0.58 THEN 'In a minor period'
            WHEN sr <= 1 OR ss <= 1 THEN 'Within an hour of sunrise or sunset'
            ELSE 'At other times' END,
       COUNT(*), SUM(FishCount), SUM(CASE WHEN Released THEN FishCount END)
FROM d GROUP BY 1
