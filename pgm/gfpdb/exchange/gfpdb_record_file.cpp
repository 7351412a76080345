// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_csv.h"
#include "exchange/gfpdb_record_json.h"

#include "base/gfpdb_text.h"

#include "gfpdb/gfpdb_exchange.h"
#include "whole_file/whole_file.h"

#include <unistd.h>

namespace {

constexpr const char* STANDARD_INPUT = "-";
constexpr const char* CSV_SUFFIX = ".csv";
// An export of 80,000 devices with their flows has as many bytes.
constexpr std::size_t LARGEST = std::size_t(1) << 30;

// False: `problem` says why.
bool read_text(const std::string& path, std::string& text, std::string& problem)
{
    std::string reason;
    std::optional<std::string> bytes = path == STANDARD_INPUT ? read_descriptor(STDIN_FILENO, LARGEST, reason)
                                                              : read_whole_file(path, LARGEST, reason);
    if (!bytes) {
        problem = "The file cannot be read: " + reason + ".";
        return false;
    }
    text = std::move(*bytes);
    return true;
}

void read_json(const std::string& text, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options, GFPDB_RECORD_FILE& file)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error)) {
        file.problems.push_back({error.line, "", "This is not valid JSON: " + error.text + "."});
        return;
    }
    GFPDB_RECORD_READER reader(manager, options);
    file.records = reader.read_file(value);
    file.problems = reader.problems();
}

} // namespace

GFPDB_RECORD_FILE gfpdb_read_records(const std::string& path, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options)
{
    GFPDB_RECORD_FILE file;
    file.path = path;
    file.is_csv = options.csv || gfpdb_from_utf8(path).endsWith(QLatin1String(CSV_SUFFIX), Qt::CaseInsensitive);
    std::string text;
    std::string problem;
    if (!read_text(path, text, problem))
        file.problems.push_back({0, "", problem});
    else if (file.is_csv)
        file.records = gfpdb_read_list(text, manager, options, file.problems);
    else
        read_json(text, manager, options, file);
    return file;
}
