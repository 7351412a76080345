// SPDX-License-Identifier: MIT

// What the flows of a part are made from: the commands, sizes, clocks and registers that its row and its maker's habits
// come to.
//
// docs/flows.md says for each trait where it comes from and what is used for a value that has no source. Pure
// functions.
#pragma once

#include "gfpdb/gfpdb_part.h"

#include <cstdint>
#include <optional>
#include <string>

// The built-in templates, in the order of the list that the user sees.
enum GFPDB_FLOW_TEMPLATE : int
{
    GFPDB_TEMPLATE_SR1_3_BYTE = 0,
    GFPDB_TEMPLATE_SR2_3_BYTE = 1,
    GFPDB_TEMPLATE_SR1_4_BYTE = 2,
    GFPDB_TEMPLATE_SR2_4_BYTE = 3,
    GFPDB_TEMPLATE_NO_QE = 4,
};
constexpr int GFPDB_FLOW_TEMPLATE_COUNT = 5;

// How the status registers are written at the start.
enum class GFPDB_STATUS_WRITE
{
    CLEAR,           // WR 01 [00]: there is no quad-enable bit
    SR1,             // WR 01 [40]
    SR2_WITH_SR1,    // WR 01 [00 02]: one byte alone would clear the second register
    SR2_OWN_COMMAND, // WR 01 [00], then WR 31 [02]
    SR2_BIT7,        // WR 01 [00], then WR 3E [80], which 3F reads
};

// How 4-byte addresses are reached, and how 4-byte addressing is left again.
enum class GFPDB_FOUR_BYTE_ENTRY
{
    NONE,                   // addresses have three bytes
    MODE,                   // B7
    MODE_WITH_WRITE_ENABLE, // 06, then B7
    BANK_REGISTER,          // 17 [80]
    OWN_COMMANDS,           // commands that always take four bytes
    ALWAYS,                 // the part knows no other addresses
};
enum class GFPDB_FOUR_BYTE_EXIT
{
    NONE,                   // there is nothing to leave
    MODE,                   // E9
    MODE_WITH_WRITE_ENABLE, // 06, then E9
    BANK_REGISTER,          // 17 [00]
    RESET,                  // the reset at the end
};

// A register that shows the addressing mode: (value AND mask) is `mask` in 4-byte mode and 0 out of it.
struct GFPDB_MODE_CHECK
{
    int opcode;
    int mask;
};

// A data command: its opcode, its bus width as command-address-data, and its mode and wait clocks together.
struct GFPDB_DATA_COMMAND
{
    int opcode;
    const char* bus_width;
    int dummy_clocks;
};

struct GFPDB_FLOW_TRAITS
{
    GFPDB_FLOW_TEMPLATE flow_template = GFPDB_TEMPLATE_SR1_3_BYTE;
    // False when no source says where the quad-enable bit is.
    bool verified = true;
    // Empty in a template, whose flows name the ID of the device that will use them.
    std::vector<int> id;
    // The bits of the ID that are compared, for each byte that is read.
    std::vector<int> id_mask;
    // 0 in a template, whose flows name the size of the device that will use them.
    std::int64_t device_bytes = 0;
    int address_bytes = 3;
    int page_size = 0;
    GFPDB_STATUS_WRITE status_write = GFPDB_STATUS_WRITE::CLEAR;
    // Every block is locked at power-up; WR 98 unlocks all.
    bool locked_at_power_up = false;
    // Busy and errors are read from the flag status register (70) instead of the status register (05).
    bool flag_status = false;
    bool reset_at_start = false;
    bool reset_at_end = false;
    GFPDB_FOUR_BYTE_ENTRY enter_four_byte = GFPDB_FOUR_BYTE_ENTRY::NONE;
    GFPDB_FOUR_BYTE_EXIT leave_four_byte = GFPDB_FOUR_BYTE_EXIT::NONE;
    std::optional<GFPDB_MODE_CHECK> mode_check;
    // Leaving 4-byte mode sets the extended address register, which is cleared again.
    bool clears_extended_address = false;
    // Dies that must be selected by a command (C2) before they hear anything; 1 when there is nothing to select.
    int selected_dies = 1;
    // Dies with one row of addresses that each show their own status, when selected by C2; 1 for one status register.
    int status_dies = 1;
    GFPDB_DATA_COMMAND program = {0, "", 0};
    GFPDB_DATA_COMMAND read = {0, "", 0};
    // The sector erase; none when only the whole device (or die) can be erased for sure.
    std::optional<GFPDB_ERASE_COMMAND> sector_erase;
    // How long a page program and an erase are waited for; 0 for the usual times.
    std::int64_t program_wait_us = 0;
    std::int64_t erase_wait_us = 0;
};

// The traits of `part` in the quad-I/O (`quad` true) or single-I/O variant.
GFPDB_FLOW_TRAITS gfpdb_flow_traits(const GFPDB_PART& part, bool quad);
// The template for a part whose quad-enable bit is there, with so many address bytes.
GFPDB_FLOW_TEMPLATE gfpdb_template_of(GFPDB_STATUS_WRITE status_write, int address_bytes);
// Makes data commands that take as many address bytes as the mode says those that always take four.
void gfpdb_use_own_four_byte_commands(GFPDB_FLOW_TRAITS& traits);
// The traits of a built-in template (0 to 4).
GFPDB_FLOW_TRAITS gfpdb_template_traits(int index, bool quad);
