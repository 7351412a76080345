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

// Reads records, and collects everything that is wrong with them.
class GFPDB_RECORD_READER
{
public:
    // `manager` checks values; its family and scheme change with every record.
    GFPDB_RECORD_READER(GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options);

    // The records of a whole file. Records with problems are among them, as far as they could be read.
    std::vector<GFPDB_RECORD> read_file(const JSON_VALUE& file);
    // One record, called `field` in problems.
    GFPDB_RECORD read_record(const JSON_VALUE& value, bool is_template, const std::string& field);

    const std::vector<GFPDB_FINDING>& problems() const { return m_problems; }

private:
    void add(const JSON_VALUE& value, const std::string& field, const std::string& text,
             GFPDB_SERIOUSNESS seriousness = GFPDB_SERIOUSNESS::PROBLEM);
    void read_records(const JSON_VALUE& file, const char* name, bool are_templates, std::vector<GFPDB_RECORD>& records);
    void read_field(const JSON_VALUE& object, const GFPDB_FIELD& which, const std::string& field, GFPDB_ROW& row);
    std::string read_text(const JSON_VALUE& object, const char* name, const std::string& field);
    std::optional<int> read_number(const JSON_VALUE& object, const char* name, const std::string& field);
    std::string read_flows(const JSON_VALUE& object, const char* name, const std::string& field);
    void check_flow(const JSON_VALUE& list, const std::string& field, const std::vector<GFPDB_OPERATION*>& operations);

    GFPDB_MGR& m_manager;
    const GFPDB_READ_OPTIONS m_options;
    const JSON_REPORT m_report;
    std::vector<GFPDB_FINDING> m_problems;
};
