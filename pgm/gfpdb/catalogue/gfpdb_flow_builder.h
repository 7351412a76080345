// SPDX-License-Identifier: MIT

// Builds the five operations of a flow from the traits of a part.
#pragma once

#include "catalogue/gfpdb_flow_traits.h"

#include "gfpdb/gfpdb_operation.h"

// A new operation of `kind` (0 to 4), owned by the caller, for the quad-I/O (`quad` true) or single-I/O variant; the
// traits must be those of the same variant. Null for a number that is not a kind.
GFPDB_OPERATION* gfpdb_build_operation(int kind, const GFPDB_FLOW_TRAITS& traits, bool quad);

// How long a page program, and the erase of the traits, are waited for when nothing is known about their times.
std::int64_t gfpdb_usual_program_wait_us();
std::int64_t gfpdb_usual_erase_wait_us(const GFPDB_FLOW_TRAITS& traits);
