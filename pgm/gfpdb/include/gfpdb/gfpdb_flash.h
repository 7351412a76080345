// SPDX-License-Identifier: MIT

// One flash device, or one stored template, of the flash database.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_operation.h"

#include <string>
#include <vector>

// A flash record: the properties of the device, the database directory it belongs to, and for each of the two flow
// variants five operations. Owned by the manager that made or found it, which says how long it is valid. Texts are in
// the library's encoding. GUI thread only.
//
// The declaration order of the virtual operations is the slot order of the interface.
class GFPDB_EXPORT GFPDB_FLASH
{
public:
    virtual ~GFPDB_FLASH() = default;

    virtual std::string get_name() const = 0;
    virtual void set_name(const std::string& name) = 0;
    virtual std::string get_density() const = 0;
    virtual void set_density(const std::string& density) = 0;
    // The device family and the configuration scheme that the record was saved for; 0 and -1 before it was saved, and
    // for built-in devices, which serve every family.
    virtual int get_device_family() const = 0;
    virtual int get_config_scheme() const = 0;
    // The database directory, ending in "/"; empty for built-in devices.
    virtual std::string get_db_dir() const = 0;
    virtual void set_db_dir(const std::string& directory) = 0;
    // False for the library's built-in devices.
    virtual bool is_user_defined() const = 0;
    virtual void set_user_defined(bool user_defined) = 0;
    // True for a record that is a stored template.
    virtual bool is_template() const = 0;
    // A text that changes with every save of the record; empty before the first.
    virtual std::string get_revision() const = 0;
    // The operations of a flow variant in the order in which they were set; null when none was set. Valid until the
    // record's operations change.
    virtual const std::vector<GFPDB_OPERATION*>* get_operations(bool flow_variant) const = 0;
    // Takes `operation` over. An operation of the same kind and variant is replaced and deleted; null is ignored.
    virtual void set_operation(GFPDB_OPERATION* operation, bool flow_variant) = 0;
    // The operation of one kind, or null.
    virtual GFPDB_OPERATION* find_operation(int kind, bool flow_variant) const = 0;
    // Deletes the operations of both variants.
    virtual void clear_operations() = 0;
    // Text of a text property; integers in decimal; empty for an unknown id.
    virtual std::string get_string_property(GFPDB_FLASH_PROPERTY property) const = 0;
    // Value of an integer property; `default_value` when it was never set or is not an integer property.
    virtual int get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const = 0;
    virtual void set_int_property(GFPDB_FLASH_PROPERTY property, int value) = 0;
    virtual void set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value) = 0;

protected:
    GFPDB_FLASH() = default;
    GFPDB_FLASH(const GFPDB_FLASH&) = delete;
    GFPDB_FLASH& operator=(const GFPDB_FLASH&) = delete;
};
