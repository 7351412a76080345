// SPDX-License-Identifier: MIT
#include "base/gfpdb_words.h"
#include "sfdp/gfpdb_sfdp_tables.h"

#include <algorithm>
#include <array>

namespace {

constexpr int NO_OPCODE = 0xFF;
// What tables had at first, with the revision that brought quad enable and page size, and with the one for octal parts.
constexpr int FIRST_DWORDS = 9;
constexpr int MINOR_OF_16_DWORDS = 5;
constexpr int DWORDS_OF_MINOR_5 = 16;
constexpr int MINOR_OF_20_DWORDS = 7;
constexpr int DWORDS_OF_MINOR_7 = 20;
// 2^40 bits are 128 GiB: far beyond what a part on these wires has, and far below what a number can hold.
constexpr std::uint32_t DENSITY_EXPONENT_MAX = 40;
constexpr std::int64_t KILOBIT = 1024;
constexpr int ERASE_EXPONENT_MAX = 32;
constexpr int ERASE_TYPES = 4;
constexpr int FOUR_KILOBYTES = 4096;

int dwords_of_revision(int minor)
{
    if (minor >= MINOR_OF_20_DWORDS)
        return DWORDS_OF_MINOR_7;
    return minor >= MINOR_OF_16_DWORDS ? DWORDS_OF_MINOR_5 : FIRST_DWORDS;
}

bool is_opcode(int value)
{
    return value != 0 && value != NO_OPCODE;
}

class BASIC_READER
{
public:
    BASIC_READER(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp) : m_table(table), m_sfdp(sfdp) {}

    void read()
    {
        check_length();
        check_ones();
        read_density();
        read_address();
        read_reads();
        read_erase_types();
        read_four_kilobyte_erase();
        read_times();
        read_registers();
    }

private:
    void warn(const std::string& text) { m_sfdp.warnings.push_back(text); }

    void check_length()
    {
        const int belong = dwords_of_revision(m_sfdp.basic_minor);
        if (m_sfdp.basic_dwords < belong)
            warn(GFPDB_WORDS::say("The basic table has %1 double words: %2 belong to its revision %3.",
                                  {std::to_string(m_sfdp.basic_dwords), std::to_string(belong),
                                   std::to_string(m_sfdp.basic_major) + '.' + std::to_string(m_sfdp.basic_minor)}));
    }

    // Bits that are 1 in every part: zeros there tell of bytes that are missing or are not where they belong.
    void check_ones()
    {
        struct ONES
        {
            int dword;
            std::uint32_t mask;
        };
        constexpr ONES ALL[] = {{1, 0xFF8000E0}, {5, 0xFFFFFFEE}, {6, 0x0000FFFF}, {7, 0x0000FFFF}};
        for (const ONES& ones : ALL) {
            if (!m_table.has(ones.dword) || (m_table.dword(ones.dword) & ones.mask) == ones.mask)
                continue;
            warn(GFPDB_WORDS::say("SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.",
                                  {std::to_string(ones.dword)}));
            return;
        }
    }

    void read_density()
    {
        if (!m_table.has(2))
            return;
        const std::uint32_t value = m_table.dword(2) & 0x7FFFFFFF;
        const bool is_exponent = m_table.bit(2, 31);
        std::int64_t bits = 0;
        if (!is_exponent)
            bits = std::int64_t(value) + 1;
        else if (value <= DENSITY_EXPONENT_MAX)
            bits = std::int64_t(1) << value;
        if (bits >= KILOBIT && bits % KILOBIT == 0)
            m_sfdp.density_bits = bits;
        else
            warn(GFPDB_WORDS::say("SFDP DW2 says no density that a part can have: %1.",
                                  {gfpdb_sfdp_hex(m_table.dword(2), 8)}));
    }

    void read_address()
    {
        if (!m_table.has(1))
            return;
        m_sfdp.address = static_cast<GFPDB_SFDP_ADDRESS>(m_table.bits(1, 18, 17));
        if (m_sfdp.address == GFPDB_SFDP_ADDRESS::RESERVED)
            warn(GFPDB_WORDS::say("SFDP DW1 says with a reserved value how many address bytes there are."));
    }

    // The half of DW`dword` from bit `lowest` on describes a read that bit `flag` of DW`flags` lists.
    std::optional<GFPDB_SFDP_READ> read_of(const char* width, int flags, int flag, int dword, int lowest)
    {
        if (!m_table.bit(flags, flag) || !m_table.has(dword))
            return std::nullopt;
        const GFPDB_SFDP_READ read = half_word(dword, lowest);
        if (is_opcode(read.opcode))
            return read;
        warn(GFPDB_WORDS::say("SFDP DW%1 lists the %2 read, and DW%3 has no command for it.",
                              {std::to_string(flags), width, std::to_string(dword)}));
        return std::nullopt;
    }

    GFPDB_SFDP_READ half_word(int dword, int lowest) const
    {
        return {m_table.bits(dword, lowest + 15, lowest + 8), m_table.bits(dword, lowest + 7, lowest + 5),
                m_table.bits(dword, lowest + 4, lowest)};
    }

    // A read without a bit that lists it is there when it has a command.
    std::optional<GFPDB_SFDP_READ> octal_read_of(int lowest) const
    {
        const GFPDB_SFDP_READ read = half_word(17, lowest);
        return m_table.has(17) && is_opcode(read.opcode) ? std::optional(read) : std::nullopt;
    }

    void read_reads()
    {
        m_sfdp.read_1_1_2 = read_of("1-1-2", 1, 16, 4, 0);
        m_sfdp.read_1_2_2 = read_of("1-2-2", 1, 20, 4, 16);
        m_sfdp.read_1_4_4 = read_of("1-4-4", 1, 21, 3, 0);
        m_sfdp.read_1_1_4 = read_of("1-1-4", 1, 22, 3, 16);
        m_sfdp.read_2_2_2 = read_of("2-2-2", 5, 0, 6, 16);
        m_sfdp.read_4_4_4 = read_of("4-4-4", 5, 4, 7, 16);
        m_sfdp.read_1_8_8 = octal_read_of(0);
        m_sfdp.read_1_1_8 = octal_read_of(16);
        m_sfdp.has_double_rate = m_table.bit(1, 19);
    }

    void read_erase_types()
    {
        for (int type = 1; type <= ERASE_TYPES; ++type) {
            const int dword = type <= 2 ? 8 : 9;
            const int lowest = type % 2 == 1 ? 0 : 16;
            const int exponent = m_table.bits(dword, lowest + 7, lowest);
            const int opcode = m_table.bits(dword, lowest + 15, lowest + 8);
            if (exponent != 0)
                add_erase_type(type, dword, opcode, exponent);
        }
    }

    void add_erase_type(int type, int dword, int opcode, int exponent)
    {
        GFPDB_SFDP_ERASE erase;
        erase.type = type;
        erase.opcode = opcode;
        erase.size_bytes = exponent <= ERASE_EXPONENT_MAX ? std::int64_t(1) << exponent : 0;
        if (!is_opcode(opcode))
            warn(GFPDB_WORDS::say("SFDP DW%1: erase type %2 has no command: it is left out.",
                                  {std::to_string(dword), std::to_string(type)}));
        else if (erase.size_bytes == 0 || (m_sfdp.density_bits > 0 && erase.size_bytes > m_sfdp.density_bits / 8))
            warn(GFPDB_WORDS::say("SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.",
                                  {std::to_string(dword), std::to_string(type), std::to_string(exponent)}));
        else
            m_sfdp.erase.push_back(erase);
    }

    void read_four_kilobyte_erase()
    {
        constexpr int PRESENT = 1;
        const int opcode = m_table.bits(1, 15, 8);
        if (m_table.bits(1, 1, 0) != PRESENT || !is_opcode(opcode))
            return;
        m_sfdp.erase_4k_opcode = opcode;
        const bool is_listed =
            std::any_of(m_sfdp.erase.begin(), m_sfdp.erase.end(), [opcode](const GFPDB_SFDP_ERASE& erase) {
                return erase.size_bytes == FOUR_KILOBYTES && erase.opcode == opcode;
            });
        if (!is_listed && m_table.has(FIRST_DWORDS))
            warn(GFPDB_WORDS::say("SFDP DW1 erases 4 KiB by %1, which no erase type does.",
                                  {gfpdb_sfdp_hex(static_cast<std::uint32_t>(opcode), 2)}));
    }

    // The factor from a typical time to the longest one.
    int factor(int dword) const { return m_table.has(dword) ? 2 * (m_table.bits(dword, 3, 0) + 1) : 0; }

    void read_times()
    {
        constexpr std::array<int, 4> ERASE_UNITS_MS = {1, 16, 128, 1000};
        constexpr std::array<int, 2> PROGRAM_UNITS_US = {8, 64};
        constexpr std::array<int, 4> CHIP_ERASE_UNITS_MS = {16, 256, 4000, 64000};
        m_sfdp.erase_max_factor = factor(10);
        for (GFPDB_SFDP_ERASE& erase : m_sfdp.erase) {
            const int lowest = 4 + 7 * (erase.type - 1);
            if (m_table.has(10))
                erase.typical_ms = time_of(10, lowest + 4, lowest, ERASE_UNITS_MS, lowest + 6);
        }
        if (!m_table.has(11))
            return;
        m_sfdp.page_size = 1 << m_table.bits(11, 7, 4);
        m_sfdp.program_max_factor = factor(11);
        m_sfdp.page_program_us = time_of(11, 12, 8, PROGRAM_UNITS_US, 13);
        m_sfdp.chip_erase_ms = time_of(11, 28, 24, CHIP_ERASE_UNITS_MS, 30);
    }

    // A count in bits `highest` to `lowest`, in a unit whose number is in the bits behind it up to `last`.
    template <std::size_t UNITS>
    int time_of(int dword, int highest, int lowest, const std::array<int, UNITS>& units, int last) const
    {
        return (m_table.bits(dword, highest, lowest) + 1) *
               units[static_cast<std::size_t>(m_table.bits(dword, last, highest + 1))];
    }

    std::optional<int> field(int dword, int highest, int lowest) const
    {
        return m_table.has(dword) ? std::optional(m_table.bits(dword, highest, lowest)) : std::nullopt;
    }

    void read_registers()
    {
        m_sfdp.busy_poll = field(14, 7, 2);
        m_sfdp.quad_enable = field(15, 22, 20);
        m_sfdp.soft_reset = field(16, 13, 8);
        m_sfdp.leave_4_byte = field(16, 23, 14);
        m_sfdp.enter_4_byte = field(16, 31, 24);
        m_sfdp.octal_enable = field(19, 22, 20);
    }

    const GFPDB_SFDP_VIEW& m_table;
    GFPDB_SFDP& m_sfdp;
};

} // namespace

void gfpdb_read_sfdp_basic(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp)
{
    BASIC_READER(table, sfdp).read();
}
