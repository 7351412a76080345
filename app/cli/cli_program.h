// SPDX-License-Identifier: MIT

// A command line tool: finds the command, reads its options, runs it.
#pragma once

#include "cli_command.h"

#include <memory>
#include <vector>

struct CLI_PROGRAM
{
    // "gfpdb", and what it is for, a sentence.
    const char* name;
    const char* purpose;
    std::vector<std::unique_ptr<CLI_COMMAND>> commands;
};

// What main() of a tool does: runs it with its arguments and gives its exit code. Arguments are UTF-8, paths any bytes.
int cli_main(int argc, char** argv, const CLI_PROGRAM& program);
