// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_store.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/gfpdb_refusals.h"
#include "store/sqlite/gfpdb_old_flows.h"
#include "store/sqlite/gfpdb_sqlite_sql.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

using namespace GFPDB_SQL;

namespace {

// What moves records to the history. After the highest number that there can be, SQLite chooses one that is free.
std::string to_history()
{
    return "INSERT INTO history (id, is_template, reason, changed_at, changed_by, name_key, " + columns() +
           ") SELECT nullif(" GFPDB_LAST_STATE ", 9223372036854775807) + 1, ?, ?, ?, ?, CAST(? AS TEXT), " + columns();
}

// The name of a record as it is stored.
std::string name_at(const GFPDB_RECORD_PLACE& place)
{
    return (place.is_template ? "SELECT CAST(template_name AS BLOB)" : "SELECT CAST(name AS BLOB)") + from(place);
}
constexpr char ANY_DEVICE_NAME_OF_KEY[] = "SELECT CAST(name AS BLOB) FROM device WHERE name_key = CAST(? AS TEXT)";

// So many question marks are asked for in one statement.
constexpr std::size_t KEYS_AT_ONCE = 500;

// What to_history() asks for.
QVariantList history_values(const GFPDB_RECORD_PLACE& place, const char* reason)
{
    return {place.is_template ? 1 : 0, QLatin1String(reason), now(), here(), key_of(place.name)};
}

// As text_at(), on one line.
std::string line_at(const QSqlQuery& query, int column)
{
    std::string line = text_at(query, column);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

} // namespace

bool GFPDB_SQLITE_STORE::start_read(QSqlQuery& query, const std::string& statement, const QVariantList& values)
{
    return m_file.prepare_read() && go_on_reading(query, statement, values);
}

// After prepare_read(), which a statement that depends on the file's schema is made after.
bool GFPDB_SQLITE_STORE::go_on_reading(QSqlQuery& query, const std::string& statement, const QVariantList& values)
{
    return prepare(query, statement, values) || m_file.note_read_problem();
}

// The next row of `query`, which is run when it has no row yet; false at the end and, with the problem kept, on
// failure.
bool GFPDB_SQLITE_STORE::next_row(QSqlQuery& query)
{
    const bool is_run = query.isActive() || query.exec();
    if (is_run)
        m_file.note_read();
    if (is_run && query.next())
        return true;
    if (!query.lastError().isValid())
        return false;
    m_file.connection().fail(query.lastError());
    return m_file.note_read_problem();
}

std::vector<std::string> GFPDB_SQLITE_STORE::read_names(QSqlQuery& query)
{
    std::vector<std::string> names;
    while (next_row(query))
        names.push_back(text_at(query, 0));
    return names;
}

std::vector<std::string> GFPDB_SQLITE_STORE::get_device_names(int family, int scheme)
{
    QSqlQuery query;
    if (!start_read(query, "SELECT CAST(name AS BLOB) FROM device WHERE family = ? AND scheme = ? ORDER BY name_key",
                    {family, scheme}))
        return {};
    return read_names(query);
}

std::vector<std::string> GFPDB_SQLITE_STORE::get_template_names()
{
    QSqlQuery query;
    if (!start_read(query, "SELECT CAST(template_name AS BLOB) FROM template ORDER BY template_key"))
        return {};
    return read_names(query);
}

// The rows are large, and a directory may have many of them: they are not read again for every list. A list that lacks
// the value of a device would have a form show another one.
GFPDB_USED_VALUES GFPDB_SQLITE_STORE::get_used_values(const std::vector<int>& schemes)
{
    const std::string foreign_changes = read_text("PRAGMA data_version", {});
    const std::string read_at = std::to_string(m_file.openings()) + ' ' + foreign_changes;
    KNOWN_VALUES& known = m_used_values[schemes];
    if (!get_last_error().empty() || (!foreign_changes.empty() && read_at == known.read_at))
        return known.values;
    GFPDB_USED_VALUES values;
    if (read_used_values(schemes, values) || get_last_error().empty())
        known = {values, read_at};
    return known.values;
}

bool GFPDB_SQLITE_STORE::read_used_values(const std::vector<int>& schemes, GFPDB_USED_VALUES& values)
{
    QStringList numbers;
    for (const int scheme : schemes)
        numbers << QString::number(scheme);
    const QString select = QStringLiteral("SELECT CAST(voltage AS BLOB), CAST(density AS BLOB) FROM %1 "
                                          "WHERE scheme IN (%2)");
    const QString list = numbers.join(QLatin1Char(','));
    const QString statement = select.arg(QStringLiteral("device"), list) + QLatin1String(" UNION ") +
                              select.arg(QStringLiteral("template"), list);
    QSqlQuery query;
    if (!start_read(query, statement.toStdString()))
        return false;
    while (next_row(query)) {
        values.voltages.insert(text_at(query, 0));
        values.densities.insert(text_at(query, 1));
    }
    return !query.lastError().isValid();
}

// Other programs' changes are counted by SQLite; this program's own are not.
void GFPDB_SQLITE_STORE::note_used_values(const GFPDB_ROW& row)
{
    for (const auto& known : m_used_values) {
        if (std::find(known.first.begin(), known.first.end(), row.scheme) != known.first.end())
            note_used_values(known.first, row.voltage, row.density);
    }
}

void GFPDB_SQLITE_STORE::note_used_values(const std::vector<int>& schemes, const std::string& voltage,
                                          const std::string& density)
{
    GFPDB_USED_VALUES& values = m_used_values[schemes].values;
    values.voltages.insert(voltage);
    values.densities.insert(density);
}

// They are offered until they can be read again.
void GFPDB_SQLITE_STORE::forget_used_values()
{
    for (auto& known : m_used_values)
        known.second.read_at.clear();
}

std::string GFPDB_SQLITE_STORE::read_text(const std::string& statement, const QVariantList& values)
{
    QSqlQuery query;
    return start_read(query, statement, values) && next_row(query) ? text_at(query, 0) : std::string();
}

std::string GFPDB_SQLITE_STORE::get_device_name(int family, int scheme, const std::string& name)
{
    const PLACE place{false, family, scheme, name};
    return read_text(name_at(place), values_of(place));
}

std::string GFPDB_SQLITE_STORE::get_template_name(const std::string& template_name)
{
    const PLACE place{true, 0, -1, template_name};
    return read_text(name_at(place), values_of(place));
}

std::string GFPDB_SQLITE_STORE::get_any_device_name(const std::string& name)
{
    return read_text(ANY_DEVICE_NAME_OF_KEY, {key_of(name)});
}

std::vector<std::string> GFPDB_SQLITE_STORE::find_device_keys(int family, int scheme,
                                                              const std::vector<std::string>& keys)
{
    std::vector<std::string> found;
    for (std::size_t first = 0; first < keys.size(); first += KEYS_AT_ONCE) {
        const std::size_t end = std::min(first + KEYS_AT_ONCE, keys.size());
        std::string statement =
            "SELECT CAST(name_key AS BLOB) FROM device WHERE family = ? AND scheme = ? AND name_key IN (";
        QVariantList values = {family, scheme};
        for (std::size_t i = first; i < end; ++i) {
            statement += i == first ? "CAST(? AS TEXT)" : ", CAST(? AS TEXT)";
            values << bytes_of(keys[i]);
        }
        QSqlQuery query;
        if (!start_read(query, statement + ')', values))
            return {};
        const std::vector<std::string> part = read_names(query);
        found.insert(found.end(), part.begin(), part.end());
    }
    return found;
}

std::optional<GFPDB_ROW> GFPDB_SQLITE_STORE::find(const PLACE& place)
{
    QSqlQuery query;
    if (!m_file.prepare_read() || !go_on_reading(query, "SELECT " + all() + from(place), values_of(place)))
        return std::nullopt;
    return next_row(query) ? std::optional<GFPDB_ROW>(full_row(query, 0)) : std::nullopt;
}

std::optional<GFPDB_ROW> GFPDB_SQLITE_STORE::find_device(int family, int scheme, const std::string& name)
{
    return find({false, family, scheme, name});
}

std::optional<GFPDB_ROW> GFPDB_SQLITE_STORE::find_template(const std::string& template_name)
{
    return find({true, 0, -1, template_name});
}

std::string GFPDB_SQLITE_STORE::get_device_revision(int family, int scheme, const std::string& name)
{
    const PLACE place{false, family, scheme, name};
    return read_text("SELECT revision" + from(place), values_of(place));
}

std::string GFPDB_SQLITE_STORE::get_template_revision(const std::string& template_name)
{
    const PLACE place{true, 0, -1, template_name};
    return read_text("SELECT revision" + from(place), values_of(place));
}

bool GFPDB_SQLITE_STORE::check_integrity()
{
    QSqlQuery query;
    if (!start_read(query, "PRAGMA integrity_check"))
        return get_last_error().empty();
    return next_row(query) &&
           (line_at(query, 0) == "ok" ||
            fail(GFPDB_WORDS::say("The database in %1 is damaged: %2", {get_directory(), line_at(query, 0)})));
}

bool GFPDB_SQLITE_STORE::has_device(const std::string& name)
{
    QSqlQuery query;
    return start_read(query, "SELECT 1 FROM device WHERE name_key = CAST(? AS TEXT)", {key_of(name)}) &&
           next_row(query);
}

bool GFPDB_SQLITE_STORE::remove_template(const std::string& template_name, std::string* seen)
{
    if (!m_file.prepare_write())
        return false;
    const PLACE place{true, 0, -1, template_name};
    return m_file.is_missing() ||
           m_file.change([&] { return check_seen_to_remove(place, seen) && drop(place, GFPDB_REASON_DELETED); });
}

std::vector<GFPDB_ROW> GFPDB_SQLITE_STORE::read_rows(const std::string& from)
{
    std::vector<GFPDB_ROW> rows;
    QSqlQuery query;
    if (!m_file.prepare_read() || !go_on_reading(query, "SELECT " + scalars() + from))
        return rows;
    while (next_row(query))
        rows.push_back(scalars_at(query, 0));
    return rows;
}

std::vector<GFPDB_ROW> GFPDB_SQLITE_STORE::get_devices()
{
    return read_rows(" FROM device ORDER BY family, scheme, name_key");
}

std::vector<GFPDB_ROW> GFPDB_SQLITE_STORE::get_templates()
{
    return read_rows(" FROM template ORDER BY template_key");
}

// The devices first: then a name that is used twice within what is saved is found by the templates.
bool GFPDB_SQLITE_STORE::save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                                  const std::function<bool(int)>& goes_on, const GFPDB_SEEN_STATES* seen)
{
    forget_used_values();
    return m_file.prepare_write() && m_file.change([&] {
        int done = 0;
        for (std::size_t i = 0; i < devices.size(); ++i) {
            if (!replace(false, devices[i], seen != nullptr ? &seen->devices[i] : nullptr))
                return false;
            if (!goes_on(++done))
                return fail(gfpdb_import_cancelled());
        }
        for (std::size_t i = 0; i < templates.size(); ++i) {
            if (!replace(true, templates[i], seen != nullptr ? &seen->templates[i] : nullptr))
                return false;
            if (!goes_on(++done))
                return fail(gfpdb_import_cancelled());
        }
        return true;
    });
}

// What was seen to be absent, and still is, needs no removal.
bool GFPDB_SQLITE_STORE::replace(bool is_template, const GFPDB_ROW& row, const std::string* seen)
{
    const PLACE place = gfpdb_place_of(is_template, row);
    std::string state = seen != nullptr ? *seen : std::string();
    const bool is_new = seen != nullptr && seen->empty();
    return check_no_other_kind(place) && check_seen(place, seen != nullptr ? &state : nullptr) &&
           (is_new || drop(place, GFPDB_REASON_REPLACED)) && insert(is_template, row);
}

bool GFPDB_SQLITE_STORE::restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string* seen)
{
    const std::optional<GFPDB_HISTORY_ENTRY> entry = find_history(id);
    if (!entry)
        return get_last_error().empty() ? fail(gfpdb_no_state(id)) : false;
    GFPDB_ROW row = entry->row;
    row.revision = gfpdb_new_revision();
    if (!new_name.empty())
        (entry->is_template ? row.template_name : row.name) = new_name;
    forget_used_values();
    return m_file.prepare_write() &&
           m_file.change([&] { return check_different_names(row) && put_back(entry->is_template, row, how, seen); });
}

bool GFPDB_SQLITE_STORE::put_back(bool is_template, const GFPDB_ROW& row, GFPDB_RESTORE how, std::string* seen)
{
    const PLACE place = gfpdb_place_of(is_template, row);
    if (!check_no_other_kind(place))
        return false;
    const bool is_free = how == GFPDB_RESTORE_REPLACE ? check_seen(place, seen) && drop(place, GFPDB_REASON_REPLACED)
                                                      : check_free(place);
    return is_free && insert(is_template, row);
}

// Runs `query`; false, with the reason, when it finds the name of a record that `name` cannot be used beside.
bool GFPDB_SQLITE_STORE::finds_none(QSqlQuery& query, bool is_template, const std::string& name)
{
    if (next_row(query))
        return fail(gfpdb_in_the_way(is_template, text_at(query, 0), name));
    return !query.lastError().isValid();
}

// The columns of all_read() from `first` on. A read-only file of an older schema is read as it is.
GFPDB_ROW GFPDB_SQLITE_STORE::full_row(const QSqlQuery& query, int first) const
{
    GFPDB_ROW row = row_at(query, first);
    if (m_file.schema_version() < GFPDB_FLOW_TEXT_SCHEMA) {
        row.single_flows = gfpdb_flows_of_schema_2(row.single_flows);
        row.quad_flows = gfpdb_flows_of_schema_2(row.quad_flows);
    }
    return row;
}

// Runs a part of a change: unlike the public reads, it looks at the file that the transaction is on.
bool GFPDB_SQLITE_STORE::look_up(const std::string& from, const QVariantList& values, std::optional<GFPDB_ROW>& row)
{
    QSqlQuery query;
    if (!prepare(query, "SELECT " + all() + from, values))
        return false;
    row = next_row(query) ? std::optional<GFPDB_ROW>(full_row(query, 0)) : std::nullopt;
    return !query.lastError().isValid();
}

// A template may be stored again by the device that it is a copy of.
bool GFPDB_SQLITE_STORE::check_free_names(const GFPDB_ROW& row)
{
    const PLACE copy = gfpdb_place_of(true, row);
    if (!check_no_other_kind(gfpdb_place_of(false, row)))
        return false;
    if (copy.name.empty())
        return true;
    if (!check_different_names(row))
        return false;
    QSqlQuery query;
    const bool is_found =
        prepare(query, "SELECT CAST(name AS BLOB), CAST(template_name AS BLOB)" + from(copy), values_of(copy)) &&
        next_row(query);
    if (is_found && gfpdb_name_key(text_at(query, 0)) != gfpdb_name_key(row.name))
        return fail(gfpdb_in_the_way(true, text_at(query, 1), copy.name));
    return !query.lastError().isValid() && check_no_other_kind(copy);
}

bool GFPDB_SQLITE_STORE::check_free(const PLACE& place)
{
    QSqlQuery query;
    return prepare(query, name_at(place), values_of(place)) && finds_none(query, place.is_template, place.name);
}

// A device and a template cannot have the same name.
bool GFPDB_SQLITE_STORE::check_no_other_kind(const PLACE& place)
{
    if (!place.is_template)
        return check_free({true, 0, -1, place.name});
    QSqlQuery query;
    return prepare(query, ANY_DEVICE_NAME_OF_KEY, {key_of(place.name)}) && finds_none(query, false, place.name);
}

bool GFPDB_SQLITE_STORE::check_different_names(const GFPDB_ROW& row)
{
    return gfpdb_name_key(row.template_name) != gfpdb_name_key(row.name) || fail(gfpdb_same_names(row));
}

bool GFPDB_SQLITE_STORE::insert(bool is_template, const GFPDB_ROW& row)
{
    const std::string& name = is_template ? row.template_name : row.name;
    QSqlQuery query;
    return prepare(query, insertion(is_template), QVariantList{key_of(name)} + values_of(row)) && run(query);
}

// `history_id` (may be null) hears the number that the former state got, if there was one.
bool GFPDB_SQLITE_STORE::drop(const PLACE& place, const char* reason, std::int64_t* history_id)
{
    QSqlQuery copy;
    QSqlQuery removal;
    if (!prepare(copy, to_history() + from(place), history_values(place, reason) + values_of(place)) || !run(copy))
        return false;
    if (history_id != nullptr && copy.numRowsAffected() > 0)
        *history_id = copy.lastInsertId().toLongLong();
    return prepare(removal, "DELETE" + from(place), values_of(place)) && run(removal);
}
