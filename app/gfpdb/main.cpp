// SPDX-License-Identifier: MIT

// gfpdb: the command line tool of the flash database.
#include "cli_program.h"
#include "commands/chart_command.h"
#include "commands/check_command.h"
#include "commands/copy_command.h"
#include "commands/copy_device_command.h"
#include "commands/delete_command.h"
#include "commands/diff_command.h"
#include "commands/export_command.h"
#include "commands/history_command.h"
#include "commands/import_command.h"
#include "commands/list_command.h"
#include "commands/place_commands.h"
#include "commands/restore_command.h"
#include "commands/server_command.h"
#include "commands/sfdp_command.h"
#include "commands/show_command.h"

namespace {

CLI_PROGRAM make_program()
{
    CLI_PROGRAM program = {
        "gfpdb", "Manages the flash database of the programmer: its devices and flow templates.", {}};
    program.commands.push_back(std::make_unique<CLI_LIST_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_SHOW_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_CHART_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_EXPORT_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_IMPORT_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_DELETE_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_CHECK_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_HISTORY_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_RESTORE_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_DIFF_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_COPY_DEVICE_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_FAMILIES_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_SCHEMES_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_SFDP_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_COPY_COMMAND>());
    program.commands.push_back(std::make_unique<CLI_SERVER_COMMAND>());
    return program;
}

} // namespace

int main(int argc, char** argv)
{
    return cli_main(argc, argv, make_program());
}
