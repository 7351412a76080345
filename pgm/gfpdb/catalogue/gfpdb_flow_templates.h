// SPDX-License-Identifier: MIT

// The five built-in flow templates, and the flows of built-in parts.
#pragma once

#include "gfpdb/gfpdb_part.h"

#include "gfpdb/gfpdb_flash.h"
#include "gfpdb/gfpdb_operation.h"

#include <string>
#include <vector>

// The names of the built-in templates in the order of their indexes.
const std::vector<std::string>& gfpdb_builtin_template_names();
// The five operations of a built-in template (index 0 to 4) in the quad-I/O (`flow_variant` true) or single-I/O
// variant, in the order of their kinds; null for another index. Owned by the library, valid until the process ends.
const std::vector<GFPDB_OPERATION*>* gfpdb_builtin_template_operations(int index, bool flow_variant);

// The name of the built-in template that `part` belongs to.
std::string gfpdb_part_template_name(const GFPDB_PART& part);
// Gives `record` the operations of `part`, in both flow variants.
void gfpdb_fill_part_flows(const GFPDB_PART& part, GFPDB_FLASH& record);
