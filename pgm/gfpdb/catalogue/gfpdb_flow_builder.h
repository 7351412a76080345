// SPDX-License-Identifier: MIT

// Builds the five operations of a flow from the traits of a part.
#pragma once

#include "catalogue/gfpdb_flow_traits.h"

#include "gfpdb/gfpdb_operation.h"

// A new operation of `kind` (0 to 4), owned by the caller, for the quad-I/O (`quad` true) or single-I/O variant; the
// traits must be those of the same variant. Null for a number that is not a kind.
GFPDB_OPERATION* gfpdb_build_operation(int kind, const GFPDB_FLOW_TRAITS& traits, bool quad);
