#include "record_file.h"

#include "record_csv.h"
#include "record_json.h"

#include "gfpdb_text.h"

#include <QFile>

#include <cstdio>

namespace {

constexpr const char* STANDARD_INPUT = "-";
constexpr const char* CSV_SUFFIX = ".csv";

// False: `problem` says why.
bool read_text(const std::string& path, std::string& text, std::string& problem)
{
    QFile file(gfpdb_from_utf8(path));
    const bool is_open =
        path == STANDARD_INPUT ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (is_open)
        text = file.readAll().toStdString();
    if (is_open && file.error() == QFile::NoError)
        return true;
    problem = "The file cannot be read: " + gfpdb_to_utf8(file.errorString()) + ".";
    return false;
}

void read_json(const std::string& text, GFPDB_MGR& manager, const RECORD_FILE_OPTIONS& options, RECORD_FILE& file)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error)) {
        file.problems.push_back({error.line, "", "This is no JSON: " + error.text + "."});
        return;
    }
    RECORD_READER reader(manager, options.unchecked ? RECORD_RULES::NAMES : RECORD_RULES::IMPORTED, options.family,
                         options.scheme);
    file.records = reader.read_file(value);
    file.problems = reader.problems();
}

} // namespace

RECORD_FILE read_record_file(const std::string& path, GFPDB_MGR& manager, const RECORD_FILE_OPTIONS& options)
{
    RECORD_FILE file;
    file.path = path;
    file.is_csv = options.csv || gfpdb_from_utf8(path).endsWith(QLatin1String(CSV_SUFFIX), Qt::CaseInsensitive);
    std::string text;
    std::string problem;
    if (!read_text(path, text, problem))
        file.problems.push_back({0, "", problem});
    else if (file.is_csv)
        file.records =
            records_from_csv(text, manager, !options.unchecked, options.family, options.scheme, file.problems);
    else
        read_json(text, manager, options, file);
    return file;
}
