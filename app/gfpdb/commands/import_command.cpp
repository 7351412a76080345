// SPDX-License-Identifier: MIT
#include "commands/import_command.h"

#include "exchange/gfpdb_import_plan.h"

namespace {

constexpr const char* OPTION_REPLACE = "replace";
constexpr const char* OPTION_DRY_RUN = "dry-run";
constexpr const char* OPTION_UNCHECKED = "unchecked";
constexpr const char* OPTION_CSV = "csv";

std::string summary_of(const IMPORT_PLAN& plan, const char* verb, const std::string& directory)
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
    const std::string problem = call.database.store().is_writable() ? "" : call.database.store().get_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const RECORD_FILE_OPTIONS options = {call.has(OPTION_CSV), call.has(OPTION_UNCHECKED),
                                         call.number(CLI_OPTION_FAMILY), call.number(CLI_OPTION_SCHEME)};
    IMPORT_PLAN plan(call.database, call.has(OPTION_REPLACE),
                     options.unchecked ? RECORD_RULES::NAMES : RECORD_RULES::IMPORTED);
    std::vector<std::pair<std::string, CLI_PROBLEM>> warnings;
    bool good = true;
    for (int at = 0; at < call.argument_count(); ++at) {
        RECORD_FILE file = read_record_file(call.argument(at), call.database.manager(), options);
        if (file.problems.empty())
            plan.add(file);
        for (const CLI_PROBLEM& each : file.problems)
            call.output.problem(file.path, each);
        for (const CLI_PROBLEM& each : file.warnings)
            warnings.emplace_back(file.path, each);
        good = good && file.problems.empty();
    }
    if (!good) {
        call.output.error("Nothing was imported.");
        return CLI_EXIT_BAD_FILE;
    }
    for (const auto& [path, warning] : warnings)
        call.output.problem(path, warning);
    if (call.has(OPTION_DRY_RUN)) {
        call.output.print(summary_of(plan, "Would import", call.database.directory()));
        return CLI_EXIT_OK;
    }
    const int total = static_cast<int>(plan.devices().size() + plan.templates().size());
    const auto progress = [&call, total](int done) { call.output.progress("Importing", done, total); };
    if (total > 0 && !call.database.store().save_all(plan.devices(), plan.templates(), progress))
        return call.database_failed(call.database.store().get_last_error());
    call.output.finish_progress();
    call.output.print(summary_of(plan, "Imported", call.database.directory()));
    return CLI_EXIT_OK;
}
