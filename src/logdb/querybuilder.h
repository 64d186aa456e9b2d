// SPDX-License-Identifier: GPL-3.0-or-later
// The log's questions: fourteen conditions, each a check box with up to two value boxes, run
// as a chain of select-into steps over the work tables Table2 and Table3, and the five orders
// the result is shown in. Plain C++: the window and the command line fill a QueryForm and run
// the statements this plans.
//
// The value boxes are the one place where typed text reaches a statement. A value is pasted
// into a statement only after it has been read as what its condition can hold (a whole number
// in the box's range, a clock time such as "7:00 PM") and written back in that form, so no
// typed text can change a statement's meaning.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Value boxes by number: Text6(0) to Text6(11) are 0 to 11, Text1 is 12 and Text2 is 13.
inline constexpr int ValueBoxCount = 14;
inline constexpr int Text1Box = 12;
inline constexpr int Text2Box = 13;
inline constexpr int ConditionCount = 14;

// The conditions on a day's catches, beside the fourteen; each left empty or false adds none.
// Their texts reach the statements only as bound parameters.
struct CatchConditions {
    std::string Species;       // "Species is": a catch of this species, ignoring case
    std::string Text;          // "Notes contain": in the day's notes or a catch's, ignoring case
    bool ReleasedOnly = false; // "Released only": a released catch (of that species, if named)
};

inline constexpr std::string_view SpeciesIsCaption = "Species is";
inline constexpr std::string_view NotesContainCaption = "Notes contain";
inline constexpr std::string_view ReleasedOnlyCaption = "Released only";

struct QueryForm {
    std::array<bool, ConditionCount> Checked{};      // Check1(0) to Check1(13)
    std::array<std::string, ValueBoxCount> Values{}; // as typed or picked
    CatchConditions Catches;
    QueryForm(); // month boxes "1" and "12", others empty
};

struct ConditionBox {
    std::string_view Caption;
    std::string_view Hint; // shown beside the caption; may be empty
    std::vector<int> Boxes;
};

// Check1(0) to Check1(13): captions, hints and value boxes.
const std::array<ConditionBox, ConditionCount>& QueryConditions();

// The whole numbers a numeric value box takes; time boxes take clock texts instead.
struct BoxRange {
    bool Clock = false;
    int Low = 0;
    int High = 0;
};
BoxRange ValueBoxRange(int box);

// Largest number the Combo2 picker writes into the box: 14, 12, 29 or 200.
int PickerCap(int box);
// The text the Combo2 picker writes for the chosen number: capped by the box's limit, and 0
// read as 1 in boxes 0 to 4.
std::string PickedNumber(int box, int chosen);

// The day-of-week pair after the user picks entry (1 to 7, 8 = Sat-Sun, 9 = Fri-Sun) for box
// 3 or 4: the picked box takes the entry and the other box follows so that the pair stays a
// range from first to second, or names the same weekend in both.
void PickDayOfWeek(QueryForm& form, int box, int entry);

// A clock box's text in the form the boxes display ("07:30 pm" -> "7:30 PM"); nothing when
// it is not a clock time.
std::optional<std::string> ClockBoxText(std::string_view typed);

// A statement whose "?" marks take the parameters in order.
struct BoundStep {
    std::string Statement;
    std::vector<std::string> Parameters;
};

struct SelectionPlan {
    std::string Error;              // what the user must correct; no step runs when set
    std::vector<std::string> Steps; // select-into statements making Table2, in order
    bool Ok() const { return Error.empty(); }
};

// The SQLite statements that, after the steps, delete from Table3 the days the catch
// conditions leave out, for a file with or without the catches' tables (without them no day
// has a catch). They compare texts through casefold(text), the function RunSelectionSteps
// gives the connection, so that case is ignored for every letter, not ASCII alone.
std::vector<BoundStep> CatchConditionSteps(const CatchConditions& conditions, bool catchTables);

// The checks and statements of "Select Data Where". The first step always reads table1 for
// the months (empty month boxes read as 1 and 12); each checked condition adds a step over
// Table3.
SelectionPlan PlanSelection(const QueryForm& form);

// The statement that copies Table2 into Table3 after each step.
inline constexpr std::string_view CopyStep = "select table2.* into table3 from table2";
inline constexpr std::string_view AllRecordsSource = "select * from table1";
inline constexpr std::string_view AllRecordsStep = "select table1.* into table3 from table1";

struct Ordering {
    std::string_view Entry;        // the "Sort By" list's text
    std::string_view RecordSource; // over Table3
    std::string_view Caption;      // "Sorted by ..."
};
// SortIndex 1 to 5 is element 0 to 4.
const std::array<Ordering, 5>& Orderings();
const Ordering& OrderingOf(int sortIndex); // 0 counts as 1

// The Months menu's record source for month 1 to 12.
std::string MonthSource(int month);

struct FixedSelection {
    std::string_view Caption;
    std::string RecordSource;
};
// The Days menu, mnuYears(0) to mnuYears(13).
const std::array<FixedSelection, 14>& DaySelections();
