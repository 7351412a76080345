// SPDX-License-Identifier: MIT

// gfprog: the command line programmer.
#include "cli_program.h"
#include "commands/detect_command.h"
#include "commands/emulate_command.h"
#include "commands/learn_command.h"
#include "commands/operation_commands.h"
#include "commands/ports_command.h"

int main(int argc, char** argv)
{
    CLI_PROGRAM program = {"gfprog", "Programs serial flash devices with the flows of the flash database.", {}};
    program.commands.push_back(std::make_unique<GFPROG_DETECT_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_LEARN_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_PROGRAM_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_ERASE_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_BLANK_CHECK_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_VERIFY_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_READ_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_RUN_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_TRACE_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_EMULATE_COMMAND>());
    program.commands.push_back(std::make_unique<GFPROG_PORTS_COMMAND>());
    return cli_main(argc, argv, program);
}
