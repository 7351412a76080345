// SPDX-License-Identifier: MIT
#include "rules/gfpdb_flow_lint_commands.h"

#include "gfpdb/gfpdb_action_value.h"

#include <algorithm>
#include <iterator>

namespace gfpdb_lint {

namespace {

constexpr GFPDB_ACT_TYPE PROGRAM = GFPDB_ACT_WRITE_DATA;
constexpr GFPDB_ACT_TYPE READ = GFPDB_ACT_READ_DATA;
constexpr GFPDB_ACT_TYPE ERASE = GFPDB_ACT_ERASE;

// 12 is a page program with four address bytes, or, on some chips, one on four lines.
constexpr COMMAND COMMANDS[] = {
    {0x03, READ, ADDRESS::BY_MODE, "1-1-1"},
    {0x13, READ, ADDRESS::ALWAYS_FOUR, "1-1-1"},
    {0x0B, READ, ADDRESS::BY_MODE, "1-1-1"},
    {0x0C, READ, ADDRESS::ALWAYS_FOUR, "1-1-1"},
    {0x3B, READ, ADDRESS::BY_MODE, "1-1-2"},
    {0x3C, READ, ADDRESS::ALWAYS_FOUR, "1-1-2"},
    {0xBB, READ, ADDRESS::BY_MODE, "1-2-2"},
    {0xBC, READ, ADDRESS::ALWAYS_FOUR, "1-2-2"},
    {0x6B, READ, ADDRESS::BY_MODE, "1-1-4"},
    {0x6C, READ, ADDRESS::ALWAYS_FOUR, "1-1-4"},
    {0xEB, READ, ADDRESS::BY_MODE, "1-4-4"},
    {0xEC, READ, ADDRESS::ALWAYS_FOUR, "1-4-4"},
    {0x02, PROGRAM, ADDRESS::BY_MODE, "1-1-1"},
    {0x12, PROGRAM, ADDRESS::ALWAYS_FOUR, "1-1-1"},
    {0x12, PROGRAM, ADDRESS::BY_MODE, "1-4-4"},
    {0xA2, PROGRAM, ADDRESS::BY_MODE, "1-1-2"},
    {0xD2, PROGRAM, ADDRESS::BY_MODE, "1-2-2"},
    {0x32, PROGRAM, ADDRESS::BY_MODE, "1-1-4"},
    {0x32, PROGRAM, ADDRESS::BY_MODE, "1-4-4"},
    {0x34, PROGRAM, ADDRESS::ALWAYS_FOUR, "1-1-4"},
    {0x34, PROGRAM, ADDRESS::ALWAYS_FOUR, "1-4-4"},
    {0x38, PROGRAM, ADDRESS::BY_MODE, "1-4-4"},
    {0x38, PROGRAM, ADDRESS::BY_MODE, "1-1-4"},
    {0x3E, PROGRAM, ADDRESS::ALWAYS_FOUR, "1-4-4"},
    {0x3E, PROGRAM, ADDRESS::ALWAYS_FOUR, "1-1-4"},
    {0x20, ERASE, ADDRESS::BY_MODE, "1-1"},
    {0x21, ERASE, ADDRESS::ALWAYS_FOUR, "1-1"},
    {0x52, ERASE, ADDRESS::BY_MODE, "1-1"},
    {0x5C, ERASE, ADDRESS::ALWAYS_FOUR, "1-1"},
    {0xD7, ERASE, ADDRESS::BY_MODE, "1-1"},
    {0xD8, ERASE, ADDRESS::BY_MODE, "1-1"},
    {0xDC, ERASE, ADDRESS::ALWAYS_FOUR, "1-1"},
    {0xC4, ERASE, ADDRESS::BY_MODE, "1-1"},
    {0x60, ERASE, ADDRESS::NONE, "1-1"},
    {0xC7, ERASE, ADDRESS::NONE, "1-1"},
};

// The properties that each type has in its own place.
struct PROPERTIES
{
    GFPDB_ACT_PROPERTY command;
    GFPDB_ACT_PROPERTY bus_width;
};
constexpr PROPERTIES PROPERTIES_OF_TYPE[] = {
    {GFPDB_WR_COMMAND, GFPDB_WR_BUS_WIDTH}, {GFPDB_RR_COMMAND, GFPDB_RR_BUS_WIDTH},
    {GFPDB_WD_COMMAND, GFPDB_WD_BUS_WIDTH}, {GFPDB_RD_COMMAND, GFPDB_RD_BUS_WIDTH},
    {GFPDB_ER_COMMAND, GFPDB_ER_BUS_WIDTH},
};

bool has_command(const GFPDB_ACTION& action)
{
    return action.m_action_type >= 0 && action.m_action_type < GFPDB_ACT_CUSTOM;
}

const PROPERTIES& properties_of(const GFPDB_ACTION& action)
{
    return PROPERTIES_OF_TYPE[static_cast<std::size_t>(action.m_action_type)];
}

bool is_marker(const GFPDB_ACTION& action, const char* marker)
{
    return action.m_action_type == GFPDB_ACT_CUSTOM && action.get_property_value(GFPDB_CUSTOM_LOOP_MARKER) == marker;
}

} // namespace

std::vector<COMMAND> commands_of(int opcode)
{
    std::vector<COMMAND> rows;
    std::copy_if(std::begin(COMMANDS), std::end(COMMANDS), std::back_inserter(rows),
                 [opcode](const COMMAND& row) { return row.opcode == opcode; });
    return rows;
}

std::optional<COMMAND> command_of(const GFPDB_ACTION& action)
{
    const std::string bus_width = bus_width_of(action);
    std::optional<COMMAND> first;
    for (const COMMAND& row : commands_of(opcode_of(action))) {
        if (row.type == action.m_action_type && row.bus_width == bus_width)
            return row;
        if (row.type == action.m_action_type && !first)
            first = row;
    }
    return first;
}

int opcode_of(const GFPDB_ACTION& action)
{
    if (!has_command(action))
        return NO_OPCODE;
    return gfpdb_parse_byte(action.get_property_value(properties_of(action).command)).value_or(NO_OPCODE);
}

std::string bus_width_of(const GFPDB_ACTION& action)
{
    return has_command(action) ? action.get_property_value(properties_of(action).bus_width) : std::string();
}

bool uses_four_lines(const GFPDB_ACTION& action)
{
    return bus_width_of(action).find('4') != std::string::npos;
}

bool is_of_other_mode(const std::string& bus_width)
{
    const GFPDB_BUS_WIDTH lines = gfpdb_parse_bus_width(bus_width).value_or(GFPDB_BUS_WIDTH());
    return !lines.empty() && lines.front() > 1 &&
           std::adjacent_find(lines.begin(), lines.end(), std::not_equal_to<>()) == lines.end();
}

std::int64_t number_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property, std::int64_t other)
{
    return gfpdb_parse_decimal(action.get_property_value(property)).value_or(other);
}

std::vector<int> bytes_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    return gfpdb_parse_bytes(action.get_property_value(property)).value_or(std::vector<int>());
}

GFPDB_ACT_PROPERTY address_property(const GFPDB_ACTION& action)
{
    return action.m_action_type == PROGRAM ? GFPDB_WD_ADDRESS
           : action.m_action_type == READ  ? GFPDB_RD_ADDRESS
                                           : GFPDB_ER_ADDRESS;
}

GFPDB_ACT_PROPERTY addressing_property(const GFPDB_ACTION& action)
{
    return action.m_action_type == PROGRAM ? GFPDB_WD_ADDRESSING_MODE
           : action.m_action_type == READ  ? GFPDB_RD_ADDRESSING_MODE
                                           : GFPDB_ER_ADDRESSING_MODE;
}

bool is_data_action(const GFPDB_ACTION& action)
{
    return action.m_action_type == PROGRAM || action.m_action_type == READ || action.m_action_type == ERASE;
}

bool is_id_check(const GFPDB_ACTION& action)
{
    if (action.m_action_type != GFPDB_ACT_READ_REGISTER)
        return false;
    const std::string expected = action.get_property_value(GFPDB_RR_EXPECTED_DATA);
    const int opcode = opcode_of(action);
    const bool reads_id = opcode == 0x9F || opcode == 0x9E || opcode == 0xAF;
    return expected == GFPDB_VALUE_ID || (reads_id && expected != GFPDB_VALUE_NONE);
}

bool opens_loop(const GFPDB_ACTION& action)
{
    return is_marker(action, GFPDB_LOOP_START);
}

bool closes_loop(const GFPDB_ACTION& action)
{
    return is_marker(action, GFPDB_LOOP_END);
}

} // namespace gfpdb_lint
