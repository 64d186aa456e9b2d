// Results of the rise, transit and set search (Meeus ch. 15) for one local day.
#pragma once

#include <array>
#include <cstdint>

// The event search stops when a correction falls below this many days (8.6 seconds).
constexpr double EventTolerance = 0.0001;

// The Moon's events of one local day: local clock hours in [0, 24), radians, and the
// statuses 0 (the event falls in the local day) or 2 (it does not).
struct MoonEventRecord {
    double RiseTime = 0.0;
    double TransitTime = 0.0;
    double SetTime = 0.0;
    double RiseAzimuth = 0.0;
    double TransitAltitude = 0.0;
    double SetAzimuth = 0.0;
    std::int16_t RiseFlag = 2;
    std::int16_t TransitFlag = 2;
    std::int16_t SetFlag = 2;
    std::int16_t AboveHorizonState = 0;
};

// Sunrise/sunset and the three twilights: [row 0..3, column 0..5] stored row-fastest, so
// element [r, c] sits at r + 4c (sunrise 0, dawns 1-3, sunset 8, dusks 9-11).
struct SunEventTable {
    std::array<double, 24> Values{};
    double& operator()(int r, int c) { return Values[std::size_t(r + 4 * c)]; }
    double operator()(int r, int c) const { return Values[std::size_t(r + 4 * c)]; }
};

// Whether each row of the Sun's table happens in the local day: the statuses of its rise,
// transit and set (0 or 2, as for the Moon) and whether the Sun crosses the row's altitude (0),
// stays above it (1) or stays below it (-1) all day.
struct SunEventStatus {
    std::int16_t RiseFlag = 2;
    std::int16_t TransitFlag = 2;
    std::int16_t SetFlag = 2;
    std::int16_t AboveHorizonState = 0;
};
