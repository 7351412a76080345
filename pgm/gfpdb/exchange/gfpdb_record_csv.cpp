// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_csv.h"

#include "exchange/gfpdb_record_json.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "model/gfpdb_field.h"

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

bool check_columns(const CSV_ROW& head, const GFPDB_READ_OPTIONS& options, std::vector<GFPDB_FINDING>& problems)
{
    const std::size_t before = problems.size();
    for (const std::string& column : gfpdb_required_keys(options)) {
        if (!is_one_of(head.cells, column))
            problems.push_back({head.line, column, GFPDB_WORDS::say("The column is missing.")});
    }
    std::vector<std::string> seen;
    for (const std::string& column : head.cells) {
        if (!is_one_of(COLUMNS, column))
            problems.push_back({head.line, column,
                                GFPDB_WORDS::say("The column is not known. Allowed: %1.", {gfpdb_joined(COLUMNS)})});
        else if (is_one_of(seen, column))
            problems.push_back({head.line, column, GFPDB_WORDS::say("The column occurs twice.")});
        seen.push_back(column);
    }
    return problems.size() == before;
}

// What is wrong with the row as such; empty when nothing is.
std::string problem_of(const CSV_ROW& row, std::size_t columns)
{
    if (row.quote_is_open)
        return GFPDB_WORDS::say("A quote that opens in this row is never closed.");
    if (row.cells.size() == columns)
        return std::string();
    const std::string found = std::to_string(row.cells.size());
    const std::string named = std::to_string(columns);
    return row.cells.size() == 1
               ? GFPDB_WORDS::say("The row has 1 cell, the line of column names has %1.", {named})
               : GFPDB_WORDS::say("The row has %1 cells, the line of column names has %2.", {found, named});
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

GFPDB_LIST_READER::GFPDB_LIST_READER(const std::string& text, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options)
    : m_reader(manager, options), m_rows(csv_rows(text, csv_separator(text)))
{
    if (!m_rows.empty() && csv_named_separator(text) != 0)
        m_rows.erase(m_rows.begin());
    if (m_rows.empty())
        m_rows.emplace_back();
    m_is_list = check_columns(m_rows.front(), options, m_problems);
}

int GFPDB_LIST_READER::count() const
{
    return m_is_list ? static_cast<int>(m_rows.size()) - 1 : 0;
}

std::optional<GFPDB_RECORD> GFPDB_LIST_READER::read(int at)
{
    const CSV_ROW& head = m_rows.front();
    const CSV_ROW& row = m_rows[static_cast<std::size_t>(at) + 1];
    const std::string problem = problem_of(row, head.cells.size());
    if (problem.empty())
        return m_reader.read_record(object_of(head, row), false, "");
    m_problems.push_back({row.line, "", problem});
    return std::nullopt;
}

std::vector<GFPDB_FINDING> GFPDB_LIST_READER::problems() const
{
    std::vector<GFPDB_FINDING> all = m_problems;
    for (GFPDB_FINDING problem : m_reader.problems()) {
        problem.field.erase(0, problem.field.rfind('.') + 1);
        all.push_back(problem);
    }
    return all;
}
