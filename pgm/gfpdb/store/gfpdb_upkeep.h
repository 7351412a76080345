// SPDX-License-Identifier: MIT

// What every store needs to keep its history small and its keys right.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <functional>
#include <string>
#include <unordered_map>

// What the key of a record begins with while others get theirs. No name may have this character, so no key begins with
// it.
constexpr char GFPDB_PARKED_KEY = '\x01';

// Which states of the history an order removes.
class GFPDB_PRUNER
{
public:
    // `pruning` must outlive it.
    explicit GFPDB_PRUNER(const GFPDB_PRUNING& pruning) : m_pruning(pruning) {}

    // Asked for all states, from the newest state of each record on. `is_stored` says whether the record of the state
    // is there now.
    bool removes(const GFPDB_HISTORY_ENTRY& entry, const std::function<bool()>& is_stored);

private:
    const GFPDB_PRUNING& m_pruning;
    // How many states of each record were asked for.
    std::unordered_map<std::string, int> m_newer_states;
};
