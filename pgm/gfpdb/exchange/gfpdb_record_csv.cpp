// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_csv.h"

#include "exchange/gfpdb_record_json.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_field.h"

#include "csv/csv.h"

#include <algorithm>

namespace {

// Everything but the flows.
const std::vector<std::string> COLUMNS = gfpdb_field_keys(false);

bool is_one_of(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// The number in a cell, null for an empty one; any other text stays one, so that the reader refuses it.
JSON_VALUE number_of(const std::string& text)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (text.empty())
        return json_null();
    const bool is_number = json_parse(text, value, error) && value.kind == JSON_VALUE::NUMBER;
    return is_number ? value : json_string(text);
}

bool check_columns(const CSV_ROW& head, std::vector<GFPDB_FINDING>& problems)
{
    const std::size_t before = problems.size();
    for (std::size_t at = 0; at < GFPDB_REQUIRED_FIELDS; ++at) {
        if (!is_one_of(head.cells, COLUMNS[at]))
            problems.push_back({head.line, COLUMNS[at], "The column is missing."});
    }
    std::vector<std::string> seen;
    for (const std::string& column : head.cells) {
        if (!is_one_of(COLUMNS, column))
            problems.push_back({head.line, column, "The column is not known. Allowed: " + gfpdb_joined(COLUMNS) + "."});
        else if (is_one_of(seen, column))
            problems.push_back({head.line, column, "The column occurs twice."});
        seen.push_back(column);
    }
    return problems.size() == before;
}

// What is wrong with the row as such; empty when nothing is.
std::string problem_of(const CSV_ROW& row, std::size_t columns)
{
    if (row.quote_is_open)
        return "A quote that opens in this row is never closed.";
    if (row.cells.size() == columns)
        return std::string();
    return "The row has " + std::to_string(row.cells.size()) + (row.cells.size() == 1 ? " cell" : " cells") +
           ", the line of column names has " + std::to_string(columns) + ".";
}

// A row as the JSON object with the same content, so that both formats have the same rules.
JSON_VALUE object_of(const CSV_ROW& head, const CSV_ROW& row)
{
    JSON_VALUE object = json_object();
    object.line = row.line;
    for (std::size_t at = 0; at < head.cells.size(); ++at) {
        const std::string& text = row.cells[at];
        JSON_VALUE value = gfpdb_field(head.cells[at])->is_text() ? json_string(text) : number_of(text);
        value.line = row.line;
        object.add(head.cells[at], std::move(value));
    }
    return object;
}

} // namespace

std::string gfpdb_write_list(const std::vector<GFPDB_RECORD>& records, GFPDB_LIST_FOR reader)
{
    std::string text = csv_line(COLUMNS);
    for (const GFPDB_RECORD& record : records) {
        if (record.is_template)
            continue;
        std::vector<std::string> cells;
        for (const GFPDB_FIELD& field : gfpdb_fields()) {
            if (field.kind == GFPDB_FIELD_KIND::FLOWS)
                continue;
            const std::string value = field.text(record.row);
            const bool is_guarded = reader == GFPDB_LIST_FOR::SPREADSHEET && field.is_text();
            cells.push_back(is_guarded ? csv_spreadsheet_text(value) : value);
        }
        text += csv_line(cells);
    }
    return text;
}

std::vector<GFPDB_RECORD> gfpdb_read_list(const std::string& text, GFPDB_MGR& manager,
                                          const GFPDB_READ_OPTIONS& options, std::vector<GFPDB_FINDING>& problems)
{
    std::vector<GFPDB_RECORD> records;
    const std::vector<CSV_ROW> rows = csv_rows(text, csv_separator(text));
    const CSV_ROW head = rows.empty() ? CSV_ROW() : rows.front();
    if (!check_columns(head, problems))
        return records;
    GFPDB_RECORD_READER reader(manager, options);
    for (std::size_t at = 1; at < rows.size(); ++at) {
        const std::string problem = problem_of(rows[at], head.cells.size());
        if (problem.empty())
            records.push_back(reader.read_record(object_of(head, rows[at]), false, ""));
        else
            problems.push_back({rows[at].line, "", problem});
    }
    for (GFPDB_FINDING problem : reader.problems()) {
        problem.field.erase(0, problem.field.rfind('.') + 1);
        problems.push_back(problem);
    }
    return records;
}
