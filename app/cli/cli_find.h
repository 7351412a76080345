// SPDX-License-Identifier: MIT

// Finds what a user means by a name or a number.
#pragma once

#include "cli_command.h"

#include <cstdint>

// What is said of a record that GFPDB_DATABASE::find_misplaced() finds.
constexpr const char* CLI_MISPLACED =
    "The stored key does not match the name, so that no search finds the record: \"gfpdb check --rebuild-keys\" "
    "repairs that, unless another record has the name.";

// The options that select among devices of one name.
struct CLI_PLACE_OPTIONS
{
    const char* family = CLI_OPTION_FAMILY;
    const char* scheme = CLI_OPTION_SCHEME;
};

// The selection of a call: `name`, and the call's options for family and scheme.
GFPDB_SELECTION cli_selection(const CLI_CALL& call, const std::string& name, const CLI_PLACE_OPTIONS& options = {});

// What GFPDB_DATABASE::find_stored() finds. None when it cannot be read, which is not to be taken for nothing: a
// message was printed, and `exit_code` is set.
std::optional<std::vector<GFPDB_RECORD>> cli_find_stored(const CLI_CALL& call, const GFPDB_SELECTION& selection,
                                                         int& exit_code);

// The one record called `name`, with its flows: a device of the directory, else a stored template, else a built-in
// device, which a directory that cannot be used at all does not keep from being found. None: a message was printed, and
// `exit_code` says what went wrong.
std::optional<GFPDB_RECORD> cli_find_one(const CLI_CALL& call, const std::string& name, int& exit_code,
                                         const CLI_PLACE_OPTIONS& options = {});

// What a state of the history begins with where a name is possible as well.
constexpr const char* CLI_HISTORY_PREFIX = "history:";

// Where a command takes a record: a name as above, or "history:17" for a state of the history, with its flows. A device
// or template of the directory that is called so comes first: "history:017" is the state beside it. `state` (may be
// null) becomes the number of the state, or none for a record.
std::optional<GFPDB_RECORD> cli_find_record(const CLI_CALL& call, const std::string& operand, int& exit_code,
                                            const CLI_PLACE_OPTIONS& options = {},
                                            std::optional<std::int64_t>* state = nullptr);
// True for what is written as a state, as "history:17".
bool cli_is_state(const std::string& operand);

// The number of a state in the history, as in "17"; none when `text` is not a whole number of 64 bit.
std::optional<std::int64_t> cli_history_id(const std::string& text);
