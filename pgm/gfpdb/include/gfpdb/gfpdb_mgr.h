// SPDX-License-Identifier: MIT

// The flash database manager.
#pragma once

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_flash.h"
#include "gfpdb/gfpdb_operation.h"

#include <cstdint>
#include <string>
#include <vector>

// All records, templates, option lists and checks of one flash database, for a current family and scheme. Owned by the
// library: a caller gets the active manager from GFPDB_HELPER and never deletes it. What it hands out stays valid also
// after the active manager was replaced. A record, with its operations and actions, does so while no more than 256
// later ones were made, if it was only made, or were stored, replaced or deleted, if it was; every other one until the
// process ends. Out vectors are cleared first and returned where a reference is returned. Throws nothing. Texts are in
// the library's encoding. GUI thread only.
//
// The declaration order of the virtual operations is the slot order of the interface.
class GFPDB_EXPORT GFPDB_MGR
{
public:
    virtual ~GFPDB_MGR() = default;

    // The flow variant that goes with the current scheme: selects one of a record's two sets of operations.
    virtual bool get_flow_variant() const = 0;
    virtual int get_device_family() const = 0;
    virtual void set_device_family(int family) = 0;
    virtual int get_config_scheme() const = 0;
    virtual void set_config_scheme(int scheme) = 0;
    // The record of the device or stored template called `name`, or null. With `load_flows` false the record may come
    // without its operations.
    virtual GFPDB_FLASH* find_flash(const std::string& name, bool load_flows) = 0;
    virtual bool is_builtin_flash(const std::string& name) const = 0;
    virtual bool is_custom_flash(const std::string& name) const = 0;
    // Why the last find, save, delete, remove or restore failed; empty when it did not.
    virtual std::string get_last_error() const = 0;
    // True for a device whose properties (`flows` false) or whose flows (`flows` true) are not to be shown. With
    // `flows` false it also says which device the user is asked about: checks of names go by it.
    virtual bool is_hidden_flash(const std::string& name, bool flows) const = 0;
    // True when devices can be added for the current scheme.
    virtual bool can_add_flash() const = 0;
    // True when the devices of the current scheme have flows that can be edited.
    virtual bool can_edit_flow() const = 0;
    // False when the database cannot be written now.
    virtual bool is_writable() const = 0;
    // Checks of a property value: false and a text for the user in `error` when the value is not allowed. The device
    // name that was checked last is the one that a template name is compared with.
    virtual bool check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const = 0;
    virtual bool check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                       std::string& error) const = 0;
    // True when devices of the current scheme have `property`.
    virtual bool is_property_used(GFPDB_FLASH_PROPERTY property) const = 0;
    // Second check of a text property: does the value fit the current family and scheme?
    virtual bool verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                        std::string& error) const = 0;
    // Writes `flash` into the database in `directory` for the current family and scheme. A record of that name is
    // replaced; its former state goes into the history. False: the database is as it was. A state that is stored
    // already stays as it is, with its revision.
    //
    // What the call just before took, if that was delete_flash() for the same directory, is replaced by `flash`; when
    // the save fails it is put back, and get_last_error() says so if that fails too. After such a delete_flash() only
    // the device whose deletion was asked for is replaced: when another one has the name of `flash`, the save is
    // refused.
    //
    // This and each other change of a record that someone else has changed since it was read here is refused once, and
    // get_last_error() says who changed it and when. The checks of the name and the device ID that precede a save say
    // so as well.
    virtual bool save_flash(GFPDB_FLASH* flash, const std::string& directory) = 0;
    // Removes the device `name` from the database in `directory`; its state goes into the history, and is back if the
    // very next call is a save_flash() that fails. True also when there is no such device. False: the database is as it
    // was. Refused for a device that find_flash() could not read when it was last looked for.
    virtual bool delete_flash(const std::string& name, const std::string& directory) = 0;
    // Brings the state `history_id` of the history in `directory` back as the current record of the family and scheme
    // that it had, under `new_name` (of a template: its template name), or under the name that it had when that is
    // empty. The history keeps the state. `how` decides about a record of the same kind that has the name now. False:
    // the name is not allowed or in use, and the database is as it was.
    virtual bool restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                               const std::string& new_name) = 0;
    virtual void get_family_list(std::vector<int>& families) const = 0;
    // The schemes of the current family.
    virtual std::vector<int>& get_config_scheme_list(std::vector<int>& schemes) const = 0;
    // Names of the devices that can be changed, and of those that cannot, for a family and scheme. `reserved` is 0.
    virtual std::vector<std::string>& get_custom_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                             int reserved) const = 0;
    virtual std::vector<std::string>& get_builtin_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                              int reserved) const = 0;
    virtual std::vector<std::string>& get_voltage_list(std::vector<std::string>& voltages) const = 0;
    // Also ends which device the user is asked about: a form fills its lists, then shows a device or asks for a new
    // one.
    virtual std::vector<std::string>& get_density_list(std::vector<std::string>& densities) const = 0;
    // The five built-in templates, then the stored ones.
    virtual std::vector<std::string>& get_template_list(std::vector<std::string>& templates) const = 0;
    // The stored templates only.
    virtual std::vector<std::string>& get_user_template_list(std::vector<std::string>& templates) const = 0;
    virtual bool is_template(const std::string& name) const = 0;
    // A new record, owned by the manager and known to no one else until save_flash() stored it; null when `name` is
    // empty. Any other name that is not allowed is refused by save_flash().
    virtual GFPDB_FLASH* create_flash(const std::string& name) = 0;
    // A new action with the default values of its type, owned by the caller; null for an unknown type.
    virtual GFPDB_ACTION* create_action(GFPDB_ACT_TYPE type) = 0;
    // A new empty operation, owned by the caller; null for an unknown kind.
    virtual GFPDB_OPERATION* create_operation(int kind) = 0;
    // The operations of a built-in template (0 to 4) or of a stored template; null when there is none.
    virtual const std::vector<GFPDB_OPERATION*>* get_builtin_template_operations(int index, bool flow_variant) = 0;
    virtual const std::vector<GFPDB_OPERATION*>* get_template_operations(const std::string& name,
                                                                         bool flow_variant) = 0;
    // True when the flows of `flash` may be changed; null stands for a new device.
    virtual bool is_flow_editable(const GFPDB_FLASH* flash) const = 0;
    // Kept free for a later operation; true.
    virtual bool reserved_36() const { return true; }
    // Removes the stored template `name`; its state goes into the history. True also when there is no such template.
    // False: the template is built in, or the database could not be changed and is as it was.
    virtual bool remove_template(const std::string& name) = 0;

    // The static operations take their texts by value: that is a part of their linker names.
    //
    // The user's database directory: absolute, "/" as separator and at its end, never empty. Local 8-bit.
    static std::string get_db_custom_dir();
    // Sets the directory for the next fetch of the manager. A relative one is relative to the base directory
    // (GFPDB_HELPER::set_base_dir()); an empty one stands for the default directory.
    static void set_db_custom_dir(std::string directory);
    // Stores `directory` in the settings file as the user's database directory. False when it is not an existing
    // directory in which a database can be used, or the settings cannot be written (then they stay as they were).
    // With `create` true a missing directory is created.
    static bool save_custom_dir_to_ini(std::string directory, bool create);

protected:
    GFPDB_MGR() = default;
    GFPDB_MGR(const GFPDB_MGR&) = delete;
    GFPDB_MGR& operator=(const GFPDB_MGR&) = delete;
};
