// SPDX-License-Identifier: MIT

// What is known of real chips beyond a catalogue row, as a table of makers and lines. Written from data sheets, not
// from the library's traits.
#include "spi_nor_chip.h"

#include <algorithm>

namespace {

bool begins(const std::string& text, const char* start)
{
    return text.rfind(start, 0) == 0;
}

bool is_any(const std::string& text, std::initializer_list<const char*> starts)
{
    return std::any_of(starts.begin(), starts.end(), [&text](const char* start) { return begins(text, start); });
}

std::int64_t megabits(const std::string& density)
{
    return std::stoll(density) * 1024 * 1024 / 8;
}

void add(CHIP_FACTS& facts, std::initializer_list<int> opcodes)
{
    facts.commands.insert(opcodes);
}

void add_macronix(CHIP_FACTS& facts)
{
    facts.quad_enable = CHIP_FACTS::IN_SR1;
    add(facts, {0x38, 0x6B, 0xEB, 0x15, 0xB7, 0xE9});
    facts.mode_register = 0x15;
    facts.mode_bit = 0x20;
}

void add_issi(CHIP_FACTS& facts)
{
    facts.quad_enable = CHIP_FACTS::IN_SR1;
    add(facts, {0x32, 0x38, 0x6B, 0xEB, 0x16, 0x17, 0xB7});
    facts.mode_register = 0x16;
    facts.mode_bit = 0x80;
    facts.bank_register = true;
}

void add_micron(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add(facts, {0x32, 0x38, 0x6B, 0xEB, 0x50, 0x66, 0x99, 0x70, 0xB7, 0xE9});
    facts.flag_status = true;
    facts.write_enable_before_mode = true;
    facts.mode_register = 0x70;
    facts.mode_bit = 0x01;
    facts.chip_erase = part.total_die == 1;
    facts.quad_read_mode_clocks = 1;
}

// Status register 2 with the quad-enable bit, read by 35.
void add_common(CHIP_FACTS& facts)
{
    facts.quad_enable = CHIP_FACTS::IN_SR2;
    add(facts, {0x32, 0x35, 0x6B, 0xEB, 0xB7, 0xE9});
}

void add_winbond(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts);
    add(facts, {0x15, 0xC5});
    facts.mode_register = 0x15;
    facts.mode_bit = 0x01;
    facts.leaving_sets_extended_address = part.name == "W25Q256FV";
    if (is_any(part.name, {"W25Q01", "W25Q02"})) {
        add(facts, {0xC2});
        facts.status_dies = begins(part.name, "W25Q01") ? 2 : 4;
    }
}

void add_gigadevice(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add(facts, {0x32, 0x6B, 0xEB, 0xB7, 0xE9, 0x35, 0x31});
    if (part.name == "GD25Q256C")
        facts.quad_enable = CHIP_FACTS::IN_SR1;
    else if (!is_any(part.name, {"GD25B512", "GD25LB512"}))
        facts.quad_enable = CHIP_FACTS::IN_SR2;
    if (is_any(part.name, {"GD25LQ64", "GD25LQ128", "GD25LQ255"}))
        facts.commands.erase(0x31);
    else
        facts.sr2_by_31 = true;
}

void add_xmc(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    add_common(facts);
    facts.write_enable_before_mode = is_any(part.name, {"XM25QH256C", "XM25QH512C"});
}

void add_infineon(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    facts.quad_enable = CHIP_FACTS::IN_SR2;
    add(facts, {0x35});
    facts.register_write_us = 750000;
    const bool fl_s = is_any(part.name, {"S25FL127S", "S25FL128S", "S25FL256S", "S25FL512S"});
    const bool hx_t = is_any(part.name, {"S25HL", "S25HS"});
    if (fl_s) {
        add(facts, {0x32, 0x34, 0x6B, 0x6C, 0xEB, 0xEC, 0x0C, 0x12, 0x16, 0x17});
        facts.mode_register = 0x16;
        facts.mode_bit = 0x80;
        facts.bank_register = true;
    } else if (hx_t || part.name == "S25FS256T") {
        add(facts, {0x0C, 0x12, 0xEC});
        facts.chip_erase = part.total_die != 2;
        facts.split_sectors = hx_t && part.total_die != 2 ? 32 : 0;
        if (hx_t) {
            facts.quad_read_dummy = 10;
            facts.fast_read_mode_clocks = 8;
            facts.fast_read_dummy = 16;
        } else {
            facts.erase.clear();
        }
    } else if (begins(part.name, "S25FS")) {
        // E9 is a password command here: 4-byte addressing is left by a reset.
        add(facts, {0xEB, 0x66, 0x99, 0xB7});
        facts.split_sectors = 8;
    } else {
        add(facts, {0x32, 0x34, 0x6B, 0x6C, 0xEB, 0xEC, 0x0C, 0x12, 0xB7, 0xE9});
    }
}

// The commands and registers of the maker.
void add_maker(CHIP_FACTS& facts, const GFPDB_PART& part)
{
    if (part.name == "MX25L1606E")
        return;
    if (part.manufacturer == "Macronix")
        add_macronix(facts);
    else if (part.manufacturer == "ISSI")
        add_issi(facts);
    else if (part.manufacturer == "Micron")
        add_micron(facts, part);
    else if (part.manufacturer == "Winbond")
        add_winbond(facts, part);
    else if (part.manufacturer == "GigaDevice")
        add_gigadevice(facts, part);
    else if (part.manufacturer == "Infineon")
        add_infineon(facts, part);
    else if (part.manufacturer == "EON" || is_any(part.name, {"XM25QH64A", "XM25QH128A"}))
        add(facts, {0xEB});
    else if (part.manufacturer == "XMC")
        add_xmc(facts, part);
    else
        add_common(facts);
}

} // namespace

CHIP_FACTS chip_facts(const GFPDB_PART& part)
{
    CHIP_FACTS facts;
    facts.id.assign(part.jedec_id.begin(), part.jedec_id.end());
    facts.bytes = megabits(part.density);
    facts.page = part.page_size ? part.page_size : 256;
    facts.address_bytes = part.addressing_bytes;
    facts.fast_read_dummy = part.dummy_single ? part.dummy_single : 8;
    facts.quad_read_dummy = part.dummy_quad;
    facts.erase = part.sector_erase;
    add(facts, {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x0B, 0x9F});
    add_maker(facts, part);
    if (is_any(part.name, {"AT25SF081", "AT25SF161", "AT25SF321"}))
        facts.commands.erase(0x32);
    if (begins(part.name, "SST26")) {
        add(facts, {0x98});
        facts.locked_at_power_up = facts.graded_blocks = true;
        facts.quad_program_address_lines = 4;
    }
    if (part.name == "W25M512JV" || part.name == "GD25S512MD") {
        add(facts, {0xC2});
        facts.selected_dies = 2;
    }
    if (facts.quad_read_dummy == 0) {
        facts.commands.erase(0xEB);
        facts.commands.erase(0xEC);
    }
    if (facts.chip_erase)
        add(facts, {0xC7});
    for (const GFPDB_ERASE_COMMAND& erase : facts.erase)
        facts.commands.insert(erase.opcode);
    return facts;
}
