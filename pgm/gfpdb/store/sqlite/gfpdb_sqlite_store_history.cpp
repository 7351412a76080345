// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that reads the history.
#include "store/sqlite/gfpdb_sqlite_store.h"

#include "base/gfpdb_text.h"

#include <QSqlQuery>

using namespace GFPDB_SQL;

namespace {

constexpr int HISTORY_COLUMNS = 5;

// The columns of history_statement() before the record's.
GFPDB_HISTORY_ENTRY change_at(const QSqlQuery& query)
{
    GFPDB_HISTORY_ENTRY entry;
    entry.id = query.value(0).toLongLong();
    entry.is_template = query.value(1).toBool();
    entry.reason = gfpdb_to_utf8(query.value(2).toString());
    entry.changed_at = gfpdb_to_utf8(query.value(3).toString());
    entry.changed_by = gfpdb_to_utf8(query.value(4).toString());
    return entry;
}

// Picks the states of a filter.
class STATE_FILTER
{
public:
    explicit STATE_FILTER(const GFPDB_HISTORY_FILTER& filter)
        : m_name(gfpdb_name_key(filter.name)), m_name_part(gfpdb_name_key(filter.name_part)),
          m_user_part(gfpdb_name_key(filter.user_part)), m_is_template(filter.is_template)
    {}

    bool picks(const GFPDB_HISTORY_ENTRY& entry) const
    {
        return m_is_template.value_or(entry.is_template) == entry.is_template &&
               (m_name.empty() || gfpdb_name_key(entry.name()) == m_name) && has(entry.name(), m_name_part) &&
               has(entry.changed_by, m_user_part);
    }

private:
    static bool has(const std::string& text, const std::string& part)
    {
        return part.empty() || gfpdb_name_key(text).find(part) != std::string::npos;
    }

    std::string m_name;
    std::string m_name_part;
    std::string m_user_part;
    std::optional<bool> m_is_template;
};

} // namespace

// The columns of history_statement(all()).
GFPDB_HISTORY_ENTRY GFPDB_SQLITE_STORE::history_at(const QSqlQuery& query) const
{
    GFPDB_HISTORY_ENTRY entry = change_at(query);
    entry.row = full_row(query, HISTORY_COLUMNS);
    return entry;
}

// A read-only file of an older schema is read as it is.
std::string GFPDB_SQLITE_STORE::history_statement(const std::string& columns, const char* which) const
{
    const char* changed_by = m_file.schema_version() < GFPDB_CHANGED_BY_SCHEMA ? "''" : "changed_by";
    return std::string("SELECT id, is_template, reason, changed_at, ") + changed_by + ", " + columns +
           " FROM history " + which;
}

std::vector<GFPDB_HISTORY_ENTRY> GFPDB_SQLITE_STORE::get_history(const std::string& name)
{
    std::vector<GFPDB_HISTORY_ENTRY> entries;
    QSqlQuery query;
    if (!m_file.prepare_read())
        return entries;
    const bool is_keyed = !name.empty() && m_file.schema_version() >= GFPDB_FLOW_TEXT_SCHEMA;
    const std::string statement =
        history_statement(scalars(), is_keyed ? "WHERE name_key = CAST(? AS TEXT) ORDER BY id" : "ORDER BY id");
    if (!go_on_reading(query, statement, is_keyed ? QVariantList{key_of(name)} : QVariantList()))
        return entries;
    const std::string key = gfpdb_name_key(name);
    while (next_row(query)) {
        GFPDB_HISTORY_ENTRY entry = change_at(query);
        entry.row = scalars_at(query, HISTORY_COLUMNS);
        if (name.empty() || gfpdb_name_key(entry.name()) == key)
            entries.push_back(std::move(entry));
    }
    return entries;
}

// SQLite finds a row when it is asked for it: what is not looked at costs nothing.
GFPDB_HISTORY_PAGE GFPDB_SQLITE_STORE::get_history_page(const GFPDB_HISTORY_FILTER& filter,
                                                        std::optional<std::int64_t> before, int count)
{
    GFPDB_HISTORY_PAGE page;
    QSqlQuery query;
    if (!m_file.prepare_read())
        return page;
    const bool is_keyed = !filter.name.empty() && m_file.schema_version() >= GFPDB_FLOW_TEXT_SCHEMA;
    const std::string which = std::string("WHERE ") + (is_keyed ? "name_key = CAST(? AS TEXT)" : "1") +
                              (before ? " AND id < ?" : "") + " ORDER BY id DESC";
    QVariantList values = is_keyed ? QVariantList{key_of(filter.name)} : QVariantList();
    if (before)
        values << static_cast<qlonglong>(*before);
    if (!go_on_reading(query, history_statement(scalars(), which.c_str()), values))
        return page;
    const STATE_FILTER states(filter);
    bool has_more = next_row(query);
    for (int looked_at = 0; has_more && looked_at < GFPDB_STATES_AT_ONCE && int(page.entries.size()) < count;
         ++looked_at) {
        GFPDB_HISTORY_ENTRY entry = change_at(query);
        entry.row = scalars_at(query, HISTORY_COLUMNS);
        page.next = entry.id;
        if (states.picks(entry))
            page.entries.push_back(std::move(entry));
        has_more = next_row(query);
    }
    if (!has_more)
        page.next.reset();
    return get_last_error().empty() ? page : GFPDB_HISTORY_PAGE();
}

std::int64_t GFPDB_SQLITE_STORE::count_history()
{
    QSqlQuery query;
    return start_read(query, "SELECT count(*) FROM history") && next_row(query) ? query.value(0).toLongLong() : 0;
}

std::optional<GFPDB_HISTORY_ENTRY> GFPDB_SQLITE_STORE::find_history(std::int64_t id)
{
    QSqlQuery query;
    if (!m_file.prepare_read() ||
        !go_on_reading(query, history_statement(all(), "WHERE id = ?"), {static_cast<qlonglong>(id)}) ||
        !next_row(query))
        return std::nullopt;
    return history_at(query);
}
