// SPDX-License-Identifier: MIT
#include "commands/export_command.h"

#include "cli_find.h"
#include "record_writer.h"

#include "gfpdb/gfpdb_text.h"

namespace {

// The named records, or all of the directory, with their flows. None: a message was printed.
std::optional<std::vector<GFPDB_RECORD>> collect(const CLI_CALL& call, int& exit_code)
{
    std::vector<GFPDB_RECORD> records;
    for (int at = 0; at < call.argument_count(); ++at) {
        const std::optional<GFPDB_RECORD> record = cli_find_one(call, call.argument(at), exit_code);
        if (!record)
            return std::nullopt;
        records.push_back(*record);
    }
    if (call.argument_count() > 0)
        return records;
    const GFPDB_SELECTION selection = cli_selection(call, std::string());
    for (const GFPDB_RECORD& record : call.database.find_misplaced(selection))
        exit_code = call.database_failed(gfpdb_title(record) + ": " + CLI_MISPLACED);
    if (exit_code != CLI_EXIT_OK)
        return std::nullopt;
    const std::vector<GFPDB_RECORD> found = call.database.find_stored(selection);
    for (const GFPDB_RECORD& each : found) {
        // What another program has removed meanwhile is not there to be exported.
        if (const std::optional<GFPDB_RECORD> record = call.database.load(each))
            records.push_back(*record);
        call.output.progress("Exporting", static_cast<int>(records.size()), static_cast<int>(found.size()));
    }
    call.output.finish_progress();
    const std::string problem = call.database.get_read_problem();
    if (problem.empty() && call.database.get_last_error().empty())
        return records;
    exit_code = call.database_failed(problem.empty() ? call.database.get_last_error() : problem);
    return std::nullopt;
}

int write_file(const CLI_CALL& call, const std::string& text)
{
    std::string problem;
    if (write_record_file(call.value(CLI_OPTION_OUTPUT), text, problem))
        return CLI_EXIT_OK;
    call.output.error(call.value(CLI_OPTION_OUTPUT) + ": The file cannot be written: " + problem + ".");
    return CLI_EXIT_BAD_FILE;
}

} // namespace

void CLI_EXPORT_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({{QStringLiteral("o"), QLatin1String(CLI_OPTION_OUTPUT)},
                      QStringLiteral("Write to this file instead of standard output."),
                      QStringLiteral("file")});
    cli_add_csv_options(parser, "Write a list of the devices, without their flows, as comma-separated values.");
    cli_add_place_options(parser, "Only devices of this");
}

int CLI_EXPORT_COMMAND::run(const CLI_CALL& call) const
{
    if (call.has(CLI_OPTION_OUTPUT) && call.value(CLI_OPTION_OUTPUT).empty())
        return call.wrong_usage("--output is empty.");
    int exit_code = CLI_EXIT_OK;
    const std::optional<std::vector<GFPDB_RECORD>> records = collect(call, exit_code);
    if (!records)
        return exit_code;
    exit_code = CLI_EXIT_OK;
    std::vector<GFPDB_RECORD> unreadable;
    const std::optional<GFPDB_LIST_FOR> csv = call.list_reader();
    const std::string text = csv ? gfpdb_write_list(*records, *csv) : gfpdb_write_records(*records, unreadable);
    if (!call.has(CLI_OPTION_OUTPUT))
        call.output.print(text);
    else if (exit_code = write_file(call, text); exit_code != CLI_EXIT_OK)
        return exit_code;
    for (const GFPDB_RECORD& record : unreadable)
        exit_code =
            call.database_failed("The flows of the " + gfpdb_title(record) + " cannot be read: it is not exported.");
    return exit_code;
}
