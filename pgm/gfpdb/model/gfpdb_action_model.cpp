// SPDX-License-Identifier: MIT
#include "model/gfpdb_action_model.h"

#include "gfpdb/gfpdb_action_value.h"
#include "rules/gfpdb_action_rules.h"

namespace {

constexpr const char* NO_ADDRESSING = "0";
constexpr const char* THREE_BYTE_ADDRESSING = "3";
constexpr std::uint32_t THREE_BYTE_ADDRESS_MAX = 0xFFFFFF;

std::string count_of_bytes(std::int64_t count)
{
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

} // namespace

GFPDB_ACTION::GFPDB_ACTION(int action_type, const std::vector<GFPDB_ACT_PROPERTY>* properties)
    : m_action_type(action_type), m_properties(properties)
{}

GFPDB_ACT_TYPE GFPDB_ACTION::get_action_type() const
{
    return static_cast<GFPDB_ACT_TYPE>(m_action_type);
}

std::vector<GFPDB_ACT_PROPERTY> GFPDB_ACTION::get_property_enum_list() const
{
    return m_properties ? *m_properties : std::vector<GFPDB_ACT_PROPERTY>();
}

GFPDB_EMBEDDED_ACTION::GFPDB_EMBEDDED_ACTION(GFPDB_ACT_TYPE type)
    : GFPDB_ACTION(type, gfpdb_properties_of_type(type)),
      m_values(std::make_unique<std::string[]>(gfpdb_properties_of_type(type)->size()))
{
    for (const GFPDB_ACT_PROPERTY property : *gfpdb_properties_of_type(type))
        value_of(property) = gfpdb_property_default(property);
}

std::string GFPDB_EMBEDDED_ACTION::get_property_label(GFPDB_ACT_PROPERTY property) const
{
    if (property == GFPDB_CUSTOM_LOOP_UNIT && get_property_value(GFPDB_CUSTOM_LOOP_MARKER) == GFPDB_LOOP_END)
        return GFPDB_LOOP_END_LABEL;
    return gfpdb_property_label(property);
}

std::string GFPDB_EMBEDDED_ACTION::get_property_value(GFPDB_ACT_PROPERTY property) const
{
    return has_property(property) ? value_of(property) : std::string();
}

std::string GFPDB_EMBEDDED_ACTION::get_property_default(GFPDB_ACT_PROPERTY property) const
{
    return has_property(property) ? gfpdb_property_default(property) : std::string();
}

bool GFPDB_EMBEDDED_ACTION::has_property(GFPDB_ACT_PROPERTY property) const
{
    const std::vector<GFPDB_ACT_PROPERTY>& own = *gfpdb_properties_of_type(m_action_type);
    return property >= own.front() && property <= own.back();
}

std::vector<std::string> GFPDB_EMBEDDED_ACTION::get_property_choices(GFPDB_ACT_PROPERTY property) const
{
    const bool answers = m_action_type == GFPDB_ACT_CUSTOM || has_property(property);
    return answers ? gfpdb_property_choices(property) : std::vector<std::string>();
}

void GFPDB_EMBEDDED_ACTION::set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value)
{
    if (has_property(property))
        value_of(property) = value;
}

bool GFPDB_EMBEDDED_ACTION::check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value,
                                                 std::string& error) const
{
    if (m_action_type != GFPDB_ACT_CUSTOM && !has_property(property)) {
        error = "This action has no property with the number " + std::to_string(property) + '.';
        return false;
    }
    if (!gfpdb_check_property(property, value, error))
        return false;
    return m_action_type == GFPDB_ACT_CUSTOM || fits_other_values(property, value, error);
}

bool GFPDB_EMBEDDED_ACTION::is_property_enabled(GFPDB_ACT_PROPERTY property) const
{
    switch (static_cast<int>(property)) {
    case GFPDB_RR_EXPECTED_DATA_MASK:
    case GFPDB_RR_ATTEMPT_COUNT:
        return get_property_value(GFPDB_RR_EXPECTED_DATA) != GFPDB_VALUE_NONE && has_property(property);
    case GFPDB_RR_DELAY:
        return get_property_value(GFPDB_RR_EXPECTED_DATA) != GFPDB_VALUE_NONE &&
               get_property_value(GFPDB_RR_ATTEMPT_COUNT) != "1" && has_property(property);
    case GFPDB_RD_EXPECTED_DATA_MASK:
        return get_property_value(GFPDB_RD_EXPECTED_DATA) != GFPDB_VALUE_NONE && has_property(property);
    case GFPDB_ER_ADDRESS:
        return get_property_value(GFPDB_ER_ADDRESSING_MODE) != NO_ADDRESSING && has_property(property);
    default:
        return has_property(property);
    }
}

std::string& GFPDB_EMBEDDED_ACTION::value_of(int property) const
{
    return m_values[static_cast<std::size_t>(property - gfpdb_properties_of_type(m_action_type)->front())];
}

bool GFPDB_EMBEDDED_ACTION::fits_other_values(int property, const std::string& value, std::string& error) const
{
    switch (property) {
    case GFPDB_RR_EXPECTED_DATA:
    case GFPDB_RR_EXPECTED_DATA_MASK:
        return check_register_length(property, value, error);
    case GFPDB_WD_DATA:
        return check_page_data(value, error);
    case GFPDB_WD_ADDRESS:
        return check_address(property, GFPDB_WD_ADDRESSING_MODE, value, error);
    case GFPDB_RD_ADDRESS:
        return check_address(property, GFPDB_RD_ADDRESSING_MODE, value, error);
    case GFPDB_ER_ADDRESS:
        return check_address(property, GFPDB_ER_ADDRESSING_MODE, value, error);
    default:
        return true;
    }
}

// Expected data and mask have a byte for each byte that is read.
bool GFPDB_EMBEDDED_ACTION::check_register_length(int property, const std::string& value, std::string& error) const
{
    const std::optional<std::int64_t> length = gfpdb_parse_decimal(value_of(GFPDB_RR_DATA_LENGTH));
    const std::optional<std::vector<int>> bytes = gfpdb_parse_bytes(value);
    if (!length || !bytes || !is_property_enabled(static_cast<GFPDB_ACT_PROPERTY>(property)))
        return true;
    if (static_cast<std::int64_t>(bytes->size()) == *length)
        return true;
    error = gfpdb_property_error(property, value, count_of_bytes(*length) + ", as many as the data length says");
    return false;
}

bool GFPDB_EMBEDDED_ACTION::check_page_data(const std::string& value, std::string& error) const
{
    const std::optional<std::int64_t> page_size = gfpdb_parse_decimal(value_of(GFPDB_WD_PAGE_SIZE));
    const std::optional<std::vector<int>> bytes = gfpdb_parse_bytes(value);
    if (!page_size || !bytes || static_cast<std::int64_t>(bytes->size()) <= *page_size)
        return true;
    error = gfpdb_property_error(GFPDB_WD_DATA, value,
                                 "image, or at most " + count_of_bytes(*page_size) + ", which is one page");
    return false;
}

bool GFPDB_EMBEDDED_ACTION::check_address(int property, int mode_property, const std::string& value,
                                          std::string& error) const
{
    const std::string& mode = value_of(mode_property);
    if (mode == NO_ADDRESSING)
        return true;
    if (value == GFPDB_VALUE_NONE) {
        error = gfpdb_property_error(
            property, value, "loop, die, or an address such as 0x00010000, because the addressing mode is not 0");
        return false;
    }
    const std::optional<std::uint32_t> address = gfpdb_parse_address(value);
    if (mode != THREE_BYTE_ADDRESSING || !address || *address <= THREE_BYTE_ADDRESS_MAX)
        return true;
    error = gfpdb_property_error(property, value, "at most 0x00FFFFFF, because the addressing mode is 3");
    return false;
}

GFPDB_ACTION* gfpdb_make_action(GFPDB_ACT_TYPE type)
{
    return gfpdb_properties_of_type(type) ? new GFPDB_EMBEDDED_ACTION(type) : nullptr;
}
