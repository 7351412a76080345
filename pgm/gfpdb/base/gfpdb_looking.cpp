// SPDX-License-Identifier: MIT
#include "base/gfpdb_looking.h"

bool& gfpdb_only_looks()
{
    static bool only_looks = false;
    return only_looks;
}
