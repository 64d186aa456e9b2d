// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/log/logquery.h"

#include "logdb/logreport.h"
#include "logdb/reportlines.h"

#include <algorithm>
#include <array>

namespace {

struct RangeOption {
    const char* Name;
    int Condition;
};

constexpr std::array<RangeOption, 8> ValueOptions = {{{"--months", 0},
                                                      {"--major1", 1},
                                                      {"--weekdays", 2},
                                                      {"--moon-age", 3},
                                                      {"--illumination", 4},
                                                      {"--daylight", 5},
                                                      {"--either-major", 8},
                                                      {"--taken", 9}}};

constexpr std::array<RangeOption, 6> FlagOptions = {{{"--best", 6},
                                                     {"--very-good", 7},
                                                     {"--waxing", 10},
                                                     {"--waning", 11},
                                                     {"--perigee", 12},
                                                     {"--rated", 13}}};

constexpr std::array<const char*, 5> SortNames = {"date", "major1", "weekday", "rating", "taken"};

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

// "sat" -> "7"; anything else as given, for the form's checks.
std::string Weekday(const std::string& text)
{
    constexpr std::array<const char*, 7> names = {"sun", "mon", "tue", "wed", "thu", "fri", "sat"};
    const auto at = std::find(names.begin(), names.end(), Lower(text));
    return at == names.end() ? text : std::to_string(at - names.begin() + 1);
}

// "3-5" -> both boxes; "3" -> the same value in both.
void PutRange(QueryForm& form, int condition, const std::string& value)
{
    const auto& boxes = QueryConditions()[std::size_t(condition)].Boxes;
    const auto dash = value.find('-');
    std::string first = value.substr(0, dash);
    std::string second = dash == std::string::npos ? first : value.substr(dash + 1);
    if (condition == 2) {
        const std::string weekend = Lower(value);
        first = weekend == "sat-sun" ? "8" : weekend == "fri-sun" ? "9" : Weekday(first);
        second = first == "8" || first == "9" ? first : Weekday(second);
    }
    form.Values[std::size_t(boxes[0])] = first;
    if (boxes.size() == 2)
        form.Values[std::size_t(boxes[1])] = second;
}

} // namespace

const std::vector<std::string>& QueryOptionNames()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> n;
        n.reserve(ValueOptions.size() + FlagOptions.size() + 1);
        for (const RangeOption& o : ValueOptions)
            n.emplace_back(o.Name);
        for (const RangeOption& o : FlagOptions)
            n.emplace_back(o.Name);
        n.insert(n.end(), {"--species", "--text", "--released", "--sort"});
        return n;
    }();
    return names;
}

bool IsQueryFlag(const std::string& option)
{
    return option == "--released" ||
           std::any_of(FlagOptions.begin(), FlagOptions.end(),
                       [&](const RangeOption& o) { return option == o.Name; });
}

std::optional<std::string> ReadQueryOptions(const std::map<std::string, std::string>& options,
                                            QueryRequest& request)
{
    for (const RangeOption& o : ValueOptions) {
        if (const auto given = options.find(o.Name); given != options.end()) {
            // A condition with one value box takes no range, which would lose its second end.
            if (QueryConditions()[std::size_t(o.Condition)].Boxes.size() == 1 &&
                given->second.find('-') != std::string::npos)
                return std::string(o.Name) + " takes one number, not '" + given->second + "'";
            request.Form.Checked[std::size_t(o.Condition)] = true;
            PutRange(request.Form, o.Condition, given->second);
        }
    }
    for (const RangeOption& o : FlagOptions)
        request.Form.Checked[std::size_t(o.Condition)] = options.count(o.Name) > 0;
    CatchConditions& catches = request.Form.Catches;
    if (const auto species = options.find("--species"); species != options.end())
        catches.Species = species->second;
    if (const auto text = options.find("--text"); text != options.end())
        catches.Text = text->second;
    catches.ReleasedOnly = options.count("--released") > 0;
    if (options.count("--species") && catches.Species.find_first_not_of(' ') == std::string::npos)
        return std::string("--species needs a name");
    if (options.count("--text") && catches.Text.empty())
        return std::string("--text needs something to look for");
    if (const auto sort = options.find("--sort"); sort != options.end()) {
        const auto at = std::find(SortNames.begin(), SortNames.end(), Lower(sort->second));
        if (at == SortNames.end())
            return "--sort takes date, major1, weekday, rating or taken, not '" + sort->second +
                   "'";
        request.SortIndex = int(at - SortNames.begin()) + 1;
    }
    if (const SelectionPlan plan = PlanSelection(request.Form); !plan.Ok())
        return plan.Error == "A box is checked with no data"
                   ? std::string("a condition is missing its value (a range is FROM-TO)")
                   : plan.Error;
    return std::nullopt;
}

std::string QueryText(const QString& reportText, const Selection& selection)
{
    QString lines = reportText;
    return selection.Caption.toStdString() + "\n" + std::string(ReportHeading) + "\n" +
           lines.remove(QLatin1Char('\r')).toStdString();
}

std::string ReportText(const QString& reportText)
{
    return PagesAsText(ReportPages(TextForPrinting(reportText).toStdString()));
}
