// SPDX-License-Identifier: MIT

// The part of GFPDB_SERVER_STORE that stores many records at once: they are looked up, moved to the history and copied
// in, each kind with a few statements, in one transaction.
#include "base/gfpdb_text.h"
#include "store/gfpdb_refusals.h"
#include "store/server/gfpdb_server_sql.h"
#include "store/server/gfpdb_server_store.h"

#include <unordered_map>
#include <unordered_set>

using namespace GFPDB_SERVER_SQL;

namespace {

// So many records are looked up with one statement.
constexpr std::size_t RECORDS_AT_ONCE = 20000;

// So many bytes are copied at once.
constexpr std::size_t COPY_AT_ONCE = 262144;

// What a device or a template is found by in its table, as the columns KEY_COLUMNS and as literals.
constexpr char DEVICE_KEY[] = "family, scheme, name_key";
constexpr char TEMPLATE_KEY[] = "template_key";

std::string key_text(bool is_template, const GFPDB_ROW& row)
{
    if (is_template)
        return gfpdb_name_key(row.template_name);
    return std::to_string(row.family) + ' ' + std::to_string(row.scheme) + ' ' + gfpdb_name_key(row.name);
}

std::string key_literals(bool is_template, const GFPDB_ROW& row)
{
    if (is_template)
        return key_of(row.template_name);
    return std::to_string(row.family) + ", " + std::to_string(row.scheme) + ", " + key_of(row.name);
}

} // namespace

// The devices first: then a name that is used twice within what is saved is found by the templates.
bool GFPDB_SERVER_STORE::save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                                  const std::function<bool(int)>& goes_on, const GFPDB_SEEN_STATES* seen)
{
    if (!m_session.prepare_write() || !can_keep(devices) || !can_keep(templates))
        return false;
    if (devices.empty() && templates.empty())
        return true;
    const bool has_devices = !devices.empty();
    const GFPDB_ROW& first = has_devices ? devices.front() : templates.front();
    const PLACE place{!has_devices, first.family, first.scheme, has_devices ? first.name : first.template_name};
    CHANGE change;
    change.is_quick = false;
    change.proof = first.revision.empty() ? std::string() : proof_of_revision(place, first.revision);
    change.work = [&](std::string&) {
        int done = 0;
        return store_rows({false, devices, seen != nullptr ? &seen->devices : nullptr}, goes_on, done) &&
               store_rows({true, templates, seen != nullptr ? &seen->templates : nullptr}, goes_on, done);
    };
    RESULTS results;
    return m_session.change(change, results);
}

bool GFPDB_SERVER_STORE::can_keep(const std::vector<GFPDB_ROW>& rows)
{
    for (const GFPDB_ROW& row : rows) {
        if (!can_keep(row))
            return false;
    }
    return true;
}

// A name that is there twice makes two states of one record: one after the other.
bool GFPDB_SERVER_STORE::store_rows(const ROWS_TO_STORE& rows, const std::function<bool(int)>& goes_on, int& done)
{
    std::size_t begin = 0;
    while (begin < rows.rows.size()) {
        std::unordered_set<std::string> keys;
        std::size_t end = begin;
        while (end < rows.rows.size() && end - begin < RECORDS_AT_ONCE &&
               keys.insert(key_text(rows.is_template, rows.rows[end])).second)
            ++end;
        if (!clear_way(rows, begin, end) || !copy_rows(rows, begin, end, goes_on, done))
            return false;
        begin = end;
    }
    return true;
}

// Refuses what cannot be stored, and moves what has the names into the history.
bool GFPDB_SERVER_STORE::clear_way(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end)
{
    const std::string table = rows.is_template ? "template" : "device";
    const std::string columns = rows.is_template ? TEMPLATE_KEY : DEVICE_KEY;
    std::vector<std::string> keys;
    std::vector<std::string> names;
    for (std::size_t i = begin; i < end; ++i) {
        const GFPDB_ROW& row = rows.rows[i];
        keys.push_back('(' + key_literals(rows.is_template, row) + ')');
        names.push_back(key_of(rows.is_template ? row.template_name : row.name));
    }
    const std::string which = " WHERE (" + columns + ") IN (VALUES " + gfpdb_joined(keys) + ')';
    const std::string others = rows.is_template
                                   ? "SELECT name_key, name" + from("device") + " WHERE name_key"
                                   : "SELECT template_key, template_name" + from("template") + " WHERE template_key";
    RESULTS found;
    if (!m_session.look_up(
            others + " IN " + list_of(names) + ";\nSELECT " + scalars_read() + from(table.c_str()) + which, found))
        return false;
    if (!check_way(rows, begin, end, found[0], found[1]))
        return false;
    return found[1].count() == 0 ||
           m_session.look_up(drop_all(rows.is_template, which, GFPDB_REASON_REPLACED, gfpdb_new_revision()), found);
}

// `others` are records of the other kind that have the names, `former` those that are replaced.
bool GFPDB_SERVER_STORE::check_way(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end, const ROWS& others,
                                   const ROWS& former)
{
    std::unordered_map<std::string, int> in_the_way;
    std::unordered_map<std::string, GFPDB_FOUND> stored;
    for (int row = 0; row < others.count(); ++row)
        in_the_way.emplace(others.text(row, 0), row);
    for (int row = 0; row < former.count(); ++row) {
        const GFPDB_ROW record = scalars_at(former, row, 0);
        stored[key_text(rows.is_template, record)] = {record.revision, record.saved_by, record.saved_at, std::string()};
    }
    for (std::size_t i = begin; i < end; ++i) {
        const GFPDB_ROW& row = rows.rows[i];
        const std::string& name = rows.is_template ? row.template_name : row.name;
        const auto other = in_the_way.find(gfpdb_name_key(name));
        if (other != in_the_way.end())
            return m_session.fail(gfpdb_in_the_way(!rows.is_template, others.text(other->second, 1), name));
        const GFPDB_FOUND& found = stored[key_text(rows.is_template, row)];
        if (rows.seen != nullptr && (*rows.seen)[i] != found.revision)
            return refuse_changed({rows.is_template, row.family, row.scheme, name}, (*rows.seen)[i], found);
    }
    return true;
}

// Who removed what is gone is asked only then.
bool GFPDB_SERVER_STORE::refuse_changed(const PLACE& place, const std::string& seen, const GFPDB_FOUND& found)
{
    GFPDB_FOUND shown = found;
    RESULTS last_change;
    if (found.revision.empty() && !m_session.look_up(question_of_last_change(place), last_change))
        return false;
    if (found.revision.empty() && last_change.front().count() > 0)
        shown = {std::string(), last_change.front().text(0, 1), last_change.front().text(0, 2),
                 last_change.front().text(0, 0)};
    return m_session.fail(gfpdb_changed_meanwhile(place.is_template, place.name, seen, shown));
}

bool GFPDB_SERVER_STORE::copy_rows(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end,
                                   const std::function<bool(int)>& goes_on, int& done)
{
    RESULTS found;
    if (!m_session.look_up("SELECT " + here(), found))
        return false;
    const std::string saved_by = found.front().text(0, 0);
    const std::string key = rows.is_template ? "template (template_key, " : "device (name_key, ";
    std::string lines;
    if (!m_session.copy_begin("COPY " + m_session.in_schema() + key + columns() + ", saved_by) FROM STDIN"))
        return false;
    for (std::size_t i = begin; i < end; ++i) {
        const GFPDB_ROW& row = rows.rows[i];
        add_copy_line(lines, gfpdb_name_key(rows.is_template ? row.template_name : row.name), row, saved_by);
        if (!goes_on(++done)) {
            m_session.fail(gfpdb_import_cancelled());
            m_session.abandon();
            return false;
        }
        if (lines.size() < COPY_AT_ONCE && i + 1 < end)
            continue;
        if (!m_session.copy_put(lines))
            return false;
        lines.clear();
    }
    return m_session.copy_end();
}
