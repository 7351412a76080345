// SPDX-License-Identifier: MIT

// Copies a whole database to another directory.
#include "commands/gfpdb_commands.h"

#include "gfpdb/gfpdb_copy.h"

namespace {

constexpr const char* OPTION_FROM = "from";
constexpr const char* OPTION_TO = "to";

std::string summary_of(const GFPDB_COPY& copy)
{
    return cli_counted(copy.devices, "device") + ", " + cli_counted(copy.templates, "template") + " and " +
           cli_counted(copy.states, "state") + " of the history";
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({OPTION_FROM, "The database directory that is copied.", "directory"});
    options.push_back(
        {OPTION_TO, "The directory of the copy, which must exist. Its database is empty or missing.", "directory"});
}

int run(const CLI_CALL& call)
{
    if (call.has(CLI_OPTION_DIR))
        return call.wrong_usage("copy has --from and --to instead of --dir.");
    const std::string from = call.value(OPTION_FROM);
    const std::string to = call.value(OPTION_TO);
    if (from.empty() || to.empty())
        return call.wrong_usage("copy needs --from and --to.");
    const auto progress = [&call](const std::string& line) { call.output.progress_line(line); };
    const GFPDB_COPY copy =
        gfpdb_copy_database(from, to, [&progress](int done) { progress("Copied " + std::to_string(done)); });
    call.output.finish_progress();
    if (!copy.problem.empty())
        return call.database_failed(copy.problem);
    call.output.print("Copied " + summary_of(copy) + " from " + from + " to " + to + ", and compared them.\n");
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND CLI_COPY_COMMAND = {"copy",
                                      "Copy the whole database to another directory or server",
                                      "--from DIRECTORY --to DIRECTORY",
                                      {0, 0},
                                      add_options,
                                      run};
