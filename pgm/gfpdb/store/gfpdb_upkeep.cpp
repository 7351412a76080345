// SPDX-License-Identifier: MIT
#include "store/gfpdb_upkeep.h"

#include "base/gfpdb_text.h"

std::string gfpdb_record_of(const GFPDB_HISTORY_ENTRY& entry)
{
    const std::string place =
        entry.is_template ? "template" : std::to_string(entry.row.family) + ' ' + std::to_string(entry.row.scheme);
    return place + ' ' + gfpdb_name_key(entry.name());
}
