// SPDX-License-Identifier: MIT

// A record as text for people.
#pragma once

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_record.h"

#include <string>

// The properties and facts (record_facts.h), one per line, then the flows of the chosen variants, one action per line.
// Empty when the flows cannot be read.
std::string record_to_text(const GFPDB_RECORD& record, bool with_single, bool with_quad);

// "Write Register  Write Enable | Command 0x06 | Data none": labels without their colons.
std::string action_to_text(const GFPDB_ACTION& action);
