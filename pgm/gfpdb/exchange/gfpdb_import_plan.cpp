// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_import_plan.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "model/gfpdb_flow_text.h"

namespace {

std::string key_of(const CLI_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    return record.is_template ? "template " + key
                              : std::to_string(record.row.family) + ' ' + std::to_string(record.row.scheme) + ' ' + key;
}

std::string what(const CLI_RECORD& record)
{
    return std::string(record.is_template ? "stored template " : "device ") + gfpdb_quoted(record.name());
}

} // namespace

void IMPORT_PLAN::add(RECORD_FILE& file)
{
    for (const CLI_RECORD& record : file.records)
        add_record(file, record);
}

void IMPORT_PLAN::add_record(RECORD_FILE& file, CLI_RECORD record)
{
    const std::string place = file.path + ':' + std::to_string(record.line);
    const auto [earlier, is_first] = m_places.emplace(key_of(record), place);
    if (!is_first) {
        file.problems.push_back(
            {record.line, "", "The " + what(record) + " stands in " + earlier->second + " already."});
        return;
    }
    if (!is_name_free(file, record))
        return;
    const std::optional<CLI_RECORD> former = m_database.load(record);
    if (file.is_csv)
        fill_flows(record, former);
    if (former && gfpdb_is_same_content(former->row, record.row)) {
        ++m_unchanged;
        return;
    }
    std::vector<RECORD_REMARK> remarks;
    if (m_rules != RECORD_RULES::NAMES)
        remarks = record_fill_missing(m_database.manager(), record);
    if (former && gfpdb_is_same_content(former->row, record.row)) {
        ++m_unchanged;
        return;
    }
    if (former && !m_may_replace) {
        file.problems.push_back(
            {record.line, "", "The " + what(record) + " exists with another content: --replace replaces it."});
        return;
    }
    warn(file, record, remarks);
    if (m_rules != RECORD_RULES::NAMES)
        warn(file, record, record_warnings(m_database.manager(), record));
    ++(former ? m_replaced : m_new);
    record.row.revision = gfpdb_new_revision();
    (record.is_template ? m_templates : m_devices).push_back(record.row);
}

void IMPORT_PLAN::warn(RECORD_FILE& file, const CLI_RECORD& record, const std::vector<RECORD_REMARK>& remarks)
{
    for (const RECORD_REMARK& remark : remarks)
        file.warnings.push_back(
            {record.line, what(record) + ": " + remark.member, remark.text, CLI_SERIOUSNESS::WARNING});
}

// No device has the name of a template, neither in the directory nor in the files.
bool IMPORT_PLAN::is_name_free(RECORD_FILE& file, const CLI_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    (record.is_template ? m_template_names : m_device_names).emplace(key, std::string());
    const bool in_files = (record.is_template ? m_device_names : m_template_names).count(key) > 0;
    const bool in_directory = record.is_template ? m_database.store().has_device(record.name())
                                                 : !m_database.store().get_template_revision(record.name()).empty();
    if (!in_files && !in_directory)
        return true;
    file.problems.push_back({record.line, "",
                             "The name of the " + what(record) + " is that of a " +
                                 (record.is_template ? "device" : "stored template") + "."});
    return false;
}

// A list has no flows: a device that is replaced keeps its own, a new one gets those of its flow template.
void IMPORT_PLAN::fill_flows(CLI_RECORD& record, const std::optional<CLI_RECORD>& former)
{
    const int index = gfpdb_builtin_template(record.row.flow_template);
    if (former) {
        record.row.single_flows = former->row.single_flows;
        record.row.quad_flows = former->row.quad_flows;
    } else if (index >= 0) {
        record.row.single_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, false)).value_or(std::string());
        record.row.quad_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, true)).value_or(std::string());
    } else if (const std::optional<GFPDB_ROW> row = m_database.store().find_template(record.row.flow_template)) {
        record.row.single_flows = row->single_flows;
        record.row.quad_flows = row->quad_flows;
    }
}
