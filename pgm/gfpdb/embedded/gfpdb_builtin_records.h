// The records of the built-in parts.
//
// Made from the catalogue at first use, each once; valid until the process ends. Names are compared without regard to
// case. GUI thread only.
#pragma once

#include "gfpdb_embedded_flash.h"
#include "gfpdb_part.h"

#include <string>
#include <vector>

// The names of the parts, in the order of the catalogue.
const std::vector<std::string>& gfpdb_builtin_names();
// The part called `name`, or null.
const GFPDB_PART* gfpdb_builtin_part(const std::string& name);
// The record of the part called `name`, or null. What the catalogue does not know of the part is not set.
GFPDB_EMBEDDED_FLASH* gfpdb_builtin_record(const std::string& name);
