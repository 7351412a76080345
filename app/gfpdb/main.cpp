// SPDX-License-Identifier: MIT

// gfpdb: the command line tool of the flash database.
#include "cli_program.h"
#include "commands/gfpdb_commands.h"

int main(int argc, char** argv)
{
    return cli_main(argc, argv,
                    {"gfpdb",
                     "Manages the flash database of the programmer: its devices and flow templates.",
                     {CLI_LIST_COMMAND, CLI_SHOW_COMMAND, CLI_CHART_COMMAND, CLI_EXPORT_COMMAND, CLI_IMPORT_COMMAND,
                      CLI_DELETE_COMMAND, CLI_CHECK_COMMAND, CLI_HISTORY_COMMAND, CLI_RESTORE_COMMAND, CLI_DIFF_COMMAND,
                      CLI_COPY_DEVICE_COMMAND, CLI_FAMILIES_COMMAND, CLI_SCHEMES_COMMAND, CLI_SFDP_COMMAND,
                      CLI_COPY_COMMAND, CLI_SERVER_COMMAND}});
}
