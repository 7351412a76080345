// Finds the record that a user means by a name.
#pragma once

#include "cli_command.h"

// The selection of a call: `name`, and the call's options for family and scheme.
CLI_SELECTION cli_selection(const CLI_CALL& call, const std::string& name);

// The one record called `name`, with its flows: a device of the directory, else a stored template, else a built-in
// device. None: a message was printed, and `exit_code` says what went wrong.
std::optional<CLI_RECORD> cli_find_one(const CLI_CALL& call, const std::string& name, int& exit_code);
