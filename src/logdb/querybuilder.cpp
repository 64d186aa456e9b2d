// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/querybuilder.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

namespace {

constexpr std::string_view TableStep = "Select table1.* into table2 from table1";
constexpr std::string_view WorkStep = "Select table3.* into table2 from table3";

std::string_view Trimmed(std::string_view text)
{
    const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

// Digits only, at most four of them.
std::optional<int> WholeNumber(std::string_view text)
{
    text = Trimmed(text);
    if (text.empty() || text.size() > 4 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

// "7:00 PM", "07:30 am", "12:00AM" -> "7:00 PM", "7:30 AM", "12:00 AM".
std::optional<std::string> ClockTime(std::string_view text)
{
    text = Trimmed(text);
    const auto colon = text.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon > 2 || text.size() < colon + 5)
        return std::nullopt;
    const auto hour = WholeNumber(text.substr(0, colon));
    const auto minute = WholeNumber(text.substr(colon + 1, 2));
    std::string half(Trimmed(text.substr(colon + 3)));
    std::transform(half.begin(), half.end(), half.begin(),
                   [](unsigned char c) { return char(std::toupper(c)); });
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    if (!hour || !minute || *hour < 1 || *hour > 12 || *minute > 59 || !digit(text[colon + 1]) ||
        !digit(text[colon + 2]) || (half != "AM" && half != "PM"))
        return std::nullopt;
    return std::to_string(*hour) + ":" + (*minute < 10 ? "0" : "") + std::to_string(*minute) + " " +
           half;
}

// "Moon Age, first box" / "Total Taken >=".
std::string BoxName(int condition, int box)
{
    const ConditionBox& c = QueryConditions()[std::size_t(condition)];
    std::string name(c.Caption);
    if (c.Boxes.size() == 2)
        name += box == c.Boxes[0] ? ", first box" : ", second box";
    return name;
}

// The box's value in the form it is pasted in, or the message saying why it cannot be.
std::string ReadBox(const QueryForm& form, int condition, int box, std::string& value)
{
    const std::string& typed = form.Values[std::size_t(box)];
    const BoxRange range = ValueBoxRange(box);
    if (range.Clock) {
        if (const auto clock = ClockTime(typed)) {
            value = *clock;
            return {};
        }
        return BoxName(condition, box) + ": \"" + typed +
               "\" is not a clock time. Pick one from the list, such as \"7:00 PM\".";
    }
    if (const auto number = WholeNumber(typed);
        number && *number >= range.Low && *number <= range.High) {
        value = std::to_string(*number);
        return {};
    }
    return BoxName(condition, box) + ": \"" + typed + "\" is not a whole number from " +
           std::to_string(range.Low) + " to " + std::to_string(range.High) + ".";
}

bool HasEmptyCheckedBox(const QueryForm& form)
{
    for (int i = 0; i < ConditionCount; ++i) {
        if (!form.Checked[std::size_t(i)])
            continue;
        for (int box : QueryConditions()[std::size_t(i)].Boxes) {
            if (Trimmed(form.Values[std::size_t(box)]).empty())
                return true;
        }
    }
    return false;
}

// A condition's value boxes read for pasting: A, then B.
struct Values {
    std::string A, B, Error;
};

Values ReadValues(const QueryForm& form, int condition)
{
    Values v;
    const auto& boxes = QueryConditions()[std::size_t(condition)].Boxes;
    if (!boxes.empty())
        v.Error = ReadBox(form, condition, boxes[0], v.A);
    if (v.Error.empty() && boxes.size() == 2)
        v.Error = ReadBox(form, condition, boxes[1], v.B);
    return v;
}

std::string MonthsStep(const QueryForm& form, std::string& error)
{
    Values v;
    const std::array<const char*, 2> whole = {"1", "12"};
    for (int k = 0; k < 2 && error.empty(); ++k) {
        const int box = 1 + k;
        std::string& out = k == 0 ? v.A : v.B;
        if (Trimmed(form.Values[std::size_t(box)]).empty())
            out = whole[std::size_t(k)];
        else
            error = ReadBox(form, 0, box, out);
    }
    return std::string(TableStep) + " where month between " + v.A + " AND " + v.B;
}

std::string DaysOfWeekCondition(const QueryForm& form, std::string& error)
{
    std::string first;
    error = ReadBox(form, 2, 3, first);
    if (!error.empty())
        return {};
    const int day = std::stoi(first);
    if (day == 8)
        return " where DayofWeek_ = 7 or dayofweek_ = 1";
    if (day == 9)
        return " where DayofWeek_ = 6 or dayofweek_ = 7 or dayofweek_ = 1";
    if (day < 1 || day > 7)
        return {};
    std::string second;
    error = ReadBox(form, 2, 4, second);
    return " where DayofWeek_ between " + first + " And " + second;
}

std::string Between(std::string_view column, const Values& v, bool clock)
{
    const std::string mark = clock ? "#" : "";
    return " where " + std::string(column) + " between " + mark + v.A + mark + " AND " + mark +
           v.B + mark;
}

// The condition text of box 1 to 13 ("" when the box adds no step), or the error.
std::string ConditionText(const QueryForm& form, int i, std::string& error, bool& step)
{
    step = true;
    if (i == 2) {
        std::string text = DaysOfWeekCondition(form, error);
        step = !text.empty();
        return text;
    }
    const Values v = ReadValues(form, i);
    error = v.Error;
    if (!error.empty())
        return {};
    switch (i) {
    case 1: // the same noon or midnight at both ends copies every record
        return v.A == v.B && (v.A == "12:00 AM" || v.A == "12:00 PM") ? std::string()
                                                                      : Between("major1", v, true);
    case 3:
        return Between("moonage", v, false);
    case 4:
        return Between("illumpercent", v, false);
    case 5:
        return " where daylighthours >= " + v.A;
    case 6:
        return " where graphictype = 4";
    case 7:
        return " where graphictype = 3";
    case 8:
        return Between("major1", v, true) + " or major2 between #" + v.A + "# AND #" + v.B + "#";
    case 9:
        return " where totaltaken >= " + v.A;
    case 10:
        return " where waxing = 1";
    case 11:
        return " where waxing = 0";
    case 12:
        return " where perigee = 1";
    default:
        return " where graphictype > 0";
    }
}

} // namespace

std::optional<std::string> ClockBoxText(std::string_view typed) { return ClockTime(typed); }

QueryForm::QueryForm()
{
    Values[1] = "1";
    Values[2] = "12";
}

const std::array<ConditionBox, ConditionCount>& QueryConditions()
{
    static const std::array<ConditionBox, ConditionCount> conditions = {{
        {"Months Between", "(1 - 12)", {1, 2}},
        {"Major1 Between", "", {Text1Box, Text2Box}},
        {"Days of Week", "(1-7, 1=Sun..7=Sat)", {3, 4}},
        {"Moon Age", "(1-29)", {5, 6}},
        {"Illumination Percent Between", "(Moon illumination 1-100)", {7, 8}},
        {"Daylight Hours >", "(Greater than 1-14)", {0}},
        {"Best Fishing Days", "", {}},
        {"Very Good Fishing Days", "", {}},
        {"Either Major Between", "", {10, 11}},
        {"Total Taken >=", "(Greater than or equal to)", {9}},
        {"Moon Waxing", "", {}},
        {"Moon Waning", "", {}},
        {"Moon At Perigee", "", {}},
        {"All Rated Days", "", {}},
    }};
    return conditions;
}

BoxRange ValueBoxRange(int box)
{
    switch (box) {
    case 0:
        return {false, 0, 24}; // hours of daylight
    case 1:
    case 2:
        return {false, 1, 12};
    case 3:
    case 4:
        return {false, 0, 9}; // 8 and 9 are the two weekends; 0 adds no step
    case 5:
    case 6:
        return {false, 0, 29};
    case 7:
    case 8:
        return {false, 0, 200}; // as far as the picker goes
    case 9:
        return {false, 0, 9999};
    default:
        return {true, 0, 0};
    }
}

int PickerCap(int box)
{
    switch (box) {
    case 0:
        return 14;
    case 1:
    case 2:
        return 12;
    case 5:
    case 6:
        return 29;
    default:
        return 200;
    }
}

std::string PickedNumber(int box, int chosen)
{
    const int value = std::min(chosen, PickerCap(box));
    return box <= 4 && value == 0 ? "1" : std::to_string(value);
}

void PickDayOfWeek(QueryForm& form, int box, int entry)
{
    std::string& picked = form.Values[std::size_t(box)];
    std::string& other = form.Values[std::size_t(box == 3 ? 4 : 3)];
    picked = std::to_string(entry);
    const auto current = WholeNumber(other);
    const bool weekend = entry > 7;
    const bool otherWeekend = current && *current > 7;
    // The first box may not pass the second, nor the second fall before the first.
    const bool crossed = current && (box == 3 ? *current < entry : *current > entry);
    if (weekend || otherWeekend || !current || *current < 1 || crossed)
        other = picked;
}

std::vector<BoundStep> CatchConditionSteps(const CatchConditions& conditions, bool catchTables)
{
    std::vector<BoundStep> steps;
    const bool species = !Trimmed(conditions.Species).empty();
    if (species || conditions.ReleasedOnly) {
        BoundStep step{"DELETE FROM Table3", {}};
        if (catchTables) {
            step.Statement += " WHERE JulianDate NOT IN (SELECT JulianDate FROM Catches WHERE 1";
            if (species) {
                step.Statement += " AND casefold(Species) = casefold(?)";
                step.Parameters.emplace_back(Trimmed(conditions.Species));
            }
            step.Statement += conditions.ReleasedOnly ? " AND Released = 1)" : ")";
        }
        steps.push_back(std::move(step));
    }
    if (!conditions.Text.empty()) {
        // Folded alike, the text is found as it stands: no character of it is a wildcard.
        const auto found = [](const std::string& column) {
            return "instr(casefold(" + column + "), casefold(?)) > 0";
        };
        BoundStep step{"DELETE FROM Table3 WHERE NOT " + found("coalesce(Notes, '')"),
                       {conditions.Text}};
        if (catchTables) {
            step.Statement += " AND JulianDate NOT IN (SELECT JulianDate FROM Catches WHERE " +
                              found("Note") + ")";
            step.Parameters.push_back(conditions.Text);
        }
        steps.push_back(std::move(step));
    }
    return steps;
}

SelectionPlan PlanSelection(const QueryForm& form)
{
    SelectionPlan plan;
    if (HasEmptyCheckedBox(form)) {
        plan.Error = "A box is checked with no data";
        return plan;
    }
    plan.Steps.push_back(MonthsStep(form, plan.Error));
    for (int i = 1; i < ConditionCount && plan.Error.empty(); ++i) {
        if (!form.Checked[std::size_t(i)])
            continue;
        bool step = false;
        const std::string condition = ConditionText(form, i, plan.Error, step);
        if (step)
            plan.Steps.push_back(std::string(WorkStep) + condition);
    }
    if (!plan.Ok())
        plan.Steps.clear();
    return plan;
}

const std::array<Ordering, 5>& Orderings()
{
    static constexpr std::array<Ordering, 5> orderings = {{
        {"Date", "select * from table3 order by juliandate", "Sorted by Date"},
        {"Major1", "Select * from table3 order by major1,juliandate", "Sorted by Major1"},
        {"Day of Week", "Select * from table3 order by dayofweek_,juliandate",
         "Sorted by Day of Week"},
        {"Rated Fishing Days", "Select * from table3 order by Graphictype,juliandate",
         "Sorted by Fish Rating"},
        {"Total Taken", "Select * from table3 order by totaltaken,juliandate",
         "Sorted by Total Taken"},
    }};
    return orderings;
}

const Ordering& OrderingOf(int sortIndex)
{
    return Orderings()[std::size_t(std::clamp(sortIndex, 1, 5) - 1)];
}

std::string MonthSource(int month)
{
    const std::string m = std::to_string(month);
    return "select * from table1 where  month between " + m + " and " + m;
}

const std::array<FixedSelection, 14>& DaySelections()
{
    static const std::array<FixedSelection, 14> selections = [] {
        std::array<FixedSelection, 14> s = {{
            {"Apogee Days", "select * from table1 where perigee = 2"},
            {"Perigee Days", "select * from table1 where perigee = 1"},
            {"Day before/after and Perigee",
             "select * from table1 where perigee = -1 or perigee = 1"},
            {"Weekends (Friday and Saturday)",
             "select * from table1 where DayofWeek_ = 6 or DayofWeek_ = 7"},
            {"Weekends(Saturday and Sunday)",
             "select * from table1 where DayofWeek_ = 1 or DayofWeek_ = 7"},
            {"Weekends(Friday - Sunday)",
             "select * from table1 where DayofWeek_ = 1 or DayofWeek_ = 6 or DayofWeek_ = 7"},
            {"Week Days", "select * from table1 where DayofWeek_ > 1 and DayofWeek_ < 7"},
        }};
        const std::array<std::string_view, 7> days = {
            "Sundays", "Mondays", "Tuesdays", "Wednesdays", "Thursdays", "Fridays", "Saturdays"};
        for (std::size_t d = 0; d < days.size(); ++d)
            s[7 + d] = {days[d],
                        "select * from table1 where DayofWeek_ = " + std::to_string(d + 1)};
        return s;
    }();
    return selections;
}
