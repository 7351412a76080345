// SPDX-License-Identifier: MIT
#include "sfdp/gfpdb_sfdp_table.h"

#include "base/gfpdb_words.h"

#include <cctype>
#include <cstdio>

std::string gfpdb_sfdp_hex(std::uint32_t value, int digits)
{
    char text[16] = {};
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
}

std::string gfpdb_sfdp_table_name(int id)
{
    switch (id) {
    case GFPDB_SFDP_BASIC:
        return GFPDB_WORDS::say("the basic table");
    case GFPDB_SFDP_SECTOR_MAP:
        return GFPDB_WORDS::say("the sector map");
    case GFPDB_SFDP_FOUR_BYTE:
        return GFPDB_WORDS::say("the table of 4-byte instructions");
    default:
        return GFPDB_WORDS::say("the table %1", {gfpdb_sfdp_hex(static_cast<std::uint32_t>(id), 4)});
    }
}

std::string gfpdb_sfdp_sentence(std::string text)
{
    if (!text.empty())
        text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    return text;
}
