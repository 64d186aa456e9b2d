// SPDX-License-Identifier: GPL-3.0-or-later
// The tokens of the program's Jet-dialect SQL, shared by the statement translator and the
// search conditions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class TokenKind { Word, Name, Number, String, Literal, Symbol };

struct Token {
    TokenKind Kind;
    std::string Text; // Word, Number, Symbol: as written; Name ([...]) and String ('...' or
                      // "..."): the content; Literal (#...#): the stored date/time form
};

struct Tokens {
    std::vector<Token> List;
    std::string Error; // the first unreadable part; empty when all was read
};

Tokens Tokenize(std::string_view sql);

bool IsWord(const Token& t, std::string_view word);
bool IsSymbol(const Token& t, std::string_view symbol);
bool IsTableName(const Token& t);

// The text between quote characters, a quote inside doubled.
std::string Quoted(std::string_view text, char quote);
