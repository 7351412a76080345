// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_server.h"

#include "base/gfpdb_text.h"
#include "store/server/gfpdb_server_connection.h"
#include "store/server/gfpdb_server_schema.h"
#include "store/server/gfpdb_server_sql.h"

#include <chrono>

namespace {

using CLOCK = GFPDB_SERVER_CONNECTION::CLOCK;

constexpr std::chrono::seconds LIMIT(10);

std::int64_t measured_round_trip(GFPDB_SERVER_CONNECTION& connection)
{
    GFPDB_SERVER_CONNECTION::RESULTS results;
    const CLOCK::time_point start = CLOCK::now();
    if (!connection.run("SELECT 1", results))
        return 0;
    return std::chrono::duration_cast<std::chrono::microseconds>(CLOCK::now() - start).count();
}

std::string role_of(const GFPDB_SERVER_ROWS& state)
{
    using namespace GFPDB_SERVER_SCHEMA_SQL;
    if (state.text(0, STATE_MAY_UPGRADE) == "t")
        return "owner";
    if (state.text(0, STATE_MAY_CHANGE) == "t")
        return "editor";
    return state.text(0, STATE_MAY_READ) == "t" ? "reader" : "";
}

bool count_records(GFPDB_SERVER_CONNECTION& connection, const std::string& schema, GFPDB_SERVER_STATUS& status)
{
    GFPDB_SERVER_CONNECTION::RESULTS results;
    const auto count_of = [&schema](const char* table) {
        return "(SELECT count(*) FROM " + schema + '.' + table + ')';
    };
    if (!connection.run("SELECT " + count_of("device") + ", " + count_of("template") + ", " + count_of("history"),
                        results))
        return false;
    status.devices = results.front().number(0, 0);
    status.templates = results.front().number(0, 1);
    status.history = results.front().number(0, 2);
    return true;
}

} // namespace

std::optional<GFPDB_SERVER_STATUS> gfpdb_server_status(const GFPDB_SERVER& server, const std::string& directory,
                                                       std::string& error)
{
    namespace SCHEMA = GFPDB_SERVER_SCHEMA_SQL;
    if (!gfpdb_check_server(server, error))
        return std::nullopt;
    GFPDB_SERVER_CONNECTION connection(server, directory);
    connection.set_deadline(CLOCK::now() + LIMIT);
    if (!connection.open()) {
        error = connection.last_error();
        return std::nullopt;
    }
    GFPDB_SERVER_STATUS status;
    status.host = connection.host();
    status.server_version = connection.server_version();
    status.login = connection.login();
    status.newest_schema_version = SCHEMA::VERSION;
    status.round_trip = measured_round_trip(connection);
    GFPDB_SERVER_CONNECTION::RESULTS results;
    if (connection.run(SCHEMA::state(server.schema), results)) {
        status.schema_version = static_cast<int>(results.front().number(0, SCHEMA::STATE_VERSION));
        status.role = role_of(results.front());
        status.problem =
            SCHEMA::version_problem(results.front(), gfpdb_quoted(server.database), status.host, server.schema);
    }
    if (connection.failure() != GFPDB_SERVER_CONNECTION::FAILURE::NONE ||
        (!status.role.empty() && !count_records(connection, server.schema, status))) {
        connection.explain();
        status.problem = connection.last_error();
    }
    return status;
}
