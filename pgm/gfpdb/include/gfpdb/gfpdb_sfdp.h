// SPDX-License-Identifier: MIT

// What a serial flash says of itself: its SFDP tables (JESD216, revisions A to F), as command 5A reads them.
//
// Nothing in a read-out is trusted: offsets, lengths and counts are held against the bytes that are there. What is
// missing, cut or contradicts itself leaves its value out and is a warning. Texts are UTF-8. Any thread.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_part.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// One parameter header, and whether its table is within the read-out.
struct GFPDB_SFDP_TABLE
{
    // 0xFF00 for the basic table, 0xFF84 for 4-byte instructions, 0xFF81 for the sector map; the ID's high byte is the
    // upper one.
    int id = 0;
    int major = 0;
    int minor = 0;
    // Where the table begins, in bytes, and how many DWORDs it has by its header and in the read-out.
    std::uint32_t offset = 0;
    int dwords = 0;
    int dwords_read = 0;
};

// A read command with its clocks between address and data.
struct GFPDB_SFDP_READ
{
    int opcode = 0;
    int mode_clocks = 0;
    int wait_clocks = 0;

    int dummy_clocks() const { return mode_clocks + wait_clocks; }
};

// An erase type, by its number (1 to 4), with its times in milliseconds; 0 for one that the table does not have.
struct GFPDB_SFDP_ERASE
{
    int type = 0;
    int opcode = 0;
    // 0 when there is none.
    int opcode_4_byte = 0;
    std::int64_t size_bytes = 0;
    int typical_ms = 0;
};

enum class GFPDB_SFDP_ADDRESS
{
    THREE,
    THREE_OR_FOUR,
    FOUR,
    RESERVED,
};

// How a part tells which of its sector maps it uses: the bits of `mask` in the answer to a read of a register.
struct GFPDB_SFDP_MAP_COMMAND
{
    int opcode = 0;
    int mask = 0;
    std::uint32_t address = 0;
    // 0 without an address, 3, 4, or -1 for as many as the part's mode asks for.
    int address_bytes = 0;
    // Clocks between address and answer; -1 for as many as the part is set to.
    int wait_clocks = 0;
};

// One region of a sector map: erase types (bit 0 is type 1) that serve it.
struct GFPDB_SFDP_REGION
{
    std::int64_t size_bytes = 0;
    int erase_types = 0;
};

// One configuration of a sector map.
struct GFPDB_SFDP_MAP
{
    int id = 0;
    std::vector<GFPDB_SFDP_REGION> regions;
};

// What the tables say. A value that they do not have is empty or 0.
struct GFPDB_SFDP
{
    int major = 0;
    int minor = 0;
    // FF for command 5A with three address bytes and eight clocks; others are octal.
    int access_protocol = 0;
    // In the order of their headers. Blank headers are left out.
    std::vector<GFPDB_SFDP_TABLE> tables;
    // The revision and length of the basic table that was taken: of several the latest.
    int basic_major = 0;
    int basic_minor = 0;
    int basic_dwords = 0;

    std::int64_t density_bits = 0;
    GFPDB_SFDP_ADDRESS address = GFPDB_SFDP_ADDRESS::RESERVED;
    int page_size = 0;
    // The command that erases 4 KiB, by DW1.
    int erase_4k_opcode = 0;
    // The types that are there, by their numbers.
    std::vector<GFPDB_SFDP_ERASE> erase;
    int erase_max_factor = 0;
    std::optional<GFPDB_SFDP_READ> read_1_1_2;
    std::optional<GFPDB_SFDP_READ> read_1_2_2;
    std::optional<GFPDB_SFDP_READ> read_2_2_2;
    std::optional<GFPDB_SFDP_READ> read_1_1_4;
    std::optional<GFPDB_SFDP_READ> read_1_4_4;
    std::optional<GFPDB_SFDP_READ> read_4_4_4;
    std::optional<GFPDB_SFDP_READ> read_1_1_8;
    std::optional<GFPDB_SFDP_READ> read_1_8_8;
    bool has_double_rate = false;

    // Times: typical, in the unit of the name; a maximum is the typical time by the factor.
    int page_program_us = 0;
    int program_max_factor = 0;
    int chip_erase_ms = 0;

    // Bits 7:2 of DW14: bit 0 here is the status register (05), bit 1 the flag status register (70).
    std::optional<int> busy_poll;
    // The quad-enable requirement, 0 to 7.
    std::optional<int> quad_enable;
    // Bits 13:8, 23:14 and 31:24 of DW16, the lowest first.
    std::optional<int> soft_reset;
    std::optional<int> leave_4_byte;
    std::optional<int> enter_4_byte;
    // The octal-enable requirement, bits 22:20 of DW19.
    std::optional<int> octal_enable;

    // DW1 of the table of 4-byte instructions; none without that table.
    std::optional<std::uint32_t> instructions_4_byte;
    std::vector<GFPDB_SFDP_MAP_COMMAND> map_commands;
    std::vector<GFPDB_SFDP_MAP> sector_maps;

    // Sentences for the user: what is missing, cut, reserved or contradicts itself.
    std::vector<std::string> warnings;
};

// The most bytes of a read-out that are looked at.
constexpr std::size_t GFPDB_SFDP_BYTES_MAX = 65536;

// None, with a sentence in `problem`, when the bytes have no signature or no basic table.
GFPDB_EXPORT std::optional<GFPDB_SFDP> gfpdb_read_sfdp(const std::vector<std::uint8_t>& bytes, std::string& problem);
