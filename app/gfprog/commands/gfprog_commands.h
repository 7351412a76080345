// SPDX-License-Identifier: MIT

// The commands of gfprog, in the order of its help. Those that run operations are in operation_commands.cpp, each other
// one in the source that has its name.
#pragma once

#include "gfprog_options.h"

extern const CLI_COMMAND GFPROG_DETECT_COMMAND;
extern const CLI_COMMAND GFPROG_LEARN_COMMAND;
extern const CLI_COMMAND GFPROG_PROGRAM_COMMAND;
extern const CLI_COMMAND GFPROG_ERASE_COMMAND;
extern const CLI_COMMAND GFPROG_BLANK_CHECK_COMMAND;
extern const CLI_COMMAND GFPROG_VERIFY_COMMAND;
extern const CLI_COMMAND GFPROG_READ_COMMAND;
extern const CLI_COMMAND GFPROG_RUN_COMMAND;
extern const CLI_COMMAND GFPROG_TRACE_COMMAND;
extern const CLI_COMMAND GFPROG_EMULATE_COMMAND;
extern const CLI_COMMAND GFPROG_PORTS_COMMAND;
