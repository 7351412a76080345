// SPDX-License-Identifier: MIT

// The flash database manager of the embedded library.
#pragma once

#include "gfpdb/gfpdb_mgr.h"
#include "manager/gfpdb_kept_records.h"
#include "rules/gfpdb_scheme_kind.h"
#include "store/gfpdb_store.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

// Which device the user is asked about, as far as the calls tell: what checks of names go by. Every load of a device or
// of the row of a new one fills the choice lists first, so get_density_list() begins it afresh.
struct GFPDB_ASKED_DEVICE
{
    // The name that is_hidden_flash(name, false) was last asked about since then, which begins with every device that
    // is shown and with every Apply. Empty when none was.
    std::string shown;
    // The device name that was checked last since then: the one that is about to be given. Empty when none was.
    std::string entered;
    // True when it was shown before: is_hidden_flash() was asked, and no device was loaded since. The checks that
    // follow are those of an Apply.
    bool is_shown_already = false;

    const std::string& name() const { return entered.empty() ? shown : entered; }
};

// What a save_flash() that follows a delete_flash() at once has to know of it.
struct GFPDB_DELETION
{
    // Both as they were given, the directory in its one form.
    std::string directory;
    std::string name;
    // None when there was no such device.
    std::optional<GFPDB_TAKEN> taken;
};

// What becomes of the name of a state that is restored, as GFPDB_MGR::restore_flash() has it.
struct GFPDB_RESTORATION
{
    GFPDB_RESTORE how;
    std::string new_name;
};

// The one manager of the process: custom devices and stored templates from the database of the custom directory,
// built-in devices from the catalogue. docs/database.md has the rules. A read that fails gives what there is without
// the database; what is wrong is in get_last_error(), in GFPDB_HELPER::get_database_problem() and in the log.
class GFPDB_EMBEDDED_MGR : public GFPDB_MGR
{
public:
    // Lives until the process ends.
    static GFPDB_EMBEDDED_MGR& instance();

    GFPDB_EMBEDDED_MGR();
    ~GFPDB_EMBEDDED_MGR() override;

    // Opens the database of the custom directory again. The default directory is created when it is missing.
    void reload();
    // The database of what was the custom directory at the last reload.
    GFPDB_STORE& store() { return *m_store; }
    // As restore_flash(). `seen` is the revision that the user was shown of the record that is replaced; null for the
    // one that was last read here.
    bool restore_state(GFPDB_STORE& store, std::int64_t history_id, const GFPDB_RESTORATION& how, std::string* seen);
    // Nothing is expected of the record any more: it is changed by no call of the manager.
    void forget_seen(const GFPDB_RECORD& record);

    bool get_flow_variant() const override;
    int get_device_family() const override;
    void set_device_family(int family) override;
    int get_config_scheme() const override;
    void set_config_scheme(int scheme) override;
    GFPDB_FLASH* find_flash(const std::string& name, bool load_flows) override;
    bool is_builtin_flash(const std::string& name) const override;
    bool is_custom_flash(const std::string& name) const override;
    std::string get_last_error() const override;
    bool is_hidden_flash(const std::string& name, bool flows) const override;
    bool can_add_flash() const override;
    bool can_edit_flow() const override;
    bool is_writable() const override;
    bool check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const override;
    bool check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                               std::string& error) const override;
    bool is_property_used(GFPDB_FLASH_PROPERTY property) const override;
    bool verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                std::string& error) const override;
    bool save_flash(GFPDB_FLASH* flash, const std::string& directory) override;
    bool delete_flash(const std::string& name, const std::string& directory) override;
    bool restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                       const std::string& new_name) override;
    void get_family_list(std::vector<int>& families) const override;
    std::vector<int>& get_config_scheme_list(std::vector<int>& schemes) const override;
    std::vector<std::string>& get_custom_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                     int reserved) const override;
    std::vector<std::string>& get_builtin_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                      int reserved) const override;
    std::vector<std::string>& get_voltage_list(std::vector<std::string>& voltages) const override;
    std::vector<std::string>& get_density_list(std::vector<std::string>& densities) const override;
    std::vector<std::string>& get_template_list(std::vector<std::string>& templates) const override;
    std::vector<std::string>& get_user_template_list(std::vector<std::string>& templates) const override;
    bool is_template(const std::string& name) const override;
    GFPDB_FLASH* create_flash(const std::string& name) override;
    GFPDB_ACTION* create_action(GFPDB_ACT_TYPE type) override;
    GFPDB_OPERATION* create_operation(int kind) override;
    const std::vector<GFPDB_OPERATION*>* get_builtin_template_operations(int index, bool flow_variant) override;
    const std::vector<GFPDB_OPERATION*>* get_template_operations(const std::string& name, bool flow_variant) override;
    bool is_flow_editable(const GFPDB_FLASH* flash) const override;
    bool remove_template(const std::string& name) override;

private:
    GFPDB_SCHEME_KIND kind() const { return gfpdb_scheme_kind(m_scheme); }
    GFPDB_STORE& store_of(const std::string& directory);
    GFPDB_EMBEDDED_FLASH* find_device(const std::string& name);
    GFPDB_EMBEDDED_FLASH* find_template(const std::string& name);
    GFPDB_EMBEDDED_FLASH* find_read(const std::string& place, const std::function<std::string()>& revision) const;
    GFPDB_EMBEDDED_FLASH* keep_read(const std::string& place, const GFPDB_ROW& row, bool is_template);
    GFPDB_EMBEDDED_FLASH* nothing_read();
    std::vector<std::string> densities() const;
    bool was_read(std::string& error) const;
    bool check_seen(GFPDB_STORE& store, const std::string& name);
    std::string device_place(const std::string& name) const;
    std::string* seen_state(const GFPDB_STORE& store, const std::string& place) const;
    bool check_shown_device(std::string& error) const;
    bool check_device_name(const std::string& name, std::string& error) const;
    bool check_template_name(const std::string& name, std::string& error) const;
    bool check_stored_device_name(const std::string& stored, const std::string& name, std::string& error) const;
    bool check_saved_name(GFPDB_STORE& store, const std::string& name, const GFPDB_TAKEN* taken,
                          std::string& error) const;
    static bool check_restored_name(const GFPDB_HISTORY_ENTRY& entry, const std::string& new_name, std::string& error);
    bool fail(const std::string& error);
    bool store_record(GFPDB_EMBEDDED_FLASH* record, GFPDB_STORE& store, const GFPDB_DELETION* deletion,
                      std::string& tried);
    void put_back(GFPDB_STORE& store, const GFPDB_TAKEN& taken, const std::string& tried);
    void note_own_state(GFPDB_STORE& store, const GFPDB_TAKEN& taken, const std::string& tried);

    int m_family = 0;
    int m_scheme = -1;
    // Never null.
    std::unique_ptr<GFPDB_STORE> m_store;
    // The database of another directory than the custom one that was last changed.
    std::unique_ptr<GFPDB_STORE> m_other_store;
    std::string m_last_error;
    // The last call, if that was a delete_flash() that succeeded. A save_flash() that follows at once replaces what it
    // took, or puts it back; any other call that loads or changes something ends it.
    std::optional<GFPDB_DELETION> m_deletion;
    mutable GFPDB_ASKED_DEVICE m_asked;
    // The revisions of records that were last read here or stored from here, by place; empty for none. What was never
    // looked for is not in it.
    mutable std::unordered_map<std::string, std::string> m_seen;
    // The places of devices that could not be read when they were last looked for, and why.
    std::unordered_map<std::string, std::string> m_unread;
    GFPDB_KEPT_RECORDS m_records;
};
