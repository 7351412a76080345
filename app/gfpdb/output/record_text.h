// SPDX-License-Identifier: MIT

// A record as text for people.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <string>

// The properties, one per line, then the flows of the chosen variants, one action per line. Empty when the flows cannot
// be read.
std::string record_to_text(const GFPDB_RECORD& record, bool with_single, bool with_quad);
