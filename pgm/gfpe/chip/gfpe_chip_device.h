// SPDX-License-Identifier: MIT

// What a record of the flash database says of its chip.
#pragma once

#include "gfpdb/gfpdb_part.h"
#include "gfpdb/gfpdb_record.h"

#include <string>

// As GFPE_CHIP::make() of a record. GUI thread only.
bool gfpe_part_of_record(const GFPDB_RECORD& record, GFPDB_PART& part, std::string& problem);
