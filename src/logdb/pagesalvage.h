// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the records of a damaged SQLite file straight from its pages, for the repair: every
// table-leaf cell that still decodes, found through the page's cell pointers or, where a
// page's header is damaged, by looking for well-formed records in its bytes. A record whose
// overflow chain (a long note) is broken keeps what of it can be read. Plain C++ over the
// file's bytes, following the SQLite file format (sqlite.org/fileformat2.html).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct SalvagedText {
    std::string Bytes;
    bool Blob = false;
};

// NULL, an integer, a real, or a text or blob.
using SalvagedValue = std::variant<std::monostate, std::int64_t, double, SalvagedText>;

struct SalvagedRecord {
    std::int64_t RowId = 0;
    std::vector<SalvagedValue> Values;
    bool Cut = false;    // its overflow chain broke: the last values are partly or not there
    bool Carved = false; // found in a page whose header could not be used
};

// Every record of `columns` values on the table pages of the file image whose first value is
// NULL (a table whose key is its row number stores it so). Where two share a row number,
// the one found through a sound page comes first.
std::vector<SalvagedRecord> SalvageRecords(const std::vector<std::uint8_t>& file,
                                           std::size_t columns);

// A varint as SQLite writes it: the value and the number of bytes, if it fits before `end`.
std::optional<std::pair<std::int64_t, int>> ReadVarint(const std::uint8_t* at,
                                                       const std::uint8_t* end);
