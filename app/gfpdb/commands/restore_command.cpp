// SPDX-License-Identifier: MIT

// Makes a former state the current record again.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr const char* OPTION_REPLACE = "replace";
constexpr const char* OPTION_AS = "as";

// What to do when the name of `state` is in use; empty when it is not.
std::string hint_for(const CLI_CALL& call, const GFPDB_RECORD& state)
{
    if (call.database.load(state))
        return "Use --replace to replace the current record, or --as to give the state another name.";
    return call.database.is_name_of_other_kind(state) ? "Use --as to give the state another name." : "";
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back(
        {OPTION_REPLACE, "Replace the record that has the name now; its current state goes into the history."});
    options.push_back({OPTION_AS, "Restore it under this name; for a template, the template name.", "name"});
}

int run(const CLI_CALL& call)
{
    const std::string number = call.argument(0);
    const std::string new_name = call.value(OPTION_AS);
    const std::optional<std::int64_t> id = cli_history_id(number);
    if (!id)
        return call.wrong_usage(gfpdb_quoted(number) + " is not a number of the history.");
    if (call.has(OPTION_AS) && new_name.empty())
        return call.wrong_usage("--as is empty.");
    const std::optional<GFPDB_HISTORY_ENTRY> entry = call.database.load_state(*id);
    if (!entry && !call.database.get_last_error().empty())
        return call.database_failed(call.database.get_last_error());
    if (!entry) {
        call.output.error("There is no state " + number + " in the history of " + call.database.get_directory() + ".");
        return CLI_EXIT_NOT_FOUND;
    }
    GFPDB_RECORD state = {entry->is_template, entry->row, 0};
    if (!new_name.empty())
        (state.is_template ? state.row.template_name : state.row.name) = new_name;
    const GFPDB_RESTORE how = call.has(OPTION_REPLACE) ? GFPDB_RESTORE_REPLACE : GFPDB_RESTORE_KEEP;
    if (!call.database.get_manager().restore_flash(*id, std::string(), how, new_name)) {
        const int exit_code = call.database_failed(call.database.get_manager().get_last_error());
        const std::string hint = hint_for(call, state);
        if (how == GFPDB_RESTORE_KEEP && !hint.empty())
            call.output.error(hint);
        return exit_code;
    }
    call.output.print(std::string("Restored the ") + (state.is_template ? "template " : "device ") +
                      gfpdb_quoted(state.name()) + '\n');
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND CLI_RESTORE_COMMAND = {"restore", "Restore a former state", "ID", {1, 1}, add_options, run};
