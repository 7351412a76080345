// SPDX-License-Identifier: MIT
#include "drawer_flash.h"

#include <algorithm>

namespace {

using PROPERTIES = std::vector<GFPDB_ACT_PROPERTY>;

PROPERTIES run(GFPDB_ACT_PROPERTY first, GFPDB_ACT_PROPERTY last)
{
    PROPERTIES properties;
    for (int property = first; property <= last; ++property)
        properties.push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
    return properties;
}

// The properties of each action type, in the order in which they are shown. They must outlive every action.
const PROPERTIES* properties_of(GFPDB_ACT_TYPE type)
{
    static const std::vector<PROPERTIES> ALL = {
        run(GFPDB_WR_NAME, GFPDB_WR_BUS_WIDTH), run(GFPDB_RR_NAME, GFPDB_RR_BUS_WIDTH),
        run(GFPDB_WD_NAME, GFPDB_WD_BUS_WIDTH), run(GFPDB_RD_NAME, GFPDB_RD_BUS_WIDTH),
        run(GFPDB_ER_NAME, GFPDB_ER_BUS_WIDTH), run(GFPDB_CUSTOM_LOOP_UNIT, GFPDB_CUSTOM_LOOP_MARKER),
    };
    return &ALL.at(static_cast<std::size_t>(type));
}

bool is_name(GFPDB_ACT_PROPERTY property)
{
    return property == GFPDB_WR_NAME || property == GFPDB_RR_NAME || property == GFPDB_WD_NAME ||
           property == GFPDB_RD_NAME || property == GFPDB_ER_NAME;
}

bool is_bus_width(GFPDB_ACT_PROPERTY property)
{
    return property == GFPDB_WR_BUS_WIDTH || property == GFPDB_RR_BUS_WIDTH || property == GFPDB_WD_BUS_WIDTH ||
           property == GFPDB_RD_BUS_WIDTH || property == GFPDB_ER_BUS_WIDTH;
}

} // namespace

// What the interface leaves to the library: these operations are not virtual.
GFPDB_ACTION::GFPDB_ACTION(int action_type, const std::vector<GFPDB_ACT_PROPERTY>* properties)
    : m_action_type(action_type), m_properties(properties)
{}

GFPDB_ACT_TYPE GFPDB_ACTION::get_action_type() const
{
    return static_cast<GFPDB_ACT_TYPE>(m_action_type);
}

std::vector<GFPDB_ACT_PROPERTY> GFPDB_ACTION::get_property_enum_list() const
{
    return m_properties == nullptr ? PROPERTIES() : *m_properties;
}

DRAWER_ACTION::DRAWER_ACTION(GFPDB_ACT_TYPE type) : GFPDB_ACTION(type, properties_of(type))
{
    for (const GFPDB_ACT_PROPERTY property : get_property_enum_list())
        m_values[property] = get_property_default(property);
}

// What a block of the flow chart says before each value.
std::string DRAWER_ACTION::get_property_label(GFPDB_ACT_PROPERTY property) const
{
    if (is_name(property))
        return "Step:";
    return is_bus_width(property) ? "Bus width:" : "Value " + std::to_string(property) + ":";
}

std::string DRAWER_ACTION::get_property_value(GFPDB_ACT_PROPERTY property) const
{
    const auto found = m_values.find(property);
    return found == m_values.end() ? std::string() : found->second;
}

std::string DRAWER_ACTION::get_property_default(GFPDB_ACT_PROPERTY property) const
{
    if (is_name(property))
        return "new step";
    return is_bus_width(property) ? "1-1" : "0";
}

bool DRAWER_ACTION::has_property(GFPDB_ACT_PROPERTY property) const
{
    return m_values.count(property) > 0;
}

std::vector<std::string> DRAWER_ACTION::get_property_choices(GFPDB_ACT_PROPERTY property) const
{
    return is_bus_width(property) ? std::vector<std::string>{"1-1", "1-4", "4-4"} : std::vector<std::string>();
}

void DRAWER_ACTION::set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value)
{
    if (has_property(property))
        m_values[property] = value;
}

// A custom action is asked about the properties of all types, so this looks at the property only.
bool DRAWER_ACTION::check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value,
                                         std::string& error) const
{
    if (!value.empty())
        return true;
    error = "\"" + get_property_label(property) + "\" must not be empty.";
    return false;
}

bool DRAWER_ACTION::is_property_enabled(GFPDB_ACT_PROPERTY /*property*/) const
{
    return true;
}

DRAWER_OPERATION::~DRAWER_OPERATION()
{
    for (const GFPDB_ACTION* const action : m_actions)
        delete action;
}

void DRAWER_OPERATION::add_action(GFPDB_ACTION* action)
{
    if (action != nullptr)
        m_actions.push_back(action);
}

DRAWER_FLASH::~DRAWER_FLASH()
{
    DRAWER_FLASH::clear_operations();
}

const std::vector<GFPDB_OPERATION*>* DRAWER_FLASH::get_operations(bool flow_variant) const
{
    const auto found = m_operations.find(flow_variant);
    return found == m_operations.end() ? nullptr : &found->second;
}

void DRAWER_FLASH::set_operation(GFPDB_OPERATION* operation, bool flow_variant)
{
    if (operation == nullptr)
        return;
    std::vector<GFPDB_OPERATION*>& operations = m_operations[flow_variant];
    for (GFPDB_OPERATION*& former : operations) {
        if (former->m_kind != operation->m_kind)
            continue;
        delete former;
        former = operation;
        return;
    }
    operations.push_back(operation);
}

GFPDB_OPERATION* DRAWER_FLASH::find_operation(int kind, bool flow_variant) const
{
    const std::vector<GFPDB_OPERATION*>* const operations = get_operations(flow_variant);
    if (operations == nullptr)
        return nullptr;
    const auto found = std::find_if(operations->begin(), operations->end(),
                                    [kind](const GFPDB_OPERATION* operation) { return operation->m_kind == kind; });
    return found == operations->end() ? nullptr : *found;
}

void DRAWER_FLASH::clear_operations()
{
    for (const auto& variant : m_operations) {
        for (const GFPDB_OPERATION* const operation : variant.second)
            delete operation;
    }
    m_operations.clear();
}

std::string DRAWER_FLASH::get_string_property(GFPDB_FLASH_PROPERTY property) const
{
    if (property == GFPDB_FLASH_NAME)
        return m_name;
    const auto found = m_texts.find(property);
    return found == m_texts.end() ? std::string() : found->second;
}

int DRAWER_FLASH::get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const
{
    const auto found = m_numbers.find(property);
    return found == m_numbers.end() ? default_value : found->second;
}

void DRAWER_FLASH::set_int_property(GFPDB_FLASH_PROPERTY property, int value)
{
    m_numbers[property] = value;
}

void DRAWER_FLASH::set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value)
{
    m_texts[property] = value;
}
