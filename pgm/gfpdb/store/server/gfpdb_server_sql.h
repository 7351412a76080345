// SPDX-License-Identifier: MIT

// Pieces of statements for the server, and records from their results.
//
// Values are written into the statements: what PREPARE keeps belongs to a session, and a pool may give each transaction
// another one. So every text goes through literal(), which is right whatever the server's settings are.
#pragma once

#include "model/gfpdb_row.h"

#include <cstdint>
#include <string>
#include <vector>

class GFPDB_SERVER_ROWS;

namespace GFPDB_SERVER_SQL {

// What PostgreSQL can keep as a text: UTF-8 without the character NUL.
bool is_storable(const std::string& text);
// `text` as a literal; NULL, which is equal to nothing, when no text of the server can be that.
std::string literal(const std::string& text);
// The key of `name` as a literal.
std::string key_of(const std::string& name);
// The items in parentheses, as IN and VALUES take them.
std::string list_of(const std::vector<std::string>& items);

// The time of the transaction as the database keeps it, and who runs it on which machine.
extern const char NOW[];
std::string here();

// The columns that a record is stored in, but for the time and the login, which are the server's; and those with them,
// which the tables device, template and history share.
const std::string& columns();
const std::string& all_columns();
// The literals of a record for columns().
std::string values_of(const GFPDB_ROW& row);
// A line for COPY with the columns (a key, columns(), saved_by).
void add_copy_line(std::string& lines, const std::string& key, const GFPDB_ROW& row, const std::string& saved_by);
// A line with the columns (a key, all_columns()), as the record has them; without its end, where others may follow.
void add_whole_copy_line(std::string& lines, const std::string& key, const GFPDB_ROW& row);
void add_copy_column(std::string& lines, const std::string& text);
// The first text of the record that the server could not keep; null when there is none.
const char* unstorable_field(const GFPDB_ROW& row);

// What is selected of a record, without its flows or with them; and the record in such columns from `first` on.
const std::string& scalars_read();
const std::string& all_read();
GFPDB_ROW scalars_at(const GFPDB_SERVER_ROWS& rows, int row, int first);
GFPDB_ROW row_at(const GFPDB_SERVER_ROWS& rows, int row, int first);

} // namespace GFPDB_SERVER_SQL
