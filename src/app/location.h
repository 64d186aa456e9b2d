// A user location and the ten the program keeps. Longitudes are degrees positive west,
// latitudes positive north, time zones hours west of Greenwich (5 for US Eastern).
#pragma once

#include <array>
#include <cstdint>
#include <string>

struct Location {
    std::string Name;
    double Longitude = 0.0;
    double Latitude = 0.0;
    std::int16_t TimeZone = 0;
};

constexpr int LocationCount = 10;
// Indexed 1..10 as the menus number them; entry 0 is unused.
using LocationTable = std::array<Location, LocationCount + 1>;
