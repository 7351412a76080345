// SPDX-License-Identifier: MIT
#include "store/server/gfpdb_server_store.h"

#include "base/gfpdb_text.h"
#include "store/server/gfpdb_server_sql.h"

#include <algorithm>

using namespace GFPDB_SERVER_SQL;

namespace {

constexpr int HISTORY_COLUMNS = 5;
constexpr bool LONG = true;

GFPDB_HISTORY_ENTRY change_at(const GFPDB_SERVER_ROWS& rows, int row)
{
    GFPDB_HISTORY_ENTRY entry;
    entry.id = rows.number(row, 0);
    entry.is_template = rows.number(row, 1) != 0;
    entry.reason = rows.text(row, 2);
    entry.changed_at = rows.text(row, 3);
    entry.changed_by = rows.text(row, 4);
    return entry;
}

// Those of `keys` that are in the second column of `rows`, which are in the order of its bytes.
std::vector<std::string> keys_in(const GFPDB_SERVER_ROWS& rows, const std::vector<std::string>& keys)
{
    std::vector<std::string> found;
    for (const std::string& key : keys) {
        int low = 0;
        int high = rows.count();
        while (low < high) {
            const int middle = low + (high - low) / 2;
            if (rows.text(middle, 1) < key)
                low = middle + 1;
            else
                high = middle;
        }
        if (low < rows.count() && rows.text(low, 1) == key)
            found.push_back(key);
    }
    return found;
}

// Of what question_of() gives.
std::string revision_in(const GFPDB_SERVER_ROWS& rows)
{
    return rows.count() > 0 ? rows.text(0, 0) : std::string();
}

// Nothing when there are no conditions.
std::string where_all(const std::vector<std::string>& conditions)
{
    std::string text;
    for (const std::string& condition : conditions)
        text += (text.empty() ? " WHERE " : " AND ") + condition;
    return text;
}

std::string place_condition(int family, int scheme)
{
    return " WHERE family = " + std::to_string(family) + " AND scheme = " + std::to_string(scheme);
}

} // namespace

std::string GFPDB_SERVER_STORE::where(const PLACE& place)
{
    if (place.is_template)
        return " WHERE template_key = " + key_of(place.name);
    return place_condition(place.family, place.scheme) + " AND name_key = " + key_of(place.name);
}

std::string GFPDB_SERVER_STORE::question_of_names(int family, int scheme) const
{
    return "SELECT name, name_key" + from("device") + place_condition(family, scheme) + " ORDER BY name_key";
}

std::string GFPDB_SERVER_STORE::question_of_keys(int family, int scheme, const std::vector<std::string>& keys) const
{
    std::vector<std::string> literals;
    std::transform(keys.begin(), keys.end(), std::back_inserter(literals), literal);
    return "SELECT name_key" + from("device") + place_condition(family, scheme) + " AND name_key IN " +
           list_of(literals);
}

std::string GFPDB_SERVER_STORE::question_of_template_names() const
{
    return "SELECT template_name" + from("template") + " ORDER BY template_key";
}

// From one combination to the next in the index: how many devices have it does not matter.
std::string GFPDB_SERVER_STORE::question_of_used_values() const
{
    const std::string next = "SELECT scheme, voltage, density" + from("device");
    const std::string first = " ORDER BY scheme, voltage, density LIMIT 1)";
    return "WITH RECURSIVE used AS ((" + next + first + " UNION ALL SELECT following.* FROM used, LATERAL (" + next +
           " WHERE (device.scheme, device.voltage, device.density) > (used.scheme, used.voltage, used.density)" +
           first + " AS following) SELECT scheme, voltage, density FROM used UNION SELECT scheme, voltage, density" +
           from("template");
}

std::string GFPDB_SERVER_STORE::question_of(const PLACE& place) const
{
    return "SELECT " + all_read() + from(place.is_template ? "template" : "device") + where(place);
}

std::string GFPDB_SERVER_STORE::question_of_any_device(const std::string& name) const
{
    return "SELECT name" + from("device") + " WHERE name_key = " + key_of(name) + " LIMIT 1";
}

std::string GFPDB_SERVER_STORE::question_of_history(const std::string& columns, const std::string& which) const
{
    return "SELECT id, is_template, reason, changed_at, changed_by, " + columns + from("history") + which;
}

std::string GFPDB_SERVER_STORE::question_of_last_change(const PLACE& place) const
{
    return "SELECT reason, changed_by, changed_at" + from("history") + " WHERE name_key = " + key_of(place.name) +
           (place.is_template ? std::string(" AND is_template = 1")
                              : " AND is_template = 0 AND family = " + std::to_string(place.family) +
                                    " AND scheme = " + std::to_string(place.scheme)) +
           " ORDER BY id DESC LIMIT 1";
}

// A list that is shown is filled again after each change, and `row` (may be null) is selected in it.
std::vector<std::string> GFPDB_SERVER_STORE::questions_after_change(const GFPDB_ROW* row) const
{
    if (m_names_question.empty())
        return {};
    std::vector<std::string> questions = {m_names_question, question_of_template_names(), question_of_used_values()};
    if (row != nullptr)
        questions.push_back(question_of({false, row->family, row->scheme, row->name}));
    return questions;
}

std::vector<std::string> GFPDB_SERVER_STORE::read_names(const std::string& question)
{
    std::vector<std::string> names;
    ROWS rows;
    if (!m_session.ask(question, rows))
        return names;
    names.reserve(static_cast<std::size_t>(rows.count()));
    for (int row = 0; row < rows.count(); ++row)
        names.push_back(rows.text(row, 0));
    return names;
}

std::vector<std::string> GFPDB_SERVER_STORE::get_device_names(int family, int scheme)
{
    m_names_question = question_of_names(family, scheme);
    m_session.expect({question_of_template_names(), question_of_used_values()});
    return read_names(m_names_question);
}

std::vector<std::string> GFPDB_SERVER_STORE::get_template_names()
{
    m_session.expect({question_of_used_values()});
    return read_names(question_of_template_names());
}

// While they cannot be read, what is known stays.
GFPDB_USED_VALUES GFPDB_SERVER_STORE::get_used_values(const std::vector<int>& schemes)
{
    ROWS rows;
    m_session.expect({question_of_template_names()});
    if (!m_session.ask(question_of_used_values(), rows))
        return m_used_values[schemes];
    GFPDB_USED_VALUES values;
    for (int row = 0; row < rows.count(); ++row) {
        if (std::find(schemes.begin(), schemes.end(), rows.number(row, 0)) == schemes.end())
            continue;
        values.voltages.insert(rows.text(row, 1));
        values.densities.insert(rows.text(row, 2));
    }
    return m_used_values[schemes] = values;
}

void GFPDB_SERVER_STORE::note_used_values(const std::vector<int>& schemes, const std::string& voltage,
                                          const std::string& density)
{
    m_used_values[schemes].voltages.insert(voltage);
    m_used_values[schemes].densities.insert(density);
}

std::optional<GFPDB_ROW> GFPDB_SERVER_STORE::find(const PLACE& place)
{
    ROWS rows;
    if (!m_session.ask(question_of(place), rows) || rows.count() == 0)
        return std::nullopt;
    return row_at(rows, 0, 0);
}

std::optional<GFPDB_ROW> GFPDB_SERVER_STORE::find_device(int family, int scheme, const std::string& name)
{
    const PLACE place{false, family, scheme, name};
    m_device_question = question_of(place);
    m_session.expect({question_of_template_names(), question_of_used_values(), question_of({true, 0, -1, name})});
    return find(place);
}

std::optional<GFPDB_ROW> GFPDB_SERVER_STORE::find_template(const std::string& template_name)
{
    return find({true, 0, -1, template_name});
}

std::string GFPDB_SERVER_STORE::get_device_name(int family, int scheme, const std::string& name)
{
    if (!m_device_question.empty())
        m_session.expect({m_device_question});
    m_session.expect({question_of({true, 0, -1, name}), question_of_template_names(), question_of_used_values()});
    return find({false, family, scheme, name}).value_or(GFPDB_ROW()).name;
}

std::string GFPDB_SERVER_STORE::get_template_name(const std::string& template_name)
{
    m_session.expect({question_of_any_device(template_name)});
    return find_template(template_name).value_or(GFPDB_ROW()).template_name;
}

std::string GFPDB_SERVER_STORE::get_any_device_name(const std::string& name)
{
    const std::vector<std::string> names = read_names(question_of_any_device(name));
    return names.empty() ? std::string() : names.front();
}

std::vector<std::string> GFPDB_SERVER_STORE::find_device_keys(int family, int scheme,
                                                              const std::vector<std::string>& keys)
{
    if (const ROWS* const names = m_session.remembered(question_of_names(family, scheme)))
        return keys_in(*names, keys);
    return keys.empty() ? keys : read_names(question_of_keys(family, scheme, keys));
}

std::string GFPDB_SERVER_STORE::get_device_revision(int family, int scheme, const std::string& name)
{
    return find_device(family, scheme, name).value_or(GFPDB_ROW()).revision;
}

std::string GFPDB_SERVER_STORE::get_template_revision(const std::string& template_name)
{
    return find_template(template_name).value_or(GFPDB_ROW()).revision;
}

bool GFPDB_SERVER_STORE::has_device(const std::string& name)
{
    return !get_any_device_name(name).empty();
}

// What cannot be read is left to the change that follows.
bool GFPDB_SERVER_STORE::check_seen_device(int family, int scheme, const std::string& name, std::string& seen)
{
    const PLACE place{false, family, scheme, name};
    RESULTS found;
    if (!m_session.ask_all({question_of(place)}, found) || revision_in(found[0]) == seen)
        return true;
    return !m_session.ask_all({question_of(place), question_of_last_change(place)}, found) ||
           check_seen(place, &seen, found[0], found[1]);
}

std::vector<GFPDB_ROW> GFPDB_SERVER_STORE::read_rows(const std::string& question)
{
    std::vector<GFPDB_ROW> rows;
    RESULTS results;
    if (!m_session.ask_all({question}, results, LONG))
        return rows;
    const ROWS& found = results.front();
    for (int row = 0; row < found.count(); ++row)
        rows.push_back(scalars_at(found, row, 0));
    return rows;
}

std::vector<GFPDB_ROW> GFPDB_SERVER_STORE::get_devices()
{
    return read_rows("SELECT " + scalars_read() + from("device") + " ORDER BY family, scheme, name_key");
}

std::vector<GFPDB_ROW> GFPDB_SERVER_STORE::get_templates()
{
    return read_rows("SELECT " + scalars_read() + from("template") + " ORDER BY template_key");
}

// The server checks what it reads; the lengths of texts are not known before all of them is.
bool GFPDB_SERVER_STORE::check_integrity()
{
    std::vector<std::string> questions;
    for (const char* table : {"device", "template", "history"})
        questions.push_back("SELECT sum(length(single_flows) + length(quad_flows) + length(name))" + from(table));
    RESULTS results;
    return m_session.ask_all(questions, results, LONG);
}

std::vector<GFPDB_HISTORY_ENTRY> GFPDB_SERVER_STORE::get_history(const std::string& name)
{
    std::vector<GFPDB_HISTORY_ENTRY> entries;
    RESULTS results;
    const std::string which = name.empty() ? std::string() : " WHERE name_key = " + key_of(name);
    if (!m_session.ask_all({question_of_history(scalars_read(), which + " ORDER BY id")}, results, LONG))
        return entries;
    const ROWS& rows = results.front();
    for (int row = 0; row < rows.count(); ++row) {
        entries.push_back(change_at(rows, row));
        entries.back().row = scalars_at(rows, row, HISTORY_COLUMNS);
    }
    return entries;
}

// One state more than asked for says that more follow.
GFPDB_HISTORY_PAGE GFPDB_SERVER_STORE::get_history_page(const GFPDB_HISTORY_FILTER& filter,
                                                        std::optional<std::int64_t> before, int count)
{
    std::vector<std::string> range;
    if (before)
        range.push_back("id < " + std::to_string(*before));
    if (!filter.name.empty())
        range.push_back("name_key = " + key_of(filter.name));
    std::vector<std::string> conditions;
    if (filter.is_template)
        conditions.push_back(*filter.is_template ? "is_template = 1" : "is_template = 0");
    if (!filter.name_part.empty())
        conditions.push_back("position(" + key_of(filter.name_part) + " IN name_key) > 0");
    if (!filter.user_part.empty())
        conditions.push_back("position(" + key_of(filter.user_part) + " IN lower(changed_by)) > 0");
    const int looked_at = conditions.empty() ? count + 1 : GFPDB_STATES_AT_ONCE;
    const std::string states = from("history") + where_all(range) + " ORDER BY id DESC LIMIT ";
    RESULTS results;
    if (!m_session.ask_all(
            {"SELECT id, is_template, reason, changed_at, changed_by, " + scalars_read() + " FROM (SELECT *" + states +
                 std::to_string(looked_at) + ") AS states" + where_all(conditions) + " ORDER BY id DESC LIMIT " +
                 std::to_string(count + 1),
             "SELECT min(id), count(*) FROM (SELECT id" + states + std::to_string(looked_at) + ") AS states"},
            results))
        return {};
    GFPDB_HISTORY_PAGE page;
    const ROWS& found = results[0];
    for (int row = 0; row < std::min(found.count(), count); ++row) {
        page.entries.push_back(change_at(found, row));
        page.entries.back().row = scalars_at(found, row, HISTORY_COLUMNS);
    }
    if (found.count() > count)
        page.next = page.entries.back().id;
    else if (results[1].number(0, 1) == looked_at)
        page.next = results[1].number(0, 0);
    return page;
}

std::int64_t GFPDB_SERVER_STORE::count_history()
{
    ROWS rows;
    return m_session.ask("SELECT count(*)" + from("history"), rows) ? rows.number(0, 0) : 0;
}

std::optional<GFPDB_HISTORY_ENTRY> GFPDB_SERVER_STORE::find_history(std::int64_t id)
{
    ROWS rows;
    if (!m_session.ask(question_of_history(all_read(), " WHERE id = " + std::to_string(id)), rows) || rows.count() == 0)
        return std::nullopt;
    return history_at(rows, 0);
}

// The columns of question_of_history(all_read()).
GFPDB_HISTORY_ENTRY GFPDB_SERVER_STORE::history_at(const ROWS& rows, int row)
{
    GFPDB_HISTORY_ENTRY entry = change_at(rows, row);
    entry.row = row_at(rows, row, HISTORY_COLUMNS);
    return entry;
}
