// SPDX-License-Identifier: MIT

// What is in a schema of the server besides records: its tables, their version, its roles.
//
// The roles and their rights are the server's: an administrator makes them with gfpdb_server_sql(), and grants them to
// logins. The owner may also bring the schema of an older program up to date.
#pragma once

#include <string>
#include <vector>

class GFPDB_SERVER_ROWS;

namespace GFPDB_SERVER_SCHEMA_SQL {

// The version that this program makes and works with.
constexpr int VERSION = 2;

// The statements that lead from version `from` to `to` in `schema`; they do no harm where a part of them was run. With
// them the schema's owner makes tables, and other roles get their rights.
std::string steps(const std::string& schema, int from, int to);

// One row: the version, the identity of the database, whether the login may read records, change them, and make tables
// of the schema, and whether the server takes no changes now. Fails when there is no such schema, or no right to it.
std::string state(const std::string& schema);
enum STATE_COLUMN
{
    STATE_VERSION,
    STATE_DATABASE_ID,
    STATE_MAY_READ,
    STATE_MAY_CHANGE,
    STATE_MAY_UPGRADE,
    STATE_IS_READ_ONLY,
};

// Why the database cannot be used in the version that state() has found there; empty when it can, or when the login may
// bring it up to date. `database` is in quotes.
std::string version_problem(const GFPDB_SERVER_ROWS& state, const std::string& database, const std::string& host,
                            const std::string& schema);

// Fails with DIVISION_BY_ZERO where `condition` is not true: so a transaction that is sent as a whole, with its end,
// ends before its changes.
std::string assertion(const std::string& condition);
constexpr char DIVISION_BY_ZERO[] = "22012";

} // namespace GFPDB_SERVER_SCHEMA_SQL
