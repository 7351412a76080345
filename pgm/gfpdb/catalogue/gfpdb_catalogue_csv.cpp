// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_catalogue_csv.h"

#include "base/gfpdb_text.h"
#include "gfpdb/gfpdb_action_value.h"
#include "model/gfpdb_field.h"
#include "rules/gfpdb_action_rules.h"
#include "rules/gfpdb_checks.h"

#include "csv/csv.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace {

constexpr int DUMMY_CLOCKS_MAX = 31;
constexpr int PAGE_SIZE_MAX = 4096;

constexpr const char* NAME_COLUMN = "name";
constexpr const char* ID_COLUMN = "jedec_id";
constexpr const char* DENSITY_COLUMN = "density";

std::vector<std::string> words(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> found;
    for (std::string word; stream >> word;)
        found.push_back(word);
    return found;
}

// "4K" and "256B" in bytes; 0 for any other text.
int erase_size(const std::string& text)
{
    constexpr int KIBIBYTE = 1024;
    if (text.size() < 2)
        return 0;
    const std::int64_t number = gfpdb_parse_decimal(text.substr(0, text.size() - 1)).value_or(0);
    const int unit = text.back() == 'B'   ? 1
                     : text.back() == 'K' ? KIBIBYTE
                     : text.back() == 'M' ? KIBIBYTE * KIBIBYTE
                                          : 0;
    return number > 0 && number <= KIBIBYTE ? static_cast<int>(number) * unit : 0;
}

bool read_count(const std::string& cell, int highest, int& value, std::string& error)
{
    const std::optional<std::int64_t> number = gfpdb_parse_decimal(cell);
    if (!number || *number < 1 || *number > highest) {
        error = gfpdb_quoted(cell) + " is not a whole number from 1 to " + std::to_string(highest);
        return false;
    }
    value = static_cast<int>(*number);
    return true;
}

bool read_id(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    for (const std::string& word : words(cell)) {
        const std::optional<int> byte = gfpdb_parse_byte("0x" + word);
        if (!byte) {
            error = gfpdb_quoted(word) + " is not a byte of two hexadecimal digits such as C2";
            return false;
        }
        part.jedec_id.push_back(*byte);
    }
    if (!part.jedec_id.empty() && part.jedec_id.size() <= static_cast<std::size_t>(GFPDB_ID_BYTES_MAX))
        return true;
    error = "an ID has 1 to " + std::to_string(GFPDB_ID_BYTES_MAX) + " bytes such as C2 20 19";
    return false;
}

bool read_density(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    part.density = cell;
    const std::int64_t bytes = gfpdb_density_bytes(cell);
    if (bytes > 0 && bytes <= GFPDB_DEVICE_BYTES_MAX)
        return true;
    error = gfpdb_quoted(cell) + (bytes > 0 ? " is more than 32Gb" : " is not a density such as 128Mb");
    return false;
}

bool read_page_size(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    if (!read_count(cell, PAGE_SIZE_MAX, part.page_size, error))
        return false;
    if ((part.page_size & (part.page_size - 1)) == 0)
        return true;
    error = gfpdb_quoted(cell) + " is not a power of two";
    return false;
}

bool read_sector_erase(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    const std::optional<std::vector<GFPDB_ERASE_COMMAND>> commands = gfpdb_parse_erase_commands(cell, error);
    part.sector_erase = commands.value_or(std::vector<GFPDB_ERASE_COMMAND>());
    return commands.has_value();
}

bool read_addressing_bytes(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    part.addressing_bytes = cell == "3" ? 3 : cell == "4" ? 4 : 0;
    if (part.addressing_bytes != 0)
        return true;
    error = gfpdb_quoted(cell) + " is neither 3 nor 4";
    return false;
}

// The clocks, then in the same cell how they are counted.
bool read_dummy_quad(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    const std::size_t blank = cell.find(' ');
    if (!read_count(cell.substr(0, blank), DUMMY_CLOCKS_MAX, part.dummy_quad, error))
        return false;
    if (blank != std::string::npos)
        part.dummy_quad_note = cell.substr(blank + 1);
    return true;
}

bool read_quad_enable(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    static const std::map<std::string, GFPDB_QUAD_ENABLE> PLACES = {{"none", GFPDB_QUAD_ENABLE::NONE},
                                                                    {"SR1.6", GFPDB_QUAD_ENABLE::SR1_BIT6},
                                                                    {"SR2.1", GFPDB_QUAD_ENABLE::SR2_BIT1}};
    const auto place = PLACES.find(cell);
    if (place != PLACES.end()) {
        part.quad_enable = place->second;
        return true;
    }
    error = gfpdb_quoted(cell) + " is none of none, SR1.6, SR2.1";
    return false;
}

bool read_visibility(const std::string& cell, GFPDB_PART& part, std::string& error)
{
    part.properties_hidden = cell == "hidden" || cell == "no-properties";
    part.flows_hidden = cell == "hidden" || cell == "no-flows";
    if (cell == "open" || part.properties_hidden || part.flows_hidden)
        return true;
    error = gfpdb_quoted(cell) + " is none of open, no-properties, no-flows, hidden";
    return false;
}

bool read_text(const std::string& cell, std::string& value, std::string& error)
{
    value = cell;
    if (gfpdb_is_utf8(cell))
        return true;
    error = gfpdb_quoted(cell) + " is not UTF-8";
    return false;
}

using CELL_READER = std::function<bool(const std::string& cell, GFPDB_PART& part, std::string& error)>;

// Reads a cell that is not empty into its part, by column.
const std::map<std::string, CELL_READER>& cell_readers()
{
    using CELL = const std::string&;
    static const std::map<std::string, CELL_READER> READERS = {
        {NAME_COLUMN,
         [](CELL cell, GFPDB_PART& part, std::string& error) {
             part.name = cell;
             return gfpdb_check_name(cell, QT_TRANSLATE_NOOP("gfpdb", "part name"), error);
         }},
        {"manufacturer",
         [](CELL cell, GFPDB_PART& part, std::string& error) { return read_text(cell, part.manufacturer, error); }},
        {ID_COLUMN, read_id},
        {"voltage",
         [](CELL cell, GFPDB_PART& part, std::string& error) { return read_text(cell, part.voltage, error); }},
        {DENSITY_COLUMN, read_density},
        {"total_die",
         [](CELL cell, GFPDB_PART& part, std::string& error) {
             return read_count(cell, gfpdb_field(GFPDB_FLASH_TOTAL_DIE)->highest, part.total_die, error);
         }},
        {"page_size", read_page_size},
        {"sector_erase_opcodes", read_sector_erase},
        {"addressing_bytes", read_addressing_bytes},
        {"dummy_single",
         [](CELL cell, GFPDB_PART& part, std::string& error) {
             return read_count(cell, DUMMY_CLOCKS_MAX, part.dummy_single, error);
         }},
        {"dummy_quad", read_dummy_quad},
        {"quad_enable", read_quad_enable},
        {"source", [](CELL cell, GFPDB_PART& part, std::string& error) { return read_text(cell, part.source, error); }},
        {"visibility", read_visibility},
    };
    return READERS;
}

bool is_required(const std::string& column)
{
    return column == NAME_COLUMN || column == ID_COLUMN || column == DENSITY_COLUMN;
}

// The column names; false when a required one is missing.
bool check_columns(const CSV_ROW& head, std::vector<GFPDB_CSV_ERROR>& errors)
{
    bool complete = true;
    for (const char* column : {NAME_COLUMN, ID_COLUMN, DENSITY_COLUMN}) {
        if (std::find(head.cells.begin(), head.cells.end(), column) == head.cells.end()) {
            errors.push_back({head.line, column, "the column is missing"});
            complete = false;
        }
    }
    for (const std::string& column : head.cells) {
        if (!cell_readers().count(column))
            errors.push_back({head.line, column, "the column is unknown and not read"});
    }
    return complete;
}

// The part of `row`; false with an error when the row is wrong.
bool read_row(const CSV_ROW& head, const CSV_ROW& row, GFPDB_PART& part, GFPDB_CSV_ERROR& error)
{
    error = {row.line, std::string(), std::string()};
    if (row.cells.size() != head.cells.size()) {
        error.text = "the row has " + std::to_string(row.cells.size()) + " cells, the line of column names has " +
                     std::to_string(head.cells.size());
        return false;
    }
    for (std::size_t at = 0; at < row.cells.size(); ++at) {
        const auto reader = cell_readers().find(head.cells[at]);
        if (reader == cell_readers().end() || (row.cells[at].empty() && !is_required(head.cells[at])))
            continue;
        error.column = head.cells[at];
        if (!reader->second(row.cells[at], part, error.text))
            return false;
    }
    return true;
}

} // namespace

std::optional<std::vector<GFPDB_ERASE_COMMAND>> gfpdb_parse_erase_commands(const std::string& cell, std::string& error)
{
    std::vector<GFPDB_ERASE_COMMAND> commands;
    for (const std::string& word : words(cell)) {
        const std::size_t colon = word.find(':');
        const std::optional<int> opcode = gfpdb_parse_byte("0x" + word.substr(0, colon));
        const int size = colon == std::string::npos ? 0 : erase_size(word.substr(colon + 1));
        if (!opcode || size == 0) {
            error = gfpdb_quoted(word) + " is not an erase command such as 20:4K";
            return std::nullopt;
        }
        commands.push_back({*opcode, size});
    }
    return commands;
}

std::int64_t gfpdb_density_bytes(const std::string& density)
{
    constexpr std::int64_t NUMBER_MAX = 1 << 20;
    constexpr int BITS_PER_BYTE = 8;
    if (density.size() < 3)
        return 0;
    const std::int64_t number = gfpdb_parse_decimal(density.substr(0, density.size() - 2)).value_or(0);
    const std::size_t scale = std::string("KMG").find(density[density.size() - 2]);
    const char unit = density.back();
    if (number < 1 || number > NUMBER_MAX || scale == std::string::npos || (unit != 'b' && unit != 'B'))
        return 0;
    const std::int64_t scaled = number << (10 * (scale + 1));
    return unit == 'B' ? scaled : scaled / BITS_PER_BYTE;
}

GFPDB_CATALOGUE_CONTENT gfpdb_parse_catalogue(const std::string& text)
{
    GFPDB_CATALOGUE_CONTENT content;
    const std::vector<CSV_ROW> rows = csv_rows(text);
    const CSV_ROW head = rows.empty() ? CSV_ROW() : rows.front();
    if (!check_columns(head, content.errors))
        return content;
    std::set<std::string> names;
    for (std::size_t at = 1; at < rows.size(); ++at) {
        GFPDB_PART part;
        GFPDB_CSV_ERROR error;
        if (!read_row(head, rows[at], part, error))
            content.errors.push_back(error);
        else if (!names.insert(gfpdb_name_key(part.name)).second)
            content.errors.push_back(
                {rows[at].line, NAME_COLUMN, gfpdb_quoted(part.name) + " is the name of an earlier part"});
        else
            content.parts.push_back(part);
    }
    return content;
}

std::string gfpdb_csv_error_text(const GFPDB_CSV_ERROR& error)
{
    const std::string column = error.column.empty() ? std::string() : ", column " + gfpdb_quoted(error.column);
    return "line " + std::to_string(error.line) + column + ": " + error.text;
}
