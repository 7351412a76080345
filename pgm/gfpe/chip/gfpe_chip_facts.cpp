// SPDX-License-Identifier: MIT

// What is known of real chips beyond a catalogue row, as a table of makers and lines. Written from data sheets, not
// from what the flows do.
#include "chip/gfpe_chip_facts.h"

#include "chip/gfpe_chip_sfdp.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

using JOB = GFPE_CHIP_JOB;
using REG = GFPE_CHIP_REGISTER;
using ADDRESS = GFPE_CHIP_ADDRESS;

constexpr std::int64_t BLOCK_BYTES = 65536;
constexpr std::int64_t MOST_BYTES = std::int64_t(1) << 32;
constexpr int USUAL_PAGE = 256;
constexpr int USUAL_DUMMY = 8;
constexpr std::uint8_t SECURITY_LOCKS = 0x38; // of the security registers, in the second status register
constexpr std::size_t MICRON_ID_BYTES = 20;

constexpr std::initializer_list<const char*> OLD_ADESTO = {"AT25SF081", "AT25SF161", "AT25SF321"};

bool begins(const std::string& text, const char* start)
{
    return text.rfind(start, 0) == 0;
}

bool is_any(const std::string& text, std::initializer_list<const char*> starts)
{
    return std::any_of(starts.begin(), starts.end(), [&text](const char* start) { return begins(text, start); });
}

void add(GFPE_CHIP_FACTS& facts, JOB job, std::initializer_list<int> opcodes)
{
    for (const int opcode : opcodes) {
        facts.command(opcode) = GFPE_CHIP_COMMAND();
        facts.command(opcode).job = job;
    }
}

void remove(GFPE_CHIP_FACTS& facts, std::initializer_list<int> opcodes)
{
    add(facts, JOB::NONE, opcodes);
}

void add_register(GFPE_CHIP_FACTS& facts, int opcode, REG target)
{
    add(facts, JOB::READ_REGISTER, {opcode});
    facts.command(opcode).target = target;
}

void add_register_write(GFPE_CHIP_FACTS& facts, int opcode, REG first, REG second = REG::NONE,
                        bool clears_second = false)
{
    add(facts, JOB::WRITE_REGISTERS, {opcode});
    facts.command(opcode).target = first;
    facts.command(opcode).second = second;
    facts.command(opcode).clears_second = clears_second;
}

bool has_four_byte_opcode(int opcode)
{
    constexpr int ALWAYS_FOUR[] = {0x0C, 0x12, 0x13, 0x21, 0x34, 0x3C, 0x3E, 0x5C, 0x6C, 0xDC, 0xEC};
    return std::find(std::begin(ALWAYS_FOUR), std::end(ALWAYS_FOUR), opcode) != std::end(ALWAYS_FOUR);
}

struct DATA_COMMAND
{
    int opcode;
    JOB job;
    int address_lines;
    int data_lines;
};
constexpr DATA_COMMAND DATA_COMMANDS[] = {
    {0x03, JOB::READ, 1, 1},    {0x13, JOB::READ, 1, 1},    {0x0B, JOB::READ, 1, 1},    {0x0C, JOB::READ, 1, 1},
    {0x3B, JOB::READ, 1, 2},    {0x3C, JOB::READ, 1, 2},    {0x6B, JOB::READ, 1, 4},    {0x6C, JOB::READ, 1, 4},
    {0xEB, JOB::READ, 4, 4},    {0xEC, JOB::READ, 4, 4},    {0x02, JOB::PROGRAM, 1, 1}, {0x12, JOB::PROGRAM, 1, 1},
    {0x32, JOB::PROGRAM, 1, 4}, {0x34, JOB::PROGRAM, 1, 4}, {0x38, JOB::PROGRAM, 4, 4}, {0x3E, JOB::PROGRAM, 4, 4},
};

// Reads and programs, as DATA_COMMANDS has them.
void add_data(GFPE_CHIP_FACTS& facts, std::initializer_list<int> opcodes)
{
    for (const DATA_COMMAND& row : DATA_COMMANDS) {
        if (std::find(opcodes.begin(), opcodes.end(), row.opcode) == opcodes.end())
            continue;
        GFPE_CHIP_COMMAND& command = facts.command(row.opcode);
        command = GFPE_CHIP_COMMAND();
        command.job = row.job;
        command.address = has_four_byte_opcode(row.opcode) ? ADDRESS::ALWAYS_FOUR : ADDRESS::BY_MODE;
        command.address_lines = row.address_lines;
        command.data_lines = row.data_lines;
    }
}

void add_mode_commands(GFPE_CHIP_FACTS& facts)
{
    if (facts.address_bytes != 4)
        return;
    add(facts, JOB::ENTER_4_BYTE, {0xB7});
    add(facts, JOB::LEAVE_4_BYTE, {0xE9});
}

void add_extended_address(GFPE_CHIP_FACTS& facts)
{
    if (facts.address_bytes != 4)
        return;
    add_register(facts, 0xC8, REG::EXTENDED_ADDRESS);
    add_register_write(facts, 0xC5, REG::EXTENDED_ADDRESS);
}

void show_mode_in(GFPE_CHIP_FACTS& facts, int opcode, REG target, int bit)
{
    add_register(facts, opcode, target);
    facts.mode_register = target;
    facts.mode_bit = bit;
}

void add_reset(GFPE_CHIP_FACTS& facts)
{
    add(facts, JOB::RESET_ENABLE, {0x66});
    add(facts, JOB::RESET, {0x99});
}

// Three bytes that mean nothing, then the signature.
void add_wake(GFPE_CHIP_FACTS& facts)
{
    add(facts, JOB::WAKE, {0xAB});
    facts.command(0xAB).dummy_clocks = 24;
}

void add_signatures(GFPE_CHIP_FACTS& facts)
{
    add(facts, JOB::READ_MAKER, {0x90});
    facts.command(0x90).address = ADDRESS::ALWAYS_THREE;
    add(facts, JOB::POWER_DOWN, {0xB9});
    add_wake(facts);
}

void add_macronix(GFPE_CHIP_FACTS& facts)
{
    facts.quad_enable = GFPDB_QUAD_ENABLE::SR1_BIT6;
    facts.protection = GFPE_CHIP_PROTECTION::FOUR_BITS;
    add_data(facts, {0x38, 0x3B, 0x6B, 0xEB});
    add(facts, JOB::ENTER_QPI, {0x35});
    show_mode_in(facts, 0x15, REG::CONFIGURATION, 0x20);
    add_register_write(facts, 0x01, REG::STATUS_1, REG::CONFIGURATION);
    add_mode_commands(facts);
    add_extended_address(facts);
    add_reset(facts);
    add_signatures(facts);
    if (facts.address_bytes == 4)
        add_data(facts, {0x0C, 0x12, 0x13, 0x3E, 0x6C, 0xEC});
}

void add_bank_register(GFPE_CHIP_FACTS& facts)
{
    show_mode_in(facts, 0x16, REG::BANK, 0x80);
    add(facts, JOB::WRITE_BANK, {0x17});
}

void add_issi(GFPE_CHIP_FACTS& facts)
{
    facts.quad_enable = GFPDB_QUAD_ENABLE::SR1_BIT6;
    facts.protection = GFPE_CHIP_PROTECTION::FOUR_BITS;
    add_data(facts, {0x32, 0x38, 0x3B, 0x6B, 0xEB});
    add(facts, JOB::ENTER_QPI, {0x35});
    if (facts.address_bytes == 4) {
        add_bank_register(facts);
        add(facts, JOB::ENTER_4_BYTE, {0xB7});
        add_data(facts, {0x0C, 0x12, 0x13, 0x34, 0x6C, 0xEC});
    }
    add_reset(facts);
    add_signatures(facts);
}

// The length of what follows, two bytes on how the part was ordered, and 14 of the factory.
void add_long_id(GFPE_CHIP_FACTS& facts)
{
    facts.repeats_id = false;
    if (facts.id.size() == 3)
        facts.id.push_back(0x10);
    facts.id.resize(MICRON_ID_BYTES, 0);
}

void add_micron(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    facts.protection = GFPE_CHIP_PROTECTION::MICRON;
    facts.has_flags = true;
    facts.write_enable_before_mode = true;
    add_data(facts, {0x32, 0x38, 0x3B, 0x6B, 0xEB});
    add(facts, JOB::CLEAR_FLAGS, {0x50});
    add(facts, JOB::READ_ID, {0x9E});
    add(facts, JOB::ENTER_QPI, {0x35});
    add_long_id(facts);
    remove(facts, {0x60});
    show_mode_in(facts, 0x70, REG::FLAGS, 0x01);
    add_reset(facts);
    add_mode_commands(facts);
    add_extended_address(facts);
    if (facts.address_bytes == 4)
        add_data(facts, {0x0C, 0x13, 0x6C, 0xEC});
    if (begins(part.name, "MT25Q")) {
        add(facts, JOB::POWER_DOWN, {0xB9});
        add_wake(facts);
        if (facts.address_bytes == 4)
            add_data(facts, {0x12, 0x34, 0x3E});
    }
    facts.command(0xEB).mode_clocks = facts.command(0xEC).mode_clocks = 1;
    if (part.total_die > 1) {
        facts.erased_dies = part.total_die;
        add(facts, JOB::ERASE_DIE, {0xC4});
        facts.command(0xC4).address = ADDRESS::BY_MODE;
        remove(facts, {0xC7});
    } else if (begins(part.name, "MT25Q")) {
        add(facts, JOB::ERASE_CHIP, {0x60});
    }
}

// Parts whose row has an erase command that always takes four address bytes have such reads and programs, too.
void add_four_byte_data(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    const bool has_erase = std::any_of(part.sector_erase.begin(), part.sector_erase.end(),
                                       [](const GFPDB_ERASE_COMMAND& erase) { return erase.opcode == 0xDC; });
    if (facts.address_bytes == 4 && has_erase)
        add_data(facts, {0x0C, 0x12, 0x13, 0x34, 0x6C, 0xEC});
}

// The second status register with the quad-enable bit, read by 35.
void add_common(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    facts.quad_enable = GFPDB_QUAD_ENABLE::SR2_BIT1;
    facts.protection = facts.address_bytes == 4 ? GFPE_CHIP_PROTECTION::FOUR_BITS_TB : GFPE_CHIP_PROTECTION::THREE_BITS;
    add_data(facts, {0x32, 0x3B, 0x6B, 0xEB});
    add_register(facts, 0x35, REG::STATUS_2);
    facts.complements = true;
    facts.one_time_bits = SECURITY_LOCKS;
    add_register_write(facts, 0x01, REG::STATUS_1, REG::STATUS_2, true);
    add(facts, JOB::VOLATILE_WRITE_ENABLE, {0x50});
    add_mode_commands(facts);
    add_four_byte_data(facts, part);
    add_signatures(facts);
}

void add_third_status(GFPE_CHIP_FACTS& facts)
{
    add_register(facts, 0x15, REG::STATUS_3);
    add_register_write(facts, 0x11, REG::STATUS_3);
}

void add_winbond(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts, part);
    add_extended_address(facts);
    if (part.name != "W25Q80DV") {
        show_mode_in(facts, 0x15, REG::STATUS_3, 0x01);
        add_register_write(facts, 0x31, REG::STATUS_2);
        add_third_status(facts);
        add_reset(facts);
    }
    facts.leaving_sets_extended_address = part.name == "W25Q256FV";
    if (is_any(part.name, {"W25Q01", "W25Q02"})) {
        add(facts, JOB::SELECT_DIE, {0xC2});
        facts.status_dies = begins(part.name, "W25Q01") ? 2 : 4;
    }
}

void add_gigadevice(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts, part);
    add_extended_address(facts);
    add_third_status(facts);
    add_reset(facts);
    if (part.name == "GD25Q256C")
        facts.quad_enable = GFPDB_QUAD_ENABLE::SR1_BIT6;
    else if (is_any(part.name, {"GD25B512", "GD25LB512"}))
        facts.quad_enable = GFPDB_QUAD_ENABLE::NONE;
    if (is_any(part.name, {"GD25LQ64", "GD25LQ128", "GD25LQ255"}))
        return;
    add_register_write(facts, 0x31, REG::STATUS_2);
    add_register_write(facts, 0x01, REG::STATUS_1);
}

void add_xmc(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts, part);
    add_register_write(facts, 0x31, REG::STATUS_2);
    add_third_status(facts);
    add_reset(facts);
    facts.write_enable_before_mode = is_any(part.name, {"XM25QH256C", "XM25QH512C"});
}

void add_eon(GFPE_CHIP_FACTS& facts)
{
    facts.protection = GFPE_CHIP_PROTECTION::FOUR_BITS;
    add_data(facts, {0x3B, 0xEB});
    add_signatures(facts);
    add_reset(facts);
}

void add_infineon(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    facts.quad_enable = GFPDB_QUAD_ENABLE::SR2_BIT1;
    facts.protection = GFPE_CHIP_PROTECTION::THREE_BITS_TOP;
    facts.shows_errors = true;
    facts.repeats_id = false;
    add_register(facts, 0x35, REG::STATUS_2);
    add_register_write(facts, 0x01, REG::STATUS_1, REG::STATUS_2, true);
    add(facts, JOB::CLEAR_FLAGS, {0x30});
    facts.register_write_us = 750000;
    const bool fl_s = is_any(part.name, {"S25FL127S", "S25FL128S", "S25FL256S", "S25FL512S"});
    const bool hx_t = is_any(part.name, {"S25HL", "S25HS"});
    if (fl_s) {
        add_data(facts, {0x32, 0x34, 0x3B, 0x6B, 0x6C, 0xEB, 0xEC, 0x0C, 0x12, 0x13});
        add_bank_register(facts);
        add(facts, JOB::READ_MAKER, {0x90});
        facts.command(0x90).address = ADDRESS::ALWAYS_THREE;
        add_wake(facts);
    } else if (hx_t || part.name == "S25FS256T") {
        add_data(facts, {0x0C, 0x12, 0x13, 0xEC});
        add_reset(facts);
        facts.split_sectors = hx_t && part.total_die != 2 ? 32 : 0;
        if (part.total_die == 2)
            remove(facts, {0xC7, 0x60});
    } else if (begins(part.name, "S25FS")) {
        // E9 is a password command here: 4-byte addressing is left by a reset.
        add_data(facts, {0xEB, 0x0C, 0x12, 0x13, 0xEC});
        add_reset(facts);
        if (facts.address_bytes == 4)
            add(facts, JOB::ENTER_4_BYTE, {0xB7});
        facts.split_sectors = 8;
    } else {
        add_data(facts, {0x32, 0x34, 0x3B, 0x6B, 0x6C, 0xEB, 0xEC, 0x0C, 0x12, 0x13});
        facts.protection = GFPE_CHIP_PROTECTION::THREE_BITS;
        facts.complements = true;
        facts.shows_errors = false;
        remove(facts, {0x30});
        add_mode_commands(facts);
        add_reset(facts);
        add_signatures(facts);
    }
}

void add_sst(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts, part);
    facts.protection = GFPE_CHIP_PROTECTION::NONE;
    facts.has_block_locks = facts.mirrors_busy = true;
    add(facts, JOB::UNLOCK_BLOCKS, {0x98});
    facts.complements = false;
    facts.one_time_bits = 0;
    add(facts, JOB::READ_LOCKS, {0x72});
    add(facts, JOB::WRITE_LOCKS, {0x42});
    facts.command(0x32).address_lines = 4;
    remove(facts, {0x50, 0x60, 0x90, 0xB9, 0xAB});
    add(facts, JOB::ENTER_QPI, {0x38});
    add_reset(facts);
}

// The commands and registers of the maker.
void add_maker(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    if (part.name == "MX25L1606E") {
        facts.protection = GFPE_CHIP_PROTECTION::FOUR_BITS;
        add_signatures(facts);
    } else if (part.manufacturer == "Macronix") {
        add_macronix(facts);
    } else if (part.manufacturer == "ISSI") {
        add_issi(facts);
    } else if (part.manufacturer == "Micron") {
        add_micron(facts, part);
    } else if (part.manufacturer == "Winbond") {
        add_winbond(facts, part);
    } else if (part.manufacturer == "GigaDevice") {
        add_gigadevice(facts, part);
    } else if (part.manufacturer == "Infineon") {
        add_infineon(facts, part);
    } else if (part.manufacturer == "EON" || is_any(part.name, {"XM25QH64A", "XM25QH128A"})) {
        add_eon(facts);
    } else if (part.manufacturer == "XMC") {
        add_xmc(facts, part);
    } else if (begins(part.name, "SST26")) {
        add_sst(facts, part);
    } else {
        add_common(facts, part);
        add_register_write(facts, 0x31, REG::STATUS_2);
        if (part.name == "AT25QL128A")
            add_reset(facts);
    }
}

void set_read_clocks(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    const bool hx_t = is_any(part.name, {"S25HL", "S25HS"});
    const int quad = hx_t && !part.dummy_quad ? 10 : part.dummy_quad;
    const int single = hx_t ? 16 : part.dummy_single ? part.dummy_single : USUAL_DUMMY;
    for (const int opcode : {0x0B, 0x0C})
        facts.command(opcode).dummy_clocks = single;
    if (hx_t)
        facts.command(0x0B).mode_clocks = facts.command(0x0C).mode_clocks = 8;
    for (const int opcode : {0x3B, 0x3C, 0x6B, 0x6C})
        facts.command(opcode).dummy_clocks = USUAL_DUMMY;
    for (const int opcode : {0xEB, 0xEC}) {
        facts.command(opcode).dummy_clocks = quad;
        if (!facts.command(opcode).mode_clocks)
            facts.command(opcode).mode_clocks = 2;
    }
    if (!quad)
        remove(facts, {0xEB, 0xEC});
}

void add_erase(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    if (part.name == "S25FS256T")
        return; // which command erases how much where, no source says
    for (const GFPDB_ERASE_COMMAND& row : part.sector_erase) {
        GFPE_CHIP_COMMAND& command = facts.command(row.opcode);
        if (command.job == JOB::ERASE)
            continue;
        command = GFPE_CHIP_COMMAND();
        command.job = JOB::ERASE;
        command.address = has_four_byte_opcode(row.opcode) ? ADDRESS::ALWAYS_FOUR : ADDRESS::BY_MODE;
        command.erase_bytes = row.size_bytes;
    }
}

void add_sfdp(GFPE_CHIP_FACTS& facts, const GFPDB_PART& part)
{
    if (is_any(part.name, OLD_ADESTO))
        return; // older than the standard's spread
    add(facts, JOB::READ_SFDP, {0x5A});
    facts.command(0x5A).address = ADDRESS::ALWAYS_THREE;
    facts.command(0x5A).dummy_clocks = 8;
    facts.sfdp = gfpe_sfdp_of(facts);
}

std::string problem_of(const GFPDB_PART& part, const GFPE_CHIP_FACTS& facts)
{
    const std::string of = " of " + gfpdb_quoted(part.name);
    if (part.jedec_id.empty())
        return "The ID" + of + " is unknown.";
    if (facts.bytes < BLOCK_BYTES || facts.bytes > MOST_BYTES || (facts.bytes & (facts.bytes - 1)) != 0)
        return "The density" + of + " is " + (part.density.empty() ? "unknown" : gfpdb_quoted(part.density)) +
               ": a power of two from 512Kb to 32Gb can be emulated.";
    const int dies = std::max(part.total_die, 1);
    if (facts.bytes % (dies * BLOCK_BYTES) != 0)
        return "The number of dies" + of + ", " + std::to_string(dies) + ", does not divide its density.";
    return {};
}

} // namespace

bool gfpe_chip_facts(const GFPDB_PART& part, GFPE_CHIP_FACTS& facts, std::string& problem)
{
    facts = GFPE_CHIP_FACTS();
    facts.name = part.name;
    facts.id.assign(part.jedec_id.begin(), part.jedec_id.end());
    facts.bytes = gfpdb_density_bytes(part.density);
    problem = problem_of(part, facts);
    if (!problem.empty())
        return false;
    facts.page = part.page_size ? part.page_size : USUAL_PAGE;
    facts.address_bytes = part.addressing_bytes == 4 || facts.bytes > (1 << 24) ? 4 : 3;
    add(facts, JOB::WRITE_ENABLE, {0x06});
    add(facts, JOB::WRITE_DISABLE, {0x04});
    add(facts, JOB::READ_ID, {0x9F});
    add(facts, JOB::ERASE_CHIP, {0xC7, 0x60});
    add_data(facts, {0x02, 0x03, 0x0B});
    add_register(facts, 0x05, REG::STATUS_1);
    add_register_write(facts, 0x01, REG::STATUS_1);
    add_maker(facts, part);
    if (is_any(part.name, OLD_ADESTO))
        remove(facts, {0x32});
    if (part.name == "W25M512JV" || part.name == "GD25S512MD") {
        add(facts, JOB::SELECT_DIE, {0xC2});
        facts.selected_dies = 2;
    }
    if (part.quad_enable != GFPDB_QUAD_ENABLE::UNKNOWN)
        facts.quad_enable = part.quad_enable;
    // The bit cannot be that of the protection as well.
    if (facts.quad_enable == GFPDB_QUAD_ENABLE::SR1_BIT6 && facts.protection != GFPE_CHIP_PROTECTION::NONE)
        facts.protection = GFPE_CHIP_PROTECTION::FOUR_BITS;
    set_read_clocks(facts, part);
    add_erase(facts, part);
    add_sfdp(facts, part);
    return true;
}
