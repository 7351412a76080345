// SPDX-License-Identifier: MIT

// Prints what an SFDP read-out says, and with an ID the listed parts that differ from it.
#include "commands/gfpdb_commands.h"

#include "cli_sfdp.h"
#include "cli_values.h"
#include "output/sfdp_values.h"

namespace {

std::string json(const GFPDB_SFDP& sfdp, const std::vector<GFPDB_PART_COMPARISON>* parts)
{
    CLI_JSON json;
    cli_add_values(json, "values", sfdp_values(sfdp));
    json.add("warnings", sfdp.warnings);
    if (parts != nullptr)
        cli_add_parts(json, "parts", *parts);
    return json.text();
}

void add_options(CLI_OPTIONS& options)
{
    cli_add_id_option(options);
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    std::vector<std::uint8_t> id;
    if (!cli_read_id(call, id))
        return CLI_EXIT_USAGE;
    const std::string path = call.argument(0);
    const std::optional<GFPDB_SFDP> sfdp = cli_read_sfdp(call, path);
    if (!sfdp)
        return CLI_EXIT_BAD_FILE;
    std::vector<GFPDB_PART_COMPARISON> parts;
    if (!id.empty())
        parts = gfpdb_compare_with_catalogue(id, *sfdp);
    if (call.has(CLI_OPTION_JSON))
        call.output.print(json(*sfdp, id.empty() ? nullptr : &parts));
    else
        call.output.print(cli_values_table(sfdp_values(*sfdp)) + (id.empty() ? std::string() : cli_parts_text(parts)));
    cli_print_warnings(call, path, sfdp->warnings);
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND CLI_SFDP_COMMAND = {"sfdp", "Show what a chip says of itself (SFDP)", "FILE", {1, 1}, add_options,
                                      run};
