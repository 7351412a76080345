// SPDX-License-Identifier: MIT

// What the parts of GFPDB_SQLITE_STORE that deal with records share: pieces of statements, and values for and from
// them.
//
// Included by those sources only.
#pragma once

#include <QByteArray>
#include <QString>

#include <string>

class QSqlQuery;

// The columns that the tables device, template and history share: their names, and how their values are read. In the
// order in which gfpdb_sqlite_store.cpp binds and reads them.
#define GFPDB_COLUMNS                                                                                                  \
    "family, scheme, name, device_id, voltage, density, total_die, single_io_dummy_clock, quad_io_dummy_clock, "       \
    "template_name, flow_template, revision, saved_at, single_flows, quad_flows"
#define GFPDB_VALUES                                                                                                   \
    "?, ?, CAST(? AS TEXT), CAST(? AS TEXT), CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?, "                              \
    "CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, CAST(? AS TEXT), CAST(? AS TEXT)"
#define GFPDB_SCALARS_READ                                                                                             \
    "family, scheme, CAST(name AS BLOB), CAST(device_id AS BLOB), CAST(voltage AS BLOB), CAST(density AS BLOB), "      \
    "total_die, single_io_dummy_clock, quad_io_dummy_clock, CAST(template_name AS BLOB), "                             \
    "CAST(flow_template AS BLOB), revision"
#define GFPDB_ALL_READ GFPDB_SCALARS_READ ", CAST(single_flows AS BLOB), CAST(quad_flows AS BLOB)"

// The highest number that a state of the history was ever given; 0 before the first. Users name states by their
// numbers: those of removed states are not given again, so meta has what was the highest when states were last removed.
#define GFPDB_LAST_STATE                                                                                               \
    "max(coalesce((SELECT max(id) FROM history), 0), "                                                                 \
    "coalesce((SELECT CAST(value AS INTEGER) FROM meta WHERE name = 'last_state'), 0))"

constexpr char REASON_REPLACED[] = "replaced";
constexpr char REASON_DELETED[] = "deleted";
constexpr char REASON_PUT_BACK[] = "put back";

namespace GFPDB_SQL {

QByteArray bytes_of(const std::string& text);
// A name as the statements compare it.
QByteArray key_of(const std::string& name);
// The present time as the database keeps it.
QString now();
// The user and the machine, for people who share a directory.
QString here();
// The bytes of a column.
std::string text_at(const QSqlQuery& query, int column);

} // namespace GFPDB_SQL
