// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/pagesalvage.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace {

constexpr std::uint8_t TableLeaf = 0x0D;

std::uint32_t BigEndian(const std::uint8_t* p, int bytes)
{
    std::uint32_t v = 0;
    for (int i = 0; i < bytes; ++i)
        v = (v << 8) | p[i];
    return v;
}

// The file's page geometry from its 100-byte header.
struct Geometry {
    std::size_t PageSize = 0;
    std::size_t Usable = 0; // page size less the reserved bytes at each page's end
    std::size_t Pages = 0;
};

std::optional<Geometry> GeometryOf(const std::vector<std::uint8_t>& file)
{
    if (file.size() < 512 || std::memcmp(file.data(), "SQLite format 3", 16) != 0)
        return std::nullopt;
    Geometry g;
    g.PageSize = BigEndian(&file[16], 2);
    if (g.PageSize == 1)
        g.PageSize = 65536;
    if (g.PageSize < 512 || (g.PageSize & (g.PageSize - 1)) != 0 || file[20] >= g.PageSize)
        return std::nullopt;
    g.Usable = g.PageSize - file[20];
    g.Pages = file.size() / g.PageSize;
    return g;
}

// Bytes a value of the serial type takes in the record's body.
std::optional<std::size_t> ContentSize(std::int64_t type)
{
    static constexpr std::size_t fixed[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    if (type < 0 || type == 10 || type == 11)
        return std::nullopt;
    return type < 10 ? fixed[type] : std::size_t(type - 12) / 2;
}

SalvagedValue DecodeValue(std::int64_t type, const std::uint8_t* p, std::size_t available)
{
    if (type >= 12) {
        const std::size_t size = std::min(*ContentSize(type), available);
        return SalvagedText{std::string(reinterpret_cast<const char*>(p), size), type % 2 == 0};
    }
    const std::size_t size = *ContentSize(type);
    if (size > available)
        return std::monostate{};
    if (type == 8 || type == 9)
        return std::int64_t(type - 8);
    if (type == 0)
        return std::monostate{};
    // A big-endian integer, sign-extended: a negative one starts from all ones, which its
    // bytes then push out (all of them for the 8 bytes of a double).
    std::uint64_t bits = (p[0] & 0x80) != 0 ? ~std::uint64_t{0} : 0;
    for (std::size_t i = 0; i < size; ++i)
        bits = (bits << 8) | p[i];
    if (type == 7) {
        double d = 0;
        std::memcpy(&d, &bits, sizeof d);
        return d;
    }
    return std::int64_t(bits);
}

struct Reader {
    const std::vector<std::uint8_t>& File;
    Geometry G;
    std::size_t Columns;

    const std::uint8_t* Page(std::size_t number) const
    {
        return File.data() + (number - 1) * G.PageSize;
    }

    // The payload: its local bytes, then the overflow chain as far as it can be followed.
    // False when the chain broke before the payload's end.
    bool Payload(const std::uint8_t* local, std::size_t localSize, std::size_t total,
                 std::uint32_t overflow, std::string& out) const
    {
        out.assign(reinterpret_cast<const char*>(local), localSize);
        std::set<std::uint32_t> seen;
        while (out.size() < total) {
            if (overflow < 2 || overflow > G.Pages || !seen.insert(overflow).second)
                return false;
            const std::uint8_t* page = Page(overflow);
            const std::size_t take = std::min(G.Usable - 4, total - out.size());
            out.append(reinterpret_cast<const char*>(page + 4), take);
            overflow = BigEndian(page, 4);
        }
        return true;
    }

    // The cell at `at` on a table-leaf page, if it decodes to a record of the wanted shape.
    std::optional<SalvagedRecord> Cell(const std::uint8_t* at, const std::uint8_t* pageEnd) const
    {
        const auto size = ReadVarint(at, pageEnd);
        if (!size || size->first <= 0 || size->first > std::int64_t(1) << 30)
            return std::nullopt;
        const auto rowid = ReadVarint(at + size->second, pageEnd);
        if (!rowid || rowid->first <= 0)
            return std::nullopt;
        const std::uint8_t* local = at + size->second + rowid->second;
        const std::size_t P = std::size_t(size->first);
        const std::size_t U = G.Usable, X = U - 35, M = (U - 12) * 32 / 255 - 23;
        std::size_t localSize = P;
        if (P > X) {
            const std::size_t K = M + (P - M) % (U - 4);
            localSize = K <= X ? K : M;
        }
        const bool spills = localSize < P;
        if (local + localSize + (spills ? 4 : 0) > pageEnd)
            return std::nullopt;
        std::string payload;
        const bool whole =
            Payload(local, localSize, P, spills ? BigEndian(local + localSize, 4) : 0, payload);
        auto record = Decode(payload, P);
        if (record) {
            record->RowId = rowid->first;
            record->Cut = !whole;
        }
        return record;
    }

    // A record of the wanted shape: its header's serial types, then the values they say.
    std::optional<SalvagedRecord> Decode(const std::string& payload, std::size_t total) const
    {
        const auto* p = reinterpret_cast<const std::uint8_t*>(payload.data());
        const auto* end = p + payload.size();
        const auto header = ReadVarint(p, end);
        if (!header || header->first < 2 || std::size_t(header->first) > payload.size())
            return std::nullopt;
        std::vector<std::int64_t> types;
        std::size_t body = 0;
        for (const std::uint8_t* t = p + header->second; t < p + header->first;) {
            const auto type = ReadVarint(t, p + header->first);
            const auto bytes = type ? ContentSize(type->first) : std::nullopt;
            if (!bytes)
                return std::nullopt;
            types.push_back(type->first);
            body += *bytes;
            t += type->second;
        }
        if (types.size() != Columns || types[0] != 0 || header->first + body != total)
            return std::nullopt;
        SalvagedRecord record;
        const std::uint8_t* value = p + header->first;
        for (const std::int64_t type : types) {
            const std::size_t available = value < end ? std::size_t(end - value) : 0;
            record.Values.push_back(DecodeValue(type, value, available));
            value += *ContentSize(type);
        }
        return record;
    }

    // The cells a sound table-leaf page lists; nothing when its header cannot be trusted.
    std::optional<std::vector<SalvagedRecord>> ListedCells(std::size_t number) const
    {
        const std::uint8_t* page = Page(number);
        const std::uint8_t* header = page + (number == 1 ? 100 : 0);
        const std::uint8_t* end = page + G.Usable;
        if (header[0] != TableLeaf)
            return std::nullopt;
        const std::size_t cells = BigEndian(header + 3, 2);
        if (header + 8 + 2 * cells > end)
            return std::nullopt;
        std::vector<SalvagedRecord> found;
        for (std::size_t i = 0; i < cells; ++i) {
            const std::size_t offset = BigEndian(header + 8 + 2 * i, 2);
            if (offset < 8 || offset >= G.Usable)
                return std::nullopt;
            if (auto record = Cell(page + offset, end))
                found.push_back(std::move(*record));
        }
        return found;
    }

    // Well-formed records anywhere in a page whose header is damaged.
    std::vector<SalvagedRecord> CarvedCells(std::size_t number) const
    {
        const std::uint8_t* page = Page(number);
        const std::uint8_t* end = page + G.Usable;
        std::vector<SalvagedRecord> found;
        for (const std::uint8_t* at = page; at + 4 < end; ++at) {
            auto record = Cell(at, end);
            if (!record)
                continue;
            record->Carved = true;
            found.push_back(std::move(*record));
        }
        return found;
    }

    bool IsOtherBtreePage(std::size_t number) const
    {
        const std::uint8_t type = Page(number)[number == 1 ? 100 : 0];
        return type == 0x02 || type == 0x05 || type == 0x0A;
    }
};

} // namespace

std::optional<std::pair<std::int64_t, int>> ReadVarint(const std::uint8_t* at,
                                                       const std::uint8_t* end)
{
    std::uint64_t v = 0;
    for (int i = 0; i < 9; ++i) {
        if (at + i >= end)
            return std::nullopt;
        if (i == 8)
            return std::pair{std::int64_t((v << 8) | at[i]), 9};
        v = (v << 7) | (at[i] & 0x7F);
        if ((at[i] & 0x80) == 0)
            return std::pair{std::int64_t(v), i + 1};
    }
    return std::nullopt;
}

namespace {

std::vector<SalvagedRecord> ScanPages(const std::vector<std::uint8_t>& file, const Geometry& g,
                                      std::size_t columns)
{
    const Reader reader{file, g, columns};
    std::vector<SalvagedRecord> listed, carved;
    for (std::size_t number = 1; number <= g.Pages; ++number) {
        if (auto cells = reader.ListedCells(number)) {
            std::move(cells->begin(), cells->end(), std::back_inserter(listed));
        } else if (!reader.IsOtherBtreePage(number)) {
            auto found = reader.CarvedCells(number);
            std::move(found.begin(), found.end(), std::back_inserter(carved));
        }
    }
    std::move(carved.begin(), carved.end(), std::back_inserter(listed));
    return listed;
}

constexpr std::size_t SmallestPage = 512;
constexpr std::size_t LargestPage = 65536;

} // namespace

std::vector<SalvagedRecord> SalvageRecords(const std::vector<std::uint8_t>& file,
                                           std::size_t columns)
{
    if (const auto geometry = GeometryOf(file))
        return ScanPages(file, *geometry, columns);
    // The header that gives the page size is lost: every size the format allows is tried,
    // without reserved bytes (as the program writes its files), and the one that reads the
    // most records wins.
    std::vector<SalvagedRecord> best;
    for (std::size_t size = SmallestPage; size <= LargestPage && size <= file.size(); size *= 2) {
        std::vector<SalvagedRecord> found =
            ScanPages(file, {size, size, file.size() / size}, columns);
        if (found.size() > best.size())
            best = std::move(found);
    }
    return best;
}
