// SPDX-License-Identifier: MIT

// Prints the former states of records that were replaced or deleted.
#include "commands/gfpdb_commands.h"

#include "cli_columns.h"
#include "cli_find.h"
#include "cli_json.h"

#include "gfpdb/gfpdb_text.h"

#include <QDateTime>

#include <limits>

namespace {

constexpr const char* OPTION_PRUNE = "prune";
constexpr const char* OPTION_FORCE = "force";
constexpr const char* OPTION_OLDER_THAN = "older-than";
constexpr const char* OPTION_KEEP = "keep";
// A hundred years.
constexpr int DAYS_MAX = 36500;

constexpr int ID_WIDTH = 6;
constexpr int WHEN_WIDTH = 22;
constexpr int WHO_WIDTH = 18;
constexpr int REASON_WIDTH = 10;
constexpr int KIND_WIDTH = 10;
constexpr int NUMBER_WIDTH = 8;

const char* kind_of(const GFPDB_HISTORY_ENTRY& entry)
{
    return entry.is_template ? "template" : "device";
}

std::string line(const std::string& id, const std::string& when, const std::string& who, const std::string& reason,
                 const std::string& kind, const std::string& family, const std::string& scheme, const std::string& name)
{
    const auto cell = [](const std::string& text, int width) {
        const QString shown = gfpdb_from_utf8(cli_printable(text));
        return cli_padded(shown, std::max(width, cli_width(shown) + 2));
    };
    return gfpdb_to_utf8(cell(id, ID_WIDTH) + cell(when, WHEN_WIDTH) + cell(who, WHO_WIDTH) +
                         cell(reason, REASON_WIDTH) + cell(kind, KIND_WIDTH) + cell(family, NUMBER_WIDTH) +
                         cell(scheme, NUMBER_WIDTH)) +
           cli_printable(name) + '\n';
}

std::string table(const std::vector<GFPDB_HISTORY_ENTRY>& entries)
{
    std::string text = line("ID", "WHEN", "WHO", "REASON", "KIND", "FAMILY", "SCHEME", "NAME");
    for (const GFPDB_HISTORY_ENTRY& entry : entries)
        text += line(std::to_string(entry.id), entry.changed_at, entry.changed_by, entry.reason, kind_of(entry),
                     std::to_string(entry.row.family), std::to_string(entry.row.scheme), entry.name());
    return text;
}

std::string json(const std::vector<GFPDB_HISTORY_ENTRY>& entries)
{
    return CLI_JSON::list_text(entries, [](CLI_JSON& json, const GFPDB_HISTORY_ENTRY& entry) {
        json.add_number("id", entry.id);
        json.add("changed_at", entry.changed_at);
        json.add("changed_by", entry.changed_by);
        json.add("reason", entry.reason);
        json.add("kind", kind_of(entry));
        json.add_number("family", entry.row.family);
        json.add_number("scheme", entry.row.scheme);
        json.add("name", entry.name());
    });
}

// What is wrong with the options for pruning; empty when nothing is.
std::string problem_of_pruning(const CLI_CALL& call)
{
    const bool has_limit = call.has(OPTION_OLDER_THAN) || call.has(OPTION_KEEP);
    if (call.has(OPTION_PRUNE))
        return has_limit ? "" : "--prune needs --older-than or --keep.";
    return has_limit || call.has(OPTION_FORCE) ? "--older-than, --keep and --force need --prune." : "";
}

int prune(const CLI_CALL& call, const GFPDB_SELECTION& selection)
{
    GFPDB_PRUNING pruning;
    pruning.keep = call.number(OPTION_KEEP).value_or(0);
    pruning.last_of_deleted = call.has(OPTION_FORCE);
    if (const std::optional<int> days = call.number(OPTION_OLDER_THAN))
        pruning.before = gfpdb_to_utf8(QDateTime::currentDateTimeUtc().addDays(-*days).toString(Qt::ISODate));
    const std::optional<int> count = call.database.prune_history(selection, pruning);
    if (!count)
        return call.database_failed(call.database.get_last_error());
    call.output.print("Removed " + cli_counted(*count, "state") + " from the history of " +
                      cli_printable(call.database.get_directory()) + '\n');
    return CLI_EXIT_OK;
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back(
        {OPTION_PRUNE, "Remove states instead of listing them, but not the last one of a deleted record."});
    options.push_back(
        {OPTION_OLDER_THAN, "Remove only states that are older than this many days.", "days", "", {{0, DAYS_MAX}}});
    options.push_back(
        {OPTION_KEEP, "Keep this many states of each record.", "number", "", {{0, std::numeric_limits<int>::max()}}});
    options.push_back({OPTION_FORCE, "Also remove the last state of a deleted record: it cannot be restored then."});
    cli_add_place_options(options, "Only records of this");
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const GFPDB_SELECTION selection = cli_selection(call, call.argument(0));
    const std::string usage_problem = problem_of_pruning(call);
    if (!usage_problem.empty())
        return call.wrong_usage(usage_problem);
    if (call.has(OPTION_PRUNE))
        return prune(call, selection);
    const std::vector<GFPDB_HISTORY_ENTRY> entries = call.database.find_history(selection);
    const std::string& problem = call.database.get_last_error();
    if (!problem.empty())
        return call.database_failed(problem);
    call.output.print(call.has(CLI_OPTION_JSON) ? json(entries) : table(entries));
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND CLI_HISTORY_COMMAND = {
    "history", "List former states of records", "[NAME]", {0, 1}, add_options, run, nullptr, false};
