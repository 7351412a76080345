// SPDX-License-Identifier: MIT
#include "output/sfdp_values.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr int BASIC_TABLE = 0xFF00;
constexpr int FOUR_BYTE_TABLE = 0xFF84;
constexpr int SECTOR_MAP_TABLE = 0xFF81;
constexpr const char* MILLISECONDS = "ms";
constexpr const char* MICROSECONDS = "us";

using VALUES = std::vector<GFPDB_PROPOSED_VALUE>;

std::string hex(std::uint32_t value, int digits)
{
    constexpr int HEXADECIMAL = 16;
    return gfpdb_to_utf8(QStringLiteral("%1").arg(value, digits, HEXADECIMAL, QLatin1Char('0')).toUpper());
}

// "128Mb", "512Kb" or "1000 bits".
std::string density_text(std::int64_t bits)
{
    constexpr std::int64_t KBIT = 1024;
    if (bits % (KBIT * KBIT) == 0)
        return std::to_string(bits / (KBIT * KBIT)) + "Mb";
    return bits % KBIT == 0 ? std::to_string(bits / KBIT) + "Kb" : std::to_string(bits) + " bits";
}

// "4 KiB" or "256 bytes".
std::string size_text(std::int64_t bytes)
{
    constexpr std::int64_t KIB = 1024;
    return bytes % KIB == 0 ? std::to_string(bytes / KIB) + " KiB" : std::to_string(bytes) + " bytes";
}

// "304 ms", or "28 s" where that is as exact.
std::string duration_text(std::int64_t number, const char* unit)
{
    constexpr std::int64_t THOUSAND = 1000;
    const bool is_long = unit == MILLISECONDS && number % THOUSAND == 0;
    return is_long ? std::to_string(number / THOUSAND) + " s" : std::to_string(number) + ' ' + unit;
}

std::string time_text(int typical, int factor, const char* unit)
{
    std::string text = "typically " + duration_text(typical, unit);
    if (factor > 0)
        text += ", at most " + duration_text(std::int64_t(typical) * factor, unit);
    return text;
}

std::string table_text(const GFPDB_SFDP_TABLE& table)
{
    const char* const what = table.id == BASIC_TABLE        ? "basic"
                             : table.id == FOUR_BYTE_TABLE  ? "4-byte instructions"
                             : table.id == SECTOR_MAP_TABLE ? "sector map"
                                                            : "not looked at";
    std::string text = std::string(what) + ", " + std::to_string(table.major) + '.' + std::to_string(table.minor) +
                       ", " + std::to_string(table.dwords) + " DWORDs at 0x" + hex(table.offset, 6);
    if (table.dwords_read < table.dwords)
        text += ", of which " + std::to_string(table.dwords_read) + " were read";
    return text;
}

// The names of the bits that are set, the lowest first; reserved bits have none and are left out.
template <std::size_t COUNT>
std::string bits_text(std::uint32_t value, const char* const (&names)[COUNT])
{
    std::vector<std::string> set;
    for (std::size_t bit = 0; bit < COUNT; ++bit) {
        if ((value >> bit & 1) != 0)
            set.emplace_back(names[bit]);
    }
    return set.empty() ? "none" : gfpdb_joined(set);
}

// The ways into 4-byte mode, or out of it: parts without one have ones in the place of all of them.
template <std::size_t COUNT>
std::string ways_text(std::uint32_t value, const char* const (&names)[COUNT])
{
    constexpr std::uint32_t ALL = (1U << COUNT) - 1;
    return (value & ALL) == ALL ? "says nothing: all bits are 1" : bits_text(value, names);
}

constexpr const char* ADDRESSES[] = {"3", "3 or 4", "4", "reserved"};
constexpr const char* QUAD_ENABLE[] = {
    "0: no bit",
    "1: status register 2 bit 1; a write of one byte clears register 2",
    "2: status register 1 bit 6",
    "3: status register 2 bit 7, read by 3F and written by 3E",
    "4: status register 2 bit 1; a write of one byte leaves register 2",
    "5: status register 2 bit 1, read by 35 and written by 01",
    "6: status register 2 bit 1, read by 35 and written by 31",
    "7: reserved",
};
constexpr const char* BUSY_POLL[] = {"05 bit 0 is 1 while busy", "70 bit 7 is 0 while busy"};
constexpr const char* SOFT_RESET[] = {
    "F on four lines, 8 clocks",  "F on four lines, 10 clocks", "F on four lines, 16 clocks", "F0", "66 then 99",
    "leave continuous read first"};
constexpr const char* LEAVE_4_BYTE[] = {"E9",
                                        "06 then E9",
                                        "extended address register (C5)",
                                        "bank register (17)",
                                        "nonvolatile register (B1)",
                                        "hardware reset",
                                        "software reset",
                                        "power cycle"};
constexpr const char* ENTER_4_BYTE[] = {"B7",
                                        "06 then B7",
                                        "extended address register (C5)",
                                        "bank register (17)",
                                        "nonvolatile register (B1)",
                                        "commands of their own",
                                        "always 4-byte"};
constexpr const char* FOUR_BYTE_COMMANDS[] = {"13", "0C", "3C", "BC", "6C", "EC", "12", "34", "3E"};

void add_tables(VALUES& values, const GFPDB_SFDP& sfdp)
{
    const auto revision = [](int major, int minor) { return std::to_string(major) + '.' + std::to_string(minor); };
    values.push_back({"revision", "SFDP revision", revision(sfdp.major, sfdp.minor), "header"});
    for (const GFPDB_SFDP_TABLE& table : sfdp.tables)
        values.push_back(
            {"table", "Table " + hex(static_cast<std::uint32_t>(table.id), 4), table_text(table), "header"});
    values.push_back(
        {"basic-table", "Basic table",
         revision(sfdp.basic_major, sfdp.basic_minor) + ", " + std::to_string(sfdp.basic_dwords) + " DWORDs",
         "header"});
}

void add_reads(VALUES& values, const GFPDB_SFDP& sfdp)
{
    const auto add = [&values](const char* lines, const std::optional<GFPDB_SFDP_READ>& read, const char* source) {
        if (read)
            values.push_back({std::string("read-") + lines, std::string("Read ") + lines,
                              hex(static_cast<std::uint32_t>(read->opcode), 2) + ", " +
                                  std::to_string(read->mode_clocks) + " mode and " + std::to_string(read->wait_clocks) +
                                  " wait clocks",
                              source});
    };
    add("1-1-2", sfdp.read_1_1_2, "DW1, DW4");
    add("1-2-2", sfdp.read_1_2_2, "DW1, DW4");
    add("1-1-4", sfdp.read_1_1_4, "DW1, DW3");
    add("1-4-4", sfdp.read_1_4_4, "DW1, DW3");
    add("2-2-2", sfdp.read_2_2_2, "DW5, DW6");
    add("4-4-4", sfdp.read_4_4_4, "DW5, DW7");
    values.push_back({"double-rate", "Double rate", sfdp.has_double_rate ? "yes" : "no", "DW1"});
}

void add_erases(VALUES& values, const GFPDB_SFDP& sfdp)
{
    constexpr int LAST_OF_DW8 = 2;
    for (const GFPDB_SFDP_ERASE& erase : sfdp.erase) {
        const std::string number = std::to_string(erase.type);
        std::string text = hex(static_cast<std::uint32_t>(erase.opcode), 2) + ", " + size_text(erase.size_bytes);
        std::string source = erase.type <= LAST_OF_DW8 ? "DW8" : "DW9";
        if (erase.typical_ms > 0) {
            text += ", " + time_text(erase.typical_ms, sfdp.erase_max_factor, MILLISECONDS);
            source += ", DW10";
        }
        if (erase.opcode_4_byte > 0) {
            text += ", with 4-byte address " + hex(static_cast<std::uint32_t>(erase.opcode_4_byte), 2);
            source += ", 4-byte DW2";
        }
        values.push_back({"erase-" + number, "Erase type " + number, text, source});
    }
}

void add_times(VALUES& values, const GFPDB_SFDP& sfdp)
{
    if (sfdp.page_program_us > 0)
        values.push_back({"page-program", "Page program",
                          time_text(sfdp.page_program_us, sfdp.program_max_factor, MICROSECONDS), "DW11"});
    if (sfdp.chip_erase_ms > 0)
        values.push_back({"chip-erase", "Chip erase",
                          time_text(sfdp.chip_erase_ms, sfdp.erase_max_factor, MILLISECONDS), "DW10, DW11"});
}

void add_rules(VALUES& values, const GFPDB_SFDP& sfdp)
{
    const auto bits = [](const std::optional<int>& value) { return static_cast<std::uint32_t>(value.value_or(0)); };
    if (sfdp.busy_poll)
        values.push_back({"busy-poll", "Busy", bits_text(bits(sfdp.busy_poll), BUSY_POLL), "DW14"});
    if (sfdp.quad_enable && bits(sfdp.quad_enable) < std::size(QUAD_ENABLE))
        values.push_back({"quad-enable", "Quad enable", QUAD_ENABLE[bits(sfdp.quad_enable)], "DW15"});
    if (sfdp.soft_reset)
        values.push_back({"soft-reset", "Software reset", bits_text(bits(sfdp.soft_reset), SOFT_RESET), "DW16"});
    if (sfdp.enter_4_byte)
        values.push_back(
            {"enter-4-byte", "Enter 4-byte mode", ways_text(bits(sfdp.enter_4_byte), ENTER_4_BYTE), "DW16"});
    if (sfdp.leave_4_byte)
        values.push_back(
            {"leave-4-byte", "Leave 4-byte mode", ways_text(bits(sfdp.leave_4_byte), LEAVE_4_BYTE), "DW16"});
    if (sfdp.instructions_4_byte)
        values.push_back({"commands-4-byte", "4-byte commands",
                          bits_text(*sfdp.instructions_4_byte, FOUR_BYTE_COMMANDS), "4-byte DW1"});
}

void add_maps(VALUES& values, const GFPDB_SFDP& sfdp)
{
    constexpr const char* TYPES[] = {"1", "2", "3", "4"};
    for (const GFPDB_SFDP_MAP& map : sfdp.sector_maps) {
        std::vector<std::string> regions;
        for (const GFPDB_SFDP_REGION& region : map.regions)
            regions.push_back(size_text(region.size_bytes) + " (erase types " +
                              bits_text(static_cast<std::uint32_t>(region.erase_types), TYPES) + ')');
        values.push_back({"sector-map", "Sector map " + std::to_string(map.id), gfpdb_joined(regions), "sector map"});
    }
}

} // namespace

std::vector<GFPDB_PROPOSED_VALUE> sfdp_values(const GFPDB_SFDP& sfdp)
{
    VALUES values;
    add_tables(values, sfdp);
    if (sfdp.density_bits > 0)
        values.push_back({"density", "Density", density_text(sfdp.density_bits), "DW2"});
    values.push_back({"address-bytes", "Address bytes", ADDRESSES[static_cast<std::size_t>(sfdp.address)], "DW1"});
    if (sfdp.page_size > 0)
        values.push_back({"page-size", "Page size", std::to_string(sfdp.page_size), "DW11"});
    add_reads(values, sfdp);
    add_erases(values, sfdp);
    add_times(values, sfdp);
    add_rules(values, sfdp);
    add_maps(values, sfdp);
    return values;
}
