// SPDX-License-Identifier: MIT
#include "manager/gfpdb_kept_records.h"

#include <algorithm>

namespace {

// Far more than a caller works with at a time.
constexpr std::size_t LATEST_MAX = 256;

} // namespace

GFPDB_EMBEDDED_FLASH* GFPDB_KEPT_RECORDS::add(RECORDS& records, RECORD record)
{
    records.push_back(std::move(record));
    if (records.size() > LATEST_MAX)
        records.pop_front();
    return records.back().get();
}

GFPDB_EMBEDDED_FLASH* GFPDB_KEPT_RECORDS::add_made(RECORD record)
{
    return add(m_made, std::move(record));
}

GFPDB_EMBEDDED_FLASH* GFPDB_KEPT_RECORDS::find_read(const std::string& place) const
{
    const auto found = m_read.find(place);
    return found == m_read.end() ? nullptr : found->second.get();
}

GFPDB_EMBEDDED_FLASH* GFPDB_KEPT_RECORDS::add_read(const std::string& place, RECORD record)
{
    retire_read(place);
    return (m_read[place] = std::move(record)).get();
}

void GFPDB_KEPT_RECORDS::retire_read(const std::string& place)
{
    auto read = m_read.extract(place);
    if (!read.empty())
        add(m_former, std::move(read.mapped()));
}

void GFPDB_KEPT_RECORDS::retire_stored(const GFPDB_EMBEDDED_FLASH* record)
{
    for (RECORDS* records : {&m_former, &m_made}) {
        const auto found = std::find_if(records->begin(), records->end(),
                                        [record](const RECORD& kept) { return kept.get() == record; });
        if (found == records->end())
            continue;
        RECORD taken = std::move(*found);
        records->erase(found);
        add(m_former, std::move(taken));
        return;
    }
}
