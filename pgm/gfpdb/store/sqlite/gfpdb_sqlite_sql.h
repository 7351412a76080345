// SPDX-License-Identifier: MIT

// What the parts of GFPDB_SQLITE_STORE that deal with records share: pieces of statements, and values for and from
// them.
//
// The columns are the fields of a record (gfpdb_field.h), the revision, who saved it and when: texts go in as CAST(? AS
// TEXT) and come out as CAST(... AS BLOB), bytes as they are, where a conversion to UTF-16 and back would drop byte
// order marks and replace some characters. Included by those sources only.
#pragma once

#include "model/gfpdb_row.h"
#include "store/gfpdb_record_place.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <string>

class QSqlQuery;

// The name that the record of a state went by.
#define GFPDB_HISTORY_NAME "CAST(CASE WHEN is_template THEN template_name ELSE name END AS BLOB)"

// The first schema whose history has changed_by.
constexpr int GFPDB_CHANGED_BY_SCHEMA = 2;
// The first schema whose flows are texts of gfpdb_flow_text.h, and whose history has keys.
constexpr int GFPDB_FLOW_TEXT_SCHEMA = 3;
// The first schema whose records have saved_by.
constexpr int GFPDB_SAVED_BY_SCHEMA = 4;

// The highest number that a state of the history was ever given; 0 before the first. Users name states by their
// numbers: those of removed states are not given again, so meta has what was the highest when states were last removed.
#define GFPDB_LAST_STATE                                                                                               \
    "max(coalesce((SELECT max(id) FROM history), 0), "                                                                 \
    "coalesce((SELECT CAST(value AS INTEGER) FROM meta WHERE name = 'last_state'), 0))"

namespace GFPDB_SQL {

QByteArray bytes_of(const std::string& text);
// A name as the statements compare it.
QByteArray key_of(const std::string& name);
// The present time as the database keeps it.
QString now();
// The user and the machine, for people who share a directory.
QString here();
// The columns that the tables device, template and history share, as a list for a statement.
const std::string& columns();
// The end of a statement about the record at `place`, " FROM ... WHERE ...", and the values that it asks for.
std::string from(const GFPDB_RECORD_PLACE& place);
QVariantList values_of(const GFPDB_RECORD_PLACE& place);
// The statement that stores a device or template: asks for the key of its name, then for values_of().
std::string insertion(bool is_template);
QVariantList values_of(const GFPDB_ROW& row);
// The same for a state of the history, and for a record that is stored as it is, with who saved it and when.
std::string history_insertion();
QVariantList values_as_they_are(const GFPDB_ROW& row);

// What is selected of a record, without its flows or with them, from a file of that schema; and the record in such
// columns from `first` on.
std::string scalars_read(int schema);
std::string all_read(int schema);
GFPDB_ROW scalars_at(const QSqlQuery& query, int first);
GFPDB_ROW row_at(const QSqlQuery& query, int first);

// The bytes of a column.
std::string text_at(const QSqlQuery& query, int column);

} // namespace GFPDB_SQL
