// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that keeps the history small and the keys right. The records are in
// gfpdb_sqlite_store.cpp.
#include "store/gfpdb_upkeep.h"
#include "store/sqlite/gfpdb_sqlite_sql.h"
#include "store/sqlite/gfpdb_sqlite_store.h"

#include "base/gfpdb_text.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace GFPDB_SQL;

std::optional<int> GFPDB_SQLITE_STORE::prune_history(const GFPDB_PRUNING& pruning)
{
    std::vector<std::int64_t> ids;
    if (!m_file.prepare_write())
        return std::nullopt;
    const bool is_done =
        m_file.is_missing() || m_file.change([&] { return find_prunable(pruning, ids) && remove_states(ids); });
    return is_done ? std::optional<int>(static_cast<int>(ids.size())) : std::nullopt;
}

// From the newest state of each record on.
bool GFPDB_SQLITE_STORE::find_prunable(const GFPDB_PRUNING& pruning, std::vector<std::int64_t>& ids)
{
    QSqlQuery query;
    const bool has_name = !pruning.name.empty();
    const std::string statement = std::string("SELECT id, is_template, changed_at, family, scheme, CAST(name AS BLOB), "
                                              "CAST(template_name AS BLOB) FROM history ") +
                                  (has_name ? "WHERE name_key = CAST(? AS TEXT) " : "") + "ORDER BY id DESC";
    if (!prepare(query, statement, has_name ? QVariantList{key_of(pruning.name)} : QVariantList()))
        return false;
    GFPDB_PRUNER pruner(pruning);
    while (next_row(query)) {
        GFPDB_HISTORY_ENTRY entry;
        entry.id = query.value(0).toLongLong();
        entry.is_template = query.value(1).toBool();
        entry.changed_at = text_at(query, 2);
        entry.row.family = query.value(3).toInt();
        entry.row.scheme = query.value(4).toInt();
        entry.row.name = text_at(query, 5);
        entry.row.template_name = text_at(query, 6);
        if (pruner.removes(entry, [&] { return is_stored(entry); }))
            ids.push_back(entry.id);
    }
    return !query.lastError().isValid();
}

// True when the record of `entry` is there now; what cannot be read counts as gone, so that its last state is kept.
bool GFPDB_SQLITE_STORE::is_stored(const GFPDB_HISTORY_ENTRY& entry)
{
    const PLACE place = gfpdb_place_of(entry.is_template, entry.row);
    QSqlQuery query;
    return prepare(query, "SELECT 1" + from(place), values_of(place)) && next_row(query);
}

// Must be called before states are removed, in the same transaction.
bool GFPDB_SQLITE_STORE::note_last_state()
{
    return run("INSERT OR REPLACE INTO meta (name, value) VALUES ('last_state', " GFPDB_LAST_STATE ")");
}

bool GFPDB_SQLITE_STORE::remove_states(const std::vector<std::int64_t>& ids)
{
    QSqlQuery query;
    if (ids.empty())
        return true;
    if (!note_last_state() || !prepare(query, "DELETE FROM history WHERE id = ?"))
        return false;
    for (const std::int64_t id : ids) {
        query.bindValue(0, static_cast<qlonglong>(id));
        if (!run(query))
            return false;
    }
    return true;
}

std::vector<GFPDB_MISPLACED> GFPDB_SQLITE_STORE::get_misplaced()
{
    std::vector<GFPDB_MISPLACED> misplaced;
    if (m_file.prepare_read() && !read_misplaced(misplaced))
        m_file.note_read_problem();
    return misplaced;
}

bool GFPDB_SQLITE_STORE::read_misplaced(std::vector<GFPDB_MISPLACED>& misplaced)
{
    QSqlQuery query;
    if (!prepare(query, "SELECT 0 AS is_template, family, scheme, CAST(name AS BLOB), CAST(template_name AS BLOB), "
                        "revision, rowid, CAST(name_key AS BLOB) FROM device UNION ALL "
                        "SELECT 1, family, scheme, CAST(name AS BLOB), CAST(template_name AS BLOB), revision, rowid, "
                        "CAST(template_key AS BLOB) FROM template ORDER BY is_template, rowid"))
        return false;
    while (next_row(query)) {
        GFPDB_MISPLACED record;
        record.is_template = query.value(0).toBool();
        record.row.family = query.value(1).toInt();
        record.row.scheme = query.value(2).toInt();
        record.row.name = text_at(query, 3);
        record.row.template_name = text_at(query, 4);
        record.row.revision = text_at(query, 5);
        record.row_id = query.value(6).toLongLong();
        if (text_at(query, 7) != gfpdb_name_key(record.name()))
            misplaced.push_back(record);
    }
    return !query.lastError().isValid();
}

// First out of each other's way: two records may have each other's key.
std::optional<int> GFPDB_SQLITE_STORE::rebuild_keys()
{
    int placed = 0;
    if (!m_file.prepare_write())
        return std::nullopt;
    const bool is_done = m_file.is_missing() || m_file.change([&] {
        std::vector<GFPDB_MISPLACED> misplaced;
        if (!read_misplaced(misplaced))
            return false;
        for (const GFPDB_MISPLACED& record : misplaced) {
            if (!set_key(record, GFPDB_PARKED_KEY + std::to_string(record.row_id)))
                return false;
        }
        for (const GFPDB_MISPLACED& record : misplaced) {
            if (!place(record, placed))
                return false;
        }
        return rekey_history();
    });
    return is_done ? std::optional<int>(placed) : std::nullopt;
}

bool GFPDB_SQLITE_STORE::rekey_history()
{
    QSqlQuery states;
    QSqlQuery update;
    if (!prepare(states, "SELECT id, " GFPDB_HISTORY_NAME ", CAST(name_key AS BLOB) FROM history") ||
        !prepare(update, "UPDATE history SET name_key = CAST(? AS TEXT) WHERE id = ?"))
        return false;
    std::vector<std::pair<qlonglong, QByteArray>> changes;
    while (next_row(states)) {
        const QByteArray key = key_of(text_at(states, 1));
        if (states.value(2).toByteArray() != key)
            changes.emplace_back(states.value(0).toLongLong(), key);
    }
    for (const auto& [id, key] : changes) {
        update.bindValue(0, key);
        update.bindValue(1, id);
        if (!run(update))
            return false;
    }
    return !states.lastError().isValid();
}

bool GFPDB_SQLITE_STORE::set_key(const GFPDB_MISPLACED& record, const std::string& key)
{
    QSqlQuery query;
    return prepare(query,
                   record.is_template ? "UPDATE template SET template_key = CAST(? AS TEXT) WHERE rowid = ?"
                                      : "UPDATE device SET name_key = CAST(? AS TEXT) WHERE rowid = ?",
                   {bytes_of(key), static_cast<qlonglong>(record.row_id)}) &&
           run(query);
}

// Counts the record when its name is free for it.
bool GFPDB_SQLITE_STORE::place(const GFPDB_MISPLACED& record, int& placed)
{
    const QByteArray key = key_of(record.name());
    QSqlQuery query;
    const bool is_prepared =
        record.is_template
            ? prepare(query,
                      "SELECT 1 FROM template WHERE template_key = CAST(? AS TEXT) UNION ALL "
                      "SELECT 1 FROM device WHERE name_key = CAST(? AS TEXT)",
                      {key, key})
            : prepare(query,
                      "SELECT 1 FROM device WHERE family = ? AND scheme = ? AND name_key = CAST(? AS TEXT) UNION ALL "
                      "SELECT 1 FROM template WHERE template_key = CAST(? AS TEXT)",
                      {record.row.family, record.row.scheme, key, key});
    if (!is_prepared)
        return false;
    const bool is_taken = next_row(query);
    query.finish();
    if (is_taken)
        return true;
    ++placed;
    return !query.lastError().isValid() && set_key(record, gfpdb_name_key(record.name()));
}
