// SPDX-License-Identifier: MIT
#include "commands/copy_device_command.h"

#include "cli_find.h"
#include "cli_new_device.h"
#include "cli_sfdp.h"

void CLI_COPY_DEVICE_COMMAND::add_options(QCommandLineParser& parser) const
{
    cli_add_place_options(parser, "Give the copy this");
    cli_add_place_options(parser, "Copy the device of this", CLI_OPTION_FROM_FAMILY, CLI_OPTION_FROM_SCHEME);
    parser.addOption(
        {QLatin1String(CLI_OPTION_DRY_RUN), QStringLiteral("Show what would happen, without changing anything.")});
}

int CLI_COPY_DEVICE_COMMAND::run(const CLI_CALL& call) const
{
    int exit_code = CLI_EXIT_OK;
    const std::optional<GFPDB_RECORD> source =
        cli_find_record(call, call.argument(0), exit_code, {CLI_OPTION_FROM_FAMILY, CLI_OPTION_FROM_SCHEME});
    if (!source)
        return exit_code;
    std::vector<std::string> warnings;
    std::string problem;
    const std::optional<GFPDB_RECORD> copy = gfpdb_copy_of(*source, call.argument(1), cli_new_family(call, &*source),
                                                           cli_new_scheme(call, &*source), warnings, problem);
    if (!copy)
        return call.database_failed(problem);
    if (call.database.load(*copy))
        return call.database_failed("The " + gfpdb_title(*copy) + " already exists.");
    cli_print_warnings(call, call.argument(0), warnings);
    exit_code = CLI_EXIT_OK;
    const char* const action = cli_store_device(call, *copy, call.argument(0), false, exit_code);
    if (action != nullptr)
        call.output.print(cli_stored_text(call, *copy, action));
    return exit_code;
}
