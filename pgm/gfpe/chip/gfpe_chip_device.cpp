// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_device.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

struct MAKER
{
    int id;
    const char* name;
};
// As the catalogue writes them.
constexpr MAKER MAKERS[] = {
    {0xC2, "Macronix"},        {0xEF, "Winbond"},  {0x20, "Micron"}, {0xC8, "GigaDevice"}, {0x9D, "ISSI"},
    {0x01, "Infineon"},        {0x34, "Infineon"}, {0x85, "Puya"},   {0x1C, "EON"},        {0x1F, "Renesas (Adesto)"},
    {0xBF, "Microchip (SST)"}, {0x0B, "XTX"},      {0x68, "Boya"},   {0xA1, "Fudan"},
};
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

std::string maker_of(const std::vector<int>& id)
{
    for (const MAKER& maker : MAKERS) {
        if (!id.empty() && maker.id == id.front())
            return maker.name;
    }
    return {};
}

} // namespace

bool gfpe_part_of_record(const GFPDB_RECORD& record, GFPDB_PART& part, std::string& problem)
{
    const GFPDB_ROW& row = record.row;
    if (const GFPDB_PART* builtin = find_part(record.name())) {
        part = *builtin;
        return true;
    }
    part = GFPDB_PART();
    part.name = record.name();
    const std::vector<std::uint8_t> id = gfpdb_device_id_bytes(row.device_id);
    part.jedec_id.assign(id.begin(), id.end());
    if (part.jedec_id.empty()) {
        problem = "The ID of " + gfpdb_quoted(part.name) + " is missing or is not made of bytes.";
        return false;
    }
    part.manufacturer = maker_of(part.jedec_id);
    part.density = row.density;
    part.total_die = row.total_die.value_or(0);
    part.dummy_single = row.single_io_dummy_clock.value_or(0);
    part.dummy_quad = row.quad_io_dummy_clock.value_or(0);
    part.addressing_bytes = gfpdb_density_bytes(row.density) > THREE_BYTE_END ? 4 : 3;
    part.sector_erase.assign(std::begin(USUAL_ERASE), std::end(USUAL_ERASE));
    if (part.addressing_bytes == 4)
        part.sector_erase.insert(part.sector_erase.end(), {{0x21, 4096}, {0x5C, 32768}, {0xDC, 65536}});
    return true;
}
