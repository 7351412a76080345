// SPDX-License-Identifier: MIT

// The commands that serial flash of all makers has in common, for the lint of flows.
//
// Only what holds for every chip that has the command: where makers differ, all of them are right.
#pragma once

#include "gfpdb/gfpdb_action.h"

#include <optional>
#include <string>
#include <vector>

namespace gfpdb_lint {

constexpr int NO_OPCODE = -1;

constexpr int WRITE_STATUS = 0x01;
constexpr int WRITE_DISABLE = 0x04;
constexpr int WRITE_ENABLE = 0x06;
constexpr int WRITE_STATUS_3 = 0x11;
constexpr int READ_REGISTER_3 = 0x15;
constexpr int READ_BANK = 0x16;
constexpr int WRITE_BANK = 0x17;
constexpr int LEAVE_FOUR_BYTE_2 = 0x29;
constexpr int WRITE_STATUS_2 = 0x31;
constexpr int READ_STATUS = 0x05;
constexpr int READ_STATUS_2 = 0x35;
constexpr int WRITE_STATUS_2_BIT7 = 0x3E;
constexpr int READ_STATUS_2_BIT7 = 0x3F;
// Also clears the flag status register of chips that have one.
constexpr int VOLATILE_WRITE_ENABLE = 0x50;
constexpr int RESET_ENABLE = 0x66;
constexpr int READ_FLAG_STATUS = 0x70;
constexpr int UNLOCK_BLOCKS = 0x98;
constexpr int RESET = 0x99;
constexpr int WAKE_UP = 0xAB;
constexpr int ENTER_FOUR_BYTE = 0xB7;
constexpr int POWER_DOWN = 0xB9;
constexpr int SELECT_DIE = 0xC2;
constexpr int LEAVE_FOUR_BYTE = 0xE9;
constexpr int OLD_RESET = 0xF0;

enum class ADDRESS
{
    NONE,
    BY_MODE,
    ALWAYS_FOUR,
};

// A command as a data action sends it.
struct COMMAND
{
    int opcode;
    GFPDB_ACT_TYPE type;
    ADDRESS address;
    // Besides those with the same number of lines in every phase, which chips have in other modes.
    const char* bus_width;
};

// The rows of an opcode; empty for one that is not common to all makers.
std::vector<COMMAND> commands_of(int opcode);
// What the action sends: the row of its type and bus width, or else its first one. None for an action without address,
// and for an opcode that has no row of its type.
std::optional<COMMAND> command_of(const GFPDB_ACTION& action);
// The opcode of an action; NO_OPCODE when it has none.
int opcode_of(const GFPDB_ACTION& action);
std::string bus_width_of(const GFPDB_ACTION& action);
// True when a phase is on four lines.
bool uses_four_lines(const GFPDB_ACTION& action);
// True for a bus width with the same number of lines, and several, in every phase.
bool is_of_other_mode(const std::string& bus_width);

// The number that a property holds; `other` when it holds none.
std::int64_t number_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property, std::int64_t other);
// The bytes that a property holds; empty when it holds none.
std::vector<int> bytes_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property);

// The property of a data action that holds the address, or its number of bytes.
GFPDB_ACT_PROPERTY address_property(const GFPDB_ACTION& action);
GFPDB_ACT_PROPERTY addressing_property(const GFPDB_ACTION& action);

bool is_data_action(const GFPDB_ACTION& action);
// A Read Register by which Initialization finds out whether the chip is the one of the flow.
bool is_id_check(const GFPDB_ACTION& action);
bool opens_loop(const GFPDB_ACTION& action);
bool closes_loop(const GFPDB_ACTION& action);

} // namespace gfpdb_lint
