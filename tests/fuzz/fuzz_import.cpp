// SPDX-License-Identifier: MIT

// Imports as a user makes them: two files at once, JSON and lists mixed, into a directory that has records already.
//
// Input: a byte for the kinds of the two files and the options, a byte for the length of the first file in sixteenths
// of the rest, then both.
#include "fuzz_target.h"

#include "manager/gfpdb_embedded_mgr.h"
#include "store/sqlite/gfpdb_sqlite_file.h"

#include "gfpdb/gfpdb_exchange.h"

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 7;
constexpr int FIRST_AS_CSV = 1;
constexpr int SECOND_AS_CSV = 2;
constexpr int REPLACE = 4;
constexpr int TO_ONE_PLACE = 8;
constexpr int PARTS = 16;
// Records that the corpus replaces, leaves alone and runs into.
constexpr const char* DEVICES[] = {"first", "second"};
constexpr const char* TEMPLATE = "model";

std::string directory()
{
    return fuzz_directory() + "import/";
}

GFPDB_ROW row_of(const std::string& name)
{
    GFPDB_ROW row;
    row.family = FAMILY;
    row.scheme = SCHEME;
    row.name = name;
    row.device_id = "C2";
    row.voltage = "3.3V";
    row.density = "8Mb";
    row.total_die = 1;
    row.single_io_dummy_clock = 0;
    row.quad_io_dummy_clock = 0;
    row.revision = gfpdb_new_revision();
    return row;
}

const std::string& full_database()
{
    static const std::string content = fuzz_database_file(directory(), [] {
        GFPDB_DATABASE database(directory());
        GFPDB_ROW model = row_of(DEVICES[0]);
        model.template_name = TEMPLATE;
        FUZZ_CHECK(GFPDB_EMBEDDED_MGR::instance().store().save_all({row_of(DEVICES[0]), row_of(DEVICES[1])}, {model},
                                                                   [](int) { return true; }));
    });
    return content;
}

GFPDB_RECORD_FILE read_file(const std::string& content, GFPDB_READ_OPTIONS options, bool csv)
{
    const std::string path = fuzz_directory() + (csv ? "list.csv" : "records.json");
    fuzz_write_file(path, content);
    options.csv = csv;
    return gfpdb_read_records(path, GFPDB_EMBEDDED_MGR::instance(), options);
}

// What an import lets in, the rules for stored records accept; and every record is found by its name.
void check_stored(GFPDB_DATABASE& database)
{
    for (const GFPDB_RECORD& listed : database.find_stored({})) {
        const std::optional<GFPDB_RECORD> record = database.load(listed);
        FUZZ_CHECK(record && record->row.revision == listed.row.revision);
        for (const GFPDB_FINDING& finding : gfpdb_check_record(database.get_manager(), *record))
            FUZZ_CHECK(finding.seriousness == GFPDB_SERIOUSNESS::WARNING);
    }
    FUZZ_CHECK(database.find_misplaced({}).empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    const int kind = input.take_byte();
    const auto share = static_cast<std::size_t>(input.take_byte() % PARTS);
    const std::string content = input.take_rest();
    const std::size_t length = content.size() * share / PARTS;
    GFPDB_READ_OPTIONS options;
    if ((kind & TO_ONE_PLACE) != 0) {
        options.family = FAMILY;
        options.scheme = SCHEME;
    }
    fuzz_write_file(directory() + GFPDB_SQLITE_FILE::NAME, full_database());
    GFPDB_DATABASE database(directory());
    GFPDB_IMPORT_PLAN plan(database, (kind & REPLACE) != 0 ? GFPDB_EXISTING::REPLACED : GFPDB_EXISTING::REFUSED,
                           GFPDB_RECORD_RULES::IMPORTED);
    bool good = true;
    for (const bool is_second : {false, true}) {
        const bool csv = (kind & (is_second ? SECOND_AS_CSV : FIRST_AS_CSV)) != 0;
        // A share of nothing is a call with one file.
        if (!is_second && length == 0)
            continue;
        GFPDB_RECORD_FILE file =
            read_file(is_second ? content.substr(length) : content.substr(0, length), options, csv);
        if (file.problems.empty())
            plan.add(file);
        good = good && file.problems.empty();
        for (const GFPDB_FINDING& warning : file.warnings)
            FUZZ_CHECK(warning.line >= 1 && !warning.text.empty());
    }
    if (!good)
        return 0;
    FUZZ_CHECK(database.import(plan, [](int) { return true; }));
    check_stored(database);
    return 0;
}
