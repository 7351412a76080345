// SPDX-License-Identifier: MIT

// What SFDP tables say, as values for people, each with the double word that has it.
#pragma once

#include "gfpdb/gfpdb_new_device.h"
#include "gfpdb/gfpdb_sfdp.h"

#include <string>
#include <vector>

// The headers of the tables, then their values; what the tables do not have is left out.
std::vector<GFPDB_PROPOSED_VALUE> sfdp_values(const GFPDB_SFDP& sfdp);
