// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_server.h"

std::string gfpdb_server_sql(const std::string& schema)
{
    return "-- The schema " + schema + ".\n";
}
