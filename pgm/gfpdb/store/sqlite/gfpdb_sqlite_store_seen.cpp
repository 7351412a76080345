// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that refuses to change what someone else has changed since it was seen here.
#include "store/sqlite/gfpdb_sqlite_store.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace GFPDB_SQL;

// Empty where nothing is stored; false on failure.
bool GFPDB_SQLITE_STORE::find_state(const PLACE& place, GFPDB_FOUND& found)
{
    const char* saved_by = m_file.schema_version() < GFPDB_SAVED_BY_SCHEMA ? "''" : "saved_by";
    const std::string what = std::string("SELECT revision, saved_at, ") + saved_by;
    QSqlQuery query;
    const bool is_prepared = prepare(query, what + from(place), values_of(place));
    if (is_prepared && next_row(query))
        found = {text_at(query, 0), text_at(query, 2), text_at(query, 1), std::string()};
    return is_prepared && !query.lastError().isValid();
}

// Of a record that is gone. Users may have removed it from the history, too.
bool GFPDB_SQLITE_STORE::find_last_change(const PLACE& place, GFPDB_FOUND& found)
{
    if (m_file.schema_version() < GFPDB_FLOW_TEXT_SCHEMA)
        return true;
    QSqlQuery query;
    const std::string statement =
        std::string("SELECT reason, changed_by, changed_at FROM history "
                    "WHERE name_key = CAST(? AS TEXT) AND ") +
        (place.is_template ? "is_template = 1" : "is_template = 0 AND family = ? AND scheme = ?") +
        " ORDER BY id DESC LIMIT 1";
    QVariantList values = {key_of(place.name)};
    if (!place.is_template)
        values << place.family << place.scheme;
    if (!prepare(query, statement, values))
        return false;
    if (next_row(query))
        found = {std::string(), text_at(query, 1), text_at(query, 2), text_at(query, 0)};
    return !query.lastError().isValid();
}

bool GFPDB_SQLITE_STORE::check_seen(const PLACE& place, std::string& seen, const GFPDB_FOUND& found)
{
    if (found.revision == seen)
        return true;
    GFPDB_FOUND shown = found;
    if (found.revision.empty() && !find_last_change(place, shown))
        return false;
    const std::string was_seen = std::exchange(seen, found.revision);
    return fail(gfpdb_changed_meanwhile(place.is_template, place.name, was_seen, shown));
}

// A part of a change.
bool GFPDB_SQLITE_STORE::check_seen(const PLACE& place, std::string* seen)
{
    GFPDB_FOUND found;
    return seen == nullptr || (find_state(place, found) && check_seen(place, *seen, found));
}

// Who wants to remove what is gone has what he wants.
bool GFPDB_SQLITE_STORE::check_seen_to_remove(const PLACE& place, std::string* seen)
{
    GFPDB_FOUND found;
    return seen == nullptr || (find_state(place, found) && (found.revision.empty() || check_seen(place, *seen, found)));
}

// What cannot be read is left to the change that follows.
bool GFPDB_SQLITE_STORE::check_seen_device(int family, int scheme, const std::string& name, std::string& seen)
{
    GFPDB_FOUND found;
    const PLACE place{false, family, scheme, name};
    const std::string was_seen = seen;
    return !m_file.prepare_read() || !find_state(place, found) || check_seen(place, seen, found) || seen == was_seen;
}
