// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

std::optional<GFPDB_RECORD> gfpdb_copy_of(const GFPDB_RECORD& /*source*/, const std::string& /*name*/, int /*family*/,
                                          int /*scheme*/, std::string& problem)
{
    problem = "A device cannot be copied yet.";
    return std::nullopt;
}
