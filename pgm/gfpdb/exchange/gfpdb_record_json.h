// SPDX-License-Identifier: MIT

// Records as JSON. docs/gfpdb.md describes the format.
//
// Keys stand in a fixed order, one value per line, so that two states of a record can be compared line by line. What is
// written is read again byte for byte.
#pragma once

#include "exchange/gfpdb_record.h"
#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_json.h"

#include <optional>

class GFPDB_MGR;
class GFPDB_OPERATION;
struct GFPDB_FIELD;

constexpr const char* RECORD_FORMAT = "gfpdb-records";
constexpr int RECORD_FORMAT_VERSION = 1;

// The value of a field that is no flows.
JSON_VALUE field_to_json(const GFPDB_FIELD& field, const GFPDB_ROW& row);
// The record; none when its flows cannot be read.
std::optional<JSON_VALUE> record_to_json(const CLI_RECORD& record);
// A whole file: devices, then templates, each in the given order. Records whose flows cannot be read are left out, and
// added to `unreadable`.
JSON_VALUE records_to_json(const std::vector<CLI_RECORD>& records, std::vector<CLI_RECORD>& unreadable);

// Reads records, and notes everything that is wrong with them.
class RECORD_READER
{
public:
    // `manager` checks values; its family and scheme change with every record. With a `family` or `scheme` all records
    // become records of that one.
    RECORD_READER(GFPDB_MGR& manager, RECORD_RULES rules, std::optional<int> family = std::nullopt,
                  std::optional<int> scheme = std::nullopt);

    // The records of a whole file. Records with problems are among them, as far as they could be read.
    std::vector<CLI_RECORD> read_file(const JSON_VALUE& file);
    // One record, called `field` in problems.
    CLI_RECORD read_record(const JSON_VALUE& value, bool is_template, const std::string& field);

    const std::vector<CLI_PROBLEM>& problems() const { return m_problems; }

private:
    void add(const JSON_VALUE& value, const std::string& field, const std::string& text,
             CLI_SERIOUSNESS seriousness = CLI_SERIOUSNESS::PROBLEM);
    void read_records(const JSON_VALUE& file, const char* name, bool are_templates, std::vector<CLI_RECORD>& records);
    void read_field(const JSON_VALUE& object, const GFPDB_FIELD& which, const std::string& field, GFPDB_ROW& row);
    std::string read_text(const JSON_VALUE& object, const char* name, const std::string& field);
    std::optional<int> read_number(const JSON_VALUE& object, const char* name, const std::string& field);
    std::string read_flows(const JSON_VALUE& object, const char* name, const std::string& field);
    void check_flow(const JSON_VALUE& list, const std::string& field, const std::vector<GFPDB_OPERATION*>& operations);

    GFPDB_MGR& m_manager;
    const RECORD_RULES m_rules;
    const std::optional<int> m_family;
    const std::optional<int> m_scheme;
    const JSON_REPORT m_report;
    std::vector<CLI_PROBLEM> m_problems;
};
