// SPDX-License-Identifier: MIT
#include "sfdp/gfpdb_device_place.h"

#include "base/gfpdb_words.h"
#include "model/gfpdb_field.h"
#include "rules/gfpdb_scheme_kind.h"

std::string gfpdb_problem_of_place(int family, int scheme)
{
    if (family < DEV_FAMILY_FIRST || family > DEV_FAMILY_LAST)
        return GFPDB_WORDS::say(
            "There is no family %1. Allowed: %2 to %3.",
            {std::to_string(family), std::to_string(DEV_FAMILY_FIRST), std::to_string(DEV_FAMILY_LAST)});
    if (gfpdb_scheme_kind(scheme) != GFPDB_SCHEME_KIND::SERIAL)
        return GFPDB_WORDS::say("The configuration mode %1 has no serial flash devices.", {std::to_string(scheme)});
    return {};
}

int gfpdb_single_dummy_max()
{
    return gfpdb_field(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK)->highest;
}
