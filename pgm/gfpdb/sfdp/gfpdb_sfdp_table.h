// SPDX-License-Identifier: MIT

// The double words of one SFDP table, as far as the read-out has them; and how messages write numbers.
//
// Pure functions.
#pragma once

#include "gfpdb/gfpdb_sfdp.h"

#include <cstdint>
#include <string>
#include <vector>

// The identifiers of the tables that are read.
constexpr int GFPDB_SFDP_BASIC = 0xFF00;
constexpr int GFPDB_SFDP_SECTOR_MAP = 0xFF81;
constexpr int GFPDB_SFDP_FOUR_BYTE = 0xFF84;
constexpr int GFPDB_SFDP_DWORD_BYTES = 4;

// A table within `bytes`, which it does not copy. Double words count from 1, as in the standard; one that is not there
// has no bits.
class GFPDB_SFDP_VIEW
{
public:
    GFPDB_SFDP_VIEW(const std::vector<std::uint8_t>& bytes, const GFPDB_SFDP_TABLE& table)
        : m_bytes(bytes), m_offset(table.offset), m_dwords(table.dwords_read)
    {}

    int dwords() const { return m_dwords; }
    bool has(int dword) const { return dword >= 1 && dword <= m_dwords; }
    std::uint32_t dword(int dword) const
    {
        std::uint32_t value = 0;
        for (std::size_t at = 0; has(dword) && at < GFPDB_SFDP_DWORD_BYTES; ++at)
            value |= std::uint32_t(m_bytes[place(dword) + at]) << 8 * at;
        return value;
    }
    int bits(int number, int highest, int lowest) const
    {
        const std::uint32_t mask = (std::uint32_t(1) << (highest - lowest + 1)) - 1;
        return static_cast<int>(dword(number) >> lowest & mask);
    }
    bool bit(int number, int place) const { return bits(number, place, place) != 0; }

private:
    std::size_t place(int dword) const
    {
        return m_offset + static_cast<std::size_t>(dword - 1) * GFPDB_SFDP_DWORD_BYTES;
    }

    const std::vector<std::uint8_t>& m_bytes;
    const std::size_t m_offset;
    const int m_dwords;
};

// "2A" with at least `digits` digits.
std::string gfpdb_sfdp_hex(std::uint32_t value, int digits);
// "the basic table", "the sector map", ..., "the table FFC2".
std::string gfpdb_sfdp_table_name(int id);
// `text` with a capital at its start.
std::string gfpdb_sfdp_sentence(std::string text);
