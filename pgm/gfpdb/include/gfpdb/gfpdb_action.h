// SPDX-License-Identifier: MIT

// One step of a programming flow.
#pragma once

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_export.h"

#include <string>
#include <vector>

// An action: its type, and one value text for each property that its type has. Made by GFPDB_MGR::create_action and
// owned by whoever took it from there, until GFPDB_OPERATION::add_action takes it over; deleted through its virtual
// destructor. Texts are in the library's encoding. Values are in the library's own representation: what
// get_property_value() gives can be handed to set_property_value() of another action of the same type unchanged.
// GUI thread only.
//
// The declaration order of the virtual operations is the slot order of the interface.
class GFPDB_EXPORT GFPDB_ACTION
{
public:
    virtual ~GFPDB_ACTION() = default;

    // The label of `property` in a flow chart; empty for a property without a label.
    virtual std::string get_property_label(GFPDB_ACT_PROPERTY property) const = 0;
    // The value text; empty for a property that this action does not have.
    virtual std::string get_property_value(GFPDB_ACT_PROPERTY property) const = 0;
    // The value text that a new action of this type starts with.
    virtual std::string get_property_default(GFPDB_ACT_PROPERTY property) const = 0;
    // True when the value of `property` belongs to actions of this type.
    virtual bool has_property(GFPDB_ACT_PROPERTY property) const = 0;
    // The allowed value texts of a property with a closed choice, in display order; empty for any other. A custom
    // action answers for the properties of every type.
    virtual std::vector<std::string> get_property_choices(GFPDB_ACT_PROPERTY property) const = 0;
    // Stores `value` as it is, valid or not. A property that this action does not have is ignored.
    virtual void set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value) = 0;
    // True when `value` is valid for `property`; else `error` says what is wrong and what is allowed. A custom action
    // answers for the properties of every type.
    virtual bool check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value,
                                      std::string& error) const = 0;
    // False when the value of `property` has no effect with the other values as they are.
    virtual bool is_property_enabled(GFPDB_ACT_PROPERTY property) const = 0;

    // The action's type, the same number as m_action_type.
    GFPDB_ACT_TYPE get_action_type() const;
    // The properties of the action in the order in which they are shown and copied.
    std::vector<GFPDB_ACT_PROPERTY> get_property_enum_list() const;

    // The action's type as an int (GFPDB_ACT_TYPE); fixed at construction, read directly when actions are copied.
    int m_action_type;

protected:
    // `properties` is shared by all actions of a type; it must outlive the action and may be null for "none".
    GFPDB_ACTION(int action_type, const std::vector<GFPDB_ACT_PROPERTY>* properties);
    GFPDB_ACTION(const GFPDB_ACTION&) = default;
    GFPDB_ACTION& operator=(const GFPDB_ACTION&) = default;

private:
    const std::vector<GFPDB_ACT_PROPERTY>* m_properties;
};
