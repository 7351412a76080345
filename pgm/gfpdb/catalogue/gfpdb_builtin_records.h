// SPDX-License-Identifier: MIT

// The records of the built-in parts.
//
// Made from the catalogue at first use, each once; valid until the process ends. Names are compared without regard to
// case. GUI thread only.
#pragma once

#include "gfpdb/gfpdb_part.h"
#include "model/gfpdb_embedded_flash.h"

#include <string>
#include <vector>

// The names of the parts, in the order of the catalogue.
const std::vector<std::string>& gfpdb_builtin_names();
// Their keys (gfpdb_name_key()), in the same order.
const std::vector<std::string>& gfpdb_builtin_keys();
// The part called `name`, or null.
const GFPDB_PART* gfpdb_builtin_part(const std::string& name);
// The record of the part called `name`, or null. What the catalogue does not know of the part is not set, but for the
// number of dies, which is 1 then.
GFPDB_EMBEDDED_FLASH* gfpdb_builtin_record(const std::string& name);

// The index of the built-in template `name`, compared as names are; -1 when there is none.
int gfpdb_builtin_template(const std::string& name);

// True when a device or stored template can be called `name`, whatever the database holds: the name is well formed, and
// nothing built in has it. Else `error` says why not; `what` says in it whose name it is.
bool gfpdb_check_record_name(const std::string& name, const char* what, std::string& error);
