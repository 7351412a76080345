// SPDX-License-Identifier: MIT
#include "commands/import_command.h"

namespace {

constexpr const char* OPTION_REPLACE = "replace";
constexpr const char* OPTION_DRY_RUN = "dry-run";
constexpr const char* OPTION_UNCHECKED = "unchecked";
constexpr const char* OPTION_CSV = "csv";

std::string summary_of(const GFPDB_IMPORT_PLAN& plan, const char* verb, const std::string& directory)
{
    return std::string(verb) + ' ' + std::to_string(plan.new_count()) + " new, " +
           std::to_string(plan.replaced_count()) + " replaced; " + std::to_string(plan.unchanged_count()) +
           " unchanged in " + directory + '\n';
}

} // namespace

void CLI_IMPORT_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption(
        {QLatin1String(OPTION_REPLACE), QStringLiteral("Replace records that exist with different content; "
                                                       "their former states go into the history.")});
    parser.addOption(
        {QLatin1String(OPTION_DRY_RUN), QStringLiteral("Show what would happen, without changing anything.")});
    parser.addOption({QLatin1String(OPTION_UNCHECKED), QStringLiteral("Accept values that the rules refuse. Names are "
                                                                      "still checked.")});
    parser.addOption({QLatin1String(OPTION_CSV), QStringLiteral("Read the files as comma-separated values, whatever "
                                                                "their names.")});
    cli_add_place_options(parser, "Give all imported records this");
}

int CLI_IMPORT_COMMAND::run(const CLI_CALL& call) const
{
    const std::string problem = call.database.get_write_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const GFPDB_RECORD_RULES rules =
        call.has(OPTION_UNCHECKED) ? GFPDB_RECORD_RULES::NAMES : GFPDB_RECORD_RULES::IMPORTED;
    const GFPDB_READ_OPTIONS options = {call.has(OPTION_CSV), rules, call.family(), call.scheme()};
    GFPDB_IMPORT_PLAN plan(call.database, call.has(OPTION_REPLACE), rules);
    std::vector<std::pair<std::string, GFPDB_FINDING>> warnings;
    bool good = true;
    for (int at = 0; at < call.argument_count(); ++at) {
        GFPDB_RECORD_FILE file = gfpdb_read_records(call.argument(at), call.database.get_manager(), options);
        if (file.problems.empty())
            plan.add(file);
        for (const GFPDB_FINDING& each : file.problems)
            call.output.finding(file.path, each);
        for (const GFPDB_FINDING& each : file.warnings)
            warnings.emplace_back(file.path, each);
        good = good && file.problems.empty();
    }
    if (!good) {
        call.output.error("Nothing was imported.");
        return CLI_EXIT_BAD_FILE;
    }
    for (const auto& [path, warning] : warnings)
        call.output.finding(path, warning);
    if (call.has(OPTION_DRY_RUN)) {
        call.output.print(summary_of(plan, "Would import", call.database.get_directory()));
        return CLI_EXIT_OK;
    }
    const int total = static_cast<int>(plan.devices().size() + plan.templates().size());
    const auto progress = [&call, total](int done) { call.output.progress("Importing", done, total); };
    if (total > 0 && !call.database.import(plan, progress))
        return call.database_failed(call.database.get_last_error());
    call.output.finish_progress();
    call.output.print(summary_of(plan, "Imported", call.database.get_directory()));
    return CLI_EXIT_OK;
}
