// SPDX-License-Identifier: MIT
#include "manager/gfpdb_embedded_mgr.h"

#include "base/gfpdb_create_dir.h"
#include "base/gfpdb_log.h"
#include "base/gfpdb_looking.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "manager/gfpdb_custom_dir.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_operation.h"
#include "rules/gfpdb_checks.h"
#include "rules/gfpdb_options.h"

#include "dstr/dstr.h"

#include <algorithm>

namespace {

constexpr const char* DEVICE_NAME = "device name";
constexpr const char* TEMPLATE_NAME = "template name";

// Where a record is in a database.
std::string device_place(int family, int scheme, const std::string& name)
{
    return "device " + std::to_string(family) + ' ' + std::to_string(scheme) + ' ' + gfpdb_name_key(name);
}

std::string template_place(const std::string& name)
{
    return "template " + gfpdb_name_key(name);
}

// Where the state goes when it is restored under `new_name`, or its own.
std::string place_of(const GFPDB_HISTORY_ENTRY& entry, const std::string& new_name)
{
    const std::string& name = new_name.empty() ? entry.name() : new_name;
    return entry.is_template ? template_place(name) : device_place(entry.row.family, entry.row.scheme, name);
}

bool refuse(std::string& error, const std::string& text)
{
    error = text;
    return false;
}

// A form that shows a stored value leaves it as it is when it is saved. A missing value is not a choice.
void add_missing(std::vector<std::string>& options, const std::set<std::string>& used)
{
    for (const std::string& value : used) {
        if (!value.empty() && std::find(options.begin(), options.end(), value) == options.end())
            options.push_back(value);
    }
}

} // namespace

GFPDB_EMBEDDED_MGR& GFPDB_EMBEDDED_MGR::instance()
{
    static auto& manager = *new GFPDB_EMBEDDED_MGR();
    return manager;
}

GFPDB_EMBEDDED_MGR::GFPDB_EMBEDDED_MGR()
{
    reload();
}

GFPDB_EMBEDDED_MGR::~GFPDB_EMBEDDED_MGR() = default;

void GFPDB_EMBEDDED_MGR::reload()
{
    m_deletion.reset();
    const std::string directory = get_db_custom_dir();
    if (directory == gfpdb_default_dir() && !gfpdb_only_looks())
        gfpdb_create_dir(directory);
    m_other_store.reset();
    if (!m_store || m_store->get_directory() != directory || !gfpdb_is_store_of(*m_store, directory))
        m_store = gfpdb_make_store(directory);
    m_store->reload();
    m_seen.clear();
}

void GFPDB_EMBEDDED_MGR::forget_seen(const GFPDB_RECORD& record)
{
    m_deletion.reset();
    m_seen.erase(m_store->get_directory() +
                 (record.is_template ? template_place(record.row.template_name)
                                     : ::device_place(record.row.family, record.row.scheme, record.row.name)));
}

bool GFPDB_EMBEDDED_MGR::fail(const std::string& error)
{
    m_last_error = error;
    qCWarning(GFPDB_LOG, "%s", GFPDB_WORDS::english(error).c_str());
    return false;
}

bool GFPDB_EMBEDDED_MGR::get_flow_variant() const
{
    return gfpdb_is_quad_scheme(m_scheme);
}

int GFPDB_EMBEDDED_MGR::get_device_family() const
{
    return m_family;
}

void GFPDB_EMBEDDED_MGR::set_device_family(int family)
{
    m_deletion.reset();
    m_family = family;
}

int GFPDB_EMBEDDED_MGR::get_config_scheme() const
{
    return m_scheme;
}

void GFPDB_EMBEDDED_MGR::set_config_scheme(int scheme)
{
    m_deletion.reset();
    m_scheme = scheme;
}

// The flows come along in any case: a record without them would look like one that has none.
GFPDB_FLASH* GFPDB_EMBEDDED_MGR::find_flash(const std::string& name, bool load_flows)
{
    Q_UNUSED(load_flows)
    m_deletion.reset();
    m_asked.is_shown_already = false;
    m_last_error.clear();
    GFPDB_FLASH* found = find_device(name);
    if (found == nullptr && is_builtin_flash(name))
        found = gfpdb_builtin_record(name);
    if (found == nullptr)
        found = find_template(name);
    if (found != nullptr)
        m_last_error.clear();
    return found;
}

std::string GFPDB_EMBEDDED_MGR::device_place(const std::string& name) const
{
    return ::device_place(m_family, m_scheme, name);
}

// Null for a record that was never looked for here.
std::string* GFPDB_EMBEDDED_MGR::seen_state(const GFPDB_STORE& store, const std::string& place) const
{
    const auto seen = m_seen.find(store.get_directory() + place);
    return seen == m_seen.end() ? nullptr : &seen->second;
}

GFPDB_EMBEDDED_FLASH* GFPDB_EMBEDDED_MGR::find_device(const std::string& name)
{
    const std::string place = device_place(name);
    GFPDB_EMBEDDED_FLASH* record =
        find_read(place, [&] { return m_store->get_device_revision(m_family, m_scheme, name); });
    if (record == nullptr) {
        const std::optional<GFPDB_ROW> row = m_store->find_device(m_family, m_scheme, name);
        record = row ? keep_read(place, *row, false) : nothing_read();
    }
    if (record != nullptr)
        m_store->note_used_values(gfpdb_schemes_of(kind()), record->get_string_property(GFPDB_FLASH_VOLTAGE),
                                  record->get_density());
    if (record != nullptr || m_last_error.empty()) {
        m_unread.erase(m_store->get_directory() + place);
        m_seen[m_store->get_directory() + place] = record != nullptr ? record->get_revision() : std::string();
    } else {
        m_unread[m_store->get_directory() + place] = m_last_error;
        m_seen.erase(m_store->get_directory() + place);
    }
    return record;
}

// What a user has not seen is neither deleted nor replaced, unless it is gone. What is wrong with the whole database is
// said first.
bool GFPDB_EMBEDDED_MGR::check_seen(GFPDB_STORE& store, const std::string& name)
{
    const auto unread = m_unread.find(store.get_directory() + device_place(name));
    if (unread == m_unread.end())
        return true;
    if (store.get_device_name(m_family, m_scheme, name).empty() && store.get_last_error().empty()) {
        m_unread.erase(unread);
        return true;
    }
    if (!store.can_be_changed())
        return fail(store.get_last_error());
    return fail(
        GFPDB_WORDS::say("The device %1 is neither deleted nor replaced, because it could not be read when it was "
                         "last looked for: %2",
                         {gfpdb_quoted(name), unread->second}));
}

GFPDB_EMBEDDED_FLASH* GFPDB_EMBEDDED_MGR::find_template(const std::string& name)
{
    const std::string place = template_place(name);
    GFPDB_EMBEDDED_FLASH* record = find_read(place, [&] { return m_store->get_template_revision(name); });
    if (record == nullptr) {
        const std::optional<GFPDB_ROW> row = m_store->find_template(name);
        record = row ? keep_read(place, *row, true) : nothing_read();
    }
    if (record != nullptr)
        m_seen[m_store->get_directory() + place] = record->get_revision();
    return record;
}

// The record that was read from `place` of the current database, if it is still what is stored there, and as much the
// user's to change as it was. What was not read before needs no question for its revision.
GFPDB_EMBEDDED_FLASH* GFPDB_EMBEDDED_MGR::find_read(const std::string& place,
                                                    const std::function<std::string()>& revision) const
{
    GFPDB_EMBEDDED_FLASH* record = m_records.find_read(m_store->get_directory() + place);
    const bool is_same = record != nullptr && record->is_unchanged() && record->get_revision() == revision();
    return is_same && record->is_user_defined() != m_store->is_read_only() ? record : nullptr;
}

GFPDB_EMBEDDED_FLASH* GFPDB_EMBEDDED_MGR::keep_read(const std::string& place, const GFPDB_ROW& row, bool is_template)
{
    const std::string& directory = m_store->get_directory();
    std::unique_ptr<GFPDB_EMBEDDED_FLASH> record = GFPDB_EMBEDDED_FLASH::from_row(row, directory, is_template);
    if (!record) {
        fail(GFPDB_WORDS::say("The flows of %1 in %2 cannot be read.", {gfpdb_quoted(row.name), directory}));
        return nullptr;
    }
    // A form that would save it with every OK could not be accepted.
    record->set_user_defined(!m_store->is_read_only());
    record->set_unchanged();
    return m_records.add_read(directory + place, std::move(record));
}

// Remembers why, if the database could not be read.
GFPDB_EMBEDDED_FLASH* GFPDB_EMBEDDED_MGR::nothing_read()
{
    if (!m_store->get_last_error().empty())
        m_last_error = m_store->get_last_error();
    return nullptr;
}

bool GFPDB_EMBEDDED_MGR::is_builtin_flash(const std::string& name) const
{
    return kind() == GFPDB_SCHEME_KIND::SERIAL && gfpdb_builtin_part(name) != nullptr;
}

bool GFPDB_EMBEDDED_MGR::is_custom_flash(const std::string& name) const
{
    return !m_store->get_device_revision(m_family, m_scheme, name).empty();
}

std::string GFPDB_EMBEDDED_MGR::get_last_error() const
{
    return m_last_error;
}

// A custom device of the part's name is the user's own and never hidden. A mode without devices has nothing to show,
// and nothing that an OK would have to save.
bool GFPDB_EMBEDDED_MGR::is_hidden_flash(const std::string& name, bool flows) const
{
    if (!flows)
        m_asked = GFPDB_ASKED_DEVICE{name, std::string(), true};
    if (!flows && kind() == GFPDB_SCHEME_KIND::NONE)
        return true;
    const GFPDB_PART* part = is_builtin_flash(name) ? gfpdb_builtin_part(name) : nullptr;
    const bool is_hidden = part != nullptr && (flows ? part->flows_hidden : part->properties_hidden);
    return is_hidden && !is_custom_flash(name);
}

bool GFPDB_EMBEDDED_MGR::can_add_flash() const
{
    return kind() != GFPDB_SCHEME_KIND::NONE;
}

bool GFPDB_EMBEDDED_MGR::can_edit_flow() const
{
    return kind() == GFPDB_SCHEME_KIND::SERIAL;
}

bool GFPDB_EMBEDDED_MGR::is_writable() const
{
    return m_store->is_writable();
}

bool GFPDB_EMBEDDED_MGR::check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const
{
    const GFPDB_FIELD* field = gfpdb_field(property);
    if (field == nullptr || field->kind != GFPDB_FIELD_KIND::NUMBER)
        return refuse(error, GFPDB_WORDS::say("Property %1 of a device is not a number.", {std::to_string(property)}));
    return gfpdb_check_range(value, field->lowest, field->highest, field->noun, error);
}

bool GFPDB_EMBEDDED_MGR::check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                               std::string& error) const
{
    const GFPDB_FIELD* field = gfpdb_field(property);
    std::vector<std::string> allowed;
    switch (property) {
    case GFPDB_FLASH_NAME:
        return check_device_name(value, error) && check_shown_device(error);
    case GFPDB_FLASH_DEVICE_ID:
        return gfpdb_check_device_id(value, error) && check_shown_device(error);
    case GFPDB_FLASH_VOLTAGE:
        return gfpdb_check_choice(value, get_voltage_list(allowed), field->noun, error);
    case GFPDB_FLASH_DENSITY:
        return gfpdb_check_choice(value, densities(), field->noun, error);
    case GFPDB_FLASH_TEMPLATE_NAME:
        return check_template_name(value, error);
    case GFPDB_FLASH_FLOW_TEMPLATE:
        return gfpdb_check_choice(value, get_template_list(allowed), field->noun, error);
    default:
        return refuse(error, GFPDB_WORDS::say("Property %1 of a device is not a text.", {std::to_string(property)}));
    }
}

// An Apply of the dialog says no more than that it failed, where the device was changed by someone else: it is told
// here, before anything is deleted. Once, as by the change itself.
bool GFPDB_EMBEDDED_MGR::check_shown_device(std::string& error) const
{
    std::string* const seen = seen_state(*m_store, device_place(m_asked.shown));
    return !m_asked.is_shown_already || seen == nullptr ||
           m_store->check_seen_device(m_family, m_scheme, m_asked.shown, *seen) ||
           refuse(error, m_store->get_last_error());
}

// What could not be read is not free.
bool GFPDB_EMBEDDED_MGR::was_read(std::string& error) const
{
    return m_store->get_last_error().empty() || refuse(error, m_store->get_last_error());
}

bool GFPDB_EMBEDDED_MGR::check_device_name(const std::string& name, std::string& error) const
{
    m_asked.entered = name;
    if (!gfpdb_check_name(name, DEVICE_NAME, error))
        return false;
    const std::string stored = m_store->get_device_name(m_family, m_scheme, name);
    if (!was_read(error) || (stored.empty() && !gfpdb_check_record_name(name, DEVICE_NAME, error)))
        return false;
    if (!m_store->is_writable())
        return refuse(error, m_store->get_problem());
    const std::string in_the_way = m_store->get_template_name(name);
    if (!was_read(error))
        return false;
    if (!in_the_way.empty())
        return refuse(error, GFPDB_WORDS::say("There is a stored template called %1: choose another name.",
                                              {gfpdb_quoted(in_the_way)}) +
                                 gfpdb_case_note(in_the_way, name));
    return stored.empty() || check_stored_device_name(stored, name, error);
}

// The device that is shown may change the case of its name.
bool GFPDB_EMBEDDED_MGR::check_stored_device_name(const std::string& stored, const std::string& name,
                                                  std::string& error) const
{
    const bool is_shown = stored == m_asked.shown;
    if (is_shown && stored != name)
        return true;
    if (is_shown)
        return refuse(error,
                      GFPDB_WORDS::say("There is a device called %1: it is the one that is shown. Enter another name "
                                       "to rename it.",
                                       {gfpdb_quoted(stored)}));
    return refuse(error, GFPDB_WORDS::say("There is a device called %1 for this family and configuration mode: choose "
                                          "another name.",
                                          {gfpdb_quoted(stored)}) +
                             gfpdb_case_note(stored, name));
}

bool GFPDB_EMBEDDED_MGR::check_template_name(const std::string& name, std::string& error) const
{
    if (!gfpdb_check_record_name(name, TEMPLATE_NAME, error))
        return false;
    if (!m_store->is_writable())
        return refuse(error, m_store->get_problem());
    const std::string in_the_way = m_store->get_template_name(name);
    if (!was_read(error))
        return false;
    if (!in_the_way.empty())
        return refuse(error,
                      GFPDB_WORDS::say("There is a stored template called %1: choose another name, or remove that "
                                       "template first.",
                                       {gfpdb_quoted(in_the_way)}) +
                          gfpdb_case_note(in_the_way, name));
    // A dialog has words of its own for a template name that is the device's.
    if (name == m_asked.name())
        return true;
    if (gfpdb_name_key(name) == gfpdb_name_key(m_asked.name()))
        return refuse(error,
                      GFPDB_WORDS::say("The template name %1 differs from the device name %2 in case only: choose "
                                       "another name.",
                                       {gfpdb_quoted(name), gfpdb_quoted(m_asked.name())}));
    const std::string device = m_store->get_any_device_name(name);
    if (device.empty())
        return was_read(error);
    return refuse(error, GFPDB_WORDS::say("There is a device called %1: choose another name.", {gfpdb_quoted(device)}) +
                             gfpdb_case_note(device, name));
}

// A device whose name a built-in part has got since can be saved; a new one cannot take such a name.
bool GFPDB_EMBEDDED_MGR::check_saved_name(GFPDB_STORE& store, const std::string& name, const GFPDB_TAKEN* taken,
                                          std::string& error) const
{
    if (gfpdb_builtin_part(name) == nullptr)
        return gfpdb_check_record_name(name, DEVICE_NAME, error);
    const bool is_taken = taken != nullptr && gfpdb_name_key(taken->name) == gfpdb_name_key(name);
    const bool is_known = is_taken || !store.get_device_name(m_family, m_scheme, name).empty();
    return is_known ? gfpdb_check_name(name, DEVICE_NAME, error) : gfpdb_check_record_name(name, DEVICE_NAME, error);
}

bool GFPDB_EMBEDDED_MGR::is_property_used(GFPDB_FLASH_PROPERTY property) const
{
    return gfpdb_kind_has_property(kind(), property);
}

bool GFPDB_EMBEDDED_MGR::verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                                std::string& error) const
{
    if (property != GFPDB_FLASH_VOLTAGE || gfpdb_voltage_fits(value, m_family, m_scheme))
        return true;
    return refuse(error,
                  GFPDB_WORDS::say("A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it "
                                   "must support 1.8 V.",
                                   {gfpdb_quoted(value), dstr_get_user_string(m_family)}));
}

bool GFPDB_EMBEDDED_MGR::save_flash(GFPDB_FLASH* flash, const std::string& directory)
{
    m_last_error.clear();
    GFPDB_STORE& store = store_of(directory);
    std::optional<GFPDB_DELETION> deletion;
    deletion.swap(m_deletion);
    if (deletion && deletion->directory != store.get_directory())
        deletion.reset();
    std::string tried;
    if (store_record(dynamic_cast<GFPDB_EMBEDDED_FLASH*>(flash), store, deletion ? &*deletion : nullptr, tried))
        return true;
    if (deletion && deletion->taken)
        put_back(store, *deletion->taken, tried);
    return false;
}

// The reason why the save failed stays the last error; that the device is not back is added to it.
void GFPDB_EMBEDDED_MGR::put_back(GFPDB_STORE& store, const GFPDB_TAKEN& taken, const std::string& tried)
{
    if (store.undo_removal(taken)) {
        m_seen[store.get_directory() + device_place(taken.name)] = taken.revision;
        return;
    }
    fail(GFPDB_WORDS::say("%1 The device %2 that was deleted before was not put back: %3",
                          {m_last_error, gfpdb_quoted(taken.name), store.get_last_error()}));
    note_own_state(store, taken, tried);
}

// A change can have been made although it was reported as failed: what it stored is not another user's. Where not even
// that can be read, nothing is known of the device.
void GFPDB_EMBEDDED_MGR::note_own_state(GFPDB_STORE& store, const GFPDB_TAKEN& taken, const std::string& tried)
{
    const std::string place = store.get_directory() + device_place(taken.name);
    const std::string stored = store.get_device_revision(taken.family, taken.scheme, taken.name);
    if (!store.get_last_error().empty())
        m_seen.erase(place);
    else if (stored == taken.revision || stored == tried)
        m_seen[place] = stored;
}

// A rename and a new device take a name that was free when it was checked: what has it by now is not replaced. `tried`
// gets the revision that is to be stored.
bool GFPDB_EMBEDDED_MGR::store_record(GFPDB_EMBEDDED_FLASH* record, GFPDB_STORE& store, const GFPDB_DELETION* deletion,
                                      std::string& tried)
{
    std::string error;
    const GFPDB_TAKEN* taken = deletion != nullptr && deletion->taken ? &*deletion->taken : nullptr;
    if (record == nullptr)
        return fail(GFPDB_WORDS::say("There is no record to save."));
    if (!can_add_flash())
        return fail(GFPDB_WORDS::say("The configuration mode has no flash devices."));
    if (!check_saved_name(store, record->get_name(), taken, error))
        return fail(error);
    if (!check_seen(store, record->get_name()))
        return false;
    const std::string template_name = record->get_string_property(GFPDB_FLASH_TEMPLATE_NAME);
    if (!template_name.empty() && !gfpdb_check_record_name(template_name, TEMPLATE_NAME, error))
        return fail(error);
    std::optional<GFPDB_ROW> row = record->to_row(m_family, m_scheme);
    if (!row)
        return fail(GFPDB_WORDS::say("The device %1 contains text that is not valid UTF-8.",
                                     {gfpdb_quoted(record->get_name())}));
    row->revision = tried = gfpdb_new_revision();
    const bool is_new_name =
        deletion != nullptr && gfpdb_name_key(deletion->name) != gfpdb_name_key(record->get_name());
    const std::string place = device_place(record->get_name());
    const std::optional<std::string> revision =
        store.save_device(*row, taken, is_new_name, is_new_name ? nullptr : seen_state(store, place));
    if (!revision)
        return fail(store.get_last_error());
    row->revision = *revision;
    record->set_db_dir(store.get_directory());
    record->set_stored(*row);
    m_seen[store.get_directory() + place] = *revision;
    m_records.retire_stored(record);
    if (is_new_name)
        m_records.retire_read(store.get_directory() + device_place(deletion->name));
    return true;
}

GFPDB_STORE& GFPDB_EMBEDDED_MGR::store_of(const std::string& directory)
{
    const std::string normalised = directory.empty() ? m_store->get_directory() : gfpdb_normalised_dir(directory);
    if (normalised == m_store->get_directory())
        return *m_store;
    if (!m_other_store || m_other_store->get_directory() != normalised)
        m_other_store = gfpdb_make_store(normalised);
    return *m_other_store;
}

bool GFPDB_EMBEDDED_MGR::delete_flash(const std::string& name, const std::string& directory)
{
    m_last_error.clear();
    m_deletion.reset();
    GFPDB_STORE& store = store_of(directory);
    if (!check_seen(store, name))
        return false;
    GFPDB_DELETION deletion{store.get_directory(), name, std::nullopt};
    if (!store.remove_device(m_family, m_scheme, name, &deletion.taken, seen_state(store, device_place(name))))
        return fail(store.get_last_error());
    m_deletion = deletion;
    return true;
}

bool GFPDB_EMBEDDED_MGR::restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                                       const std::string& new_name)
{
    return restore_state(store_of(directory), history_id, {how, new_name}, nullptr);
}

bool GFPDB_EMBEDDED_MGR::restore_state(GFPDB_STORE& store, std::int64_t history_id, const GFPDB_RESTORATION& how,
                                       std::string* seen)
{
    m_last_error.clear();
    m_deletion.reset();
    const std::optional<GFPDB_HISTORY_ENTRY> entry = store.find_history(history_id);
    std::string error;
    if (entry && !check_restored_name(*entry, how.new_name, error))
        return fail(error);
    const std::string place = entry ? place_of(*entry, how.new_name) : std::string();
    if (!store.restore(history_id, how.how, how.new_name, seen != nullptr ? seen : seen_state(store, place)))
        return fail(store.get_last_error());
    m_seen.erase(store.get_directory() + place);
    return true;
}

// A record that had a built-in device's name before the catalogue did gets it back; a new name must be free of both.
bool GFPDB_EMBEDDED_MGR::check_restored_name(const GFPDB_HISTORY_ENTRY& entry, const std::string& new_name,
                                             std::string& error)
{
    const char* const what = entry.is_template ? TEMPLATE_NAME : DEVICE_NAME;
    const std::string& name = new_name.empty() ? entry.name() : new_name;
    const bool is_old_name = gfpdb_name_key(name) == gfpdb_name_key(entry.name());
    return is_old_name && gfpdb_builtin_part(name) != nullptr ? gfpdb_check_name(name, what, error)
                                                              : gfpdb_check_record_name(name, what, error);
}

void GFPDB_EMBEDDED_MGR::get_family_list(std::vector<int>& families) const
{
    families = dstr_get_families();
}

std::vector<int>& GFPDB_EMBEDDED_MGR::get_config_scheme_list(std::vector<int>& schemes) const
{
    return schemes = dstr_get_config_schemes(m_family);
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_custom_flash_names(std::vector<std::string>& names, int family,
                                                                     int scheme, int reserved) const
{
    Q_UNUSED(reserved)
    return names = m_store->get_device_names(family, scheme);
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_builtin_flash_names(std::vector<std::string>& names, int family,
                                                                      int scheme, int reserved) const
{
    Q_UNUSED(reserved)
    names.clear();
    if (gfpdb_scheme_kind(scheme) != GFPDB_SCHEME_KIND::SERIAL)
        return names;
    const std::vector<std::string>& keys = gfpdb_builtin_keys();
    const std::vector<std::string> custom = m_store->find_device_keys(family, scheme, keys);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (std::find(custom.begin(), custom.end(), keys[i]) == custom.end())
            names.push_back(gfpdb_builtin_names()[i]);
    }
    return names;
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_voltage_list(std::vector<std::string>& voltages) const
{
    voltages = gfpdb_voltage_options(kind());
    add_missing(voltages, m_store->get_used_values(gfpdb_schemes_of(kind())).voltages);
    return voltages;
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_density_list(std::vector<std::string>& densities) const
{
    m_asked = GFPDB_ASKED_DEVICE();
    return densities = this->densities();
}

std::vector<std::string> GFPDB_EMBEDDED_MGR::densities() const
{
    std::vector<std::string> densities = gfpdb_density_options(kind());
    add_missing(densities, m_store->get_used_values(gfpdb_schemes_of(kind())).densities);
    return densities;
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_template_list(std::vector<std::string>& templates) const
{
    templates = gfpdb_builtin_template_names();
    const std::vector<std::string> stored = m_store->get_template_names();
    templates.insert(templates.end(), stored.begin(), stored.end());
    return templates;
}

std::vector<std::string>& GFPDB_EMBEDDED_MGR::get_user_template_list(std::vector<std::string>& templates) const
{
    return templates = m_store->get_template_names();
}

bool GFPDB_EMBEDDED_MGR::is_template(const std::string& name) const
{
    return gfpdb_builtin_template(name) >= 0 || !m_store->get_template_revision(name).empty();
}

// Only an empty name gives no record: what else is wrong with a name is said by save_flash(), which a user notices.
GFPDB_FLASH* GFPDB_EMBEDDED_MGR::create_flash(const std::string& name)
{
    if (name.empty())
        return nullptr;
    return m_records.add_made(std::make_unique<GFPDB_EMBEDDED_FLASH>(name));
}

GFPDB_ACTION* GFPDB_EMBEDDED_MGR::create_action(GFPDB_ACT_TYPE type)
{
    return gfpdb_make_action(type);
}

GFPDB_OPERATION* GFPDB_EMBEDDED_MGR::create_operation(int kind)
{
    return gfpdb_make_operation(kind);
}

const std::vector<GFPDB_OPERATION*>* GFPDB_EMBEDDED_MGR::get_builtin_template_operations(int index, bool flow_variant)
{
    return gfpdb_builtin_template_operations(index, flow_variant);
}

const std::vector<GFPDB_OPERATION*>* GFPDB_EMBEDDED_MGR::get_template_operations(const std::string& name,
                                                                                 bool flow_variant)
{
    m_last_error.clear();
    const int index = gfpdb_builtin_template(name);
    if (index >= 0)
        return gfpdb_builtin_template_operations(index, flow_variant);
    const GFPDB_EMBEDDED_FLASH* record = find_template(name);
    return record != nullptr ? record->get_operations(flow_variant) : nullptr;
}

bool GFPDB_EMBEDDED_MGR::is_flow_editable(const GFPDB_FLASH* flash) const
{
    return can_edit_flow() && (flash == nullptr || flash->is_user_defined());
}

bool GFPDB_EMBEDDED_MGR::remove_template(const std::string& name)
{
    m_last_error.clear();
    m_deletion.reset();
    if (gfpdb_builtin_template(name) >= 0)
        return fail(GFPDB_WORDS::say("The template %1 is built in: it cannot be removed.", {gfpdb_quoted(name)}));
    return m_store->remove_template(name, seen_state(*m_store, template_place(name))) ||
           fail(m_store->get_last_error());
}
