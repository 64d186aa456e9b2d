// The printed forms of the command line: a text table, CSV, JSON and iCalendar for days,
// text and JSON for the year's events.
#pragma once

#include "cli/common/dayrow.h"

#include <string>
#include <vector>

std::string DaysAsText(const std::vector<DayRow>& rows, const std::string& locationCaption);
std::string DaysAsCsv(const std::vector<DayRow>& rows);
std::string DaysAsJson(const std::vector<DayRow>& rows);
// The place of an iCalendar file: its name for the texts and a short text that tells it from
// other places in the events' UIDs.
struct IcsPlace {
    std::string Name;
    std::string Id;
};
// `stamp` is the creation time, "YYYYMMDDTHHMMSSZ".
std::string DaysAsIcs(const std::vector<DayRow>& rows, const IcsPlace& place,
                      const std::string& stamp);

std::string EventsAsText(int year, const std::vector<EventRow>& events,
                         const std::string& locationCaption);
std::string EventsAsJson(int year, const std::vector<EventRow>& events);

// The shortest text that reads back as the same double.
std::string ExactNumber(double v);
// Rating 4..1 as the legend names it: "Best", "V.Good", "Good", "Fair"; "" for 0.
std::string RatingName(int rating);
