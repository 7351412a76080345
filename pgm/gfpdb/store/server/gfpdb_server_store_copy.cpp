// SPDX-License-Identifier: MIT

// The part of GFPDB_SERVER_STORE that gives all that is stored, and takes what another store has given.
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/server/gfpdb_server_sql.h"
#include "store/server/gfpdb_server_store.h"

using namespace GFPDB_SERVER_SQL;

namespace {

constexpr std::size_t COPY_AT_ONCE = 262144;

// The tables in the order of read_all().
enum TABLE
{
    DEVICES,
    TEMPLATES,
    STATES,
    NO_TABLE,
};

TABLE table_of(const GFPDB_HISTORY_ENTRY& entry)
{
    if (entry.id != 0)
        return STATES;
    return entry.is_template ? TEMPLATES : DEVICES;
}

std::string target_of(TABLE table)
{
    switch (table) {
    case DEVICES:
        return "device (name_key, " + all_columns() + ')';
    case TEMPLATES:
        return "template (template_key, " + all_columns() + ')';
    default:
        return "history (name_key, " + all_columns() + ", id, is_template, reason, changed_at, changed_by, change_id)";
    }
}

void add_line(std::string& lines, const GFPDB_HISTORY_ENTRY& entry)
{
    add_whole_copy_line(lines, gfpdb_name_key(entry.name()), entry.row);
    if (table_of(entry) == STATES) {
        for (const std::string& text : {std::to_string(entry.id), std::string(entry.is_template ? "1" : "0"),
                                        entry.reason, entry.changed_at, entry.changed_by, std::string()})
            add_copy_column(lines, text);
    }
    lines += '\n';
}

} // namespace

bool GFPDB_SERVER_STORE::read_all(const GFPDB_HEAR_STORED& hear)
{
    const std::vector<std::string> questions = {
        "SELECT " + all_read() + from("device") + " ORDER BY family, scheme, name_key",
        "SELECT " + all_read() + from("template") + " ORDER BY template_key",
        question_of_history(all_read(), " ORDER BY id"),
    };
    return m_session.read_in_parts(questions, [&hear](std::size_t question, const ROWS& rows) {
        for (int row = 0; row < rows.count(); ++row) {
            GFPDB_HISTORY_ENTRY entry;
            if (question == STATES)
                entry = history_at(rows, row);
            else
                entry.row = row_at(rows, row, 0);
            entry.is_template = question == STATES ? entry.is_template : question == TEMPLATES;
            if (!hear(entry))
                return false;
        }
        return true;
    });
}

std::int64_t GFPDB_SERVER_STORE::get_last_state()
{
    ROWS rows;
    return m_session.ask("SELECT CASE WHEN is_called THEN last_value ELSE 0 END" + from("history_id_seq"), rows)
               ? rows.number(0, 0)
               : 0;
}

// The source is asked again when the transaction is made again.
bool GFPDB_SERVER_STORE::fill(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source, std::int64_t last_state)
{
    CHANGE change;
    const auto noting_source = [&](const GFPDB_HEAR_STORED& put) {
        return source([&](const GFPDB_HISTORY_ENTRY& entry) {
            const PLACE place{entry.is_template, entry.row.family, entry.row.scheme, entry.name()};
            if (change.proof.empty())
                change.proof = proof_of_revision(place, entry.row.revision);
            return put(entry);
        });
    };
    change.is_quick = false;
    change.work = [&](std::string& statements) {
        RESULTS found;
        if (!m_session.look_up("SELECT EXISTS (SELECT 1" + from("device") + ") OR EXISTS (SELECT 1" + from("template") +
                                   ") OR EXISTS (SELECT 1" + from("history") + ')',
                               found))
            return false;
        if (found.front().text(0, 0) == "t")
            return m_session.fail(GFPDB_WORDS::say("The database in %1 is not empty.", {get_directory()}));
        if (!copy_all(noting_source))
            return false;
        statements += "SELECT setval('" + m_session.in_schema() + "history_id_seq', GREATEST((SELECT max(id)" +
                      from("history") + "), " + std::to_string(last_state) + ", 1), GREATEST((SELECT max(id)" +
                      from("history") + "), " + std::to_string(last_state) + ", 0) > 0);\n";
        return true;
    };
    RESULTS results;
    return m_session.prepare_write() && m_session.change(change, results);
}

bool GFPDB_SERVER_STORE::copy_all(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source)
{
    TABLE table = NO_TABLE;
    std::string lines;
    const auto end_table = [&] { return table == NO_TABLE || (m_session.copy_put(lines) && m_session.copy_end()); };
    const auto put = [&](const GFPDB_HISTORY_ENTRY& entry) {
        if (!can_keep(entry.row))
            return false;
        if (table_of(entry) != table) {
            if (!end_table())
                return false;
            lines.clear();
            table = table_of(entry);
            if (!m_session.copy_begin("COPY " + m_session.in_schema() + target_of(table) + " FROM STDIN"))
                return false;
        }
        add_line(lines, entry);
        if (lines.size() < COPY_AT_ONCE)
            return true;
        const bool is_put = m_session.copy_put(lines);
        lines.clear();
        return is_put;
    };
    if (source(put) && end_table())
        return true;
    m_session.abandon();
    return false;
}
