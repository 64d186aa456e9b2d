// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/cityrows.h"

#include "text/timeunits.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <map>
#include <utility>

namespace {

struct StateCode {
    std::string_view Name;
    std::string_view Code;
};

constexpr StateCode UsStates[] = {{"Alabama", "AL"},
                                  {"Alaska", "AK"},
                                  {"Arizona", "AZ"},
                                  {"Arkansas", "AR"},
                                  {"California", "CA"},
                                  {"Colorado", "CO"},
                                  {"Connecticut", "CT"},
                                  {"Delaware", "DE"},
                                  {"Florida", "FL"},
                                  {"Georgia", "GA"},
                                  {"Hawaii", "HI"},
                                  {"Idaho", "ID"},
                                  {"Illinois", "IL"},
                                  {"Indiana", "IN"},
                                  {"Iowa", "IA"},
                                  {"Kansas", "KS"},
                                  {"Kentucky", "KY"},
                                  {"Louisiana", "LA"},
                                  {"Maine", "ME"},
                                  {"Maryland", "MD"},
                                  {"Massachusetts", "MA"},
                                  {"Michigan", "MI"},
                                  {"Minnesota", "MN"},
                                  {"Mississippi", "MS"},
                                  {"Missouri", "MO"},
                                  {"Montana", "MT"},
                                  {"Nebraska", "NE"},
                                  {"Nevada", "NV"},
                                  {"New Hampshire", "NH"},
                                  {"New Jersey", "NJ"},
                                  {"New Mexico", "NM"},
                                  {"New York", "NY"},
                                  {"North Carolina", "NC"},
                                  {"North Dakota", "ND"},
                                  {"Ohio", "OH"},
                                  {"Oklahoma", "OK"},
                                  {"Oregon", "OR"},
                                  {"Pennsylvania", "PA"},
                                  {"Rhode Island", "RI"},
                                  {"South Carolina", "SC"},
                                  {"South Dakota", "SD"},
                                  {"Tennessee", "TN"},
                                  {"Texas", "TX"},
                                  {"Utah", "UT"},
                                  {"Vermont", "VT"},
                                  {"Virginia", "VA"},
                                  {"Washington", "WA"},
                                  {"West Virginia", "WV"},
                                  {"Wisconsin", "WI"},
                                  {"Wyoming", "WY"},
                                  {"Washington, D.C.", "DC"},
                                  {"District of Columbia", "DC"}};

std::string Folded(std::string_view text)
{
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return out;
}

double Hundredths(double degrees) { return std::round(std::fabs(degrees) * 100.0) / 100.0; }

} // namespace

std::string UsPostalCode(std::string_view stateName)
{
    constexpr std::string_view Formal = "State of "; // "State of Maine"
    if (stateName.substr(0, Formal.size()) == Formal)
        stateName.remove_prefix(Formal.size());
    for (const StateCode& s : UsStates) {
        if (s.Name == stateName)
            return std::string(s.Code);
    }
    return {};
}

std::optional<CityRow> CityRowFrom(const SourceCity& city)
{
    // The location's whole-hour zone list runs from 12 hours west to 12 east (Samoa's and
    // Tonga's 13 hours east do not fit); a city on a zone of minutes keeps the nearest whole
    // hour beside its own zone, whose clock "Local Clock" follows.
    const auto offset = city.StandardOffsetSeconds;
    if (!offset || std::abs(*offset) > 12 * SecondsPerHour)
        return std::nullopt;
    CityRow row;
    const std::string code = city.CountryCode == "US" ? UsPostalCode(city.Region) : "";
    row.State = code.empty() ? city.Country : code;
    row.City = city.Name;
    row.LongInDegrees = Hundredths(city.Longitude);
    row.LongChar = city.Longitude < 0 ? "W" : "E";
    row.LatInDegrees = Hundredths(city.Latitude);
    row.LatChar = city.Latitude < 0 ? "S" : "N";
    row.Timezone = std::int16_t(-std::lround(double(*offset) / SecondsPerHour));
    row.TzName = city.TzName;
    return row;
}

std::vector<CityRow> CityRows(const std::vector<SourceCity>& cities)
{
    // Keyed without regard to case, as the database compares; the exact texts break ties so
    // that the order never depends on the source's.
    std::map<std::pair<std::string, std::string>, std::pair<std::uint32_t, CityRow>> kept;
    for (const SourceCity& city : cities) {
        auto row = CityRowFrom(city);
        if (!row)
            continue;
        const auto key = std::make_pair(Folded(row->State), Folded(row->City));
        const auto found = kept.find(key);
        if (found == kept.end() || city.Population > found->second.first)
            kept[key] = {city.Population, std::move(*row)};
    }
    std::vector<CityRow> rows;
    rows.reserve(kept.size());
    for (auto& entry : kept)
        rows.push_back(std::move(entry.second.second));
    return rows;
}
