// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the city database Encdb.MDB, made from a world city list (GeoNames: name,
// region, country, coordinates, IANA zone) by the build's generator. Plain C++ so that the
// choices are testable without the list.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One city as the source list has it.
struct SourceCity {
    std::string Name;
    std::string Region;      // first-level division: "Florida", "Bavaria"
    std::string Country;     // "Germany"
    std::string CountryCode; // ISO 3166 alpha-2: "DE"
    double Latitude = 0.0;   // degrees, north positive
    double Longitude = 0.0;  // degrees, east positive
    std::uint32_t Population = 0;
    // The zone's standard offset from universal time in seconds, east positive (daylight
    // saving left out); nothing when the zone is unknown.
    std::optional<int> StandardOffsetSeconds;
    std::string TzName; // the zone of the tz database: "Asia/Kolkata"
};

// One record of Table1.
struct CityRow {
    std::string State; // US postal code ("FL") in the United States, else the country's name
    std::string City;
    double LongInDegrees = 0.0; // positive, to hundredths
    std::string LongChar;       // "W" or "E"
    double LatInDegrees = 0.0;
    std::string LatChar;       // "N" or "S"
    std::int16_t Timezone = 0; // whole hours west of Greenwich (New York 5, Berlin -1), the
                               // nearest to the zone's standard offset (India -6)
    std::string TzName;        // the city's zone of the tz database
};

// "FL" for "Florida", "ME" for "State of Maine", "DC" for "District of Columbia"; empty for a
// name that is not a US state.
std::string UsPostalCode(std::string_view stateName);

// The row for a city; nothing when its zone is unknown, not a whole number of hours or beyond
// 12 hours from Greenwich.
std::optional<CityRow> CityRowFrom(const SourceCity& city);

// Every city's row, ordered by State and then City without regard to case. Where two cities
// share a State and City, the more populous is kept, since the location editor picks a city
// by those two names.
std::vector<CityRow> CityRows(const std::vector<SourceCity>& cities);
