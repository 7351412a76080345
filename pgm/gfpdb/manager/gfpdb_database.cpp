// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_database.h"

#include "base/gfpdb_looking.h"
#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "manager/gfpdb_embedded_mgr.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_helper.h"

#include <algorithm>

namespace {

GFPDB_EMBEDDED_MGR& opened_manager(const std::string& directory)
{
    if (!directory.empty())
        GFPDB_MGR::set_db_custom_dir(directory);
    GFPDB_HELPER::get_active_flash_manager(true);
    return GFPDB_EMBEDDED_MGR::instance();
}

// The manager opens another one when the directory changes.
GFPDB_STORE& store()
{
    return GFPDB_EMBEDDED_MGR::instance().store();
}

bool has_name(const GFPDB_SELECTION& selection, const std::string& name)
{
    return selection.name.empty() || gfpdb_name_key(selection.name) == gfpdb_name_key(name);
}

bool has_place(const GFPDB_SELECTION& selection, const GFPDB_ROW& row)
{
    return selection.family.value_or(row.family) == row.family && selection.scheme.value_or(row.scheme) == row.scheme;
}

bool is_selected(const GFPDB_SELECTION& selection, const GFPDB_HISTORY_ENTRY& entry)
{
    return has_name(selection, entry.name()) && has_place(selection, entry.row);
}

// The number of the state of that revision; 0 when there is none.
std::int64_t number_of(const GFPDB_RECORD& record)
{
    const std::vector<GFPDB_HISTORY_ENTRY> entries = store().get_history(record.name());
    const auto is_it = [&record](const GFPDB_HISTORY_ENTRY& entry) {
        return entry.is_template == record.is_template && entry.row.revision == record.row.revision;
    };
    const auto found = std::find_if(entries.rbegin(), entries.rend(), is_it);
    return found == entries.rend() ? 0 : found->id;
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

GFPDB_DATABASE::GFPDB_DATABASE(const std::string& directory) : m_manager(opened_manager(directory)) {}

std::string GFPDB_DATABASE::get_catalogue_problem()
{
    return gfpdb_catalogue_problem();
}

void GFPDB_DATABASE::set_upgrade_progress(std::function<void(int, int)> progress)
{
    gfpdb_upgrade_progress() = std::move(progress);
}

void GFPDB_DATABASE::only_look()
{
    gfpdb_only_looks() = true;
}

const std::string& GFPDB_DATABASE::get_directory() const
{
    return store().get_directory();
}

std::string GFPDB_DATABASE::get_read_problem()
{
    return store().is_readable() ? std::string() : store().get_problem();
}

std::string GFPDB_DATABASE::get_write_problem()
{
    return store().is_writable() ? std::string() : store().get_problem();
}

const std::string& GFPDB_DATABASE::get_last_error() const
{
    return store().get_last_error();
}

std::vector<GFPDB_RECORD> GFPDB_DATABASE::find_stored(const GFPDB_SELECTION& selection)
{
    std::vector<GFPDB_RECORD> records;
    for (const GFPDB_ROW& row : store().get_devices()) {
        if (has_name(selection, row.name) && has_place(selection, row))
            records.push_back({false, row, 0});
    }
    // The reason must not be lost: the templates would pass for all that is stored.
    if (!get_last_error().empty())
        return records;
    for (const GFPDB_ROW& row : store().get_templates()) {
        if (has_name(selection, row.template_name))
            records.push_back({true, row, 0});
    }
    return records;
}

std::vector<GFPDB_RECORD> GFPDB_DATABASE::find_builtin(const GFPDB_SELECTION& selection)
{
    std::vector<GFPDB_RECORD> records;
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

std::optional<GFPDB_RECORD> GFPDB_DATABASE::load(const GFPDB_RECORD& record)
{
    const std::optional<GFPDB_ROW> row =
        record.is_template ? store().find_template(record.row.template_name)
                           : store().find_device(record.row.family, record.row.scheme, record.row.name);
    return row ? std::optional<GFPDB_RECORD>({record.is_template, *row, 0}) : std::nullopt;
}

std::optional<std::int64_t> GFPDB_DATABASE::remove(const GFPDB_RECORD& record)
{
    const GFPDB_ROW& row = record.row;
    std::string seen = row.revision;
    std::optional<GFPDB_TAKEN> taken;
    GFPDB_EMBEDDED_MGR::instance().forget_seen(record);
    if (!record.is_template) {
        const bool is_removed = store().remove_device(row.family, row.scheme, row.name, &taken, &seen);
        return is_removed ? std::optional<std::int64_t>(taken ? taken->history_id : 0) : std::nullopt;
    }
    const bool was_there = !store().get_template_revision(row.template_name).empty();
    if (!store().remove_template(row.template_name, &seen))
        return std::nullopt;
    return was_there ? number_of(record) : 0;
}

std::vector<GFPDB_RECORD> GFPDB_DATABASE::find_misplaced(const GFPDB_SELECTION& selection)
{
    std::vector<GFPDB_RECORD> records;
    for (const GFPDB_MISPLACED& record : store().get_misplaced()) {
        if (has_name(selection, record.name()) && (record.is_template || has_place(selection, record.row)))
            records.push_back({record.is_template, record.row, 0});
    }
    return records;
}

bool GFPDB_DATABASE::rebuild_keys()
{
    return store().rebuild_keys().has_value();
}

bool GFPDB_DATABASE::is_name_of_other_kind(const GFPDB_RECORD& record)
{
    return record.is_template ? store().has_device(record.name())
                              : !store().get_template_revision(record.name()).empty();
}

bool GFPDB_DATABASE::check_integrity()
{
    return store().check_integrity();
}

bool GFPDB_DATABASE::import(const GFPDB_IMPORT_PLAN& plan, const std::function<bool(int)>& goes_on)
{
    const GFPDB_SEEN_STATES seen{plan.replaced_devices(), plan.replaced_templates()};
    return store().save_all(plan.devices(), plan.templates(), goes_on, &seen);
}

std::vector<GFPDB_HISTORY_ENTRY> GFPDB_DATABASE::find_history(const GFPDB_SELECTION& selection)
{
    std::vector<GFPDB_HISTORY_ENTRY> entries = store().get_history(selection.name);
    const auto is_out = [&selection](const GFPDB_HISTORY_ENTRY& entry) { return !is_selected(selection, entry); };
    entries.erase(std::remove_if(entries.begin(), entries.end(), is_out), entries.end());
    return entries;
}

std::optional<GFPDB_HISTORY_ENTRY> GFPDB_DATABASE::load_state(std::int64_t id)
{
    return store().find_history(id);
}

GFPDB_HISTORY_PAGE GFPDB_DATABASE::find_history_page(const GFPDB_HISTORY_FILTER& filter,
                                                     std::optional<std::int64_t> before, int count)
{
    return store().get_history_page(filter, before, count);
}

std::int64_t GFPDB_DATABASE::count_history()
{
    return store().count_history();
}

bool GFPDB_DATABASE::restore_state(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string& seen)
{
    return GFPDB_EMBEDDED_MGR::instance().restore_state(store(), id, {how, new_name}, &seen);
}

std::optional<int> GFPDB_DATABASE::prune_history(const GFPDB_SELECTION& selection, GFPDB_PRUNING pruning)
{
    pruning.is_selected = [&selection](const GFPDB_HISTORY_ENTRY& entry) { return is_selected(selection, entry); };
    pruning.name = selection.name;
    return store().prune_history(pruning);
}
