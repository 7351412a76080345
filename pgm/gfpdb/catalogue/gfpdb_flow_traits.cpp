// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_flow_traits.h"

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr const char* MACRONIX = "Macronix";
constexpr const char* WINBOND = "Winbond";
constexpr const char* MICRON = "Micron";
constexpr const char* GIGADEVICE = "GigaDevice";
constexpr const char* ISSI = "ISSI";
constexpr const char* INFINEON = "Infineon";
constexpr const char* SST = "Microchip (SST)";
constexpr const char* XMC = "XMC";

constexpr const char* SINGLE_WIDTH = "1-1-1";
constexpr const char* QUAD_DATA_WIDTH = "1-1-4";
constexpr const char* QUAD_ADDRESS_WIDTH = "1-4-4";

constexpr int PAGE_PROGRAM = 0x02;
constexpr int QUAD_PAGE_PROGRAM = 0x32;
constexpr int QUAD_ADDRESS_PAGE_PROGRAM = 0x38;
constexpr int FAST_READ = 0x0B;
constexpr int QUAD_DATA_READ = 0x6B;
constexpr int QUAD_ADDRESS_READ = 0xEB;

constexpr int DEFAULT_PAGE_SIZE = 256;
constexpr int DEFAULT_SECTOR_SIZE = 65536;
constexpr int DEFAULT_SECTOR_ERASE = 0xD8;
// Dummy clocks of fast read and of quad data read, which no part counts otherwise before it is set to.
constexpr int DEFAULT_DUMMY_SINGLE = 8;
constexpr int QUAD_DATA_DUMMY = 8;
constexpr int DEFAULT_DUMMY_QUAD = 6;
constexpr int LATENCY_8_DUMMY_QUAD = 10;
constexpr std::size_t TEMPLATE_ID_BYTES = 3;
constexpr std::int64_t THREE_BYTE_DEVICE_MAX = 1 << 24;

// The byte of an Infineon ID that tells how the sectors are laid out, and its value for 256K sectors with the lowest
// (or highest) ones split into 4K sectors.
constexpr std::size_t SECTOR_LAYOUT_BYTE = 4;
constexpr int SPLIT_SECTOR_LAYOUT = 0x03;

// The product lines of Infineon, which differ more than other makers do.
enum class INFINEON_LINE
{
    OTHER,
    FL_S,
    FL_L,
    FS_S,
    FS_T,
    HX_T,
};

bool starts_with(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

// "S25FL256S-64K": the letters after "S25" and the first letter after the density digits.
INFINEON_LINE infineon_line(const GFPDB_PART& part)
{
    if (part.manufacturer != INFINEON || part.name.size() < 6)
        return INFINEON_LINE::OTHER;
    const std::string series = part.name.substr(0, 5);
    const std::size_t end = part.name.find_first_not_of("0123456789G", 5);
    const char letter = end == std::string::npos ? '\0' : part.name[end];
    if (series == "S25FL")
        return letter == 'S' ? INFINEON_LINE::FL_S : letter == 'L' ? INFINEON_LINE::FL_L : INFINEON_LINE::OTHER;
    if (series == "S25FS")
        return letter == 'S' ? INFINEON_LINE::FS_S : letter == 'T' ? INFINEON_LINE::FS_T : INFINEON_LINE::OTHER;
    return series == "S25HL" || series == "S25HS" ? INFINEON_LINE::HX_T : INFINEON_LINE::OTHER;
}

bool has_selected_dies(const GFPDB_PART& part)
{
    return part.total_die > 1 && (starts_with(part.name, "W25M") || starts_with(part.name, "GD25S"));
}

// Winbond's stacks of 512 Mb dies: the addresses run on from die to die, the status does not.
int status_dies(const GFPDB_PART& part)
{
    const bool stacked = starts_with(part.name, "W25Q01") || starts_with(part.name, "W25Q02");
    return stacked && part.total_die > 1 ? part.total_die : 1;
}

// Behind the length of what follows, the extended ID of Micron says the generation in one bit, and in the others how
// the part was ordered.
std::vector<int> id_mask(const GFPDB_PART& part)
{
    constexpr std::size_t GENERATION_BYTE = 4;
    constexpr int GENERATION_BIT = 0x40;
    std::vector<int> mask(part.jedec_id.empty() ? TEMPLATE_ID_BYTES : part.jedec_id.size(), 0xFF);
    if (part.manufacturer != MICRON)
        return mask;
    for (std::size_t at = GENERATION_BYTE; at < mask.size(); ++at)
        mask[at] = at == GENERATION_BYTE ? GENERATION_BIT : 0x00;
    return mask;
}

// A part without a known place of the bit goes with its maker's other parts.
GFPDB_QUAD_ENABLE assumed_quad_enable(const GFPDB_PART& part)
{
    if (part.quad_enable != GFPDB_QUAD_ENABLE::UNKNOWN)
        return part.quad_enable;
    const bool in_first_register = part.manufacturer == MACRONIX || part.manufacturer == ISSI;
    return in_first_register ? GFPDB_QUAD_ENABLE::SR1_BIT6 : GFPDB_QUAD_ENABLE::SR2_BIT1;
}

// GigaDevice's parts have a command of their own for the second register, apart from these.
bool has_second_register_command(const GFPDB_PART& part)
{
    return part.manufacturer == GIGADEVICE && !starts_with(part.name, "GD25LQ64") &&
           !starts_with(part.name, "GD25LQ128") && !starts_with(part.name, "GD25LQ255");
}

GFPDB_STATUS_WRITE status_write(const GFPDB_PART& part)
{
    switch (assumed_quad_enable(part)) {
    case GFPDB_QUAD_ENABLE::SR1_BIT6:
        return GFPDB_STATUS_WRITE::SR1;
    case GFPDB_QUAD_ENABLE::SR2_BIT1:
        return has_second_register_command(part) ? GFPDB_STATUS_WRITE::SR2_OWN_COMMAND
                                                 : GFPDB_STATUS_WRITE::SR2_WITH_SR1;
    default:
        return GFPDB_STATUS_WRITE::CLEAR;
    }
}

// Own commands only where the row lists one of them: not every part of these lines has them.
bool has_own_four_byte_commands(const GFPDB_PART& part)
{
    const INFINEON_LINE line = infineon_line(part);
    const bool listed = std::any_of(part.sector_erase.begin(), part.sector_erase.end(),
                                    [](const auto& erase) { return erase.opcode == 0x21 || erase.opcode == 0xDC; });
    return listed && (line == INFINEON_LINE::FL_L || line == INFINEON_LINE::FS_T || line == INFINEON_LINE::HX_T);
}

GFPDB_FOUR_BYTE_ENTRY four_byte_entry(const GFPDB_PART& part, int address_bytes)
{
    if (address_bytes != 4)
        return GFPDB_FOUR_BYTE_ENTRY::NONE;
    if (has_own_four_byte_commands(part))
        return GFPDB_FOUR_BYTE_ENTRY::OWN_COMMANDS;
    if (infineon_line(part) == INFINEON_LINE::FL_S)
        return GFPDB_FOUR_BYTE_ENTRY::BANK_REGISTER;
    const bool needs_write_enable = part.manufacturer == MICRON || part.manufacturer == XMC;
    return needs_write_enable ? GFPDB_FOUR_BYTE_ENTRY::MODE_WITH_WRITE_ENABLE : GFPDB_FOUR_BYTE_ENTRY::MODE;
}

GFPDB_FOUR_BYTE_EXIT four_byte_exit(const GFPDB_PART& part, GFPDB_FOUR_BYTE_ENTRY entry)
{
    switch (entry) {
    case GFPDB_FOUR_BYTE_ENTRY::MODE:
        if (infineon_line(part) == INFINEON_LINE::FS_S)
            return GFPDB_FOUR_BYTE_EXIT::RESET;
        return part.manufacturer == ISSI ? GFPDB_FOUR_BYTE_EXIT::BANK_REGISTER : GFPDB_FOUR_BYTE_EXIT::MODE;
    case GFPDB_FOUR_BYTE_ENTRY::MODE_WITH_WRITE_ENABLE:
        return GFPDB_FOUR_BYTE_EXIT::MODE_WITH_WRITE_ENABLE;
    case GFPDB_FOUR_BYTE_ENTRY::BANK_REGISTER:
        return GFPDB_FOUR_BYTE_EXIT::BANK_REGISTER;
    default:
        return GFPDB_FOUR_BYTE_EXIT::NONE;
    }
}

std::optional<GFPDB_MODE_CHECK> mode_check(const GFPDB_PART& part, GFPDB_FOUR_BYTE_ENTRY entry)
{
    if (entry == GFPDB_FOUR_BYTE_ENTRY::NONE || entry == GFPDB_FOUR_BYTE_ENTRY::OWN_COMMANDS)
        return std::nullopt;
    if (part.manufacturer == MACRONIX)
        return GFPDB_MODE_CHECK{0x15, 0x20};
    if (part.manufacturer == WINBOND)
        return GFPDB_MODE_CHECK{0x15, 0x01};
    if (part.manufacturer == MICRON)
        return GFPDB_MODE_CHECK{0x70, 0x01};
    if (part.manufacturer == ISSI || entry == GFPDB_FOUR_BYTE_ENTRY::BANK_REGISTER)
        return GFPDB_MODE_CHECK{0x16, 0x80};
    return std::nullopt;
}

// The command that always takes four address bytes, for one that takes as many as the mode says.
int own_four_byte_opcode(int opcode)
{
    static const std::map<int, int> OPCODES = {{0x03, 0x13}, {0x0B, 0x0C}, {0x6B, 0x6C}, {0xEB, 0xEC}, {0x02, 0x12},
                                               {0x32, 0x34}, {0x38, 0x3E}, {0x20, 0x21}, {0x52, 0x5C}, {0xD8, 0xDC}};
    const auto place = OPCODES.find(opcode);
    return place == OPCODES.end() ? opcode : place->second;
}

bool is_own_four_byte_erase(int opcode)
{
    return opcode == 0x21 || opcode == 0x5C || opcode == 0xDC;
}

// True for a part whose quad page program is confirmed.
bool has_quad_program(const GFPDB_PART& part)
{
    const INFINEON_LINE line = infineon_line(part);
    const bool line_has = line != INFINEON_LINE::FS_S && line != INFINEON_LINE::FS_T && line != INFINEON_LINE::HX_T;
    const bool family_has = part.manufacturer == MICRON || part.quad_enable == GFPDB_QUAD_ENABLE::SR1_BIT6 ||
                            part.quad_enable == GFPDB_QUAD_ENABLE::SR2_BIT1;
    return line_has && family_has && !starts_with(part.name, "AT25SF");
}

GFPDB_DATA_COMMAND program_command(const GFPDB_PART& part, bool quad)
{
    if (!quad || !has_quad_program(part))
        return {PAGE_PROGRAM, SINGLE_WIDTH, 0};
    if (part.manufacturer == MACRONIX)
        return {QUAD_ADDRESS_PAGE_PROGRAM, QUAD_ADDRESS_WIDTH, 0};
    return {QUAD_PAGE_PROGRAM, part.manufacturer == SST ? QUAD_ADDRESS_WIDTH : QUAD_DATA_WIDTH, 0};
}

// The clocks that quad address read needs; 0 when no source says it.
int quad_dummy(const GFPDB_PART& part)
{
    if (part.dummy_quad == 0 && infineon_line(part) == INFINEON_LINE::HX_T)
        return LATENCY_8_DUMMY_QUAD;
    return part.dummy_quad;
}

GFPDB_DATA_COMMAND read_command(const GFPDB_PART& part, bool quad)
{
    const int dummy_single = part.dummy_single > 0 ? part.dummy_single : DEFAULT_DUMMY_SINGLE;
    // A maker whose parts have a quad-enable bit has no quad commands in a part without one.
    const bool without_quad = part.manufacturer == MACRONIX && part.quad_enable == GFPDB_QUAD_ENABLE::NONE;
    if (!quad || without_quad)
        return {FAST_READ, SINGLE_WIDTH, dummy_single};
    if (quad_dummy(part) > 0)
        return {QUAD_ADDRESS_READ, QUAD_ADDRESS_WIDTH, quad_dummy(part)};
    return {QUAD_DATA_READ, QUAD_DATA_WIDTH, QUAD_DATA_DUMMY};
}

// Parts that are delivered with some sectors split into 4K ones: a sector erase leaves those alone.
bool has_split_sectors(const GFPDB_PART& part)
{
    const INFINEON_LINE line = infineon_line(part);
    const bool says_split =
        part.jedec_id.size() > SECTOR_LAYOUT_BYTE && part.jedec_id[SECTOR_LAYOUT_BYTE] == SPLIT_SECTOR_LAYOUT;
    return line == INFINEON_LINE::FS_S || line == INFINEON_LINE::FS_T || (line == INFINEON_LINE::HX_T && says_split);
}

// The largest sector that one command erases wherever it is; D8 and DC before others of the same size.
std::optional<GFPDB_ERASE_COMMAND> sector_erase(const GFPDB_PART& part, bool own_four_byte_commands)
{
    std::optional<GFPDB_ERASE_COMMAND> best;
    if (has_split_sectors(part))
        return best;
    for (const GFPDB_ERASE_COMMAND& erase : part.sector_erase) {
        const auto same_opcode = [&erase](const GFPDB_ERASE_COMMAND& other) { return other.opcode == erase.opcode; };
        const bool one_size = std::count_if(part.sector_erase.begin(), part.sector_erase.end(), same_opcode) == 1;
        const bool usable = one_size && is_own_four_byte_erase(erase.opcode) == own_four_byte_commands;
        if (usable && (!best || erase.size_bytes > best->size_bytes ||
                       (erase.size_bytes == best->size_bytes && erase.opcode > best->opcode)))
            best = erase;
    }
    return best;
}

int address_bytes(const GFPDB_PART& part)
{
    if (part.addressing_bytes != 0)
        return part.addressing_bytes;
    return gfpdb_density_bytes(part.density) > THREE_BYTE_DEVICE_MAX ? 4 : 3;
}

// A part that stands for each template: the most common maker of its class.
GFPDB_PART template_part(int index)
{
    struct CLASS
    {
        const char* manufacturer;
        GFPDB_QUAD_ENABLE quad_enable;
        int addressing_bytes;
        int dummy_quad;
    };
    static constexpr std::array<CLASS, GFPDB_FLOW_TEMPLATE_COUNT> CLASSES = {{
        {MACRONIX, GFPDB_QUAD_ENABLE::SR1_BIT6, 3, DEFAULT_DUMMY_QUAD},
        {WINBOND, GFPDB_QUAD_ENABLE::SR2_BIT1, 3, DEFAULT_DUMMY_QUAD},
        {MACRONIX, GFPDB_QUAD_ENABLE::SR1_BIT6, 4, DEFAULT_DUMMY_QUAD},
        {WINBOND, GFPDB_QUAD_ENABLE::SR2_BIT1, 4, DEFAULT_DUMMY_QUAD},
        {MICRON, GFPDB_QUAD_ENABLE::NONE, 4, LATENCY_8_DUMMY_QUAD},
    }};
    const CLASS& entry = CLASSES[static_cast<std::size_t>(index)];
    GFPDB_PART part;
    part.manufacturer = entry.manufacturer;
    part.quad_enable = entry.quad_enable;
    part.addressing_bytes = entry.addressing_bytes;
    part.dummy_quad = entry.dummy_quad;
    part.sector_erase = {{DEFAULT_SECTOR_ERASE, DEFAULT_SECTOR_SIZE}};
    return part;
}

} // namespace

GFPDB_FLOW_TRAITS gfpdb_flow_traits(const GFPDB_PART& part, bool quad)
{
    GFPDB_FLOW_TRAITS traits;
    traits.id = part.jedec_id;
    traits.id_mask = id_mask(part);
    traits.device_bytes = gfpdb_density_bytes(part.density);
    traits.address_bytes = address_bytes(part);
    traits.verified = part.quad_enable != GFPDB_QUAD_ENABLE::UNKNOWN;
    traits.page_size = part.page_size > 0 ? part.page_size : DEFAULT_PAGE_SIZE;
    traits.status_write = status_write(part);
    traits.flow_template = gfpdb_template_of(traits.status_write, traits.address_bytes);
    traits.locked_at_power_up = part.manufacturer == SST;
    traits.flag_status = part.manufacturer == MICRON;
    traits.reset_at_start = part.manufacturer == MICRON;
    traits.enter_four_byte = four_byte_entry(part, traits.address_bytes);
    traits.leave_four_byte = four_byte_exit(part, traits.enter_four_byte);
    traits.mode_check = mode_check(part, traits.enter_four_byte);
    traits.reset_at_end = traits.reset_at_start || traits.leave_four_byte == GFPDB_FOUR_BYTE_EXIT::RESET;
    traits.clears_extended_address = starts_with(part.name, "W25Q256FV");
    traits.selected_dies = has_selected_dies(part) ? part.total_die : 1;
    traits.status_dies = status_dies(part);
    traits.program = program_command(part, quad);
    traits.read = read_command(part, quad);
    const bool has_own_commands = traits.enter_four_byte == GFPDB_FOUR_BYTE_ENTRY::OWN_COMMANDS;
    traits.sector_erase = sector_erase(part, has_own_commands);
    if (has_own_commands)
        gfpdb_use_own_four_byte_commands(traits);
    return traits;
}

GFPDB_FLOW_TEMPLATE gfpdb_template_of(GFPDB_STATUS_WRITE status_write, int address_bytes)
{
    switch (status_write) {
    case GFPDB_STATUS_WRITE::CLEAR:
        return GFPDB_TEMPLATE_NO_QE;
    case GFPDB_STATUS_WRITE::SR1:
        return address_bytes == 4 ? GFPDB_TEMPLATE_SR1_4_BYTE : GFPDB_TEMPLATE_SR1_3_BYTE;
    default:
        return address_bytes == 4 ? GFPDB_TEMPLATE_SR2_4_BYTE : GFPDB_TEMPLATE_SR2_3_BYTE;
    }
}

void gfpdb_use_own_four_byte_commands(GFPDB_FLOW_TRAITS& traits)
{
    traits.program.opcode = own_four_byte_opcode(traits.program.opcode);
    traits.read.opcode = own_four_byte_opcode(traits.read.opcode);
    if (traits.sector_erase)
        traits.sector_erase->opcode = own_four_byte_opcode(traits.sector_erase->opcode);
}

GFPDB_FLOW_TRAITS gfpdb_template_traits(int index, bool quad)
{
    return gfpdb_flow_traits(template_part(index), quad);
}
