// SPDX-License-Identifier: MIT

// gfprog: the command line programmer.
#include "cli_program.h"
#include "commands/gfprog_commands.h"

int main(int argc, char** argv)
{
    return cli_main(argc, argv,
                    {"gfprog",
                     "Programs serial flash devices with the flows of the flash database.",
                     {GFPROG_DETECT_COMMAND, GFPROG_LEARN_COMMAND, GFPROG_PROGRAM_COMMAND, GFPROG_ERASE_COMMAND,
                      GFPROG_BLANK_CHECK_COMMAND, GFPROG_VERIFY_COMMAND, GFPROG_READ_COMMAND, GFPROG_RUN_COMMAND,
                      GFPROG_TRACE_COMMAND, GFPROG_EMULATE_COMMAND, GFPROG_PORTS_COMMAND}});
}
