// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that gives all that is stored, and takes what another store has given.
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/sqlite/gfpdb_sqlite_store.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace GFPDB_SQL;

// In one transaction, so that it is what was stored at one time.
bool GFPDB_SQLITE_STORE::read_all(const GFPDB_HEAR_STORED& hear)
{
    if (!m_file.prepare_read())
        return get_last_error().empty();
    const bool is_read =
        run("BEGIN") && read_table("device", false, hear) && read_table("template", true, hear) && read_states(hear);
    const std::string error = get_last_error();
    run("ROLLBACK");
    return is_read || (error.empty() ? false : fail(error));
}

bool GFPDB_SQLITE_STORE::read_table(const char* table, bool is_template, const GFPDB_HEAR_STORED& hear)
{
    QSqlQuery query;
    if (!go_on_reading(query, "SELECT " + all() + " FROM " + table + " ORDER BY rowid"))
        return false;
    while (next_row(query)) {
        GFPDB_HISTORY_ENTRY record;
        record.is_template = is_template;
        record.row = full_row(query, 0);
        if (!hear(record))
            return false;
    }
    return !query.lastError().isValid();
}

bool GFPDB_SQLITE_STORE::read_states(const GFPDB_HEAR_STORED& hear)
{
    QSqlQuery query;
    if (!go_on_reading(query, history_statement(all(), "ORDER BY id")))
        return false;
    while (next_row(query)) {
        if (!hear(history_at(query)))
            return false;
    }
    return !query.lastError().isValid();
}

std::int64_t GFPDB_SQLITE_STORE::get_last_state()
{
    QSqlQuery query;
    return start_read(query, "SELECT " GFPDB_LAST_STATE) && next_row(query) ? query.value(0).toLongLong() : 0;
}

bool GFPDB_SQLITE_STORE::fill(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source, std::int64_t last_state)
{
    forget_used_values();
    return m_file.prepare_write() && m_file.change([&] {
        QSqlQuery device;
        QSqlQuery stored_template;
        QSqlQuery state;
        const auto put_one = [&](const GFPDB_HISTORY_ENTRY& entry) {
            const QVariantList values = QVariantList{key_of(entry.name())} + values_as_they_are(entry.row);
            if (entry.id == 0)
                return put(entry.is_template ? stored_template : device, values);
            return put(state,
                       QVariantList{qlonglong(entry.id), entry.is_template ? 1 : 0, gfpdb_from_utf8(entry.reason),
                                    gfpdb_from_utf8(entry.changed_at), gfpdb_from_utf8(entry.changed_by)} +
                           values);
        };
        return check_empty() && prepare(device, insertion(false)) && prepare(stored_template, insertion(true)) &&
               prepare(state, history_insertion()) && source(put_one) && note_last_state(last_state);
    });
}

bool GFPDB_SQLITE_STORE::check_empty()
{
    QSqlQuery query;
    if (!prepare(query, "SELECT EXISTS (SELECT 1 FROM device) OR EXISTS (SELECT 1 FROM template) OR "
                        "EXISTS (SELECT 1 FROM history)") ||
        !next_row(query))
        return false;
    return !query.value(0).toBool() || fail(GFPDB_WORDS::say("The database in %1 is not empty.", {get_directory()}));
}

bool GFPDB_SQLITE_STORE::put(QSqlQuery& query, const QVariantList& values)
{
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values[i]);
    return run(query);
}

// Numbers of states that were removed from the history before it was copied.
bool GFPDB_SQLITE_STORE::note_last_state(std::int64_t number)
{
    QSqlQuery query;
    return prepare(query,
                   "INSERT OR REPLACE INTO meta (name, value) SELECT 'last_state', CAST(? AS TEXT) "
                   "WHERE ? > " GFPDB_LAST_STATE,
                   {qlonglong(number), qlonglong(number)}) &&
           run(query);
}
