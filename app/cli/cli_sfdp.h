// SPDX-License-Identifier: MIT

// SFDP read-outs in files, and device IDs in arguments.
#pragma once

#include "cli_command.h"

#include "gfpdb/gfpdb_sfdp.h"

#include <cstdint>

constexpr const char* CLI_OPTION_ID = "id";
constexpr const char* CLI_OPTION_SFDP = "sfdp";

// --id.
void cli_add_id_option(CLI_OPTIONS& options);
// The bytes of --id; none when it was not given. False: a message was printed.
bool cli_read_id(const CLI_CALL& call, std::vector<std::uint8_t>& id);

// What the tables in `path` say: a regular file, or standard input when it is "-", of at most GFPDB_SFDP_BYTES_MAX
// bytes. None: a message was printed, and the exit code is CLI_EXIT_BAD_FILE.
std::optional<GFPDB_SFDP> cli_read_sfdp(const CLI_CALL& call, const std::string& path);
// Prints warnings of `origin`, a file or a connection.
void cli_print_warnings(const CLI_CALL& call, const std::string& origin, const std::vector<std::string>& warnings);
