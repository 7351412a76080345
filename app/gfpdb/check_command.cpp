// SPDX-License-Identifier: MIT
#include "check_command.h"

#include "record_json.h"

namespace {

constexpr const char* OPTION_REBUILD_KEYS = "rebuild-keys";

// A record and one thing that is wrong with it.
struct FOUND
{
    std::string record;
    CLI_PROBLEM problem;
};

// What was found in all records.
struct FINDINGS
{
    std::vector<FOUND> problems;
    std::vector<FOUND> warnings;
};

void check_record(const CLI_CALL& call, const CLI_RECORD& record, FINDINGS& found)
{
    const std::optional<JSON_VALUE> json = record_to_json(record);
    if (!json) {
        found.problems.push_back({cli_title(record), {0, "", "The flows cannot be read."}});
        return;
    }
    RECORD_READER reader(call.database.manager(), RECORD_RULES::STORED);
    reader.read_record(*json, record.is_template, "");
    for (CLI_PROBLEM problem : reader.problems()) {
        if (!problem.field.empty() && problem.field.front() == '.')
            problem.field.erase(0, 1);
        found.problems.push_back({cli_title(record), problem});
    }
    for (const RECORD_REMARK& remark : record_warnings(call.database.manager(), record))
        found.warnings.push_back({cli_title(record), {0, remark.member, remark.text}});
}

JSON_VALUE json_of(const std::vector<FOUND>& found)
{
    JSON_VALUE list = json_list();
    for (const FOUND& each : found) {
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
    object.add("problems", json_of(found.problems));
    object.add("warnings", json_of(found.warnings));
    return json_write(object);
}

std::string lines(const std::vector<FOUND>& found, const char* mark)
{
    std::string text;
    for (const FOUND& each : found)
        text += each.record + (each.problem.field.empty() ? "" : ": " + each.problem.field) + ": " + mark +
                each.problem.text + '\n';
    return text;
}

std::string counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string text(std::size_t count, const FINDINGS& found)
{
    const std::string warnings = found.warnings.empty() ? "" : ", " + counted(found.warnings.size(), "warning");
    return lines(found.problems, "") + lines(found.warnings, "warning: ") + counted(count, "record") + ", " +
           counted(found.problems.size(), "problem") + warnings + '\n';
}

} // namespace

void CLI_CHECK_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({QLatin1String(OPTION_REBUILD_KEYS), QStringLiteral("First store records that no search finds "
                                                                         "under the keys of their names.")});
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
        found.problems.push_back({cli_title(record), {0, "", CLI_MISPLACED}});
    int done = 0;
    for (const CLI_RECORD& record : records) {
        if (const std::optional<CLI_RECORD> loaded = call.database.load(record))
            check_record(call, *loaded, found);
        call.output.progress("Checking", ++done, static_cast<int>(records.size()));
    }
    call.output.finish_progress();
    call.output.print(call.has(CLI_OPTION_JSON) ? json(call, records.size(), damage, found)
                                                : text(records.size(), found));
    if (!damage.empty())
        return call.database_failed(damage);
    return found.problems.empty() ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}
