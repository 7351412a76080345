// SPDX-License-Identifier: MIT

// Holds the built-in parts against a folder of SFDP read-outs.
#pragma once

#include "cli_command.h"

// Compares every "*.bin" in the folder of --sfdp with the part that has its name; one that no part is called after,
// with the parts that have its ID. IDs are in the tables "*.tsv" of the folder, in the columns "file" and "jedec_id".
// The exit code: CLI_EXIT_DIFFERENT when a part differs, CLI_EXIT_BAD_FILE when a file cannot be compared.
int cli_check_read_outs(const CLI_CALL& call);
