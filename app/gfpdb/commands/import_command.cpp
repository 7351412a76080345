// SPDX-License-Identifier: MIT
#include "commands/import_command.h"

#include "cli_new_device.h"
#include "cli_sfdp.h"

namespace {

constexpr const char* OPTION_UNCHECKED = "unchecked";

std::string summary_of(const GFPDB_IMPORT_PLAN& plan, const char* verb, const std::string& directory)
{
    return std::string(verb) + ' ' + std::to_string(plan.new_count()) + " new, " +
           std::to_string(plan.replaced_count()) + " replaced; " + std::to_string(plan.unchanged_count()) +
           " unchanged in " + directory + '\n';
}

// What is wrong with options that do not go together; empty when nothing is.
std::string problem_of_options(const CLI_CALL& call)
{
    const bool is_sfdp = call.has(CLI_OPTION_SFDP);
    if (!is_sfdp && call.argument_count() == 0)
        return "An argument is missing: gfpdb import FILE...";
    if (is_sfdp && call.argument_count() > 0)
        return "--sfdp makes one device of its file: no other file can be imported with it.";
    for (const char* const option :
         {CLI_OPTION_ID, CLI_OPTION_NAME, CLI_OPTION_VOLTAGE, CLI_OPTION_SET, CLI_OPTION_JSON}) {
        if (!is_sfdp && call.has(option))
            return std::string("--") + option + " needs --sfdp.";
    }
    for (const char* const option : {OPTION_UNCHECKED, CLI_OPTION_CSV}) {
        if (is_sfdp && call.has(option))
            return std::string("--") + option + " and --sfdp cannot be used together.";
    }
    return std::string();
}

int import_read_out(const CLI_CALL& call)
{
    CLI_CHIP chip;
    chip.origin = call.value(CLI_OPTION_SFDP);
    if (!cli_read_id(call, chip.id))
        return CLI_EXIT_USAGE;
    chip.sfdp = cli_read_sfdp(call, chip.origin);
    return chip.sfdp ? cli_propose_device(call, chip, false, true) : int(CLI_EXIT_BAD_FILE);
}

int import_files(const CLI_CALL& call)
{
    const std::string problem = call.database.get_write_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const GFPDB_RECORD_RULES rules =
        call.has(OPTION_UNCHECKED) ? GFPDB_RECORD_RULES::NAMES : GFPDB_RECORD_RULES::IMPORTED;
    const GFPDB_READ_OPTIONS options = {call.has(CLI_OPTION_CSV), rules, call.family(), call.scheme()};
    GFPDB_IMPORT_PLAN plan(call.database, call.has(CLI_OPTION_REPLACE), rules);
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
    if (call.has(CLI_OPTION_DRY_RUN)) {
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

} // namespace

void CLI_IMPORT_COMMAND::add_options(QCommandLineParser& parser) const
{
    cli_add_store_options(parser);
    parser.addOption({QLatin1String(OPTION_UNCHECKED), QStringLiteral("Accept values that the rules refuse. Names are "
                                                                      "still checked.")});
    parser.addOption(
        {QLatin1String(CLI_OPTION_CSV), QStringLiteral("Read the files as comma-separated values, whatever "
                                                       "their names.")});
    cli_add_place_options(parser, "Give all imported records this");
    parser.addOption({QLatin1String(CLI_OPTION_SFDP),
                      QStringLiteral("Make a device of an SFDP read-out: raw bytes as command 5A reads them."),
                      QStringLiteral("file")});
    cli_add_id_option(parser);
    cli_add_value_options(parser);
    cli_add_json_option(parser);
}

int CLI_IMPORT_COMMAND::run(const CLI_CALL& call) const
{
    const std::string wrong = problem_of_options(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    return call.has(CLI_OPTION_SFDP) ? import_read_out(call) : import_files(call);
}
