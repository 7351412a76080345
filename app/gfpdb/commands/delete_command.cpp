// SPDX-License-Identifier: MIT

// Removes devices and stored templates; the history keeps them.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"
#include "cli_new_device.h"
#include "record_writer.h"

#include "gfpdb/gfpdb_text.h"

#include <QRegularExpression>

#include <set>

namespace {

// `text` as a word of a shell.
std::string shell_word(const std::string& text)
{
    static const QRegularExpression PLAIN(QStringLiteral("\\A[\\w./+:@%,-]+\\z"));
    if (PLAIN.match(gfpdb_from_utf8(text)).hasMatch())
        return text;
    QString quoted = gfpdb_from_utf8(text);
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return '\'' + gfpdb_to_utf8(quoted) + '\'';
}

// The records that the arguments name, each once. None: a message was printed.
std::optional<std::vector<GFPDB_RECORD>> find(const CLI_CALL& call, int& exit_code)
{
    std::vector<GFPDB_RECORD> records;
    std::set<std::string> found;
    for (int at = 0; at < call.argument_count(); ++at) {
        const std::optional<GFPDB_RECORD> record = cli_find_one(call, call.argument(at), exit_code);
        if (!record)
            return std::nullopt;
        if (record->row.family == 0) {
            exit_code =
                call.database_failed(gfpdb_quoted(record->name()) + " is a built-in device: it cannot be deleted.");
            return std::nullopt;
        }
        if (found.insert(record_file_name(*record)).second)
            records.push_back(*record);
    }
    return records;
}

// How a state is brought back, in a sentence.
std::string way_back(const CLI_CALL& call, std::int64_t state)
{
    const std::string directory =
        call.has(CLI_OPTION_DIR) ? " --dir " + shell_word(call.value(CLI_OPTION_DIR)) : std::string();
    return "To bring it back: gfpdb restore " + std::to_string(state) + directory + '\n';
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_DRY_RUN, "Show what would be deleted, without changing anything."});
    cli_add_place_options(options, "Only devices of this");
}

// All names are looked up first: a wrong one deletes nothing.
int run(const CLI_CALL& call)
{
    int exit_code = CLI_EXIT_OK;
    const std::optional<std::vector<GFPDB_RECORD>> records = find(call, exit_code);
    if (!records)
        return exit_code;
    exit_code = CLI_EXIT_OK;
    const std::string problem = call.database.get_write_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    for (const GFPDB_RECORD& record : *records) {
        if (call.has(CLI_OPTION_DRY_RUN)) {
            call.output.print("Would delete the " + gfpdb_title(record) + '\n');
            continue;
        }
        const std::optional<std::int64_t> state = call.database.remove(record);
        if (!state)
            return call.database_failed(call.database.get_last_error());
        if (*state == 0) {
            call.output.error("The " + gfpdb_title(record) + " was already gone.");
            exit_code = CLI_EXIT_NOT_FOUND;
            continue;
        }
        call.output.print("Deleted the " + gfpdb_title(record) + ". " + way_back(call, *state));
    }
    return exit_code;
}

} // namespace

const CLI_COMMAND CLI_DELETE_COMMAND = {
    "delete", "Delete records; the history keeps them", "NAME...", {1, -1}, add_options, run, nullptr, false};
