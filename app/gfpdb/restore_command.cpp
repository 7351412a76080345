#include "restore_command.h"

#include "gfpdb_action_value.h"
#include "gfpdb_text.h"

#include <limits>

void CLI_RESTORE_COMMAND::add_options(QCommandLineParser& parser) const
{
    Q_UNUSED(parser)
}

int CLI_RESTORE_COMMAND::run(const CLI_CALL& call) const
{
    const std::optional<std::int64_t> id = gfpdb_parse_decimal(call.argument(0));
    if (!id || *id > std::numeric_limits<int>::max())
        return call.wrong_usage(gfpdb_quoted(call.argument(0)) + " is no number of the history.");
    const std::string problem = call.database.read_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const std::optional<GFPDB_HISTORY_ENTRY> entry = call.database.store().find_history(static_cast<int>(*id));
    if (!entry) {
        call.output.error("There is no state " + call.argument(0) + " in the history of " + call.database.directory() +
                          ".");
        return CLI_EXIT_NOT_FOUND;
    }
    if (!call.database.manager().restore_flash(entry->id, std::string()))
        return call.database_failed(call.database.manager().get_last_error());
    call.output.print(std::string("Restored the ") + (entry->is_template ? "template " : "device ") +
                      gfpdb_quoted(entry->is_template ? entry->row.template_name : entry->row.name) + '\n');
    return CLI_EXIT_OK;
}
