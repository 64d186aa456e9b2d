// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/jetsql.h"

#include "db/jettokens.h"

#include <algorithm>

namespace {

std::string Render(const Token& t)
{
    switch (t.Kind) {
    case TokenKind::Name:
        return Quoted(t.Text, '"');
    case TokenKind::String:
    case TokenKind::Literal:
        return Quoted(t.Text, '\'');
    default:
        return t.Text;
    }
}

std::string Render(const std::vector<Token>& tokens)
{
    std::string out;
    bool glueNext = true;
    for (const Token& t : tokens) {
        const bool glue = IsSymbol(t, ".") || IsSymbol(t, ",") || IsSymbol(t, ")");
        if (!glueNext && !glue)
            out += ' ';
        out += Render(t);
        glueNext = IsSymbol(t, ".") || IsSymbol(t, "(");
    }
    return out;
}

// Index of the first word `word` outside parentheses, or the size when there is none.
std::size_t FindTopLevel(const std::vector<Token>& tokens, std::string_view word)
{
    int depth = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        depth += IsSymbol(tokens[i], "(") ? 1 : IsSymbol(tokens[i], ")") ? -1 : 0;
        if (depth == 0 && IsWord(tokens[i], word))
            return i;
    }
    return tokens.size();
}

// The table after FROM when the statement reads exactly one table without a join.
std::string SingleSource(const std::vector<Token>& tokens)
{
    static constexpr std::string_view Followers[] = {"where", "order", "group", "having", "limit"};
    const std::size_t from = FindTopLevel(tokens, "from");
    if (from + 1 >= tokens.size() || !IsTableName(tokens[from + 1]))
        return {};
    const std::size_t next = from + 2;
    const bool ends =
        next == tokens.size() || std::any_of(std::begin(Followers), std::end(Followers),
                                             [&](auto w) { return IsWord(tokens[next], w); });
    return ends ? tokens[from + 1].Text : std::string();
}

// True when the select list is "*" or "S.*" for the source table S.
bool SelectsWholeRow(const std::vector<Token>& tokens, const std::string& source)
{
    const std::size_t from = FindTopLevel(tokens, "from");
    if (from == 2)
        return IsSymbol(tokens[1], "*");
    return from == 4 && IsTableName(tokens[1]) && SameName(tokens[1].Text, source) &&
           IsSymbol(tokens[2], ".") && IsSymbol(tokens[3], "*");
}

std::string CreateTableSql(const std::string& table, const std::vector<JetColumn>& columns)
{
    std::string sql = "CREATE TABLE " + Quoted(table, '"') + " (";
    std::string keys;
    for (const JetColumn& c : columns) {
        sql += Quoted(c.Name, '"') + " " + c.Type + ", ";
        if (c.PrimaryKey)
            keys += (keys.empty() ? "" : ", ") + Quoted(c.Name, '"');
    }
    if (keys.empty())
        sql.resize(sql.size() - 2);
    else
        sql += "PRIMARY KEY (" + keys + ")";
    return sql + ")";
}

// select <list> into T from S ...: T gets S's declared columns when the list is S's whole row,
// so that the work tables keep the log's value kinds.
void TranslateSelectInto(std::vector<Token> tokens, std::size_t into, const JetSchemaLookup& lookup,
                         JetStatement& out)
{
    if (into + 1 >= tokens.size() || !IsTableName(tokens[into + 1])) {
        out.Error = "Syntax error in SELECT INTO statement.";
        return;
    }
    out.StatementKind = JetStatement::Kind::SelectInto;
    out.TargetTable = tokens[into + 1].Text;
    tokens.erase(tokens.begin() + std::ptrdiff_t(into), tokens.begin() + std::ptrdiff_t(into) + 2);
    out.SourceTable = SingleSource(tokens);
    const std::string select = Render(tokens);
    const auto columns = out.SourceTable.empty() || !SelectsWholeRow(tokens, out.SourceTable)
                             ? std::vector<JetColumn>{}
                             : lookup(out.SourceTable);
    if (columns.empty()) {
        out.Sql = {"CREATE TABLE " + Quoted(out.TargetTable, '"') + " AS " + select};
        return;
    }
    out.Sql = {CreateTableSql(out.TargetTable, columns),
               "INSERT INTO " + Quoted(out.TargetTable, '"') + " " + select};
}

} // namespace

JetStatement TranslateJet(std::string_view jetSql, const JetSchemaLookup& lookup)
{
    JetStatement out;
    Tokens tokens = Tokenize(jetSql);
    out.Error = tokens.Error;
    if (!out.Ok())
        return out;
    std::vector<Token>& list = tokens.List;
    if (!list.empty() && IsSymbol(list.back(), ";"))
        list.pop_back();
    if (list.empty()) {
        out.Error = "The query is empty.";
        return out;
    }
    if (std::any_of(list.begin(), list.end(), [](const Token& t) { return IsSymbol(t, ";"); })) {
        out.Error = "Characters found after end of SQL statement.";
        return out;
    }
    if (!IsWord(list.front(), "select")) {
        out.Sql = {Render(list)};
        return out;
    }
    const std::size_t into = FindTopLevel(list, "into");
    if (into < list.size()) {
        TranslateSelectInto(std::move(list), into, lookup, out);
        return out;
    }
    out.StatementKind = JetStatement::Kind::Select;
    out.SourceTable = SingleSource(list);
    out.Sql = {Render(list)};
    return out;
}

std::vector<std::string> SplitSqlScript(std::string_view script)
{
    std::vector<std::string> statements;
    std::string current;
    char quote = 0;
    for (std::size_t i = 0; i < script.size(); ++i) {
        const char c = script[i];
        if (quote == 0 && c == '-' && i + 1 < script.size() && script[i + 1] == '-') {
            i = std::min(script.find('\n', i), script.size()) - 1;
            continue;
        }
        if (quote == 0 && c == ';') {
            statements.push_back(current);
            current.clear();
            continue;
        }
        if (c == '\'' || c == '"')
            quote = quote == 0 ? c : (quote == c ? 0 : quote);
        current += c;
    }
    statements.push_back(current);
    std::erase_if(statements, [](const std::string& s) {
        return s.find_first_not_of(" \t\r\n") == std::string::npos;
    });
    return statements;
}
