// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_device.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

struct MAKER
{
    int id;
    // The second byte of the ID, where two makers share the first; 0 for any.
    int kind;
    const char* name;
};
// As the catalogue writes them.
constexpr MAKER MAKERS[] = {
    {0xC2, 0, "Macronix"},
    {0xEF, 0, "Winbond"},
    {0x20, 0xBA, "Micron"},
    {0x20, 0xBB, "Micron"},
    {0x20, 0, "XMC"},
    {0xC8, 0, "GigaDevice"},
    {0x9D, 0, "ISSI"},
    {0x01, 0, "Infineon"},
    {0x34, 0, "Infineon"},
    {0x85, 0, "Puya"},
    {0x1C, 0, "EON"},
    {0x1F, 0, "Renesas (Adesto)"},
    {0xBF, 0, "Microchip (SST)"},
    {0x0B, 0, "XTX"},
    {0x68, 0, "Boya"},
    {0xA1, 0, "Fudan"},
};

// Whose chips the built-in templates were made for.
struct TEMPLATE
{
    const char* start;
    const char* maker;
};
constexpr TEMPLATE TEMPLATES[] = {{"QE in SR1", "Macronix"}, {"No QE", "Micron"}, {"", "Winbond"}};
constexpr GFPDB_ERASE_COMMAND USUAL_ERASE[] = {{0x20, 4096}, {0x52, 32768}, {0xD8, 65536}};
constexpr std::int64_t THREE_BYTE_END = 1 << 24;

const GFPDB_PART* find_part(const std::string& name)
{
    const std::string key = gfpdb_name_key(name);
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (gfpdb_name_key(part.name) == key)
            return &part;
    }
    return nullptr;
}

const GFPDB_PART* find_part(const std::vector<int>& id, const std::string& density)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.jedec_id == id && gfpdb_density_bytes(part.density) == gfpdb_density_bytes(density))
            return &part;
    }
    return nullptr;
}

std::string maker_of(const GFPDB_ROW& row, const std::vector<int>& id)
{
    const int kind = id.size() > 1 ? id[1] : 0;
    for (const MAKER& maker : MAKERS) {
        if (maker.id == id.front() && (maker.kind == kind || maker.kind == 0))
            return maker.name;
    }
    for (const TEMPLATE& each : TEMPLATES) {
        if (row.flow_template.rfind(each.start, 0) == 0)
            return each.maker;
    }
    return {};
}

// What can be said of a part from its record alone.
GFPDB_PART unlisted_part(const GFPDB_ROW& row, const std::vector<int>& id)
{
    GFPDB_PART part;
    part.name = row.name;
    part.jedec_id = id;
    part.manufacturer = maker_of(row, id);
    part.density = row.density;
    part.addressing_bytes = gfpdb_density_bytes(row.density) > THREE_BYTE_END ? 4 : 3;
    part.sector_erase.assign(std::begin(USUAL_ERASE), std::end(USUAL_ERASE));
    if (part.addressing_bytes == 4)
        part.sector_erase.insert(part.sector_erase.end(), {{0x21, 4096}, {0x5C, 32768}, {0xDC, 65536}});
    return part;
}

} // namespace

bool gfpe_part_of_record(const GFPDB_RECORD& record, GFPDB_PART& part, std::string& problem)
{
    const GFPDB_ROW& row = record.row;
    if (const GFPDB_PART* builtin = find_part(record.name())) {
        part = *builtin;
        return true;
    }
    const std::vector<std::uint8_t> bytes = gfpdb_device_id_bytes(row.device_id);
    if (bytes.empty()) {
        problem = "The ID of " + gfpdb_quoted(record.name()) + " is missing or is not made of bytes.";
        return false;
    }
    const std::vector<int> id(bytes.begin(), bytes.end());
    const GFPDB_PART* const listed = find_part(id, row.density);
    part = listed ? *listed : unlisted_part(row, id);
    part.total_die = row.total_die.value_or(part.total_die);
    part.dummy_single = row.single_io_dummy_clock.value_or(part.dummy_single);
    part.dummy_quad = row.quad_io_dummy_clock.value_or(part.dummy_quad);
    return true;
}
