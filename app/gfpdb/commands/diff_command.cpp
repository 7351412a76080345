// SPDX-License-Identifier: MIT

// Compares two records, files or former states line by line.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"
#include "cli_json.h"
#include "line_diff.h"

#include "gfpdb/gfpdb_text.h"

#include <QFileInfo>

namespace {

constexpr const char* JSON_SUFFIX = ".json";

bool is_file(const std::string& operand)
{
    const QString path = QFile::decodeName(QByteArray::fromStdString(operand));
    return path.endsWith(QLatin1String(JSON_SUFFIX), Qt::CaseInsensitive) || path.contains(QLatin1Char('/')) ||
           operand == "-" || QFileInfo(path).isFile();
}

// The records of a file. Empty: a message was printed.
std::vector<GFPDB_RECORD> read_file(const CLI_CALL& call, const std::string& path)
{
    GFPDB_READ_OPTIONS options;
    options.rules = GFPDB_RECORD_RULES::NAMES;
    GFPDB_RECORD_FILE file = gfpdb_read_records(path, call.database.get_manager(), options);
    bool good = true;
    for (const GFPDB_FINDING& problem : file.problems) {
        // Nothing is stored here.
        if (problem.seriousness == GFPDB_SERIOUSNESS::BUILTIN_NAME)
            continue;
        call.output.finding(path, problem);
        good = false;
    }
    if (good && file.records.empty())
        call.output.finding(path, {0, "", "The file has no records."});
    return good ? file.records : std::vector<GFPDB_RECORD>();
}

// The record of a file that matches `other`: the only one, or the one of the same kind, name, family and scheme.
std::optional<GFPDB_RECORD> pick(const CLI_CALL& call, const std::string& path, const GFPDB_RECORD* other,
                                 int& exit_code)
{
    const std::vector<GFPDB_RECORD> records = read_file(call, path);
    exit_code = CLI_EXIT_BAD_FILE;
    if (records.size() == 1)
        return records.front();
    for (const GFPDB_RECORD& record : records) {
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

std::optional<GFPDB_RECORD> find(const CLI_CALL& call, const std::string& operand, const GFPDB_RECORD* other,
                                 int& exit_code)
{
    return !cli_is_state(operand) && is_file(operand) ? pick(call, operand, other, exit_code)
                                                      : cli_find_record(call, operand, exit_code);
}

std::string json(const std::vector<LINE_CHANGE>& changes)
{
    CLI_JSON json;
    json.add_flag("same", changes.empty());
    json.add_objects("changes", changes, [](CLI_JSON& object, const LINE_CHANGE& change) {
        object.add_number("left_line", change.left + 1);
        object.add_number("right_line", change.right + 1);
        object.add("removed", change.removed);
        object.add("added", change.added);
    });
    return json.text();
}

void add_options(CLI_OPTIONS& options)
{
    cli_add_place_options(options, "Only devices of this");
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    int exit_code = CLI_EXIT_OK;
    // The side that is not a file says which record of a file is meant.
    const bool right_first = is_file(call.argument(0)) && !is_file(call.argument(1));
    const int first = right_first ? 1 : 0;
    const std::optional<GFPDB_RECORD> one = find(call, call.argument(first), nullptr, exit_code);
    if (!one)
        return exit_code;
    const std::optional<GFPDB_RECORD> other = find(call, call.argument(1 - first), &*one, exit_code);
    if (!other)
        return exit_code;
    const std::optional<std::string> left = gfpdb_write_record(right_first ? *other : *one);
    const std::optional<std::string> right = gfpdb_write_record(right_first ? *one : *other);
    if (!left || !right)
        return call.database_failed("The flows of a record cannot be read.");
    const std::vector<std::string> left_lines = split_lines(*left);
    const std::vector<std::string> right_lines = split_lines(*right);
    call.output.print(call.has(CLI_OPTION_JSON)
                          ? json(diff_lines(left_lines, right_lines))
                          : unified_diff(call.argument(0), left_lines, call.argument(1), right_lines));
    return left_lines == right_lines ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}

} // namespace

const CLI_COMMAND CLI_DIFF_COMMAND = {"diff", "Compare two records", "LEFT RIGHT", {2, 2}, add_options, run};
