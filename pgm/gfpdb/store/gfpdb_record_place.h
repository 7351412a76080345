// SPDX-License-Identifier: MIT

// Where a record is in a store.
#pragma once

#include "model/gfpdb_row.h"

#include <string>

// A device, or the stored template of that name: it serves every family and scheme.
struct GFPDB_RECORD_PLACE
{
    bool is_template = false;
    int family = 0;
    int scheme = -1;
    std::string name;
};

// A template has the family and scheme of the device that it was made from.
inline GFPDB_RECORD_PLACE gfpdb_place_of(bool is_template, const GFPDB_ROW& row)
{
    return {is_template, row.family, row.scheme, is_template ? row.template_name : row.name};
}
