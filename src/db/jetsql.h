// SPDX-License-Identifier: GPL-3.0-or-later
// The program's SQL is written in the Access/Jet dialect; this turns one statement into the
// SQLite statements that do the same. The statement is read token by token and written back
// from the tokens, so only well-formed names, numbers, re-quoted strings and canonical
// date/time literals ever reach SQLite, and only one statement at a time.
//   select ... into T from S ...  -> CREATE TABLE T (S's columns and types) + INSERT INTO T
//                                    SELECT ... (or CREATE TABLE T AS SELECT ... when the
//                                    select list is not S's whole row)
//   #7:00 AM#, #03/10/2024#        -> '07:00:00', '2024-03-10' (the stored forms)
//   [Table2], "text"               -> "Table2", 'text'
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct JetColumn {
    std::string Name;
    std::string Type; // the declared type, as the table was created with it
    bool PrimaryKey = false;
};

// The columns of a table of the open file in their order; empty when there is no such table.
using JetSchemaLookup = std::function<std::vector<JetColumn>(std::string_view table)>;

struct JetStatement {
    enum class Kind { Select, SelectInto, Other };
    Kind StatementKind = Kind::Other;
    std::vector<std::string> Sql; // SQLite statements to run in order, in one transaction
    std::string SourceTable;      // the one table after FROM, when the statement reads just one
    std::string TargetTable;      // the table a select-into creates
    std::string Error;            // why the text cannot be translated; empty on success

    bool Ok() const { return Error.empty(); }
};

JetStatement TranslateJet(std::string_view jetSql, const JetSchemaLookup& lookup);

// The statements of a SQLite script (such as the template's schema), without comments.
std::vector<std::string> SplitSqlScript(std::string_view script);

// Name comparison as the engine does it: without regard to case.
bool SameName(std::string_view a, std::string_view b);
