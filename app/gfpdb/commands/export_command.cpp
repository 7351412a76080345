// SPDX-License-Identifier: MIT

// Writes records to a file: JSON with both flow variants, or a list of devices as CSV.
#include "commands/gfpdb_commands.h"

#include "commands/export_directory.h"

#include "cli_find.h"
#include "cli_new_device.h"
#include "record_filter.h"
#include "record_writer.h"

#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <set>

namespace {

constexpr const char* OPTION_DIRECTORY = "directory";

// What is exported: each record once, in the order of the arguments.
class EXPORTED_RECORDS
{
public:
    explicit EXPORTED_RECORDS(const CLI_CALL& call)
        : m_call(call), m_is_builtin(call.has(CLI_OPTION_BUILTIN)), m_selection(cli_selection(call, std::string()))
    {}

    // Adds all that is there; those whose names match, for a wildcard; the record of the operand. False: a message was
    // printed, and exit_code() says what went wrong.
    bool add_all() { return add_matching(QRegularExpression()); }
    bool add(const std::string& operand)
    {
        if (!cli_is_state(operand) && has_wildcard(operand)) {
            const std::optional<bool> is_name = has_record(operand);
            if (!is_name || !*is_name)
                return is_name && add_wildcard(operand);
        }
        std::optional<std::int64_t> state;
        const std::optional<GFPDB_RECORD> record = find(operand, state);
        if (record)
            add_once(*record, state);
        return record.has_value();
    }

    const std::vector<CLI_EXPORTED>& records() const { return m_records; }
    int exit_code() const { return m_exit_code; }

private:
    // A name may have a star or a question mark itself. None: as add().
    std::optional<bool> has_record(const std::string& name)
    {
        const GFPDB_SELECTION selection = cli_selection(m_call, name);
        const bool is_builtin = !m_call.database.find_builtin(selection).empty();
        if (m_is_builtin || is_builtin)
            return is_builtin;
        const std::optional<std::vector<GFPDB_RECORD>> stored = cli_find_stored(m_call, selection, m_exit_code);
        return stored ? std::optional<bool>(!stored->empty()) : std::nullopt;
    }

    std::optional<GFPDB_RECORD> find(const std::string& operand, std::optional<std::int64_t>& state)
    {
        if (!m_is_builtin || cli_is_state(operand))
            return cli_find_record(m_call, operand, m_exit_code, {}, &state);
        const std::vector<GFPDB_RECORD> builtin = m_call.database.find_builtin(cli_selection(m_call, operand));
        if (!builtin.empty())
            return builtin.front();
        fail("There is no built-in device called " + gfpdb_quoted(operand) + '.');
        return std::nullopt;
    }

    bool add_wildcard(const std::string& pattern)
    {
        const std::size_t before = m_matches;
        if (!add_matching(record_wildcard(gfpdb_from_utf8(pattern))))
            return false;
        if (m_matches > before)
            return true;
        return fail("No " +
                    (m_is_builtin ? std::string("built-in device")
                                  : "device or template in " + m_call.database.get_directory()) +
                    " matches " + gfpdb_quoted(pattern) + '.' +
                    (m_is_builtin ? "" : " --builtin exports built-in devices."));
    }

    bool add_matching(const QRegularExpression& pattern)
    {
        const auto is_out = [&pattern](const GFPDB_RECORD& record) {
            return !pattern.match(gfpdb_from_utf8(record.name())).hasMatch();
        };
        const auto matching = [&is_out](std::vector<GFPDB_RECORD> records) {
            records.erase(std::remove_if(records.begin(), records.end(), is_out), records.end());
            return records;
        };
        const std::optional<std::vector<GFPDB_RECORD>> all = m_is_builtin
                                                                 ? m_call.database.find_builtin(m_selection)
                                                                 : cli_find_stored(m_call, m_selection, m_exit_code);
        if (!all)
            return false;
        const std::vector<GFPDB_RECORD> found = matching(*all);
        m_matches += found.size();
        if (!m_is_builtin)
            return add_stored(found, matching(m_call.database.find_misplaced(m_selection)));
        for (const GFPDB_RECORD& record : found)
            add_once(record);
        return true;
    }

    bool add_stored(const std::vector<GFPDB_RECORD>& found, const std::vector<GFPDB_RECORD>& misplaced)
    {
        if (!m_call.database.get_last_error().empty())
            return fail_to_read(m_call.database.get_last_error());
        for (const GFPDB_RECORD& record : misplaced)
            m_exit_code = m_call.database_failed(gfpdb_title(record) + ": " + CLI_MISPLACED);
        if (!misplaced.empty())
            return false;
        int done = 0;
        for (const GFPDB_RECORD& each : found) {
            // What another program has removed meanwhile is not there to be exported.
            if (const std::optional<GFPDB_RECORD> record = m_call.database.load(each))
                add_once(*record);
            else if (!m_call.database.get_last_error().empty())
                return fail_to_read(m_call.database.get_last_error());
            m_call.output.progress("Exporting", ++done, static_cast<int>(found.size()));
        }
        m_call.output.finish_progress();
        return true;
    }

    bool fail_to_read(const std::string& problem)
    {
        m_exit_code = m_call.database_failed(problem);
        return false;
    }

    void add_once(const GFPDB_RECORD& record, const std::optional<std::int64_t>& state = std::nullopt)
    {
        const std::string file =
            state ? record_file_name(record, ".history-" + std::to_string(*state) + ".json") : record_file_name(record);
        if (m_files.insert(file).second)
            m_records.push_back({record, file});
    }

    bool fail(const std::string& text)
    {
        m_call.output.error(text);
        m_exit_code = CLI_EXIT_NOT_FOUND;
        return false;
    }

    const CLI_CALL& m_call;
    const bool m_is_builtin;
    const GFPDB_SELECTION m_selection;
    std::vector<CLI_EXPORTED> m_records;
    std::set<std::string> m_files;
    std::size_t m_matches = 0;
    int m_exit_code = CLI_EXIT_OK;
};

std::string problem_of_options(const CLI_CALL& call)
{
    for (const char* const option : {CLI_OPTION_OUTPUT, OPTION_DIRECTORY}) {
        if (call.has(option) && call.value(option).empty())
            return std::string("--") + option + " is empty.";
    }
    if (!call.has(OPTION_DIRECTORY))
        return call.has(CLI_OPTION_REPLACE) ? "--replace needs --directory." : "";
    for (const char* const option : {CLI_OPTION_OUTPUT, CLI_OPTION_CSV, CLI_OPTION_SPREADSHEET}) {
        if (call.has(option))
            return std::string("--directory and --") + option + " cannot be used together.";
    }
    return std::string();
}

int write_file(const CLI_CALL& call, const std::string& text)
{
    std::string problem;
    if (write_record_file(call.value(CLI_OPTION_OUTPUT), text, problem))
        return CLI_EXIT_OK;
    call.output.error(call.value(CLI_OPTION_OUTPUT) + ": The file cannot be written: " + problem + ".");
    return CLI_EXIT_BAD_FILE;
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_OUTPUT, "Write to this file instead of standard output.", "file", "o"});
    options.push_back({OPTION_DIRECTORY,
                       "Write each record to a file of its own in this directory, which is made if it is not there.",
                       "directory"});
    options.push_back({CLI_OPTION_REPLACE, "With --directory, replace files that exist with different content."});
    options.push_back({CLI_OPTION_BUILTIN, "The built-in devices instead of the records of the database directory."});
    cli_add_csv_options(options, "Write a list of the devices, without their flows, as comma-separated values.");
    cli_add_place_options(options, "Only devices of this");
}

int run(const CLI_CALL& call)
{
    const std::string wrong = problem_of_options(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    EXPORTED_RECORDS exported(call);
    bool is_found = call.argument_count() > 0 || exported.add_all();
    for (int at = 0; is_found && at < call.argument_count(); ++at)
        is_found = exported.add(call.argument(at));
    if (!is_found)
        return exported.exit_code();
    if (call.has(OPTION_DIRECTORY))
        return cli_export_to_directory(call, exported.records(), call.value(OPTION_DIRECTORY));
    std::vector<GFPDB_RECORD> records;
    records.reserve(exported.records().size());
    for (const CLI_EXPORTED& each : exported.records())
        records.push_back(each.record);
    int exit_code = CLI_EXIT_OK;
    std::vector<GFPDB_RECORD> unreadable;
    const std::optional<GFPDB_LIST_FOR> csv = call.list_reader();
    const std::string text = csv ? gfpdb_write_list(records, *csv) : gfpdb_write_records(records, unreadable);
    if (!call.has(CLI_OPTION_OUTPUT))
        call.output.print(text);
    else if (exit_code = write_file(call, text); exit_code != CLI_EXIT_OK)
        return exit_code;
    for (const GFPDB_RECORD& record : unreadable)
        exit_code = cli_report_unreadable(call, record);
    return exit_code;
}

} // namespace

const CLI_COMMAND CLI_EXPORT_COMMAND = {"export", "Write records to a file", "[NAME...]", {0, -1}, add_options, run};
