// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that deals with saving and removing one device, which belong together in one Apply:
// what a removal takes is replaced by the save that follows, or put back.
#include "base/gfpdb_text.h"
#include "store/gfpdb_refusals.h"
#include "store/sqlite/gfpdb_sqlite_sql.h"
#include "store/sqlite/gfpdb_sqlite_store.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace GFPDB_SQL;

std::optional<std::string> GFPDB_SQLITE_STORE::save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken,
                                                           bool is_new_name, std::string* seen)
{
    std::string revision;
    const PLACE place = gfpdb_place_of(false, row);
    const auto work = [&] {
        return check_seen(place, seen) && check_free_names(row) && (!is_new_name || check_free(place)) &&
               save_over(row, taken, revision) && save_template(row);
    };
    if (!m_file.prepare_write() || !m_file.change(work))
        return std::nullopt;
    note_used_values(row);
    if (seen != nullptr)
        *seen = revision;
    return revision;
}

// What is stored already stays as it is: saving it again makes no other state. What this program has just taken counts
// as stored, unless another program has stored something in its place meanwhile.
bool GFPDB_SQLITE_STORE::save_over(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, std::string& revision)
{
    const PLACE place = gfpdb_place_of(false, row);
    std::optional<GFPDB_ROW> former;
    if (!look_up(from(place), values_of(place), former))
        return false;
    const bool is_stored = former.has_value();
    if (!is_stored && taken != nullptr && !find_taken(*taken, former))
        return false;

    const bool is_unchanged = former && gfpdb_is_same_state(*former, row);
    revision = is_unchanged ? former->revision : row.revision;
    if (is_unchanged && !is_stored)
        return insert_taken(*taken) && forget_taken(*taken);
    if (!is_unchanged && is_stored && !drop(place, GFPDB_REASON_REPLACED))
        return false;
    return (is_unchanged || insert(false, row)) && (taken == nullptr || mark_taken(*taken, GFPDB_REASON_REPLACED));
}

bool GFPDB_SQLITE_STORE::save_template(const GFPDB_ROW& row)
{
    const PLACE place = gfpdb_place_of(true, row);
    if (place.name.empty())
        return true;
    std::optional<GFPDB_ROW> former;
    if (!look_up(from(place), values_of(place), former))
        return false;
    if (former && gfpdb_is_same_state(*former, row))
        return true;
    return (!former || drop(place, GFPDB_REASON_REPLACED)) && insert(true, row);
}

// Nothing is made just to remove something from it.
bool GFPDB_SQLITE_STORE::remove_device(int family, int scheme, const std::string& name,
                                       std::optional<GFPDB_TAKEN>* taken, std::string* seen)
{
    if (!m_file.prepare_write())
        return false;
    if (m_file.is_missing())
        return true;
    const PLACE place{false, family, scheme, name};
    GFPDB_TAKEN removed{std::string(), 0, family, scheme, name, std::string()};
    const auto work = [&] {
        return check_seen_to_remove(place, seen) && drop(place, GFPDB_REASON_DELETED, &removed.history_id) &&
               read_revision(removed);
    };
    if (!m_file.change(work))
        return false;
    removed.database_id = m_file.database_id();
    if (taken != nullptr && removed.history_id != 0)
        *taken = removed;
    if (seen != nullptr && removed.history_id != 0)
        seen->clear();
    return true;
}

// The revision of what was just removed, if anything was.
bool GFPDB_SQLITE_STORE::read_revision(GFPDB_TAKEN& taken)
{
    QSqlQuery query;
    if (!prepare(query, "SELECT revision FROM history WHERE id = ?", {qlonglong(taken.history_id)}))
        return false;
    taken.revision = next_row(query) ? text_at(query, 0) : std::string();
    return !query.lastError().isValid();
}

bool GFPDB_SQLITE_STORE::undo_removal(const GFPDB_TAKEN& taken)
{
    const PLACE place{false, taken.family, taken.scheme, taken.name};
    const auto work = [&] {
        return check_no_other_kind(place) && check_free(place) && insert_taken(taken) &&
               mark_taken(taken, GFPDB_REASON_PUT_BACK);
    };
    const bool is_ready = m_file.prepare_write();
    if (is_ready && m_file.database_id() != taken.database_id)
        return fail(gfpdb_another_database(get_directory()));
    return (is_ready && m_file.change(work)) || fail(get_last_error() + gfpdb_kept_in_history(taken));
}

// The taken record in the history, by its number and, should that have been given to another one, its revision.
#define GFPDB_WHERE_TAKEN "WHERE id = ? AND revision = ? AND reason = 'deleted'"

bool GFPDB_SQLITE_STORE::find_taken(const GFPDB_TAKEN& taken, std::optional<GFPDB_ROW>& row)
{
    return look_up(" FROM history " GFPDB_WHERE_TAKEN, {qlonglong(taken.history_id), gfpdb_from_utf8(taken.revision)},
                   row);
}

bool GFPDB_SQLITE_STORE::insert_taken(const GFPDB_TAKEN& taken)
{
    QSqlQuery query;
    if (!prepare(query,
                 "INSERT INTO device (name_key, " + columns() + ") SELECT CAST(? AS TEXT), " + columns() +
                     " FROM history " GFPDB_WHERE_TAKEN,
                 {key_of(taken.name), qlonglong(taken.history_id), gfpdb_from_utf8(taken.revision)}) ||
        !run(query))
        return false;
    return query.numRowsAffected() == 1 || fail(GFPDB_NOT_IN_HISTORY);
}

bool GFPDB_SQLITE_STORE::mark_taken(const GFPDB_TAKEN& taken, const char* reason)
{
    QSqlQuery query;
    return prepare(
               query, "UPDATE history SET reason = ?, changed_at = ?, changed_by = ? " GFPDB_WHERE_TAKEN,
               {QLatin1String(reason), now(), here(), qlonglong(taken.history_id), gfpdb_from_utf8(taken.revision)}) &&
           run(query);
}

bool GFPDB_SQLITE_STORE::forget_taken(const GFPDB_TAKEN& taken)
{
    QSqlQuery query;
    return note_last_state() &&
           prepare(query, "DELETE FROM history " GFPDB_WHERE_TAKEN,
                   {qlonglong(taken.history_id), gfpdb_from_utf8(taken.revision)}) &&
           run(query);
}
