// SPDX-License-Identifier: GPL-3.0-or-later
// A search condition of the program's Jet dialect, as FindFirst takes it: "dbid = 12",
// "month between 3 and 5 and waxing = 1", "juliandate >= #03/10/2024#", "City = ?" with the
// value given apart. It is evaluated on records already read, so the condition's text never
// reaches SQL.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A field's value as a condition sees it: a number, a text, or null.
struct JetValue {
    std::optional<double> Number; // set when the value is numeric
    std::string Text;             // the value as text (stored form for dates and times)
    bool Null = false;
};

class JetCondition {
public:
    // Nothing, with the reason in error, when the text is not a condition. Each "?" in the
    // text stands for the next of the parameters, so a user's entry is never parsed.
    static std::optional<JetCondition> Parse(std::string_view text, std::string& error,
                                             const std::vector<JetValue>& parameters = {});

    // The field names the condition reads, for checking them against the record.
    const std::vector<std::string>& Fields() const { return fields_; }

    bool Matches(const std::function<JetValue(std::string_view field)>& valueOf) const;

    struct Node;

private:
    std::shared_ptr<const Node> root_;
    std::vector<std::string> fields_;
};
