// SPDX-License-Identifier: MIT

// Reads records from files into the directory: all of them, or none. Or makes a device of an SFDP read-out.
#include "commands/gfpdb_commands.h"

#include "commands/import_report.h"

#include "cli_new_device.h"
#include "cli_sfdp.h"

namespace {

constexpr const char* OPTION_UNCHECKED = "unchecked";

// What is wrong with options that do not go together; empty when nothing is.
std::string problem_of_options(const CLI_CALL& call)
{
    const bool is_sfdp = call.has(CLI_OPTION_SFDP);
    if (!is_sfdp && call.argument_count() == 0)
        return "An argument is missing: gfpdb import FILE...";
    if (is_sfdp && call.argument_count() > 0)
        return "--sfdp makes one device of its file: no other file can be imported with it.";
    for (const char* const option : {CLI_OPTION_ID, CLI_OPTION_NAME, CLI_OPTION_VOLTAGE, CLI_OPTION_SET}) {
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

// Reads the files into `plan`. False when one has problems.
bool read_files(const CLI_CALL& call, GFPDB_RECORD_RULES rules, GFPDB_IMPORT_PLAN& plan, CLI_IMPORT_REPORT& report)
{
    const GFPDB_READ_OPTIONS options = {call.has(CLI_OPTION_CSV), rules, call.family(), call.scheme()};
    for (int at = 0; at < call.argument_count(); ++at) {
        GFPDB_RECORD_FILE file = gfpdb_read_records(call.argument(at), call.database.get_manager(), options);
        if (file.problems.empty())
            plan.add(file);
        for (const GFPDB_FINDING& each : file.problems)
            report.problems.push_back({file.path, each});
        for (const GFPDB_FINDING& each : file.warnings)
            report.warnings.push_back({file.path, each});
    }
    for (const CLI_FILE_FINDING& each : report.problems)
        call.output.finding(each.file, each.finding);
    if (!report.problems.empty()) {
        call.output.error("Nothing was imported.");
        return false;
    }
    for (const CLI_FILE_FINDING& each : report.warnings)
        call.output.finding(each.file, each.finding);
    return true;
}

// Stores the records of the plan. False: the report says why not.
bool store(const CLI_CALL& call, const GFPDB_IMPORT_PLAN& plan, CLI_IMPORT_REPORT& report)
{
    const int total = static_cast<int>(plan.devices().size() + plan.templates().size());
    const auto goes_on = [&call, total](int done) {
        call.output.progress("Importing", done, total);
        return true;
    };
    report.is_imported = total == 0 || call.database.import(plan, goes_on);
    if (!report.is_imported)
        report.refusal = call.database.get_last_error();
    call.output.finish_progress();
    return report.is_imported;
}

int import_files(const CLI_CALL& call)
{
    const std::string problem = call.database.get_write_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const GFPDB_RECORD_RULES rules =
        call.has(OPTION_UNCHECKED) ? GFPDB_RECORD_RULES::NAMES : GFPDB_RECORD_RULES::IMPORTED;
    GFPDB_IMPORT_PLAN plan(call.database,
                           call.has(CLI_OPTION_REPLACE) ? GFPDB_EXISTING::REPLACED : GFPDB_EXISTING::REFUSED, rules);
    CLI_IMPORT_REPORT report;
    int exit_code = CLI_EXIT_OK;
    if (!read_files(call, rules, plan, report))
        exit_code = plan.has_unread() ? CLI_EXIT_DATABASE : CLI_EXIT_BAD_FILE;
    else if (!call.has(CLI_OPTION_DRY_RUN) && !store(call, plan, report))
        exit_code = call.database_failed(report.refusal);
    if (call.has(CLI_OPTION_JSON))
        call.output.print(cli_import_json(call, plan, report));
    else if (exit_code == CLI_EXIT_OK)
        call.output.print(cli_import_summary(call, plan));
    return exit_code;
}

void add_options(CLI_OPTIONS& options)
{
    cli_add_store_options(options);
    options.push_back({OPTION_UNCHECKED, "Accept values that the rules refuse. Names are still checked."});
    options.push_back({CLI_OPTION_CSV, "Read the files as comma-separated values, whatever their names."});
    cli_add_place_options(options, "Give all imported records this");
    options.push_back(
        {CLI_OPTION_SFDP, "Make a device of an SFDP read-out: raw bytes as command 5A reads them.", "file"});
    cli_add_id_option(options);
    cli_add_value_options(options);
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const std::string wrong = problem_of_options(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    return call.has(CLI_OPTION_SFDP) ? import_read_out(call) : import_files(call);
}

} // namespace

const CLI_COMMAND CLI_IMPORT_COMMAND = {
    "import", "Read records from files, all or none", "FILE...", {0, -1}, add_options, run};
