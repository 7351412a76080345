// SPDX-License-Identifier: MIT

// The part of GFPDB_SERVER_STORE that changes records one by one. A removal and the save that follows belong together
// in one Apply: what the removal took is remembered, so that both need one round trip each.
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/gfpdb_refusals.h"
#include "store/server/gfpdb_server_sql.h"
#include "store/server/gfpdb_server_store.h"

using namespace GFPDB_SERVER_SQL;

namespace {

constexpr char NO_ROWS[] = "SELECT 1 WHERE false";

std::string quoted(const char* text)
{
    return std::string("'") + text + '\'';
}

std::optional<GFPDB_ROW> first_row(const GFPDB_SERVER_ROWS& rows)
{
    return rows.count() > 0 ? std::optional<GFPDB_ROW>(row_at(rows, 0, 0)) : std::nullopt;
}

bool is_same_place(const GFPDB_TAKEN& taken, const GFPDB_ROW& row)
{
    return taken.family == row.family && taken.scheme == row.scheme &&
           gfpdb_name_key(taken.name) == gfpdb_name_key(row.name);
}

} // namespace

bool GFPDB_SERVER_STORE::can_be_changed()
{
    m_session.is_writable();
    return m_session.prepare_write();
}

bool GFPDB_SERVER_STORE::finds_none(const ROWS& rows, bool is_template, const std::string& name)
{
    return rows.count() == 0 || m_session.fail(gfpdb_in_the_way(is_template, rows.text(0, 0), name));
}

bool GFPDB_SERVER_STORE::check_different_names(const GFPDB_ROW& row)
{
    return gfpdb_name_key(row.template_name) != gfpdb_name_key(row.name) || m_session.fail(gfpdb_same_names(row));
}

// `found` is what question_of() gives, `last_change` what question_of_last_change() does.
bool GFPDB_SERVER_STORE::check_seen(const PLACE& place, std::string* seen, const ROWS& found, const ROWS& last_change)
{
    GFPDB_FOUND shown;
    const std::optional<GFPDB_ROW> row = first_row(found);
    if (row)
        shown = {row->revision, row->saved_by, row->saved_at, std::string()};
    if (seen == nullptr || shown.revision == *seen)
        return true;
    if (!row && last_change.count() > 0)
        shown = {std::string(), last_change.text(0, 1), last_change.text(0, 2), last_change.text(0, 0)};
    const std::string was_seen = std::exchange(*seen, shown.revision);
    return m_session.fail(gfpdb_changed_meanwhile(place.is_template, place.name, was_seen, shown));
}

// Its rows are what went into the history.
std::string GFPDB_SERVER_STORE::drop(const PLACE& place, const char* reason, const std::string& change_id) const
{
    return drop_all(place.is_template, where(place), reason, change_id) + " RETURNING id, " + all_read() + ";\n";
}

std::string GFPDB_SERVER_STORE::drop_all(bool is_template, const std::string& which, const char* reason,
                                         const std::string& change_id) const
{
    const std::string key = is_template ? "template_key" : "name_key";
    return "WITH gone AS (DELETE" + from(is_template ? "template" : "device") + which + " RETURNING *) INSERT INTO " +
           m_session.in_schema() + "history (is_template, reason, changed_by, change_id, name_key, " + all_columns() +
           ") SELECT " + (is_template ? "1, " : "0, ") + quoted(reason) + ", " + here() + ", " + literal(change_id) +
           ", " + key + ", " + all_columns() + " FROM gone ORDER BY family, scheme, " + key;
}

std::string GFPDB_SERVER_STORE::insert(bool is_template, const GFPDB_ROW& row) const
{
    const std::string name = is_template ? row.template_name : row.name;
    return "INSERT INTO " + m_session.in_schema() + (is_template ? "template (template_key, " : "device (name_key, ") +
           columns() + ", saved_by) VALUES (" + key_of(name) + ", " + values_of(row) + ", " + here() + ");\n";
}

// By its number and, should that be one of another database, its revision.
std::string GFPDB_SERVER_STORE::where_taken(const GFPDB_TAKEN& taken) const
{
    return " WHERE id = " + std::to_string(taken.history_id) + " AND revision = " + literal(taken.revision) +
           " AND reason = " + quoted(GFPDB_REASON_DELETED);
}

std::string GFPDB_SERVER_STORE::mark_taken(const GFPDB_TAKEN& taken, const char* reason,
                                           const std::string& change_id) const
{
    return "UPDATE " + m_session.in_schema() + "history SET reason = " + quoted(reason) + ", changed_at = " + NOW +
           ", changed_by = " + here() + ", change_id = " + literal(change_id) + where_taken(taken);
}

// Fails when it is not there any more. What is not kept is no former state any more.
std::string GFPDB_SERVER_STORE::bring_back(const GFPDB_TAKEN& taken, bool is_kept, const std::string& change_id) const
{
    const std::string found =
        is_kept ? mark_taken(taken, GFPDB_REASON_PUT_BACK, change_id) : "DELETE" + from("history") + where_taken(taken);
    return "WITH back AS (" + found + " RETURNING *), stored AS (INSERT INTO " + m_session.in_schema() +
           "device (name_key, " + all_columns() + ") SELECT name_key, " + all_columns() +
           " FROM back RETURNING 1) SELECT 1 / count(*) FROM stored;\n";
}

std::string GFPDB_SERVER_STORE::proof_of_change(const std::string& columns, const std::string& change_id) const
{
    return "SELECT " + columns + from("history") + " WHERE change_id = " + literal(change_id);
}

// What was stored may have been replaced by now.
std::string GFPDB_SERVER_STORE::proof_of_revision(const PLACE& place, const std::string& revision) const
{
    const std::string has_revision = " AND revision = " + literal(revision);
    return "SELECT 1" + from(place.is_template ? "template" : "device") + where(place) + has_revision +
           " UNION ALL SELECT 1" + from("history") + " WHERE name_key = " + key_of(place.name) + has_revision;
}

// What was taken, and is stored again as it was, has no new revision.
std::string GFPDB_SERVER_STORE::proof_of_return(const GFPDB_TAKEN& taken) const
{
    return "SELECT 1" + from("device") + where({false, taken.family, taken.scheme, taken.name}) +
           " AND revision = " + literal(taken.revision);
}

bool GFPDB_SERVER_STORE::can_keep(const GFPDB_ROW& row)
{
    const char* const field = unstorable_field(row);
    return field == nullptr ||
           m_session.fail(GFPDB_WORDS::say(
               "The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.",
               {gfpdb_quoted(field), gfpdb_quoted(row.name)}));
}

std::optional<std::string> GFPDB_SERVER_STORE::save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken,
                                                           bool is_new_name, std::string* seen)
{
    if (!m_session.prepare_write() || !can_keep(row))
        return std::nullopt;
    SAVING saving{row, taken, is_new_name, seen, row.revision};
    const std::string change_id = gfpdb_new_revision();
    CHANGE change;
    const std::string proof = proof_of_revision(gfpdb_place_of(false, row), row.revision);
    change.work = [&](std::string& statements) {
        const bool is_decided = decide_save(saving, change_id, statements);
        change.proof = taken != nullptr && saving.revision == taken->revision ? proof_of_return(*taken) : proof;
        return is_decided;
    };
    change.proof = proof;
    change.next = questions_after_change(&row);
    RESULTS results;
    const std::optional<bool> is_saved = save_at_once(saving, change, change_id);
    if (!is_saved.value_or(is_saved.has_value() ? false : m_session.change(change, results)))
        return std::nullopt;
    if (seen != nullptr)
        *seen = saving.revision;
    return saving.revision;
}

// After a removal, and for a new device, nothing of the name is there as a rule. None when something is, or when it
// has to be looked up what was taken.
std::optional<bool> GFPDB_SERVER_STORE::save_at_once(SAVING& saving, const CHANGE& change, const std::string& change_id)
{
    const GFPDB_ROW& row = saving.row;
    const bool is_known_taken = saving.taken != nullptr && m_taken && m_taken->history_id == saving.taken->history_id &&
                                m_taken->revision == saving.taken->revision;
    const bool is_seen = saving.seen == nullptr || saving.seen->empty();
    const bool has_template = !row.template_name.empty();
    if (!is_seen || (saving.taken == nullptr ? !saving.is_new_name : !is_known_taken) ||
        (has_template && gfpdb_name_key(row.template_name) == gfpdb_name_key(row.name)))
        return std::nullopt;
    const bool is_unchanged =
        saving.taken != nullptr && is_same_place(*saving.taken, row) && gfpdb_is_same_state(m_taken_row, row);
    const auto is_free = [this](const char* table, const std::string& which) {
        return " AND NOT EXISTS (SELECT 1" + from(table) + which + ')';
    };
    std::string condition = "true" + is_free("device", where(gfpdb_place_of(false, row))) +
                            is_free("template", where({true, 0, -1, row.name}));
    if (has_template)
        condition += is_free("template", where(gfpdb_place_of(true, row))) +
                     is_free("device", " WHERE name_key = " + key_of(row.template_name));
    CHANGE at_once = change;
    if (is_unchanged)
        at_once.proof = proof_of_return(*saving.taken);
    at_once.work = [&](std::string& statements) {
        statements += is_unchanged ? bring_back(*saving.taken, false, change_id) : insert(false, row);
        if (!is_unchanged && saving.taken != nullptr)
            statements += mark_taken(*saving.taken, GFPDB_REASON_REPLACED, change_id) + ";\n";
        if (has_template)
            statements += insert(true, row);
        return true;
    };
    saving.revision = is_unchanged ? m_taken_row.revision : row.revision;
    RESULTS results;
    return m_session.change_if(condition, at_once, results);
}

// What is stored already stays as it is: saving it again makes no other state. What this program has just taken counts
// as stored, unless another program has stored something in its place meanwhile. A template may be stored again by the
// device that it is a copy of.
bool GFPDB_SERVER_STORE::decide_save(SAVING& saving, const std::string& change_id, std::string& statements)
{
    const GFPDB_ROW& row = saving.row;
    const GFPDB_TAKEN* const taken = saving.taken;
    const PLACE place = gfpdb_place_of(false, row);
    const bool has_template = !row.template_name.empty();
    RESULTS found;
    if (!m_session.look_up(
            "SELECT template_name" + from("template") + where({true, 0, -1, row.name}) + ";\n" + question_of(place) +
                ";\n" + (taken != nullptr ? "SELECT " + all_read() + from("history") + where_taken(*taken) : NO_ROWS) +
                ";\n" + question_of_last_change(place) + ";\n" +
                (has_template ? question_of(gfpdb_place_of(true, row)) : NO_ROWS) + ";\n" +
                (has_template ? question_of_any_device(row.template_name) : NO_ROWS),
            found))
        return false;
    std::optional<GFPDB_ROW> former = first_row(found[1]);
    if (!check_seen(place, saving.seen, found[1], found[3]) || !finds_none(found[0], true, row.name))
        return false;
    if (has_template) {
        const std::optional<GFPDB_ROW> stored = first_row(found[4]);
        if (!check_different_names(row))
            return false;
        if (stored && gfpdb_name_key(stored->name) != gfpdb_name_key(row.name))
            return m_session.fail(gfpdb_in_the_way(true, stored->template_name, row.template_name));
        if (!finds_none(found[5], false, row.template_name))
            return false;
    }
    if (saving.is_new_name && former)
        return m_session.fail(gfpdb_in_the_way(false, former->name, row.name));

    const bool is_stored = former.has_value();
    if (!is_stored)
        former = first_row(found[2]);
    const bool is_unchanged = former && gfpdb_is_same_state(*former, row);
    saving.revision = is_unchanged ? former->revision : row.revision;
    if (is_unchanged && !is_stored) {
        statements += bring_back(*taken, false, change_id);
    } else {
        if (!is_unchanged && is_stored)
            statements += drop(place, GFPDB_REASON_REPLACED, change_id);
        if (!is_unchanged)
            statements += insert(false, row);
        if (taken != nullptr)
            statements += mark_taken(*taken, GFPDB_REASON_REPLACED, change_id) + ";\n";
    }
    return !has_template || decide_template(row, found[4], change_id, statements);
}

bool GFPDB_SERVER_STORE::decide_template(const GFPDB_ROW& row, const ROWS& found, const std::string& change_id,
                                         std::string& statements)
{
    const std::optional<GFPDB_ROW> former = first_row(found);
    if (former && gfpdb_is_same_state(*former, row))
        return true;
    if (former)
        statements += drop(gfpdb_place_of(true, row), GFPDB_REASON_REPLACED, change_id);
    statements += insert(true, row);
    return true;
}

// Who wants to remove what is gone has what he wants.
bool GFPDB_SERVER_STORE::remove_device(int family, int scheme, const std::string& name,
                                       std::optional<GFPDB_TAKEN>* taken, std::string* seen)
{
    const PLACE place{false, family, scheme, name};
    const std::string change_id = gfpdb_new_revision();
    m_taken.reset();
    if (!m_session.prepare_write())
        return false;
    RESULTS results;
    CHANGE change;
    change.work = [&](std::string& statements) {
        statements += drop(place, GFPDB_REASON_DELETED, change_id);
        return true;
    };
    change.proof = proof_of_change("id, " + all_read(), change_id);
    const std::string is_as_seen = seen == nullptr ? "true"
                                                   : "NOT EXISTS (SELECT 1" + from("device") + where(place) +
                                                         " AND revision <> " + literal(*seen) + ')';
    const std::optional<bool> is_removed = m_session.change_if(is_as_seen, change, results);
    if (!is_removed) {
        RESULTS found;
        return m_session.ask_all({question_of(place), question_of_last_change(place)}, found) &&
               check_seen(place, seen, found[0], found[1]) &&
               m_session.fail(GFPDB_WORDS::say("The device %1 is being changed by another program: try again.",
                                               {gfpdb_quoted(name)}));
    }
    if (!*is_removed)
        return false;
    if (results.front().count() == 0)
        return true;
    m_taken_row = row_at(results.front(), 0, 1);
    m_taken =
        GFPDB_TAKEN{m_session.database_id(), results.front().number(0, 0), family, scheme, name, m_taken_row.revision};
    if (taken != nullptr)
        *taken = m_taken;
    if (seen != nullptr)
        seen->clear();
    return true;
}

bool GFPDB_SERVER_STORE::undo_removal(const GFPDB_TAKEN& taken)
{
    const PLACE place{false, taken.family, taken.scheme, taken.name};
    const std::string change_id = gfpdb_new_revision();
    CHANGE change;
    change.proof = proof_of_change("1", change_id);
    change.work = [&](std::string& statements) {
        RESULTS found;
        if (!m_session.look_up("SELECT template_name" + from("template") + where({true, 0, -1, taken.name}) +
                                   ";\nSELECT name" + from("device") + where(place) + ";\nSELECT 1" + from("history") +
                                   where_taken(taken),
                               found) ||
            !finds_none(found[0], true, taken.name) || !finds_none(found[1], false, taken.name))
            return false;
        statements += bring_back(taken, true, change_id);
        return found[2].count() > 0 || m_session.fail(GFPDB_NOT_IN_HISTORY);
    };
    RESULTS results;
    const bool is_ready = m_session.prepare_write();
    if (is_ready && m_session.database_id() != taken.database_id)
        return m_session.fail(gfpdb_another_database(get_directory()));
    return (is_ready && m_session.change(change, results)) ||
           m_session.fail(get_last_error() + gfpdb_kept_in_history(taken));
}

bool GFPDB_SERVER_STORE::remove_template(const std::string& template_name, std::string* seen)
{
    const PLACE place{true, 0, -1, template_name};
    const std::string change_id = gfpdb_new_revision();
    CHANGE change;
    change.proof = proof_of_change("1", change_id);
    change.work = [&](std::string& statements) {
        RESULTS found;
        if (!m_session.look_up(question_of(place) + ";\n" + question_of_last_change(place), found))
            return false;
        if (found[0].count() > 0 && !check_seen(place, seen, found[0], found[1]))
            return false;
        statements += drop(place, GFPDB_REASON_DELETED, change_id);
        return true;
    };
    RESULTS results;
    return m_session.prepare_write() && m_session.change(change, results);
}

bool GFPDB_SERVER_STORE::restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string* seen)
{
    const std::optional<GFPDB_HISTORY_ENTRY> entry = find_history(id);
    if (!entry)
        return get_last_error().empty() ? m_session.fail(gfpdb_no_state(id)) : false;
    GFPDB_ROW row = entry->row;
    row.revision = gfpdb_new_revision();
    if (!new_name.empty())
        (entry->is_template ? row.template_name : row.name) = new_name;
    const std::string change_id = gfpdb_new_revision();
    CHANGE change;
    change.proof = proof_of_revision(gfpdb_place_of(entry->is_template, row), row.revision);
    change.work = [&](std::string& statements) { return put_back(*entry, row, how, seen, change_id, statements); };
    RESULTS results;
    return m_session.prepare_write() && m_session.change(change, results);
}

bool GFPDB_SERVER_STORE::put_back(const GFPDB_HISTORY_ENTRY& entry, const GFPDB_ROW& row, GFPDB_RESTORE how,
                                  std::string* seen, const std::string& change_id, std::string& statements)
{
    const bool is_template = entry.is_template;
    const PLACE place = gfpdb_place_of(is_template, row);
    RESULTS found;
    if (!check_different_names(row) ||
        !m_session.look_up((is_template ? question_of_any_device(row.template_name)
                                        : "SELECT template_name" + from("template") + where({true, 0, -1, row.name})) +
                               ";\n" + question_of(place) + ";\n" + question_of_last_change(place),
                           found) ||
        !finds_none(found[0], !is_template, place.name))
        return false;
    const std::optional<GFPDB_ROW> former = first_row(found[1]);
    if (how != GFPDB_RESTORE_REPLACE && former)
        return m_session.fail(
            gfpdb_in_the_way(is_template, is_template ? former->template_name : former->name, place.name));
    if (how == GFPDB_RESTORE_REPLACE && !check_seen(place, seen, found[1], found[2]))
        return false;
    if (former)
        statements += drop(place, GFPDB_REASON_REPLACED, change_id);
    statements += insert(is_template, row);
    return true;
}
