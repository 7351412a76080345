// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_helper.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "manager/gfpdb_embedded_mgr.h"

#include <optional>

namespace {

// The scheme for the next fetch of the manager; none when it was fetched since.
std::optional<int>& next_scheme()
{
    static std::optional<int> scheme;
    return scheme;
}

} // namespace

bool GFPDB_HELPER::set_active_flash_family(PGMIO_CONFIG_SCHEME scheme)
{
    next_scheme() = scheme;
    return scheme >= 0 && scheme < PGMIO_ILLEGAL_SCHEME;
}

GFPDB_MGR* GFPDB_HELPER::get_active_flash_manager(bool reload)
{
    GFPDB_EMBEDDED_MGR& manager = GFPDB_EMBEDDED_MGR::instance();
    if (reload || manager.store().get_directory() != GFPDB_MGR::get_db_custom_dir())
        manager.reload();
    if (next_scheme())
        manager.set_config_scheme(*next_scheme());
    next_scheme().reset();
    return &manager;
}

std::string GFPDB_HELPER::get_database_problem()
{
    const std::string problem = GFPDB_EMBEDDED_MGR::instance().store().get_problem();
    return problem.empty() ? gfpdb_catalogue_problem() : problem;
}
