// SPDX-License-Identifier: MIT

// What each SFDP table says. Each reader adds to `sfdp` what its table has, and its warnings.
//
// Pure functions.
#pragma once

#include "sfdp/gfpdb_sfdp_table.h"

// The basic table, whose revision and length by its header `sfdp` has.
void gfpdb_read_sfdp_basic(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp);
// The two others look at what the basic table said.
void gfpdb_read_sfdp_four_byte(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp);
void gfpdb_read_sfdp_sector_map(const GFPDB_SFDP_VIEW& table, GFPDB_SFDP& sfdp);
