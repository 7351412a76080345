// SPDX-License-Identifier: MIT

// Makes a new device of a built-in or stored one, with both variants of its flows.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"
#include "cli_new_device.h"
#include "cli_sfdp.h"

namespace {

void add_options(CLI_OPTIONS& options)
{
    cli_add_place_options(options, "Give the copy this");
    cli_add_place_options(options, "Copy the device of this", CLI_OPTION_FROM_FAMILY, CLI_OPTION_FROM_SCHEME);
    options.push_back({CLI_OPTION_DRY_RUN, "Show what would happen, without changing anything."});
}

int run(const CLI_CALL& call)
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

} // namespace

const CLI_COMMAND CLI_COPY_DEVICE_COMMAND = {
    "copy-device", "Make a new device of another one", "SOURCE NAME", {2, 2}, add_options, run};
