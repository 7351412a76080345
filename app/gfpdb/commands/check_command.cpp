// SPDX-License-Identifier: MIT
#include "commands/check_command.h"

#include "exchange/gfpdb_record_json.h"

#include <algorithm>

namespace {

constexpr const char* OPTION_REBUILD_KEYS = "rebuild-keys";

// A record and one thing that was found in it.
struct FINDING
{
    std::string record;
    CLI_PROBLEM problem;

    bool is_warning() const { return problem.seriousness == CLI_SERIOUSNESS::WARNING; }
};
using FINDINGS = std::vector<FINDING>;

void check_record(const CLI_CALL& call, const CLI_RECORD& record, FINDINGS& found)
{
    const std::optional<JSON_VALUE> json = record_to_json(record);
    if (!json) {
        found.push_back({cli_title(record), {0, "", "The flows cannot be read."}});
        return;
    }
    RECORD_READER reader(call.database.manager(), RECORD_RULES::STORED);
    reader.read_record(*json, record.is_template, "");
    for (CLI_PROBLEM problem : reader.problems()) {
        if (!problem.field.empty() && problem.field.front() == '.')
            problem.field.erase(0, 1);
        found.push_back({cli_title(record), problem});
    }
    for (const RECORD_REMARK& remark : record_warnings(call.database.manager(), record))
        found.push_back({cli_title(record), {0, remark.member, remark.text, CLI_SERIOUSNESS::WARNING}});
}

JSON_VALUE json_of(const FINDINGS& found, bool warnings)
{
    JSON_VALUE list = json_list();
    for (const FINDING& each : found) {
        if (each.is_warning() != warnings)
            continue;
        JSON_VALUE problem = json_object();
        problem.add("record", json_string(each.record));
        problem.add("field", json_string(each.problem.field));
        problem.add("text", json_string(each.problem.text));
        list.items.push_back(std::move(problem));
    }
    return list;
}

std::string json(const CLI_CALL& call, std::size_t count, const std::string& damage, const FINDINGS& found)
{
    JSON_VALUE object = json_object();
    object.add("directory", json_string(call.database.directory()));
    object.add("integrity", json_string(damage.empty() ? "ok" : damage));
    object.add("records", json_number(static_cast<long long>(count)));
    object.add("problems", json_of(found, false));
    object.add("warnings", json_of(found, true));
    return json_write(object);
}

std::string line(const FINDING& found)
{
    return found.record + (found.problem.field.empty() ? "" : ": " + found.problem.field) +
           (found.is_warning() ? ": warning: " : ": ") + found.problem.text + '\n';
}

std::string counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string text(std::size_t count, const FINDINGS& found, std::size_t problems)
{
    std::string text;
    for (const FINDING& each : found)
        text += line(each);
    const std::size_t warnings = found.size() - problems;
    return text + counted(count, "record") + ", " + counted(problems, "problem") +
           (warnings == 0 ? "" : ", " + counted(warnings, "warning")) + '\n';
}

} // namespace

void CLI_CHECK_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({QLatin1String(OPTION_REBUILD_KEYS), QStringLiteral("First repair the keys of records that no "
                                                                         "search finds.")});
    cli_add_json_option(parser);
}

int CLI_CHECK_COMMAND::run(const CLI_CALL& call) const
{
    const std::string problem = call.database.read_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    if (call.has(OPTION_REBUILD_KEYS) && !call.database.store().rebuild_keys())
        return call.database_failed(call.database.store().get_last_error());
    const std::string damage =
        call.database.store().check_integrity() ? std::string() : call.database.store().get_last_error();
    FINDINGS found;
    const std::vector<CLI_RECORD> records = call.database.find_stored({});
    for (const CLI_RECORD& record : call.database.find_misplaced({}))
        found.push_back({cli_title(record), {0, "", CLI_MISPLACED}});
    int done = 0;
    for (const CLI_RECORD& record : records) {
        if (const std::optional<CLI_RECORD> loaded = call.database.load(record))
            check_record(call, *loaded, found);
        call.output.progress("Checking", ++done, static_cast<int>(records.size()));
    }
    call.output.finish_progress();
    const auto warnings =
        std::stable_partition(found.begin(), found.end(), [](const FINDING& each) { return !each.is_warning(); });
    const auto problems = static_cast<std::size_t>(warnings - found.begin());
    call.output.print(call.has(CLI_OPTION_JSON) ? json(call, records.size(), damage, found)
                                                : text(records.size(), found, problems));
    if (!damage.empty())
        return call.database_failed(damage);
    return problems == 0 ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}
