// SPDX-License-Identifier: MIT

// Where a program gets at the flash database.
#pragma once

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_export.h"

#include <string>

class GFPDB_MGR;

// GUI thread only.
class GFPDB_EXPORT GFPDB_HELPER
{
public:
    GFPDB_HELPER() = delete;

    // Chooses the flash that goes with `scheme` for the next fetch of the manager. False for a value that is not a
    // scheme.
    static bool set_active_flash_family(PGMIO_CONFIG_SCHEME scheme);
    // The manager of the active flash; `reload` true opens the database of the custom directory again. Not owned by the
    // caller. Never null in this library; a caller must not rely on that.
    static GFPDB_MGR* get_active_flash_manager(bool reload);
    // What keeps the database of the custom directory from being read or written, or else the catalogue that the
    // environment names from being used, as a sentence for the user; empty when nothing does.
    static std::string get_database_problem();
    // The directory that relative database directories are relative to, wherever one is named: in the calls of the
    // manager and in the settings file. Empty stands for the process's current directory, which is so until the first
    // call; a relative one is itself relative to that. A custom directory that was set already stays where it is; one
    // that comes from the settings file is found again. Local 8-bit.
    static void set_base_dir(std::string directory);
};
