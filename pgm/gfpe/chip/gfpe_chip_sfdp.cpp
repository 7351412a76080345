// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_sfdp.h"

#include "chip/gfpe_chip_times.h"

#include <QFile>

#include <algorithm>

namespace {

using JOB = GFPE_CHIP_JOB;
using DWORD = std::uint32_t;

constexpr DWORD ALL = 0xFFFFFFFF;
constexpr int NO_OPCODE = 0xFF;
constexpr std::size_t ERASE_TYPES = 4;
constexpr DWORD BASIC_DWORDS = 16;
constexpr DWORD BASIC_ID = 0xFF00;
constexpr DWORD FOUR_BYTE_ID = 0xFF84;
constexpr DWORD HEADER_BYTES = 8;

struct ERASE_TYPE
{
    int opcode = NO_OPCODE;
    std::int64_t bytes = 0;
};

// Appends double words, the lowest byte first.
class WRITER
{
public:
    void add(DWORD value)
    {
        for (int shift = 0; shift < 32; shift += 8)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    }
    // A parameter header: revision 1.6, `dwords` long, at `place`.
    void add_header(DWORD id, DWORD dwords, DWORD place)
    {
        add((id & 0xFF) | 6u << 8 | 1u << 16 | dwords << 24);
        add(place | id >> 8 << 24);
    }
    std::vector<std::uint8_t> take() { return std::move(m_bytes); }

private:
    std::vector<std::uint8_t> m_bytes;
};

bool has(const GFPE_CHIP_FACTS& facts, int opcode)
{
    return facts.command(opcode).job != JOB::NONE;
}

DWORD log2_of(std::int64_t value)
{
    DWORD result = 0;
    while ((std::int64_t(1) << result) < value)
        ++result;
    return result;
}

// The sizes that commands with three address bytes erase, the smallest first.
std::array<ERASE_TYPE, ERASE_TYPES> erase_types(const GFPE_CHIP_FACTS& facts)
{
    std::vector<ERASE_TYPE> found;
    for (int opcode = 0; opcode < NO_OPCODE; ++opcode) {
        const GFPE_CHIP_COMMAND& command = facts.command(opcode);
        const bool is_known = std::any_of(found.begin(), found.end(), [&command](const ERASE_TYPE& type) {
            return type.bytes == command.erase_bytes;
        });
        if (command.job == JOB::ERASE && command.address == GFPE_CHIP_ADDRESS::BY_MODE && !is_known)
            found.push_back({opcode, command.erase_bytes});
    }
    std::sort(found.begin(), found.end(), [](const auto& one, const auto& other) { return one.bytes < other.bytes; });
    std::array<ERASE_TYPE, ERASE_TYPES> types;
    std::copy_n(found.begin(), std::min(found.size(), types.size()), types.begin());
    return types;
}

// The half of a double word that describes a fast read; 0 when the chip does not have it.
DWORD read_field(const GFPE_CHIP_FACTS& facts, int opcode)
{
    const GFPE_CHIP_COMMAND& command = facts.command(opcode);
    if (command.job == JOB::NONE)
        return 0;
    const auto mode = static_cast<DWORD>(command.mode_clocks);
    return (static_cast<DWORD>(command.dummy_clocks) - mode) | mode << 5 | static_cast<DWORD>(opcode) << 8;
}

DWORD first_dword(const GFPE_CHIP_FACTS& facts, const std::array<ERASE_TYPE, ERASE_TYPES>& types)
{
    const auto four_k = std::find_if(
        types.begin(), types.end(), [](const ERASE_TYPE& type) { return type.bytes == gfpe_chip_times::SECTOR_BYTES; });
    const bool has_four_k = four_k != types.end();
    DWORD value = has_four_k ? 0x1 : 0x3;
    value |= 0x4; // programs 64 bytes and more at once
    value |= 0xE0;
    value |= static_cast<DWORD>(has_four_k ? four_k->opcode : NO_OPCODE) << 8;
    value |= has(facts, 0x3B) ? 1u << 16 : 0;
    value |= facts.address_bytes == 4 ? 1u << 17 : 0;
    value |= has(facts, 0xEB) ? 1u << 21 : 0;
    value |= has(facts, 0x6B) ? 1u << 22 : 0;
    return value | 0xFF800000;
}

DWORD density_dword(std::int64_t bytes)
{
    const std::int64_t bits = bytes * 8;
    return bits <= (std::int64_t(1) << 31) ? static_cast<DWORD>(bits - 1) : 1u << 31 | log2_of(bits);
}

// A number of microseconds in `count` bits and a unit, rounded up: the first unit in which it has room.
DWORD time_field(std::int64_t microseconds, std::initializer_list<std::int64_t> units, DWORD count_bits)
{
    DWORD number = 0;
    const std::int64_t most = std::int64_t(1) << count_bits;
    for (const std::int64_t unit : units) {
        const std::int64_t count = (microseconds + unit - 1) / unit;
        if (count <= most)
            return static_cast<DWORD>(std::max<std::int64_t>(count, 1) - 1) | number << count_bits;
        ++number;
    }
    return static_cast<DWORD>(most - 1) | (number - 1) << count_bits;
}

// The typical time that is stated is a 32nd of the slowest, which is the largest factor that there is.
constexpr DWORD MOST_FACTOR = 15;
constexpr std::int64_t FACTOR = std::int64_t(2) * (MOST_FACTOR + 1);

DWORD erase_times(const GFPE_CHIP_FACTS& facts, const std::array<ERASE_TYPE, ERASE_TYPES>& types)
{
    DWORD value = MOST_FACTOR;
    for (std::size_t at = 0; at < types.size(); ++at) {
        if (types[at].bytes == 0)
            continue;
        const std::int64_t typical =
            std::max(gfpe_chip_times::slow_erase_us(types[at].bytes, facts.bytes) / FACTOR, gfpe_chip_times::ERASE_US);
        // No emulated sector is slow enough for the two larger units.
        value |= time_field(typical, {1000, 16000}, 5) << (4 + 7 * at);
    }
    return value;
}

DWORD program_times(const GFPE_CHIP_FACTS& facts)
{
    const std::int64_t page = std::max(gfpe_chip_times::SLOW_PROGRAM_US / FACTOR, gfpe_chip_times::PROGRAM_US);
    const std::int64_t chip = gfpe_chip_times::slow_erase_us(facts.bytes, facts.bytes) / FACTOR;
    return MOST_FACTOR | log2_of(facts.page) << 4 | time_field(page, {8, 64}, 5) << 8 |
           time_field(gfpe_chip_times::PROGRAM_US / 8, {1, 8}, 4) << 14 | time_field(1, {1, 8}, 4) << 19 |
           time_field(chip, {16000, 256000, 4000000, 64000000}, 5) << 24 | 1u << 31;
}

// How the busy bit is polled, and the ways into deep power-down and out.
DWORD poll_dword(const GFPE_CHIP_FACTS& facts)
{
    const DWORD poll = facts.has_flags ? 0xC : 0x4;
    if (!has(facts, 0xB9))
        return 0x3 | poll | 0xF0 | ALL << 8;
    return 0x3 | poll | 0xF0 | 0x7Fu << 8 | 0xABu << 15 | 0xB9u << 23;
}

DWORD quad_enable_dword(const GFPE_CHIP_FACTS& facts)
{
    DWORD rule = 0;
    if (facts.quad_enable == GFPDB_QUAD_ENABLE::SR1_BIT6)
        rule = 2;
    else if (facts.quad_enable == GFPDB_QUAD_ENABLE::SR2_BIT1)
        rule = facts.command(0x01).second == GFPE_CHIP_REGISTER::STATUS_2 ? 1 : 6;
    return 0xFFu << 24 | rule << 20;
}

DWORD mode_dword(const GFPE_CHIP_FACTS& facts)
{
    DWORD value = 1u << 7;
    value |= has(facts, 0x50) && !facts.has_flags ? 1u << 3 : 1u; // where 06 alone enables a write of the status
    value |= has(facts, 0x66) ? 1u << 12 : 0;
    if (facts.address_bytes != 4)
        return value | 0xFFFFC000;
    if (has(facts, 0xE9))
        value |= facts.write_enable_before_mode ? 1u << 15 : 1u << 14;
    if (has(facts, 0xB7))
        value |= facts.write_enable_before_mode ? 1u << 25 : 1u << 24;
    if (has(facts, 0xC5))
        value |= 1u << 16 | 1u << 26;
    if (has(facts, 0x17))
        value |= 1u << 17 | 1u << 27;
    if (has(facts, 0x13) || has(facts, 0x0C))
        value |= 1u << 29;
    return value | 1u << 21; // and a power cycle leaves in any case
}

// The opcodes of the commands that always take four address bytes, in the order of their bits.
constexpr int FOUR_BYTE_OPCODES[] = {0x13, 0x0C, 0x3C, 0xBC, 0x6C, 0xEC, 0x12, 0x34, 0x3E};
constexpr int FOUR_BYTE_ERASES = 9;

void add_four_byte_table(WRITER& writer, const GFPE_CHIP_FACTS& facts, const std::array<ERASE_TYPE, ERASE_TYPES>& types)
{
    DWORD present = 0xFFF00000;
    for (std::size_t bit = 0; bit < std::size(FOUR_BYTE_OPCODES); ++bit)
        present |= has(facts, FOUR_BYTE_OPCODES[bit]) ? 1u << bit : 0;
    DWORD opcodes = ALL;
    for (std::size_t at = 0; at < types.size(); ++at) {
        for (int opcode = 0; opcode < NO_OPCODE; ++opcode) {
            const GFPE_CHIP_COMMAND& command = facts.command(opcode);
            if (command.job != JOB::ERASE || command.address != GFPE_CHIP_ADDRESS::ALWAYS_FOUR ||
                command.erase_bytes != types[at].bytes)
                continue;
            present |= 1u << (FOUR_BYTE_ERASES + at);
            opcodes &= ~(0xFFu << 8 * at);
            opcodes |= static_cast<DWORD>(opcode) << 8 * at;
        }
    }
    writer.add(present);
    writer.add(opcodes);
}

void add_basic_table(WRITER& writer, const GFPE_CHIP_FACTS& facts, const std::array<ERASE_TYPE, ERASE_TYPES>& types)
{
    const auto erase_field = [&types](std::size_t at) {
        return types[at].bytes ? log2_of(types[at].bytes) | static_cast<DWORD>(types[at].opcode) << 8 : 0xFF00u;
    };
    writer.add(first_dword(facts, types));
    writer.add(density_dword(facts.bytes));
    writer.add(read_field(facts, 0xEB) | read_field(facts, 0x6B) << 16);
    writer.add(read_field(facts, 0x3B));
    writer.add(0xFFFFFFEE); // neither opcodes nor anything else on several lines
    writer.add(0x0000FFFF);
    writer.add(0x0000FFFF);
    writer.add(erase_field(0) | erase_field(1) << 16);
    writer.add(erase_field(2) | erase_field(3) << 16);
    writer.add(erase_times(facts, types));
    writer.add(program_times(facts));
    writer.add(ALL); // cannot suspend
    writer.add(ALL);
    writer.add(poll_dword(facts));
    writer.add(quad_enable_dword(facts));
    writer.add(mode_dword(facts));
}

} // namespace

std::vector<std::uint8_t> gfpe_write_sfdp(const GFPE_CHIP_FACTS& facts)
{
    const std::array<ERASE_TYPE, ERASE_TYPES> types = erase_types(facts);
    const bool has_four_byte = has(facts, 0x13) || has(facts, 0x0C);
    const DWORD tables = has_four_byte ? 2 : 1;
    const DWORD first_place = HEADER_BYTES * (1 + tables);
    WRITER writer;
    writer.add(0x50444653); // "SFDP"
    writer.add(6u | 1u << 8 | (tables - 1) << 16 | 0xFFu << 24);
    writer.add_header(BASIC_ID, BASIC_DWORDS, first_place);
    if (has_four_byte)
        writer.add_header(FOUR_BYTE_ID, 2, first_place + BASIC_DWORDS * 4);
    add_basic_table(writer, facts, types);
    if (has_four_byte)
        add_four_byte_table(writer, facts, types);
    return writer.take();
}

std::vector<std::uint8_t> gfpe_sfdp_of(const GFPE_CHIP_FACTS& facts)
{
    QFile read_out(QStringLiteral(":/gfpe/sfdp/%1.bin").arg(QString::fromStdString(facts.name)));
    if (!read_out.open(QIODevice::ReadOnly))
        return gfpe_write_sfdp(facts);
    const QByteArray bytes = read_out.readAll();
    return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
}
