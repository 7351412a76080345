// SPDX-License-Identifier: MIT
#include "store/gfpdb_store.h"

#include "gfpdb/gfpdb_server.h"
#include "store/server/gfpdb_server_store.h"
#include "store/sqlite/gfpdb_sqlite_store.h"

std::unique_ptr<GFPDB_STORE> gfpdb_make_store(const std::string& directory)
{
    if (gfpdb_names_server(directory))
        return std::make_unique<GFPDB_SERVER_STORE>(directory);
    return std::make_unique<GFPDB_SQLITE_STORE>(directory);
}

bool gfpdb_is_store_of(const GFPDB_STORE& store, const std::string& directory)
{
    return (dynamic_cast<const GFPDB_SERVER_STORE*>(&store) != nullptr) == gfpdb_names_server(directory);
}

std::function<void(int, int)>& gfpdb_upgrade_progress()
{
    static std::function<void(int, int)> progress;
    return progress;
}
