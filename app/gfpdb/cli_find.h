// SPDX-License-Identifier: MIT

// Finds what a user means by a name or a number.
#pragma once

#include "cli_command.h"

#include <cstdint>

// The selection of a call: `name`, and the call's options for family and scheme.
CLI_SELECTION cli_selection(const CLI_CALL& call, const std::string& name);

// The one record called `name`, with its flows: a device of the directory, else a stored template, else a built-in
// device. None: a message was printed, and `exit_code` says what went wrong.
std::optional<CLI_RECORD> cli_find_one(const CLI_CALL& call, const std::string& name, int& exit_code);

// The number of a state in the history, as in "17"; none when `text` is not a whole number of 64 bit.
std::optional<std::int64_t> cli_history_id(const std::string& text);
