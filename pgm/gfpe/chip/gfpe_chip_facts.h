// SPDX-License-Identifier: MIT

// What an emulated chip is: its size, its commands, its registers.
#pragma once

#include "gfpdb/gfpdb_part.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// What a command does.
enum class GFPE_CHIP_JOB : std::uint8_t
{
    NONE, // the chip does not have it
    WRITE_ENABLE,
    WRITE_DISABLE,
    VOLATILE_WRITE_ENABLE, // for the next register write, which is gone with the power
    CLEAR_FLAGS,
    ENTER_QPI,
    RESET_ENABLE,
    RESET,
    POWER_DOWN,
    WAKE, // and reads the signature
    READ_ID,
    READ_MAKER, // 90: maker and signature
    READ_SFDP,
    READ_REGISTER,
    WRITE_REGISTERS, // one byte for each register from `target` on, in the order of `written`
    WRITE_BANK,
    SELECT_DIE,
    ENTER_4_BYTE,
    LEAVE_4_BYTE,
    UNLOCK_BLOCKS,
    READ_LOCKS,
    WRITE_LOCKS,
    READ,
    PROGRAM,
    ERASE,
    ERASE_DIE,
    ERASE_CHIP,
};

enum class GFPE_CHIP_REGISTER : std::uint8_t
{
    STATUS_1,
    STATUS_2,
    STATUS_3,
    CONFIGURATION,
    FLAGS,
    BANK,
    EXTENDED_ADDRESS,
    NONE,
};
constexpr std::size_t GFPE_CHIP_REGISTERS = 7;

// How the address of a command is sent.
enum class GFPE_CHIP_ADDRESS : std::uint8_t
{
    NONE,
    BY_MODE, // three bytes, or four in 4-byte mode
    ALWAYS_THREE,
    ALWAYS_FOUR,
};

struct GFPE_CHIP_COMMAND
{
    GFPE_CHIP_JOB job = GFPE_CHIP_JOB::NONE;
    GFPE_CHIP_ADDRESS address = GFPE_CHIP_ADDRESS::NONE;
    int address_lines = 1;
    int data_lines = 1;
    // Mode and wait clocks together; the chip looks at the first `mode_clocks` of them.
    int dummy_clocks = 0;
    int mode_clocks = 0;
    // Of READ_REGISTER, and the first one of WRITE_REGISTERS; the second one, if it takes a second byte.
    GFPE_CHIP_REGISTER target = GFPE_CHIP_REGISTER::NONE;
    GFPE_CHIP_REGISTER second = GFPE_CHIP_REGISTER::NONE;
    // A one-byte write clears the second one.
    bool clears_second = false;
    // Of ERASE.
    std::int64_t erase_bytes = 0;
};

// Which part of the memory the bits of the first status register protect.
enum class GFPE_CHIP_PROTECTION : std::uint8_t
{
    NONE,
    THREE_BITS,     // BP0 to BP2 as 64ths of the chip, TB (bit 5), SEC (bit 6): 4K sectors instead
    THREE_BITS_TOP, // BP0 to BP2 as 64ths of the chip, from its top
    FOUR_BITS,      // BP0 to BP3 as a power of two of 64K blocks; TB is in the configuration register (bit 3)
    FOUR_BITS_TB,   // the same with TB in bit 6
    MICRON,         // the same with TB in bit 5 and BP3 in bit 6
};

struct GFPE_CHIP_FACTS
{
    std::string name;
    std::vector<std::uint8_t> id;
    std::int64_t bytes = 0;
    int page = 256;
    // Dies that listen only after they were selected; each has its own registers and addresses.
    int selected_dies = 1;
    // Dies with one row of addresses, of which only the selected one shows in the status register that it is busy.
    int status_dies = 1;
    // Dies that an erase of a die goes by.
    int erased_dies = 1;
    int address_bytes = 3;
    std::array<GFPE_CHIP_COMMAND, 256> commands;

    GFPDB_QUAD_ENABLE quad_enable = GFPDB_QUAD_ENABLE::NONE;
    GFPE_CHIP_PROTECTION protection = GFPE_CHIP_PROTECTION::NONE;
    // The lowest 4K sectors that a sector erase leaves alone.
    int split_sectors = 0;
    // D8 erases 8K blocks at both ends, then 32K ones, and 64K between them; every block has a lock, which is closed at
    // power-up.
    bool has_block_locks = false;
    bool write_enable_before_mode = false;
    bool leaving_sets_extended_address = false;
    // The second status register has a bit 6 that turns the protection round, and bits that are only ever set.
    bool complements = false;
    std::uint8_t one_time_bits = 0;
    // A program or erase that fails is in bits 6 and 5 of the first status register.
    bool shows_errors = false;
    bool mirrors_busy = false; // in bit 7 of the first status register
    // The register that shows the addressing mode, and its bit.
    GFPE_CHIP_REGISTER mode_register = GFPE_CHIP_REGISTER::NONE;
    int mode_bit = 0;
    // Notes what goes wrong in a flag register, which is also the one that shows readiness.
    bool has_flags = false;
    std::int64_t register_write_us = 150000;
    // The ID starts again behind its end; else FF follow.
    bool repeats_id = true;
    // What 5A reads.
    std::vector<std::uint8_t> sfdp;

    GFPE_CHIP_COMMAND& command(int opcode) { return commands[static_cast<std::size_t>(opcode)]; }
    const GFPE_CHIP_COMMAND& command(int opcode) const { return commands[static_cast<std::size_t>(opcode)]; }
};

// What is known of a part: its row, and what its maker's chips have in common. False: the row lacks what an emulation
// needs; `problem` says what, a sentence in UTF-8.
bool gfpe_chip_facts(const GFPDB_PART& part, GFPE_CHIP_FACTS& facts, std::string& problem);
