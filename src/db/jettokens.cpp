// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/jettokens.h"

#include "db/jetsql.h"
#include "db/storedforms.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace {

bool IsWordStart(char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '_'; }
bool IsWordChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// Reads a text enclosed in `close`, where a doubled closing character stands for itself.
std::optional<std::string> ReadEnclosed(std::string_view sql, std::size_t& pos, char close)
{
    std::string text;
    for (++pos; pos < sql.size(); ++pos) {
        if (sql[pos] != close) {
            text += sql[pos];
        } else if (close != ']' && close != '#' && pos + 1 < sql.size() && sql[pos + 1] == close) {
            text += close;
            ++pos;
        } else {
            ++pos;
            return text;
        }
    }
    return std::nullopt;
}

std::size_t NumberEnd(std::string_view sql, std::size_t pos)
{
    while (pos < sql.size() && (IsDigit(sql[pos]) || sql[pos] == '.'))
        ++pos;
    if (pos < sql.size() && (sql[pos] == 'e' || sql[pos] == 'E')) {
        std::size_t exp = pos + 1;
        if (exp < sql.size() && (sql[exp] == '+' || sql[exp] == '-'))
            ++exp;
        if (exp < sql.size() && IsDigit(sql[exp])) {
            pos = exp;
            while (pos < sql.size() && IsDigit(sql[pos]))
                ++pos;
        }
    }
    return pos;
}

std::optional<Token> ReadEnclosedToken(std::string_view sql, std::size_t& pos, std::string& error)
{
    const char open = sql[pos];
    const char close = open == '[' ? ']' : open;
    const auto text = ReadEnclosed(sql, pos, close);
    if (!text) {
        error = std::string("Missing closing ") + close + " in the query.";
        return std::nullopt;
    }
    if (open == '[')
        return Token{TokenKind::Name, *text};
    if (open != '#')
        return Token{TokenKind::String, *text};
    const auto stored = StoredDateTime(*text);
    if (!stored) {
        error = "Not a valid date or time: #" + *text + "#";
        return std::nullopt;
    }
    return Token{TokenKind::Literal, *stored};
}

std::optional<Token> ReadToken(std::string_view sql, std::size_t& pos, std::string& error)
{
    static constexpr std::string_view TwoCharSymbols[] = {"<=", ">=", "<>"};
    static constexpr std::string_view OneCharSymbols = "(),.*=<>+-/;?"; // ? marks a parameter
    const char c = sql[pos];
    if (c == '[' || c == '#' || c == '\'' || c == '"')
        return ReadEnclosedToken(sql, pos, error);
    const std::size_t start = pos;
    if (IsWordStart(c)) {
        while (pos < sql.size() && IsWordChar(sql[pos]))
            ++pos;
        return Token{TokenKind::Word, std::string(sql.substr(start, pos - start))};
    }
    if (IsDigit(c) || (c == '.' && pos + 1 < sql.size() && IsDigit(sql[pos + 1]))) {
        pos = NumberEnd(sql, pos);
        return Token{TokenKind::Number, std::string(sql.substr(start, pos - start))};
    }
    for (const std::string_view symbol : TwoCharSymbols) {
        if (sql.substr(pos, 2) == symbol) {
            pos += 2;
            return Token{TokenKind::Symbol, std::string(symbol)};
        }
    }
    if (OneCharSymbols.find(c) != std::string_view::npos) {
        ++pos;
        return Token{TokenKind::Symbol, std::string(1, c)};
    }
    error = std::string("Syntax error in query near '") + c + "'.";
    return std::nullopt;
}

} // namespace

std::string Quoted(std::string_view text, char quote)
{
    std::string out(1, quote);
    for (const char c : text) {
        out += c;
        if (c == quote)
            out += quote;
    }
    return out + quote;
}

Tokens Tokenize(std::string_view sql)
{
    Tokens tokens;
    std::size_t pos = 0;
    while (pos < sql.size()) {
        if (std::isspace(static_cast<unsigned char>(sql[pos]))) {
            ++pos;
            continue;
        }
        auto token = ReadToken(sql, pos, tokens.Error);
        if (!token)
            return tokens;
        tokens.List.push_back(std::move(*token));
    }
    return tokens;
}

bool IsWord(const Token& t, std::string_view word)
{
    return t.Kind == TokenKind::Word && SameName(t.Text, word);
}
bool IsSymbol(const Token& t, std::string_view symbol)
{
    return t.Kind == TokenKind::Symbol && t.Text == symbol;
}
bool IsTableName(const Token& t) { return t.Kind == TokenKind::Word || t.Kind == TokenKind::Name; }

bool SameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}
