// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "model/gfpdb_flow_text.h"
#include "model/gfpdb_row.h"

namespace {

std::string key_of(const GFPDB_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    return record.is_template ? "template " + key
                              : std::to_string(record.row.family) + ' ' + std::to_string(record.row.scheme) + ' ' + key;
}

std::string what(const GFPDB_RECORD& record)
{
    return std::string(record.is_template ? "stored template " : "device ") + gfpdb_quoted(record.name());
}

void warn(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record, const std::vector<GFPDB_FINDING>& findings)
{
    for (const GFPDB_FINDING& finding : findings)
        file.warnings.push_back({record.line, what(record) + ": " + finding.field, finding.text, finding.seriousness});
}

} // namespace

void GFPDB_IMPORT_PLAN::add(GFPDB_RECORD_FILE& file)
{
    for (const GFPDB_RECORD& record : file.records)
        add_record(file, record);
}

void GFPDB_IMPORT_PLAN::add_record(GFPDB_RECORD_FILE& file, GFPDB_RECORD record)
{
    const std::string place = file.path + ':' + std::to_string(record.line);
    const auto [earlier, is_first] = m_places.emplace(key_of(record), place);
    if (!is_first) {
        file.problems.push_back({record.line, "", "The " + what(record) + " is already in " + earlier->second + "."});
        return;
    }
    if (!is_name_free(file, record))
        return;
    const std::optional<GFPDB_RECORD> former = m_database.load(record);
    if (file.is_csv)
        fill_flows(record, former);
    if (former && gfpdb_is_same_content(former->row, record.row)) {
        ++m_unchanged;
        return;
    }
    std::vector<GFPDB_FINDING> remarks;
    if (m_rules != GFPDB_RECORD_RULES::NAMES)
        remarks = gfpdb_fill_missing(m_database.get_manager(), record);
    if (former && gfpdb_is_same_content(former->row, record.row)) {
        ++m_unchanged;
        return;
    }
    if (former && !m_may_replace) {
        file.problems.push_back(
            {record.line, "", "The " + what(record) + " exists with different content: --replace replaces it."});
        return;
    }
    warn(file, record, remarks);
    if (m_rules != GFPDB_RECORD_RULES::NAMES)
        warn(file, record, gfpdb_record_warnings(m_database.get_manager(), record));
    ++(former ? m_replaced : m_new);
    record.row.revision = gfpdb_new_revision();
    (record.is_template ? m_templates : m_devices).push_back(record.row);
    (record.is_template ? m_replaced_templates : m_replaced_devices)
        .push_back(former ? former->row.revision : std::string());
}

// No device has the name of a template, neither in the directory nor in the files.
bool GFPDB_IMPORT_PLAN::is_name_free(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    (record.is_template ? m_template_names : m_device_names).emplace(key, std::string());
    const bool in_files = (record.is_template ? m_device_names : m_template_names).count(key) > 0;
    if (!in_files && !m_database.is_name_of_other_kind(record))
        return true;
    file.problems.push_back({record.line, "",
                             "The name of the " + what(record) + " is that of a " +
                                 (record.is_template ? "device" : "stored template") + "."});
    return false;
}

// A list has no flows: a device that is replaced keeps its own, a new one gets those of its flow template.
void GFPDB_IMPORT_PLAN::fill_flows(GFPDB_RECORD& record, const std::optional<GFPDB_RECORD>& former)
{
    const int index = gfpdb_builtin_template(record.row.flow_template);
    GFPDB_RECORD source = {true, {}, 0};
    source.row.template_name = record.row.flow_template;
    if (former) {
        source = *former;
    } else if (index >= 0) {
        source.row.single_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, false)).value_or(std::string());
        source.row.quad_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, true)).value_or(std::string());
    } else {
        source = m_database.load(source).value_or(source);
    }
    record.row.single_flows = source.row.single_flows;
    record.row.quad_flows = source.row.quad_flows;
}
