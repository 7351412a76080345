// SPDX-License-Identifier: MIT
#include "sfdp/gfpdb_device_place.h"

#include "model/gfpdb_field.h"
#include "rules/gfpdb_scheme_kind.h"

std::string gfpdb_problem_of_place(int family, int scheme)
{
    if (family < DEV_FAMILY_FIRST || family > DEV_FAMILY_LAST)
        return "There is no family " + std::to_string(family) + ". Allowed: " + std::to_string(DEV_FAMILY_FIRST) +
               " to " + std::to_string(DEV_FAMILY_LAST) + '.';
    if (gfpdb_scheme_kind(scheme) != GFPDB_SCHEME_KIND::SERIAL)
        return "The configuration mode " + std::to_string(scheme) + " has no serial flash devices.";
    return {};
}

int gfpdb_single_dummy_max()
{
    return gfpdb_field(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK)->highest;
}
