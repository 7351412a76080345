// SPDX-License-Identifier: MIT

// Records as JSON. docs/gfpdb.md describes the format.
//
// Keys are in a fixed order, one value per line, so that two states of a record can be compared line by line. What is
// written is read again byte for byte.
#pragma once

#include "base/gfpdb_json.h"

#include "gfpdb/gfpdb_exchange.h"

#include <optional>

struct GFPDB_FIELD;

// The record; none when its flows cannot be read.
std::optional<JSON_VALUE> gfpdb_record_to_json(const GFPDB_RECORD& record);

// The keys of the fields that a record of a file must have.
std::vector<std::string> gfpdb_required_keys(const GFPDB_READ_OPTIONS& options);

// Reads records, and collects everything that is wrong with them.
class GFPDB_RECORD_READER
{
public:
    // `manager` checks values; its family and scheme change with every record.
    GFPDB_RECORD_READER(GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options);

    // Looks at the form of a whole file, which must outlive this, and says how many records it has; and one of them,
    // once: it is gone from the file then, which may be a large one. A record with problems is as far there as it could
    // be read.
    int begin_file(JSON_VALUE& file);
    GFPDB_RECORD read_item(int at);
    // One record, called `field` in problems.
    GFPDB_RECORD read_record(const JSON_VALUE& value, bool is_template, const std::string& field);

    const std::vector<GFPDB_FINDING>& problems() const { return m_problems; }

private:
    // A record of the file.
    struct ITEM
    {
        JSON_VALUE* value;
        bool is_template;
        std::string field;
    };

    void add(const JSON_VALUE& value, const std::string& field, const std::string& text,
             GFPDB_SERIOUSNESS seriousness = GFPDB_SERIOUSNESS::PROBLEM);
    void find_records(JSON_VALUE& file, const char* name, bool are_templates);
    void read_field(const JSON_VALUE& object, const GFPDB_FIELD& which, const std::string& field, GFPDB_ROW& row);
    std::string read_text(const JSON_VALUE& object, const char* name, const std::string& field);
    std::optional<int> read_number(const JSON_VALUE& object, const char* name, const std::string& field);
    std::string read_flows(const JSON_VALUE& object, const char* name, const std::string& field);
    void check_flow(const JSON_VALUE& list, const std::string& field, const std::vector<GFPDB_OPERATION*>& operations);

    GFPDB_MGR& m_manager;
    const GFPDB_READ_OPTIONS m_options;
    // What every record must have, then what else it can have.
    const std::vector<std::string> m_keys;
    const std::size_t m_required;
    const JSON_REPORT m_report;
    std::vector<GFPDB_FINDING> m_problems;
    std::vector<ITEM> m_items;
};
