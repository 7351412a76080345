// SPDX-License-Identifier: MIT
#include "base/gfpdb_words.h"
#include "sfdp/gfpdb_sfdp_tables.h"

#include <numeric>

namespace {

constexpr int IS_LAST_BIT = 0;
constexpr int IS_MAP_BIT = 1;
constexpr int COMMAND_DWORDS = 2;
constexpr std::int64_t REGION_UNIT_BYTES = 256;
constexpr int VARIABLE_CLOCKS = 15;
constexpr int VARIABLE = -1;
constexpr int ADDRESS_BYTES[] = {0, 3, 4, VARIABLE};

GFPDB_SFDP_MAP_COMMAND command_at(const GFPDB_SFDP_VIEW& table, int at)
{
    GFPDB_SFDP_MAP_COMMAND command;
    const int clocks = table.bits(at, 19, 16);
    command.opcode = table.bits(at, 15, 8);
    command.wait_clocks = clocks == VARIABLE_CLOCKS ? VARIABLE : clocks;
    command.address_bytes = ADDRESS_BYTES[table.bits(at, 23, 22)];
    command.mask = table.bits(at, 31, 24);
    command.address = table.dword(at + 1);
    return command;
}

// The double words of the descriptor at `at`.
int dwords_at(const GFPDB_SFDP_VIEW& table, int at)
{
    return table.bit(at, IS_MAP_BIT) ? 1 + table.bits(at, 23, 16) + 1 : COMMAND_DWORDS;
}

GFPDB_SFDP_MAP map_at(const GFPDB_SFDP_VIEW& table, int at)
{
    GFPDB_SFDP_MAP map;
    map.id = table.bits(at, 15, 8);
    for (int region = at + 1; region < at + dwords_at(table, at); ++region)
        map.regions.push_back({(table.bits(region, 31, 8) + 1) * REGION_UNIT_BYTES, table.bits(region, 3, 0)});
    return map;
}

void check_map(const GFPDB_SFDP_MAP& map, GFPDB_SFDP& sfdp)
{
    const std::int64_t bytes =
        std::accumulate(map.regions.begin(), map.regions.end(), std::int64_t(0),
                        [](std::int64_t sum, const GFPDB_SFDP_REGION& region) { return sum + region.size_bytes; });
    if (sfdp.density_bits > 0 && bytes * 8 != sfdp.density_bits)
        sfdp.warnings.push_back(
            GFPDB_WORDS::say("The sectors of sector map %1 come to %2 bytes, and the part has %3.",
                             {std::to_string(map.id), std::to_string(bytes), std::to_string(sfdp.density_bits / 8)}));
    int listed = 0;
    for (const GFPDB_SFDP_ERASE& erase : sfdp.erase)
        listed |= 1 << (erase.type - 1);
    for (const GFPDB_SFDP_REGION& region : map.regions) {
        if ((region.erase_types & ~listed) == 0)
            continue;
        sfdp.warnings.push_back(
            GFPDB_WORDS::say("The sectors of sector map %1 are erased by types that the basic table does not have.",
                             {std::to_string(map.id)}));
        return;
    }
}

} // namespace

void gfpdb_read_sfdp_sector_map(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp)
{
    for (int at = 1; at <= table.dwords();) {
        const int next = at + dwords_at(table, at);
        if (next - 1 > table.dwords())
            break;
        if (!table.bit(at, IS_MAP_BIT)) {
            sfdp.map_commands.push_back(command_at(table, at));
        } else {
            sfdp.sector_maps.push_back(map_at(table, at));
            check_map(sfdp.sector_maps.back(), sfdp);
            if (table.bit(at, IS_LAST_BIT))
                return;
        }
        at = next;
    }
    sfdp.warnings.push_back(GFPDB_WORDS::say("The sector map has no end."));
}
