// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_sfdp.h"

std::optional<GFPDB_SFDP> gfpdb_read_sfdp(const std::vector<std::uint8_t>& bytes, std::string& problem)
{
    if (bytes.size() < 4)
        problem = "The read-out has no SFDP signature.";
    else
        problem = "SFDP tables cannot be read yet.";
    return std::nullopt;
}
