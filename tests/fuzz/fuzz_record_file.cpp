// SPDX-License-Identifier: MIT

// Files of records that the command line tool imports: JSON, and lists of devices as CSV.
//
// Input: a byte for the format and the rules, then the content of the file.
#include "fuzz_target.h"

#include "exchange/gfpdb_record_json.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "store/sqlite/gfpdb_sqlite_file.h"

#include "gfpdb/gfpdb_exchange.h"

#include <algorithm>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 13;
constexpr int AS_CSV = 1;
constexpr int UNCHECKED = 2;

std::string directory()
{
    return fuzz_directory() + "database/";
}

// An empty database, as the library makes it.
const std::string& empty_database()
{
    static const std::string content = fuzz_database_file(directory(), [] {
        GFPDB_DATABASE database(directory());
        GFPDB_ROW row;
        row.family = FAMILY;
        row.scheme = SCHEME;
        row.name = "first";
        FUZZ_CHECK(GFPDB_EMBEDDED_MGR::instance().store().save_device(row) &&
                   GFPDB_EMBEDDED_MGR::instance().store().remove_device(FAMILY, SCHEME, row.name));
    });
    return content;
}

GFPDB_RECORD_FILE read_file(const std::string& content, const GFPDB_READ_OPTIONS& options)
{
    const std::string path = fuzz_directory() + "records";
    fuzz_write_file(path, content);
    return gfpdb_read_records(path, GFPDB_EMBEDDED_MGR::instance(), options);
}

// Each problem says where in the file it is.
void check_problems(const GFPDB_RECORD_FILE& file, const std::string& content)
{
    const auto lines = 1 + std::count(content.begin(), content.end(), '\n');
    for (const GFPDB_FINDING& problem : file.problems)
        FUZZ_CHECK(problem.line >= 1 && problem.line <= lines && !problem.text.empty());
}

// A value that was read is written and read again as the same value.
void check_json(const std::string& text)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error))
        return;
    const std::string written = json_write(value);
    FUZZ_CHECK(json_parse(written, value, error));
    FUZZ_CHECK(json_write(value) == written);
}

std::vector<GFPDB_RECORD> stored_records(GFPDB_DATABASE& database)
{
    std::vector<GFPDB_RECORD> records;
    for (const GFPDB_RECORD& listed : database.find_stored({})) {
        const std::optional<GFPDB_RECORD> record = database.load(listed);
        FUZZ_CHECK(record.has_value());
        records.push_back(*record);
    }
    return records;
}

// What was exported is imported again without a problem, and changes nothing.
void check_export(GFPDB_DATABASE& database, const std::string& exported, const GFPDB_READ_OPTIONS& options, int count)
{
    GFPDB_RECORD_FILE file = read_file(exported, options);
    GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REFUSED, options.rules);
    plan.add(file);
    FUZZ_CHECK(file.problems.empty());
    FUZZ_CHECK(plan.unchanged_count() == count && plan.new_count() == 0);
}

// A file without a problem is stored whole.
void check_import(GFPDB_RECORD_FILE& file, const GFPDB_READ_OPTIONS& options)
{
    fuzz_write_file(directory() + GFPDB_SQLITE_FILE::NAME, empty_database());
    GFPDB_DATABASE database(directory());
    GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REFUSED, options.rules);
    plan.add(file);
    if (!file.problems.empty())
        return;
    const auto devices = static_cast<int>(plan.devices().size());
    const int count = devices + static_cast<int>(plan.templates().size());
    FUZZ_CHECK(database.import(plan, [](int) { return true; }));

    const std::vector<GFPDB_RECORD> stored = stored_records(database);
    FUZZ_CHECK(static_cast<int>(stored.size()) == count);
    std::vector<GFPDB_RECORD> unreadable;
    const std::string json = gfpdb_write_records(stored, unreadable);
    FUZZ_CHECK(unreadable.empty());
    GFPDB_READ_OPTIONS again = options;
    again.csv = false;
    check_export(database, json, again, count);
    again.csv = true;
    check_export(database, gfpdb_write_list(stored), again, devices);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    // The files are read with the manager of this database.
    empty_database();
    const int kind = input.take_byte();
    const std::string content = input.take_rest();
    GFPDB_READ_OPTIONS options;
    options.csv = (kind & AS_CSV) != 0;
    options.rules = (kind & UNCHECKED) != 0 ? GFPDB_RECORD_RULES::NAMES : GFPDB_RECORD_RULES::IMPORTED;
    if (!options.csv)
        check_json(content);
    GFPDB_RECORD_FILE file = read_file(content, options);
    check_problems(file, content);
    if (file.problems.empty() && !file.records.empty())
        check_import(file, options);
    return 0;
}
