// SPDX-License-Identifier: MIT
#include "base/gfpdb_words.h"
#include "sfdp/gfpdb_sfdp_tables.h"

#include <algorithm>

namespace {

constexpr int ERASE_TYPES = 4;
// The bit of the first erase type in DW1.
constexpr int FIRST_ERASE_BIT = 9;
constexpr int NO_OPCODE = 0xFF;
constexpr std::uint32_t BLANK = 0xFFFFFFFF;

GFPDB_SFDP_ERASE* find_type(GFPDB_SFDP& sfdp, int type)
{
    const auto place = std::find_if(sfdp.erase.begin(), sfdp.erase.end(),
                                    [type](const GFPDB_SFDP_ERASE& erase) { return erase.type == type; });
    return place == sfdp.erase.end() ? nullptr : &*place;
}

} // namespace

void gfpdb_read_sfdp_four_byte(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp)
{
    if (table.dword(1) == BLANK) {
        sfdp.warnings.push_back(GFPDB_WORDS::say("The table of 4-byte instructions is blank."));
        return;
    }
    sfdp.instructions_4_byte = table.dword(1);
    if (!table.has(2))
        sfdp.warnings.push_back(GFPDB_WORDS::say("The table of 4-byte instructions has no erase commands."));
    for (int type = 1; type <= ERASE_TYPES; ++type) {
        if (!table.bit(1, FIRST_ERASE_BIT + type - 1) || !table.has(2))
            continue;
        const int lowest = 8 * (type - 1);
        const int opcode = table.bits(2, lowest + 7, lowest);
        GFPDB_SFDP_ERASE* const erase = find_type(sfdp, type);
        if (erase == nullptr)
            sfdp.warnings.push_back(GFPDB_WORDS::say(
                "The table of 4-byte instructions lists erase type %1, which the basic table does not have.",
                {std::to_string(type)}));
        else if (opcode == 0 || opcode == NO_OPCODE)
            sfdp.warnings.push_back(
                GFPDB_WORDS::say("The table of 4-byte instructions lists erase type %1 and has no command for it.",
                                 {std::to_string(type)}));
        else
            erase->opcode_4_byte = opcode;
    }
}
