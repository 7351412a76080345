// SPDX-License-Identifier: MIT
#include "store/server/gfpdb_server_sql.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_field.h"
#include "store/server/gfpdb_server_connection.h"

#include <QSysInfo>

namespace {

// What is stored beside the fields.
constexpr char REVISION[] = "revision";
constexpr char SAVED[] = "saved_at, saved_by";

template <typename VALUE>
void read(const GFPDB_SERVER_ROWS& rows, int row, int column, VALUE& value)
{
    if constexpr (std::is_same_v<VALUE, std::string>)
        value = rows.text(row, column);
    else if (!rows.is_null(row, column))
        value = static_cast<int>(rows.number(row, column));
}

GFPDB_ROW record_at(const GFPDB_SERVER_ROWS& rows, int row, int first, bool with_flows)
{
    GFPDB_ROW record;
    int column = first;
    record.revision = rows.text(row, column++);
    record.saved_at = rows.text(row, column++);
    record.saved_by = rows.text(row, column++);
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (with_flows || field.kind != GFPDB_FIELD_KIND::FLOWS)
            field.in(record, [&, at = column++](auto& value) { read(rows, row, at, value); });
    }
    return record;
}

std::string selection(bool with_flows)
{
    return std::string(REVISION) + ", " + SAVED + ", " + gfpdb_joined(gfpdb_field_keys(with_flows));
}

// As COPY reads a value: a backslash before what would end it. Flows are long, and have few of those.
void add_copy_text(std::string& line, const std::string& text)
{
    constexpr char SPECIAL[] = "\\\n\r\t";
    constexpr char WRITTEN[] = "\\nrt";
    std::size_t begin = 0;
    for (std::size_t end = text.find_first_of(SPECIAL); end != std::string::npos;
         end = text.find_first_of(SPECIAL, begin)) {
        line.append(text, begin, end - begin);
        line += '\\';
        line += WRITTEN[std::char_traits<char>::find(SPECIAL, sizeof SPECIAL, text[end]) - SPECIAL];
        begin = end + 1;
    }
    line.append(text, begin, std::string::npos);
}

} // namespace

namespace GFPDB_SERVER_SQL {

const char NOW[] = "to_char(CURRENT_TIMESTAMP AT TIME ZONE 'UTC', 'YYYY-MM-DD\"T\"HH24:MI:SS\"Z\"')";

bool is_storable(const std::string& text)
{
    return text.find('\0') == std::string::npos && gfpdb_is_utf8(text);
}

std::string literal(const std::string& text)
{
    if (!is_storable(text))
        return "NULL";
    std::string quoted = "E'";
    for (const char character : text) {
        if (character == '\'' || character == '\\')
            quoted += character;
        quoted += character;
    }
    return quoted + '\'';
}

std::string key_of(const std::string& name)
{
    return literal(gfpdb_name_key(name));
}

std::string list_of(const std::vector<std::string>& items)
{
    return '(' + gfpdb_joined(items) + ')';
}

std::string here()
{
    return "session_user || " + literal('@' + gfpdb_to_utf8(QSysInfo::machineHostName()));
}

const std::string& columns()
{
    static const std::string COLUMNS = gfpdb_joined(gfpdb_field_keys(true)) + ", " + REVISION;
    return COLUMNS;
}

const std::string& all_columns()
{
    static const std::string COLUMNS = columns() + ", " + SAVED;
    return COLUMNS;
}

std::string values_of(const GFPDB_ROW& row)
{
    std::vector<std::string> values;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const std::string text = field.text(row);
        values.push_back(field.is_text() ? literal(text) : text.empty() ? "NULL" : text);
    }
    values.push_back(literal(row.revision));
    return gfpdb_joined(values);
}

// A key and the columns of columns().
static void add_row(std::string& lines, const std::string& key, const GFPDB_ROW& row)
{
    add_copy_text(lines, key);
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const std::string text = field.text(row);
        if (field.is_text() || !text.empty())
            add_copy_column(lines, text);
        else
            lines += "\t\\N";
    }
    add_copy_column(lines, row.revision);
}

void add_copy_line(std::string& lines, const std::string& key, const GFPDB_ROW& row, const std::string& saved_by)
{
    add_row(lines, key, row);
    add_copy_column(lines, saved_by);
    lines += '\n';
}

void add_whole_copy_line(std::string& lines, const std::string& key, const GFPDB_ROW& row)
{
    add_row(lines, key, row);
    add_copy_column(lines, row.saved_at);
    add_copy_column(lines, row.saved_by);
}

void add_copy_column(std::string& lines, const std::string& text)
{
    lines += '\t';
    add_copy_text(lines, text);
}

const char* unstorable_field(const GFPDB_ROW& row)
{
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (field.is_text() && !is_storable(field.text(row)))
            return field.key;
    }
    return nullptr;
}

const std::string& scalars_read()
{
    static const std::string SCALARS = selection(false);
    return SCALARS;
}

const std::string& all_read()
{
    static const std::string ALL = selection(true);
    return ALL;
}

GFPDB_ROW scalars_at(const GFPDB_SERVER_ROWS& rows, int row, int first)
{
    return record_at(rows, row, first, false);
}

GFPDB_ROW row_at(const GFPDB_SERVER_ROWS& rows, int row, int first)
{
    return record_at(rows, row, first, true);
}

} // namespace GFPDB_SERVER_SQL
