// SPDX-License-Identifier: MIT
#include "database/record_states.h"

#include "database/local_time.h"

#include <algorithm>

namespace {

constexpr int PAGE = 250;

} // namespace

RECORD_STATES::RECORD_STATES(GFPDB_DATABASE& database, const GFPDB_HISTORY_ENTRY& state)
    : m_database(database), m_state(state)
{}

// The filter has found those of its name and kind.
bool RECORD_STATES::is_of_record(const GFPDB_HISTORY_ENTRY& entry) const
{
    return entry.is_template || (entry.row.family == m_state.row.family && entry.row.scheme == m_state.row.scheme);
}

std::optional<COMPARED> RECORD_STATES::load(std::int64_t id) const
{
    const std::optional<GFPDB_HISTORY_ENTRY> entry = m_database.load_state(id);
    if (!entry)
        return std::nullopt;
    const QString title =
        tr("%1, state %2 (until %3)")
            .arg(QString::fromStdString(entry->name()), QString::number(id), local_time_text(entry->changed_at));
    return COMPARED{title, {entry->is_template, entry->row, 0}};
}

std::optional<COMPARED> RECORD_STATES::itself() const
{
    return load(m_state.id);
}

std::optional<COMPARED> RECORD_STATES::before() const
{
    const GFPDB_HISTORY_FILTER filter{m_state.name(), std::string(), std::string(), m_state.is_template};
    GFPDB_HISTORY_PAGE page;
    page.next = m_state.id;
    while (page.next) {
        page = m_database.find_history_page(filter, page.next, PAGE);
        const auto found = std::find_if(page.entries.begin(), page.entries.end(),
                                        [this](const GFPDB_HISTORY_ENTRY& entry) { return is_of_record(entry); });
        if (found != page.entries.end())
            return load(found->id);
    }
    return std::nullopt;
}

// Pages go from the newest state down to this one.
std::optional<COMPARED> RECORD_STATES::after() const
{
    const GFPDB_HISTORY_FILTER filter{m_state.name(), std::string(), std::string(), m_state.is_template};
    std::optional<std::int64_t> following;
    std::optional<std::int64_t> next;
    do {
        const GFPDB_HISTORY_PAGE page = m_database.find_history_page(filter, next, PAGE);
        for (const GFPDB_HISTORY_ENTRY& entry : page.entries) {
            if (entry.id <= m_state.id)
                return following ? load(*following) : current();
            if (is_of_record(entry))
                following = entry.id;
        }
        next = page.next;
    } while (next);
    return std::nullopt;
}

std::optional<COMPARED> RECORD_STATES::current() const
{
    const std::optional<GFPDB_RECORD> record = m_database.load({m_state.is_template, m_state.row, 0});
    if (!record)
        return std::nullopt;
    return COMPARED{tr("%1, now").arg(QString::fromStdString(record->name())), *record};
}
