#include "check_command.h"

#include "record_json.h"

#include "gfpdb_text.h"

namespace {

// A record and one thing that is wrong with it.
struct FOUND
{
    std::string record;
    CLI_PROBLEM problem;
};

std::string title(const CLI_RECORD& record)
{
    if (record.is_template)
        return "template " + gfpdb_quoted(record.name());
    return "device " + gfpdb_quoted(record.name()) + " (family " + std::to_string(record.row.family) + ", scheme " +
           std::to_string(record.row.scheme) + ')';
}

void check_record(const CLI_CALL& call, const CLI_RECORD& record, std::vector<FOUND>& found)
{
    const std::optional<JSON_VALUE> json = record_to_json(record);
    if (!json) {
        found.push_back({title(record), {0, "", "The flows cannot be read."}});
        return;
    }
    RECORD_READER reader(call.database.manager(), RECORD_RULES::ALL);
    reader.read_record(*json, record.is_template, "");
    for (CLI_PROBLEM problem : reader.problems()) {
        if (!problem.field.empty() && problem.field.front() == '.')
            problem.field.erase(0, 1);
        found.push_back({title(record), problem});
    }
}

std::string json(const CLI_CALL& call, std::size_t count, const std::string& damage, const std::vector<FOUND>& found)
{
    JSON_VALUE object = json_object();
    object.add("directory", json_string(call.database.directory()));
    object.add("integrity", json_string(damage.empty() ? "ok" : damage));
    object.add("records", json_number(static_cast<long long>(count)));
    JSON_VALUE list = json_list();
    for (const FOUND& each : found) {
        JSON_VALUE problem = json_object();
        problem.add("record", json_string(each.record));
        problem.add("field", json_string(each.problem.field));
        problem.add("text", json_string(each.problem.text));
        list.items.push_back(std::move(problem));
    }
    object.add("problems", std::move(list));
    return json_write(object);
}

std::string text(std::size_t count, const std::vector<FOUND>& found)
{
    std::string lines;
    for (const FOUND& each : found)
        lines += each.record + (each.problem.field.empty() ? "" : ": " + each.problem.field) + ": " +
                 each.problem.text + '\n';
    return lines + std::to_string(count) + (count == 1 ? " record, " : " records, ") + std::to_string(found.size()) +
           (found.size() == 1 ? " problem\n" : " problems\n");
}

} // namespace

void CLI_CHECK_COMMAND::add_options(QCommandLineParser& parser) const
{
    cli_add_json_option(parser);
}

int CLI_CHECK_COMMAND::run(const CLI_CALL& call) const
{
    const std::string problem = call.database.read_problem();
    if (!problem.empty())
        return call.database_failed(problem);
    const std::string damage =
        call.database.store().check_integrity() ? std::string() : call.database.store().get_last_error();
    std::vector<FOUND> found;
    const std::vector<CLI_RECORD> records = call.database.find_stored({});
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
    return found.empty() ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}
