// SPDX-License-Identifier: MIT
#include "cli_records.h"

#include "cli_columns.h"
#include "cli_output.h"
#include "record_facts.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_text.h"

#include <QString>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t COLUMN_COUNT = 7;
// A name that is longer than the rules allow shifts its own line, not all others.
constexpr int COLUMN_WIDTH_MAX = 64;
using LINE = std::array<std::string, COLUMN_COUNT>;

// A built-in device serves every family and scheme.
LINE line_of(const CLI_LISTED& listed)
{
    const GFPDB_ROW& row = listed.record.row;
    const bool placed = !listed.is_builtin;
    const auto shown = [](const std::string& text) { return text.empty() ? "-" : cli_printable(text); };
    return {shown(listed.record.name()),
            listed.kind(),
            placed ? std::to_string(row.family) : "-",
            placed ? std::to_string(row.scheme) : "-",
            shown(row.density),
            shown(row.voltage),
            shown(row.device_id)};
}

// At least two blanks follow a cell, also behind one that is too long for its column.
QString padded(const QString& cell, int width)
{
    return cli_padded(cell, std::max(width, cli_width(cell)) + 2);
}

void add_value(CLI_JSON& json, const GFPDB_VALUE& value)
{
    if (!value.is_number)
        json.add(value.key, value.text);
    else if (value.text.empty())
        json.add_null(value.key);
    else
        json.add_number(value.key, std::stoll(value.text));
}

} // namespace

std::string cli_records_table(const std::vector<CLI_LISTED>& records)
{
    std::vector<LINE> lines = {{"NAME", "KIND", "FAMILY", "SCHEME", "DENSITY", "VOLTAGE", "ID"}};
    for (const CLI_LISTED& record : records)
        lines.push_back(line_of(record));
    std::array<int, COLUMN_COUNT> widths = {};
    for (const LINE& line : lines) {
        for (std::size_t at = 0; at < COLUMN_COUNT; ++at)
            widths[at] = std::min(std::max(widths[at], cli_width(gfpdb_from_utf8(line[at]))), COLUMN_WIDTH_MAX);
    }
    QString text;
    for (const LINE& line : lines) {
        for (std::size_t at = 0; at + 1 < COLUMN_COUNT; ++at)
            text += padded(gfpdb_from_utf8(line[at]), widths[at]);
        text += gfpdb_from_utf8(line.back()) + QLatin1Char('\n');
    }
    return gfpdb_to_utf8(text);
}

std::string cli_record_names(const std::vector<CLI_LISTED>& records)
{
    std::string text;
    for (const CLI_LISTED& listed : records)
        text += listed.record.name() + '\n';
    return text;
}

void cli_add_record(CLI_JSON& json, const CLI_LISTED& listed)
{
    json.add("name", listed.record.name());
    json.add("kind", listed.kind());
    for (GFPDB_VALUE& value : gfpdb_values(listed.record)) {
        if (listed.is_builtin && value.property == GFPDB_NO_PROPERTY)
            value.text.clear();
        if (value.property != GFPDB_FLASH_NAME && value.property != GFPDB_FLASH_TEMPLATE_NAME)
            add_value(json, value);
    }
    json.add("maker", record_manufacturer(listed.record.row));
    if (!listed.is_builtin) {
        json.add("saved_at", listed.record.row.saved_at);
        json.add("saved_by", listed.record.row.saved_by);
    }
}

std::string cli_records_json(const std::vector<CLI_LISTED>& records)
{
    return CLI_JSON::list_text(records, cli_add_record);
}
