// SPDX-License-Identifier: MIT

// What an import of files found and did.
#pragma once

#include "cli_command.h"

// A finding and the file that it is in.
struct CLI_FILE_FINDING
{
    std::string file;
    GFPDB_FINDING finding;
};

struct CLI_IMPORT_REPORT
{
    std::vector<CLI_FILE_FINDING> problems;
    std::vector<CLI_FILE_FINDING> warnings;
    // Why the database did not take the records; empty when it did, or was not asked to.
    std::string refusal;
    bool is_imported = false;
};

// One line: "Imported 3 new, 1 replaced; 0 unchanged in db/".
std::string cli_import_summary(const CLI_CALL& call, const GFPDB_IMPORT_PLAN& plan);
// All of it as an object.
std::string cli_import_json(const CLI_CALL& call, const GFPDB_IMPORT_PLAN& plan, const CLI_IMPORT_REPORT& report);
