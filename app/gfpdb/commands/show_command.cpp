// SPDX-License-Identifier: MIT
#include "commands/show_command.h"

#include "cli_find.h"
#include "record_text.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr const char* OPTION_VARIANT = "variant";
constexpr const char* SINGLE = "single";
constexpr const char* QUAD = "quad";
constexpr const char* BOTH = "both";

} // namespace

std::vector<std::string> CLI_SHOW_COMMAND::choices(const std::string& value) const
{
    return value == OPTION_VARIANT ? std::vector<std::string>{SINGLE, QUAD, BOTH} : std::vector<std::string>();
}

void CLI_SHOW_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({QLatin1String(OPTION_VARIANT), QStringLiteral("The flows to show: single, quad or both."),
                      QStringLiteral("variant"), QLatin1String(BOTH)});
    cli_add_place_options(parser, "Only devices of this");
    cli_add_json_option(parser);
}

int CLI_SHOW_COMMAND::run(const CLI_CALL& call) const
{
    const std::string variant = call.value(OPTION_VARIANT);
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
