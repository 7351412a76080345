// SPDX-License-Identifier: MIT

// Exports with one file for each record.
#pragma once

#include "cli_command.h"

// A record with its flows, and the name of the file that it gets.
struct CLI_EXPORTED
{
    GFPDB_RECORD record;
    std::string file;
};

// Writes each record to its file in `directory` (local 8-bit), which is made if it is not there. A file that exists
// with different content is replaced only with CLI_OPTION_REPLACE; without it nothing is written. The exit code.
int cli_export_to_directory(const CLI_CALL& call, const std::vector<CLI_EXPORTED>& records,
                            const std::string& directory);

// Prints that a record is not exported because its flows cannot be read; the exit code.
int cli_report_unreadable(const CLI_CALL& call, const GFPDB_RECORD& record);
