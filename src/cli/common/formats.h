// SPDX-License-Identifier: GPL-3.0-or-later
// The printed forms of the command line: a text table, CSV, JSON and iCalendar for days,
// text and JSON for the year's events.
#pragma once

#include "cli/common/dayrow.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// A table of days in three parts, so that a long run is written while it is computed: Head,
// Row(row, index) for each day in turn, then Tail(number of rows).
struct DaysLayout {
    std::string Head;
    std::function<std::string(const DayRow&, std::size_t index)> Row;
    std::function<std::string(std::size_t count)> Tail;
};

DaysLayout TextDays(const std::string& locationCaption);
DaysLayout CsvDays();
DaysLayout JsonDays();
// The place of an iCalendar file: its name for the texts and a short text that tells it from
// other places in the events' UIDs.
struct IcsPlace {
    std::string Name;
    std::string Id;
};
// `stamp` is the creation time, "YYYYMMDDTHHMMSSZ".
DaysLayout IcsDays(const IcsPlace& place, const std::string& stamp);
// The whole table at once.
std::string AllDays(const DaysLayout& layout, const std::vector<DayRow>& rows);

std::string EventsAsText(int year, const std::vector<EventRow>& events,
                         const std::string& locationCaption);
std::string EventsAsJson(int year, const std::vector<EventRow>& events);

// The shortest text that reads back as the same double.
std::string ExactNumber(double v);
// Rating 4..1 as the legend names it: "Best", "V.Good", "Good", "Fair"; "" for 0.
std::string RatingName(int rating);
