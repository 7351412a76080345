// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

std::vector<GFPDB_PART_COMPARISON> gfpdb_compare_with_catalogue(const std::vector<std::uint8_t>& /*id*/,
                                                                const GFPDB_SFDP& /*sfdp*/)
{
    return {};
}
