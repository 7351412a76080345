// SPDX-License-Identifier: MIT

// Prints one record with its flows.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"
#include "record_text.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr const char* OPTION_VARIANT = "variant";
constexpr const char* SINGLE = "single";
constexpr const char* QUAD = "quad";
constexpr const char* BOTH = "both";

std::vector<std::string> choices(const std::string& value)
{
    return value == OPTION_VARIANT ? std::vector<std::string>{SINGLE, QUAD, BOTH} : std::vector<std::string>();
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({OPTION_VARIANT, "The flows to show: single, quad or both.", "variant"});
    cli_add_place_options(options, "Only devices of this");
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const std::string variant = call.has(OPTION_VARIANT) ? call.value(OPTION_VARIANT) : BOTH;
    if (variant != SINGLE && variant != QUAD && variant != BOTH)
        return call.wrong_usage(gfpdb_quoted(variant) + " is not a flow variant. Allowed: single, quad, both.");
    int exit_code = CLI_EXIT_OK;
    std::optional<GFPDB_RECORD> record = cli_find_record(call, call.argument(0), exit_code);
    if (!record)
        return exit_code;
    const std::optional<std::string> json = gfpdb_write_record(*record);
    if (!json)
        return call.database_failed("The flows of " + gfpdb_quoted(record->name()) + " cannot be read.");
    call.output.print(call.has(CLI_OPTION_JSON) ? *json : record_to_text(*record, variant != QUAD, variant != SINGLE));
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND CLI_SHOW_COMMAND = {"show", "Show a record with its flows", "NAME", {1, 1}, add_options, run,
                                      choices};
