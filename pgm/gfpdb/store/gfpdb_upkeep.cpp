// SPDX-License-Identifier: MIT
#include "store/gfpdb_upkeep.h"

#include "base/gfpdb_text.h"

namespace {

// What the states of one record have in common, and those of others do not.
std::string record_of(const GFPDB_HISTORY_ENTRY& entry)
{
    const std::string place =
        entry.is_template ? "template" : std::to_string(entry.row.family) + ' ' + std::to_string(entry.row.scheme);
    return place + ' ' + gfpdb_name_key(entry.name());
}

} // namespace

bool GFPDB_PRUNER::removes(const GFPDB_HISTORY_ENTRY& entry, const std::function<bool()>& is_stored)
{
    const int newer = m_newer_states[record_of(entry)]++;
    const bool is_old = m_pruning.before.empty() || entry.changed_at < m_pruning.before;
    if (newer < m_pruning.keep || !is_old || !m_pruning.is_selected(entry))
        return false;
    return newer > 0 || m_pruning.last_of_deleted || is_stored();
}
