// SPDX-License-Identifier: MIT

// Checks every record by the library's rules, and the database by SQLite's.
#include "commands/gfpdb_commands.h"

#include "commands/check_lint.h"
#include "commands/check_read_outs.h"

#include "cli_find.h"
#include "cli_json.h"
#include "cli_sfdp.h"

#include <algorithm>

namespace {

constexpr const char* OPTION_REBUILD_KEYS = "rebuild-keys";

// A record and one thing that was found in it.
struct FOUND
{
    std::string record;
    GFPDB_FINDING finding;

    bool is_warning() const { return finding.seriousness == GFPDB_SERIOUSNESS::WARNING; }
};
using FINDINGS = std::vector<FOUND>;

void add_list(CLI_JSON& json, const char* key, const FINDINGS& found, bool warnings)
{
    json.begin_list(key);
    for (const FOUND& each : found) {
        if (each.is_warning() != warnings)
            continue;
        json.begin_object();
        json.add("record", each.record);
        json.add("field", each.finding.field);
        json.add("text", each.finding.text);
        json.end_object();
    }
    json.end_list();
}

std::string json(const CLI_CALL& call, std::size_t count, const std::string& damage, const FINDINGS& found,
                 const CLI_LINT& lint)
{
    CLI_JSON json;
    json.add("directory", call.database.get_directory());
    json.add("integrity", damage.empty() ? "ok" : damage);
    json.add_number("records", static_cast<long long>(count));
    add_list(json, "problems", found, false);
    add_list(json, "warnings", found, true);
    lint.add_to(json);
    return json.text();
}

std::string line(const FOUND& found)
{
    return found.record + (found.finding.field.empty() ? "" : ": " + found.finding.field) +
           (found.is_warning() ? ": warning: " : ": ") + found.finding.text + '\n';
}

std::string text(std::size_t count, const FINDINGS& found, std::size_t problems, const CLI_LINT& lint)
{
    std::string text;
    for (const FOUND& each : found)
        text += line(each);
    text += lint.text();
    const std::size_t warnings = found.size() - problems + lint.count();
    return text + cli_counted(count, "record") + ", " + cli_counted(problems, "problem") +
           (warnings == 0 ? "" : ", " + cli_counted(warnings, "warning")) + '\n';
}

// What a read has failed to find is not checked: that counts as damage, unless some is known.
void note_failure(const CLI_CALL& call, std::string& damage)
{
    if (damage.empty())
        damage = call.database.get_last_error();
}

// Adds what is found in the records of the directory; their number.
std::size_t check_records(const CLI_CALL& call, FINDINGS& found, CLI_LINT& lint, std::string& damage)
{
    const std::vector<GFPDB_RECORD> records = call.database.find_stored({});
    note_failure(call, damage);
    for (const GFPDB_RECORD& record : call.database.find_misplaced({}))
        found.push_back({gfpdb_title(record), {0, "", CLI_MISPLACED}});
    note_failure(call, damage);
    int done = 0;
    for (const GFPDB_RECORD& record : records) {
        if (const std::optional<GFPDB_RECORD> loaded = call.database.load(record)) {
            for (const GFPDB_FINDING& finding : gfpdb_check_record(call.database.get_manager(), *loaded))
                found.push_back({gfpdb_title(record), finding});
            lint.check(*loaded);
        } else {
            note_failure(call, damage);
        }
        call.output.progress("Checking", ++done, static_cast<int>(records.size()));
    }
    call.output.finish_progress();
    return records.size();
}

std::string wrong_options(const CLI_CALL& call)
{
    for (const char* option : {OPTION_REBUILD_KEYS, CLI_OPTION_LINT}) {
        if (call.has(CLI_OPTION_SFDP) && call.has(option))
            return std::string("--") + option + " and --sfdp cannot be used together.";
    }
    return CLI_LINT::wrong_usage(call);
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({OPTION_REBUILD_KEYS, "First repair the keys of records that no search finds."});
    options.push_back({CLI_OPTION_SFDP,
                       "Compare the built-in parts with the SFDP read-outs (*.bin) in this folder instead.", "folder"});
    CLI_LINT::add_options(options);
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const std::string wrong = wrong_options(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    if (call.has(CLI_OPTION_LINT_RULES)) {
        call.output.print(CLI_LINT::rules());
        return CLI_EXIT_OK;
    }
    if (call.has(CLI_OPTION_SFDP))
        return cli_check_read_outs(call);
    const std::string problem = call.database.get_read_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    if (call.has(OPTION_REBUILD_KEYS) && !call.database.rebuild_keys())
        return call.database_failed(call.database.get_last_error());
    std::string damage = call.database.check_integrity() ? std::string() : call.database.get_last_error();
    FINDINGS found;
    CLI_LINT lint(call);
    const std::size_t count = check_records(call, found, lint, damage);
    const auto warnings =
        std::stable_partition(found.begin(), found.end(), [](const FOUND& each) { return !each.is_warning(); });
    const auto problems = static_cast<std::size_t>(warnings - found.begin());
    call.output.print(call.has(CLI_OPTION_JSON) ? json(call, count, damage, found, lint)
                                                : text(count, found, problems, lint));
    if (!damage.empty())
        return call.database_failed(damage);
    return problems == 0 ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}

} // namespace

const CLI_COMMAND CLI_CHECK_COMMAND = {"check", "Check every record and the database", "", {0, 0}, add_options, run};
