// SPDX-License-Identifier: MIT

// What every store needs to keep its history small and its keys right.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <string>

// What the key of a record begins with while others get theirs. No name may have this character, so no key begins with
// it.
constexpr char GFPDB_PARKED_KEY = '\x01';

// What the states of one record have in common, and those of others do not.
std::string gfpdb_record_of(const GFPDB_HISTORY_ENTRY& entry);
