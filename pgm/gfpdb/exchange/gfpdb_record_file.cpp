// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_csv.h"
#include "exchange/gfpdb_record_json.h"

#include "base/gfpdb_read_file.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"

#include "gfpdb/gfpdb_exchange.h"

#include <unistd.h>

namespace {

constexpr const char* STANDARD_INPUT = "-";
constexpr const char* CSV_SUFFIX = ".csv";
// An export of 80,000 devices with their flows has as many bytes.
constexpr std::size_t LARGEST = std::size_t(1) << 30;
constexpr std::size_t PERCENT = 100;

// False: `problem` says why.
bool read_text(const std::string& path, std::string& text, std::string& problem)
{
    std::string reason;
    std::optional<std::string> bytes = path == STANDARD_INPUT ? gfpdb_read_descriptor(STDIN_FILENO, LARGEST, reason)
                                                              : gfpdb_read_file(path, LARGEST, reason);
    if (!bytes) {
        problem = GFPDB_WORDS::say("The file cannot be read: %1.", {reason});
        return false;
    }
    text = std::move(*bytes);
    return true;
}

} // namespace

// One of the readers, or none when there is nothing to read.
struct GFPDB_FILE_READER::CONTENT
{
    GFPDB_MGR& manager;
    const GFPDB_READ_OPTIONS options;
    GFPDB_RECORD_FILE file = {};
    JSON_VALUE json = {};
    std::optional<GFPDB_RECORD_READER> records = {};
    std::optional<GFPDB_LIST_READER> list = {};
    int total = 0;
    int done = 0;
    bool is_complete = false;
};

GFPDB_FILE_READER::GFPDB_FILE_READER(const std::string& path, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options)
    : m_content(new CONTENT{manager, options})
{
    GFPDB_RECORD_FILE& file = m_content->file;
    file.path = path;
    file.is_csv = options.csv || gfpdb_from_utf8(path).endsWith(QLatin1String(CSV_SUFFIX), Qt::CaseInsensitive);
}

// What checks values is not used here: it belongs to another thread.
void GFPDB_FILE_READER::load(const std::function<bool(int)>& goes_on)
{
    CONTENT& content = *m_content;
    GFPDB_RECORD_FILE& file = content.file;
    std::string text;
    std::string problem;
    JSON_ERROR error;
    const auto tell = [&](std::size_t bytes) { return goes_on(static_cast<int>(PERCENT * bytes / text.size())); };
    if (!read_text(file.path, text, problem)) {
        file.problems.push_back({0, "", problem});
    } else if (file.is_csv) {
        content.list.emplace(text, content.manager, content.options);
        content.total = content.list->count();
    } else if (!json_parse(text, content.json, error, tell)) {
        content.json = JSON_VALUE();
        file.problems.push_back({error.line, "", GFPDB_WORDS::say("This is not valid JSON: %1.", {error.text})});
    } else {
        content.records.emplace(content.manager, content.options);
        content.total = content.records->begin_file(content.json);
    }
}

GFPDB_FILE_READER::~GFPDB_FILE_READER() = default;

int GFPDB_FILE_READER::total() const
{
    return m_content->total;
}

int GFPDB_FILE_READER::done() const
{
    return m_content->done;
}

GFPDB_RECORD_FILE& GFPDB_FILE_READER::file()
{
    return m_content->file;
}

bool GFPDB_FILE_READER::read_next()
{
    CONTENT& content = *m_content;
    if (content.done < content.total) {
        std::optional<GFPDB_RECORD> record =
            content.list ? content.list->read(content.done) : content.records->read_item(content.done);
        if (record)
            content.file.records.push_back(std::move(*record));
        ++content.done;
        return true;
    }
    if (!content.is_complete && content.list)
        content.file.problems = content.list->problems();
    else if (!content.is_complete && content.records)
        content.file.problems = content.records->problems();
    content.is_complete = true;
    return false;
}

GFPDB_RECORD_FILE gfpdb_read_records(const std::string& path, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options)
{
    GFPDB_FILE_READER reader(path, manager, options);
    reader.load([](int) { return true; });
    while (reader.read_next()) {
    }
    return std::move(reader.file());
}
