// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_server.h"

std::optional<GFPDB_SERVER_STATUS> gfpdb_server_status(const GFPDB_SERVER&, const std::string&, std::string& error)
{
    error = "Databases on servers cannot be used yet.";
    return std::nullopt;
}
