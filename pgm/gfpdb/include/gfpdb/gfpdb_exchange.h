// SPDX-License-Identifier: MIT

// Records as files, for tools: reading, checking, planning an import, and writing. docs/gfpdb.md describes the formats.
//
// A file becomes records (gfpdb_read_records()), the records an import plan (GFPDB_IMPORT_PLAN), and the plan is stored
// (GFPDB_DATABASE::import()). Texts are UTF-8. GUI thread only, unless something else is said.
#pragma once

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_operation.h"
#include "gfpdb/gfpdb_record.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// How serious a finding is.
enum class GFPDB_SERIOUSNESS
{
    PROBLEM,      // the record is wrong
    BUILTIN_NAME, // the record is right, but cannot be stored: a built-in device or template has its name
    WARNING,      // the record is right, but a user should know this
};

// One thing that was found in a record or a file.
struct GFPDB_FINDING
{
    // The line of the file; 0 when there is no file.
    int line = 0;
    // The record and the place in it: "devices[0].single_flows[1].actions[2].command"; empty for the whole.
    std::string field;
    std::string text;
    GFPDB_SERIOUSNESS seriousness = GFPDB_SERIOUSNESS::PROBLEM;
};

// The rules that a record is checked by.
enum class GFPDB_RECORD_RULES
{
    STORED,   // all
    IMPORTED, // all, but a missing value that has a default is not a problem
    NAMES,    // only those without which a record cannot be stored
};

// How a file is read.
struct GFPDB_READ_OPTIONS
{
    // As CSV whatever its name; otherwise files that end in ".csv" are.
    bool csv = false;
    GFPDB_RECORD_RULES rules = GFPDB_RECORD_RULES::IMPORTED;
    // The family and scheme of all records, in place of their own, which then may be missing.
    std::optional<int> family;
    std::optional<int> scheme;
};

// What a file contains, and what is wrong with it.
struct GFPDB_RECORD_FILE
{
    // "-" is standard input.
    std::string path;
    bool is_csv = false;
    std::vector<GFPDB_RECORD> records;
    std::vector<GFPDB_FINDING> problems;
    // What a user should know about records that are imported all the same.
    std::vector<GFPDB_FINDING> warnings;
};

// Reads a regular file, or standard input to its end: at most 1 GiB. `manager` checks the values; its family and scheme
// change with every record.
GFPDB_EXPORT GFPDB_RECORD_FILE gfpdb_read_records(const std::string& path, GFPDB_MGR& manager,
                                                  const GFPDB_READ_OPTIONS& options);

// Reads a file as gfpdb_read_records() does, in two steps: its form as a whole, on any thread, then record by record,
// between two of which a program can do other things.
class GFPDB_EXPORT GFPDB_FILE_READER
{
public:
    // Reads nothing yet; `manager` must outlive this.
    GFPDB_FILE_READER(const std::string& path, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options);
    ~GFPDB_FILE_READER();
    GFPDB_FILE_READER(const GFPDB_FILE_READER&) = delete;
    GFPDB_FILE_READER& operator=(const GFPDB_FILE_READER&) = delete;

    // Reads the bytes and looks at their form: once, before the records. On any thread, as long as no other one uses
    // this. `goes_on` hears now and then how many percent are done; where it returns false the reader is of no use any
    // more.
    void load(const std::function<bool(int percent)>& goes_on);
    // How many records there are, and how many of them are read.
    int total() const;
    int done() const;
    // Reads one more. False when there was none: then file() is complete.
    bool read_next();
    GFPDB_RECORD_FILE& file();

private:
    struct CONTENT;
    std::unique_ptr<CONTENT> m_content;
};

// What is wrong with a record that is stored, and what a user should know about it.
GFPDB_EXPORT std::vector<GFPDB_FINDING> gfpdb_check_record(GFPDB_MGR& manager, const GFPDB_RECORD& record);

// What becomes of a record that exists with different content.
enum class GFPDB_EXISTING
{
    REFUSED,  // it is a problem of the file
    REPLACED, // by that of the file
    KEPT,     // the one of the file is left out
};

// What an import does with a record.
enum class GFPDB_PLANNED_AS
{
    NEW,
    REPLACED,
    KEPT,
    UNCHANGED, // it is there already
    COUNT,
};

// A record of an import plan.
struct GFPDB_PLANNED
{
    GFPDB_PLANNED_AS as = GFPDB_PLANNED_AS::NEW;
    std::string file;
    // As it is imported. Flows are there when it is replaced or kept.
    GFPDB_RECORD record;
    // What is stored instead of it now, when it is replaced or kept.
    std::optional<GFPDB_RECORD> former;
};

// What an import will do: which records are new, replace others or already exist; and what prevents it.
class GFPDB_IMPORT_PLAN
{
public:
    // `rules` are those by which the files were read; unless they are only those for names, missing values get their
    // defaults.
    GFPDB_IMPORT_PLAN(GFPDB_DATABASE& database, GFPDB_EXISTING existing, GFPDB_RECORD_RULES rules)
        : m_database(database), m_existing(existing), m_rules(rules)
    {}

    // Adds the records of `file`; what prevents their import is added to its problems, missing values and other notes
    // to its warnings.
    GFPDB_EXPORT void add(GFPDB_RECORD_FILE& file);
    // Adds the record `at` of `file` alone: for a plan that is made piece by piece.
    GFPDB_EXPORT void add(GFPDB_RECORD_FILE& file, int at);

    // The records without problems, in the order of the files.
    const std::vector<GFPDB_PLANNED>& planned() const { return m_planned; }
    // True when a record could not be compared with what is stored: then the database is to blame, not the file.
    bool has_unread() const { return m_has_unread; }
    int new_count() const { return count(GFPDB_PLANNED_AS::NEW); }
    int replaced_count() const { return count(GFPDB_PLANNED_AS::REPLACED); }
    int kept_count() const { return count(GFPDB_PLANNED_AS::KEPT); }
    int unchanged_count() const { return count(GFPDB_PLANNED_AS::UNCHANGED); }

    // What is stored.
    const std::vector<GFPDB_ROW>& devices() const { return m_devices; }
    const std::vector<GFPDB_ROW>& templates() const { return m_templates; }
    // The revisions of what they replace, in the same order; empty for a new record.
    const std::vector<std::string>& replaced_devices() const { return m_replaced_devices; }
    const std::vector<std::string>& replaced_templates() const { return m_replaced_templates; }

private:
    // Where a record is in the files: "file:line".
    using PLACES = std::map<std::string, std::string>;

    int count(GFPDB_PLANNED_AS as) const { return m_counts[static_cast<std::size_t>(as)]; }
    void add_record(GFPDB_RECORD_FILE& file, GFPDB_RECORD record);
    bool is_name_free(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record);
    void fill_flows(GFPDB_RECORD& record, const std::optional<GFPDB_RECORD>& former);
    void note(GFPDB_PLANNED_AS as, const GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record,
              const std::optional<GFPDB_RECORD>& former);
    void store(GFPDB_RECORD record, const std::optional<GFPDB_RECORD>& former);

    GFPDB_DATABASE& m_database;
    const GFPDB_EXISTING m_existing;
    const GFPDB_RECORD_RULES m_rules;
    std::vector<GFPDB_PLANNED> m_planned;
    std::array<int, static_cast<std::size_t>(GFPDB_PLANNED_AS::COUNT)> m_counts = {};
    std::vector<GFPDB_ROW> m_devices;
    std::vector<GFPDB_ROW> m_templates;
    std::vector<std::string> m_replaced_devices;
    std::vector<std::string> m_replaced_templates;
    bool m_has_unread = false;
    PLACES m_places;
    PLACES m_device_names;
    PLACES m_template_names;
};

// The record as JSON, one value per line; none when its flows cannot be read.
GFPDB_EXPORT std::optional<std::string> gfpdb_write_record(const GFPDB_RECORD& record);
// A whole file as JSON: devices, then templates, each in the given order. Records whose flows cannot be read are left
// out, and added to `unreadable`.
GFPDB_EXPORT std::string gfpdb_write_records(const std::vector<GFPDB_RECORD>& records,
                                             std::vector<GFPDB_RECORD>& unreadable);

// The reader of a list.
enum class GFPDB_LIST_FOR
{
    IMPORT,      // texts as they are
    SPREADSHEET, // with "'" before texts that a spreadsheet would run as formulas
};

// A list of the devices among `records` as CSV, without flows: a line of column names, then one line each.
GFPDB_EXPORT std::string gfpdb_write_list(const std::vector<GFPDB_RECORD>& records,
                                          GFPDB_LIST_FOR reader = GFPDB_LIST_FOR::IMPORT);

// One value of a record.
struct GFPDB_VALUE
{
    // The key in files, and the heading for people.
    const char* key;
    const char* title;
    // The GFPDB_FLASH_PROPERTY; GFPDB_NO_PROPERTY for the family and the configuration scheme.
    int property;
    bool is_number;
    // Empty for a value that the record does not have.
    std::string text;
};

// The values of a record, in the order of files, without the flows.
GFPDB_EXPORT std::vector<GFPDB_VALUE> gfpdb_values(const GFPDB_RECORD& record);
// The operations of a flow variant; none when they cannot be read.
GFPDB_EXPORT std::optional<std::vector<std::unique_ptr<GFPDB_OPERATION>>> gfpdb_operations(const GFPDB_RECORD& record,
                                                                                           bool flow_variant);

// A field in which two records differ, called as in messages; the texts are empty for flows.
struct GFPDB_DIFFERENCE
{
    std::string noun;
    std::string left;
    std::string right;
    bool are_flows;
};

// Where two states of a record differ, in the order of files.
GFPDB_EXPORT std::vector<GFPDB_DIFFERENCE> gfpdb_differences(const GFPDB_RECORD& left, const GFPDB_RECORD& right);

// "device "X" (family 3, scheme 7)", "template "T"": what messages call the record.
GFPDB_EXPORT std::string gfpdb_title(const GFPDB_RECORD& record);
