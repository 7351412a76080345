// SPDX-License-Identifier: MIT

// The library's actions: one value text for each property of the type, in one allocation; the list of properties is
// shared by all actions of a type.
#pragma once

#include "gfpdb/gfpdb_action.h"

#include <memory>

// Answers checks and choices for its own properties, and as a custom action for those of every type. A value that
// depends on another one of the same action (a mask as long as the data, an address only where there is an addressing
// mode) is checked against that one by the action that has both; a custom action checks how the value is written.
class GFPDB_EMBEDDED_ACTION final : public GFPDB_ACTION
{
public:
    // With the default values of `type`, which must be one of the six types.
    explicit GFPDB_EMBEDDED_ACTION(GFPDB_ACT_TYPE type);

    std::string get_property_label(GFPDB_ACT_PROPERTY property) const override;
    std::string get_property_value(GFPDB_ACT_PROPERTY property) const override;
    std::string get_property_default(GFPDB_ACT_PROPERTY property) const override;
    bool has_property(GFPDB_ACT_PROPERTY property) const override;
    std::vector<std::string> get_property_choices(GFPDB_ACT_PROPERTY property) const override;
    void set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value) override;
    bool check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value, std::string& error) const override;
    bool is_property_enabled(GFPDB_ACT_PROPERTY property) const override;

private:
    // The value of an own property; `property` must be one.
    std::string& value_of(int property) const;
    bool fits_other_values(int property, const std::string& value, std::string& error) const;
    bool check_register_length(int property, const std::string& value, std::string& error) const;
    bool check_page_data(const std::string& value, std::string& error) const;
    bool check_address(int property, int mode_property, const std::string& value, std::string& error) const;

    std::unique_ptr<std::string[]> m_values;
};

// A new action with the default values of its type, owned by the caller; null for a number that is not a type.
GFPDB_ACTION* gfpdb_make_action(GFPDB_ACT_TYPE type);
