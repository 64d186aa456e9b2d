// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/csvread.h"

namespace {

struct CsvReader {
    std::string_view Text;
    size_t At = 0;
    int Line = 1;

    bool AtEnd() const { return At >= Text.size(); }

    // One field, from At to the comma or line end that ends it (not consumed).
    std::string Field()
    {
        std::string field;
        if (AtEnd() || Text[At] != '"') {
            while (!AtEnd() && Text[At] != ',' && Text[At] != '\n' && Text[At] != '\r')
                field += Text[At++];
            return field;
        }
        for (++At; !AtEnd(); ++At) {
            if (Text[At] == '"') {
                if (At + 1 < Text.size() && Text[At + 1] == '"') {
                    field += '"';
                    ++At;
                    continue;
                }
                ++At;
                break;
            }
            if (Text[At] == '\n')
                ++Line;
            field += Text[At];
        }
        // Anything between the closing quote and the separator belongs to the field.
        while (!AtEnd() && Text[At] != ',' && Text[At] != '\n' && Text[At] != '\r')
            field += Text[At++];
        return field;
    }

    CsvRecord Record()
    {
        CsvRecord record{Line, {}};
        for (;;) {
            record.Fields.push_back(Field());
            if (AtEnd())
                return record;
            if (Text[At] == ',') {
                ++At;
                continue;
            }
            if (Text[At] == '\r' && At + 1 < Text.size() && Text[At + 1] == '\n')
                ++At;
            ++At;
            ++Line;
            return record;
        }
    }
};

bool Blank(const CsvRecord& record)
{
    return record.Fields.size() == 1 && record.Fields[0].empty();
}

} // namespace

std::vector<CsvRecord> ReadCsv(std::string_view text)
{
    if (text.substr(0, 3) == "\xEF\xBB\xBF") // a byte-order mark some spreadsheets write
        text.remove_prefix(3);
    std::vector<CsvRecord> records;
    CsvReader reader{text};
    while (!reader.AtEnd()) {
        CsvRecord record = reader.Record();
        if (!Blank(record))
            records.push_back(std::move(record));
    }
    return records;
}

std::string CsvLine(const std::vector<std::string>& fields)
{
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string& f = fields[i];
        if (i > 0)
            line += ',';
        if (f.find_first_of(",\"\r\n") == std::string::npos) {
            line += f;
            continue;
        }
        line += '"';
        for (const char c : f)
            line += c == '"' ? std::string("\"\"") : std::string(1, c);
        line += '"';
    }
    return line + "\r\n";
}
