// SPDX-License-Identifier: MIT
#include "manager/gfpdb_database.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "manager/gfpdb_embedded_mgr.h"

#include "gfpdb/gfpdb_helper.h"

namespace {

GFPDB_EMBEDDED_MGR& opened_manager(const std::string& directory)
{
    if (!directory.empty())
        GFPDB_MGR::set_db_custom_dir(directory);
    GFPDB_HELPER::get_active_flash_manager(true);
    return GFPDB_EMBEDDED_MGR::instance();
}

bool has_name(const CLI_SELECTION& selection, const std::string& name)
{
    return selection.name.empty() || gfpdb_name_key(selection.name) == gfpdb_name_key(name);
}

bool has_place(const CLI_SELECTION& selection, const GFPDB_ROW& row)
{
    return selection.family.value_or(row.family) == row.family && selection.scheme.value_or(row.scheme) == row.scheme;
}

// What is not to be shown of a built-in device is as good as not there.
void hide(const GFPDB_PART& part, GFPDB_ROW& row)
{
    GFPDB_ROW shown;
    shown.name = row.name;
    if (!part.properties_hidden) {
        shown = row;
        shown.single_flows.clear();
        shown.quad_flows.clear();
    }
    if (!part.flows_hidden) {
        shown.single_flows = row.single_flows;
        shown.quad_flows = row.quad_flows;
    }
    row = shown;
}

} // namespace

CLI_DATABASE::CLI_DATABASE(const std::string& directory)
    : m_manager(opened_manager(directory)), m_store(GFPDB_EMBEDDED_MGR::instance().store())
{}

const std::string& CLI_DATABASE::directory() const
{
    return m_store.get_directory();
}

std::string CLI_DATABASE::read_problem()
{
    return m_store.is_readable() ? std::string() : m_store.get_problem();
}

std::vector<CLI_RECORD> CLI_DATABASE::find_stored(const CLI_SELECTION& selection)
{
    std::vector<CLI_RECORD> records;
    for (const GFPDB_ROW& row : m_store.get_devices()) {
        if (has_name(selection, row.name) && has_place(selection, row))
            records.push_back({false, row, 0});
    }
    for (const GFPDB_ROW& row : m_store.get_templates()) {
        if (has_name(selection, row.template_name))
            records.push_back({true, row, 0});
    }
    return records;
}

std::vector<CLI_RECORD> CLI_DATABASE::find_builtin(const CLI_SELECTION& selection)
{
    std::vector<CLI_RECORD> records;
    for (const std::string& name : gfpdb_builtin_names()) {
        if (!has_name(selection, name))
            continue;
        const GFPDB_EMBEDDED_FLASH& record = *gfpdb_builtin_record(name);
        GFPDB_ROW row = record.to_row(record.get_device_family(), record.get_config_scheme()).value_or(GFPDB_ROW());
        hide(*gfpdb_builtin_part(name), row);
        records.push_back({false, row, 0});
    }
    return records;
}

std::optional<CLI_RECORD> CLI_DATABASE::load(const CLI_RECORD& record)
{
    const std::optional<GFPDB_ROW> row =
        record.is_template ? m_store.find_template(record.row.template_name)
                           : m_store.find_device(record.row.family, record.row.scheme, record.row.name);
    return row ? std::optional<CLI_RECORD>({record.is_template, *row, 0}) : std::nullopt;
}

std::vector<CLI_RECORD> CLI_DATABASE::find_misplaced(const CLI_SELECTION& selection)
{
    std::vector<CLI_RECORD> records;
    for (const GFPDB_MISPLACED& record : m_store.get_misplaced()) {
        if (has_name(selection, record.name()) && (record.is_template || has_place(selection, record.row)))
            records.push_back({record.is_template, record.row, 0});
    }
    return records;
}
