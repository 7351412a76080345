// SPDX-License-Identifier: MIT

// Which flash goes with a configuration scheme.
//
// Pure functions.
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <vector>

enum class GFPDB_SCHEME_KIND
{
    NONE,     // the scheme configures without a flash: no devices
    SERIAL,   // serial flash, with flows that can be edited
    PARALLEL, // parallel flash
    CARD,     // memory card
};

// The kind of `scheme`; NONE for a value that is not a scheme.
GFPDB_SCHEME_KIND gfpdb_scheme_kind(int scheme);

// The schemes of `kind`, ascending; NONE has those of SERIAL, as it has its properties and lists.
std::vector<int> gfpdb_schemes_of(GFPDB_SCHEME_KIND kind);

// True when the devices of `scheme` are read and written over four data lines.
bool gfpdb_is_quad_scheme(int scheme);

// True when a device of `kind` has `property`. NONE has the properties of SERIAL, so that a form is whole although
// there is no device to show.
bool gfpdb_kind_has_property(GFPDB_SCHEME_KIND kind, int property);
