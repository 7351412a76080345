// SPDX-License-Identifier: MIT

// The part of GFPDB_SERVER_STORE that keeps the history small and the keys right.
#include "base/gfpdb_text.h"
#include "store/gfpdb_upkeep.h"
#include "store/server/gfpdb_server_sql.h"
#include "store/server/gfpdb_server_store.h"

using namespace GFPDB_SERVER_SQL;

std::optional<int> GFPDB_SERVER_STORE::prune_history(const GFPDB_PRUNING& pruning)
{
    std::vector<std::string> ids;
    CHANGE change;
    change.is_quick = false;
    change.work = [&](std::string& statements) {
        ids.clear();
        if (!find_prunable(pruning, ids))
            return false;
        if (ids.empty())
            return true;
        const std::string which = from("history") + " WHERE id IN " + list_of(ids);
        statements += "DELETE" + which + ";\n";
        change.proof = "SELECT 1 WHERE NOT EXISTS (SELECT 1" + which + ')';
        return true;
    };
    RESULTS results;
    if (!m_session.prepare_write() || !m_session.change(change, results))
        return std::nullopt;
    return static_cast<int>(ids.size());
}

// From the newest state of each record on.
bool GFPDB_SERVER_STORE::find_prunable(const GFPDB_PRUNING& pruning, std::vector<std::string>& ids)
{
    const std::string is_stored = "CASE is_template WHEN 1 THEN EXISTS (SELECT 1" + from("template") +
                                  " WHERE template_key = history.name_key) ELSE EXISTS (SELECT 1" + from("device") +
                                  " WHERE device.family = history.family AND device.scheme = history.scheme AND "
                                  "device.name_key = history.name_key) END";
    RESULTS found;
    if (!m_session.look_up("SELECT id, is_template, changed_at, family, scheme, name, template_name, " + is_stored +
                               from("history") +
                               (pruning.name.empty() ? std::string() : " WHERE name_key = " + key_of(pruning.name)) +
                               " ORDER BY id DESC",
                           found))
        return false;
    const ROWS& rows = found.front();
    GFPDB_PRUNER pruner(pruning);
    for (int row = 0; row < rows.count(); ++row) {
        GFPDB_HISTORY_ENTRY entry;
        entry.id = rows.number(row, 0);
        entry.is_template = rows.number(row, 1) != 0;
        entry.changed_at = rows.text(row, 2);
        entry.row.family = static_cast<int>(rows.number(row, 3));
        entry.row.scheme = static_cast<int>(rows.number(row, 4));
        entry.row.name = rows.text(row, 5);
        entry.row.template_name = rows.text(row, 6);
        if (pruner.removes(entry, [&] { return rows.text(row, 7) == "t"; }))
            ids.push_back(rows.text(row, 0));
    }
    return true;
}

std::string GFPDB_SERVER_STORE::question_of_keyed() const
{
    return "SELECT 0, family, scheme, name, template_name, revision, name_key" + from("device") +
           " UNION ALL SELECT 1, family, scheme, name, template_name, revision, template_key" + from("template") +
           " ORDER BY 1, 2, 3, 7";
}

std::vector<GFPDB_SERVER_STORE::KEYED> GFPDB_SERVER_STORE::misplaced_in(const ROWS& rows)
{
    std::vector<KEYED> misplaced;
    for (int row = 0; row < rows.count(); ++row) {
        KEYED keyed;
        keyed.record.is_template = rows.number(row, 0) != 0;
        keyed.record.row.family = static_cast<int>(rows.number(row, 1));
        keyed.record.row.scheme = static_cast<int>(rows.number(row, 2));
        keyed.record.row.name = rows.text(row, 3);
        keyed.record.row.template_name = rows.text(row, 4);
        keyed.record.row.revision = rows.text(row, 5);
        keyed.record.row_id = row;
        keyed.key = rows.text(row, 6);
        if (keyed.key != gfpdb_name_key(keyed.record.name()))
            misplaced.push_back(keyed);
    }
    return misplaced;
}

std::vector<GFPDB_MISPLACED> GFPDB_SERVER_STORE::get_misplaced()
{
    std::vector<GFPDB_MISPLACED> records;
    RESULTS results;
    if (m_session.ask_all({question_of_keyed()}, results, true)) {
        for (const KEYED& keyed : misplaced_in(results.front()))
            records.push_back(keyed.record);
    }
    return records;
}

// First out of each other's way: two records may have each other's key.
std::optional<int> GFPDB_SERVER_STORE::rebuild_keys()
{
    int placed = 0;
    CHANGE change;
    change.is_quick = false;
    change.work = [&](std::string&) {
        RESULTS found;
        placed = 0;
        if (!m_session.look_up(question_of_keyed(), found))
            return false;
        const std::vector<KEYED> misplaced = misplaced_in(found.front());
        const auto parked = [](const KEYED& keyed) { return GFPDB_PARKED_KEY + std::to_string(keyed.record.row_id); };
        for (const KEYED& keyed : misplaced) {
            if (!m_session.look_up(set_key(keyed, keyed.key, parked(keyed)), found))
                return false;
        }
        for (const KEYED& keyed : misplaced) {
            if (!place(keyed, parked(keyed), placed))
                return false;
        }
        return rekey_history();
    };
    RESULTS results;
    return m_session.prepare_write() && m_session.change(change, results) ? std::optional<int>(placed) : std::nullopt;
}

std::string GFPDB_SERVER_STORE::set_key(const KEYED& keyed, const std::string& from, const std::string& to) const
{
    const GFPDB_ROW& row = keyed.record.row;
    const std::string key = keyed.record.is_template ? "template_key" : "name_key";
    return "UPDATE " + m_session.in_schema() + (keyed.record.is_template ? "template" : "device") + " SET " + key +
           " = " + literal(to) + " WHERE " + key + " = " + literal(from) +
           (keyed.record.is_template
                ? std::string()
                : " AND family = " + std::to_string(row.family) + " AND scheme = " + std::to_string(row.scheme));
}

// Counts the record when its name is free for it.
bool GFPDB_SERVER_STORE::place(const KEYED& keyed, const std::string& parked, int& placed)
{
    const std::string& name = keyed.record.name();
    const GFPDB_ROW& row = keyed.record.row;
    RESULTS found;
    const std::string devices =
        keyed.record.is_template ? " WHERE name_key = " + key_of(name) : where({false, row.family, row.scheme, name});
    if (!m_session.look_up("SELECT 1" + from("device") + devices + " UNION ALL SELECT 1" + from("template") +
                               where({true, 0, -1, name}),
                           found))
        return false;
    if (found.front().count() > 0)
        return true;
    ++placed;
    return m_session.look_up(set_key(keyed, parked, gfpdb_name_key(name)), found);
}

bool GFPDB_SERVER_STORE::rekey_history()
{
    RESULTS found;
    if (!m_session.look_up(
            "SELECT id, CASE is_template WHEN 1 THEN template_name ELSE name END, name_key" + from("history"), found))
        return false;
    const ROWS rows = found.front();
    for (int row = 0; row < rows.count(); ++row) {
        const std::string key = gfpdb_name_key(rows.text(row, 1));
        if (rows.text(row, 2) != key &&
            !m_session.look_up("UPDATE " + m_session.in_schema() + "history SET name_key = " + literal(key) +
                                   " WHERE id = " + rows.text(row, 0),
                               found))
            return false;
    }
    return true;
}
