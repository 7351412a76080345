// SPDX-License-Identifier: MIT
#include "commands/diff_command.h"

#include "cli_find.h"
#include "exchange/gfpdb_record_file.h"
#include "exchange/gfpdb_record_json.h"
#include "output/line_diff.h"

#include "base/gfpdb_text.h"

#include <QFileInfo>

namespace {

constexpr const char* HISTORY_PREFIX = "history:";
constexpr const char* JSON_SUFFIX = ".json";

bool is_file(const std::string& operand)
{
    const QString path = gfpdb_from_utf8(operand);
    return path.endsWith(QLatin1String(JSON_SUFFIX), Qt::CaseInsensitive) || path.contains(QLatin1Char('/')) ||
           operand == "-" || QFileInfo(path).isFile();
}

// A state of the history.
std::optional<CLI_RECORD> find_state(const CLI_CALL& call, const std::string& number, int& exit_code)
{
    const std::optional<std::int64_t> id = cli_history_id(number);
    const std::optional<GFPDB_HISTORY_ENTRY> entry = id ? call.database.store().find_history(*id) : std::nullopt;
    if (entry)
        return CLI_RECORD{entry->is_template, entry->row, 0};
    exit_code = CLI_EXIT_NOT_FOUND;
    call.output.error("There is no state " + gfpdb_quoted(number) + " in the history of " + call.database.directory() +
                      ".");
    return std::nullopt;
}

// The records of a file. Empty: a message was printed.
std::vector<CLI_RECORD> read_file(const CLI_CALL& call, const std::string& path)
{
    RECORD_FILE_OPTIONS options;
    options.unchecked = true;
    RECORD_FILE file = read_record_file(path, call.database.manager(), options);
    bool good = true;
    for (const CLI_PROBLEM& problem : file.problems) {
        // Nothing is stored here.
        if (problem.seriousness == CLI_SERIOUSNESS::BUILTIN_NAME)
            continue;
        call.output.problem(path, problem);
        good = false;
    }
    if (good && file.records.empty())
        call.output.problem(path, {0, "", "The file has no records."});
    return good ? file.records : std::vector<CLI_RECORD>();
}

// The record of a file that matches `other`: the only one, or the one of the same kind, name, family and scheme.
std::optional<CLI_RECORD> pick(const CLI_CALL& call, const std::string& path, const CLI_RECORD* other, int& exit_code)
{
    const std::vector<CLI_RECORD> records = read_file(call, path);
    exit_code = CLI_EXIT_BAD_FILE;
    if (records.size() == 1)
        return records.front();
    for (const CLI_RECORD& record : records) {
        const bool is_placed =
            other &&
            (record.is_template || (record.row.family == other->row.family && record.row.scheme == other->row.scheme));
        if (is_placed && record.is_template == other->is_template &&
            gfpdb_name_key(record.name()) == gfpdb_name_key(other->name()))
            return record;
    }
    if (!records.empty()) {
        exit_code = CLI_EXIT_NOT_FOUND;
        call.output.error(path + ": The file has several records, but none matches the other side.");
    }
    return std::nullopt;
}

std::optional<CLI_RECORD> find(const CLI_CALL& call, const std::string& operand, const CLI_RECORD* other,
                               int& exit_code)
{
    const std::string prefix = HISTORY_PREFIX;
    if (operand.rfind(prefix, 0) == 0)
        return find_state(call, operand.substr(prefix.size()), exit_code);
    return is_file(operand) ? pick(call, operand, other, exit_code) : cli_find_one(call, operand, exit_code);
}

std::string json(const std::vector<LINE_CHANGE>& changes)
{
    JSON_VALUE object = json_object();
    object.add("same", json_bool(changes.empty()));
    JSON_VALUE list = json_list();
    for (const LINE_CHANGE& change : changes) {
        JSON_VALUE item = json_object();
        item.add("left_line", json_number(change.left + 1));
        item.add("right_line", json_number(change.right + 1));
        JSON_VALUE removed = json_list();
        for (const std::string& line : change.removed)
            removed.items.push_back(json_string(line));
        JSON_VALUE added = json_list();
        for (const std::string& line : change.added)
            added.items.push_back(json_string(line));
        item.add("removed", std::move(removed));
        item.add("added", std::move(added));
        list.items.push_back(std::move(item));
    }
    object.add("changes", std::move(list));
    return json_write(object);
}

} // namespace

void CLI_DIFF_COMMAND::add_options(QCommandLineParser& parser) const
{
    cli_add_place_options(parser, "Only devices of this");
    cli_add_json_option(parser);
}

int CLI_DIFF_COMMAND::run(const CLI_CALL& call) const
{
    int exit_code = CLI_EXIT_OK;
    // The side that is no file says which record of a file is meant.
    const bool right_first = is_file(call.argument(0)) && !is_file(call.argument(1));
    const int first = right_first ? 1 : 0;
    const std::optional<CLI_RECORD> one = find(call, call.argument(first), nullptr, exit_code);
    if (!one)
        return exit_code;
    const std::optional<CLI_RECORD> other = find(call, call.argument(1 - first), &*one, exit_code);
    if (!other)
        return exit_code;
    const std::optional<JSON_VALUE> left = record_to_json(right_first ? *other : *one);
    const std::optional<JSON_VALUE> right = record_to_json(right_first ? *one : *other);
    if (!left || !right)
        return call.database_failed("The flows of a record cannot be read.");
    const std::vector<std::string> left_lines = split_lines(json_write(*left));
    const std::vector<std::string> right_lines = split_lines(json_write(*right));
    call.output.print(call.has(CLI_OPTION_JSON)
                          ? json(diff_lines(left_lines, right_lines))
                          : unified_diff(call.argument(0), left_lines, call.argument(1), right_lines));
    return left_lines == right_lines ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}
