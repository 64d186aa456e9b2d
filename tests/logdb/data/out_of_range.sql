-- Records of table1 holding a value outside what its column can hold.
SELECT count(*) FROM table1
WHERE IllumPercent NOT BETWEEN 0 AND 100 OR GraphicType NOT BETWEEN 0 AND 4
   OR DaylightHours NOT BETWEEN 0 AND 24 OR date(JulianDate) IS NOT JulianDate
   OR MoonRise > 24 OR MoonRise < -1 OR time(Major1) IS NOT Major1
   OR Month NOT BETWEEN 1 AND 12
