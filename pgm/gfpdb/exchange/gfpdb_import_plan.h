// SPDX-License-Identifier: MIT

// What an import will do: which records are new, replace others, or are there already; and what stands in the way.
#pragma once

#include "exchange/gfpdb_record_file.h"
#include "exchange/gfpdb_record_rules.h"
#include "manager/gfpdb_database.h"

#include <map>

class IMPORT_PLAN
{
public:
    // With `may_replace` a record that exists with another content is replaced. `rules` are those by which the files
    // were read; unless they are only those for names, missing values get their defaults.
    IMPORT_PLAN(CLI_DATABASE& database, bool may_replace, RECORD_RULES rules)
        : m_database(database), m_may_replace(may_replace), m_rules(rules)
    {}

    // Adds the records of `file`, and what stands in their way to its problems; the values that were missing and what
    // else a user should know to its warnings.
    void add(RECORD_FILE& file);

    const std::vector<GFPDB_ROW>& devices() const { return m_devices; }
    const std::vector<GFPDB_ROW>& templates() const { return m_templates; }
    int new_count() const { return m_new; }
    int replaced_count() const { return m_replaced; }
    int unchanged_count() const { return m_unchanged; }

private:
    // Where in the files a record stands: "file:line".
    using PLACES = std::map<std::string, std::string>;

    void add_record(RECORD_FILE& file, CLI_RECORD record);
    void warn(RECORD_FILE& file, const CLI_RECORD& record, const std::vector<RECORD_REMARK>& remarks);
    bool is_name_free(RECORD_FILE& file, const CLI_RECORD& record);
    void fill_flows(CLI_RECORD& record, const std::optional<CLI_RECORD>& former);

    CLI_DATABASE& m_database;
    const bool m_may_replace;
    const RECORD_RULES m_rules;
    std::vector<GFPDB_ROW> m_devices;
    std::vector<GFPDB_ROW> m_templates;
    int m_new = 0;
    int m_replaced = 0;
    int m_unchanged = 0;
    PLACES m_places;
    PLACES m_device_names;
    PLACES m_template_names;
};
