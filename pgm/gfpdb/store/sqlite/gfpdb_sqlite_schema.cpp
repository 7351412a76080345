// SPDX-License-Identifier: MIT

#include "store/sqlite/gfpdb_sqlite_schema.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/gfpdb_store.h"
#include "store/sqlite/gfpdb_old_flows.h"
#include "store/sqlite/gfpdb_sqlite_connection.h"
#include "store/sqlite/gfpdb_sqlite_sql.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>
#include <QVector>

#include <algorithm>
#include <array>

using namespace GFPDB_SQL;

namespace {

#define GFPDB_META_TABLE "CREATE TABLE meta (name TEXT NOT NULL PRIMARY KEY, value TEXT NOT NULL)"
#define GFPDB_RECORD_COLUMNS                                                                                           \
    "family INTEGER NOT NULL, scheme INTEGER NOT NULL, name TEXT NOT NULL, device_id TEXT NOT NULL, "                  \
    "voltage TEXT NOT NULL, density TEXT NOT NULL, total_die INTEGER, single_io_dummy_clock INTEGER, "                 \
    "quad_io_dummy_clock INTEGER, template_name TEXT NOT NULL, flow_template TEXT NOT NULL, revision TEXT NOT NULL, "  \
    "saved_at TEXT NOT NULL, single_flows TEXT NOT NULL, quad_flows TEXT NOT NULL"

// What leads from schema version N to N + 1; a new file takes all steps. A step is never changed once it was released.
struct MIGRATION
{
    std::vector<const char*> tables;
    // Made when the tables are filled.
    std::vector<const char*> indexes;
};
const std::vector<MIGRATION> MIGRATIONS = {
    {{
         GFPDB_META_TABLE,
         "INSERT INTO meta (name, value) VALUES ('schema_version', '0')",
         "CREATE TABLE device (name_key TEXT NOT NULL, " GFPDB_RECORD_COLUMNS
         ", PRIMARY KEY (family, scheme, name_key))",
         "CREATE TABLE template (template_key TEXT NOT NULL PRIMARY KEY, " GFPDB_RECORD_COLUMNS ")",
         "CREATE TABLE history (id INTEGER NOT NULL PRIMARY KEY, is_template INTEGER NOT NULL, reason TEXT NOT NULL, "
         "changed_at TEXT NOT NULL, " GFPDB_RECORD_COLUMNS ")",
     },
     {}},
    {{
         // The list of 100,000 names comes from the index alone, without a look at the records.
         "CREATE INDEX device_names ON device (family, scheme, name_key, name)",
         "CREATE INDEX device_keys ON device (name_key)",
         "CREATE INDEX template_names ON template (template_key, template_name)",
         "ALTER TABLE history ADD COLUMN changed_by TEXT NOT NULL DEFAULT ''",
     },
     {}},
    // Flows are kept as in files, see convert_rows().
    {{"ALTER TABLE history ADD COLUMN name_key TEXT NOT NULL DEFAULT ''"},
     {"CREATE INDEX history_names ON history (name_key)"}},
    {{"ALTER TABLE device ADD COLUMN saved_by TEXT NOT NULL DEFAULT ''",
      "ALTER TABLE template ADD COLUMN saved_by TEXT NOT NULL DEFAULT ''",
      "ALTER TABLE history ADD COLUMN saved_by TEXT NOT NULL DEFAULT ''"},
     {}},
};

// How the rows of a table get the flows of schema 3, and those of the history the key of their name.
struct CONVERSION
{
    const char* ids;
    // The flows, and the name to be keyed.
    const char* row;
    const char* update;
    bool has_key;
};
constexpr CONVERSION CONVERSIONS[] = {
    {"SELECT rowid FROM device",
     "SELECT CAST(single_flows AS BLOB), CAST(quad_flows AS BLOB) FROM device WHERE rowid = ?",
     "UPDATE device SET single_flows = CAST(? AS TEXT), quad_flows = CAST(? AS TEXT) WHERE rowid = ?", false},
    {"SELECT rowid FROM template",
     "SELECT CAST(single_flows AS BLOB), CAST(quad_flows AS BLOB) FROM template WHERE rowid = ?",
     "UPDATE template SET single_flows = CAST(? AS TEXT), quad_flows = CAST(? AS TEXT) WHERE rowid = ?", false},
    {"SELECT id FROM history",
     "SELECT CAST(single_flows AS BLOB), CAST(quad_flows AS BLOB), " GFPDB_HISTORY_NAME " FROM history WHERE id = ?",
     "UPDATE history SET single_flows = CAST(? AS TEXT), quad_flows = CAST(? AS TEXT), name_key = CAST(? AS TEXT) "
     "WHERE id = ?",
     true},
};

constexpr int SCHEMA_COLUMNS = 4;
// One text for each table and index; each is a row that SCHEMA_STATEMENT gives.
constexpr char SCHEMA_STATEMENT[] = "SELECT type, name, tbl_name, sql FROM sqlite_master ORDER BY type, name";

QString schema_row(const std::array<QString, SCHEMA_COLUMNS>& columns)
{
    return QStringList(columns.begin(), columns.end()).join(QLatin1Char('\n'));
}

QStringList schema_rows(QSqlQuery& query)
{
    QStringList rows;
    while (query.next())
        rows << schema_row({query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                            query.value(3).toString()});
    return rows;
}

// Makes a database of schema `version` in memory; its rows.
QStringList make_schema(int version, const QString& connection_name)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_name);
    connection.setDatabaseName(QStringLiteral(":memory:"));
    connection.open();
    QSqlQuery query(connection);
    for (int step = 0; step < version; ++step) {
        const MIGRATION& migration = MIGRATIONS[static_cast<std::size_t>(step)];
        for (const auto* statements : {&migration.tables, &migration.indexes}) {
            for (const char* statement : *statements)
                query.exec(QLatin1String(statement));
        }
    }
    query.exec(QLatin1String(SCHEMA_STATEMENT));
    return schema_rows(query);
}

// The rows of schema `version`, which must be one of ours.
const QStringList& known_schema(int version)
{
    static std::array<QStringList, GFPDB_SQLITE_SCHEMA::VERSION + 1> schemas;
    QStringList& rows = schemas[static_cast<std::size_t>(version)];
    if (rows.isEmpty()) {
        const QString connection_name = QStringLiteral("gfpdb schema");
        rows = make_schema(version, connection_name);
        QSqlDatabase::removeDatabase(connection_name);
    }
    return rows;
}

} // namespace

GFPDB_SQLITE_SCHEMA::GFPDB_SQLITE_SCHEMA(GFPDB_SQLITE_CONNECTION& connection) : m_connection(connection) {}

std::optional<std::string> GFPDB_SQLITE_SCHEMA::read_meta(const char* name)
{
    QSqlQuery query;
    if (!m_connection.prepare(query, "SELECT value FROM meta WHERE name = ?", {QLatin1String(name)}) ||
        !m_connection.run(query))
        return std::nullopt;
    return query.next() ? gfpdb_to_utf8(query.value(0).toString()) : std::string();
}

std::optional<QStringList> GFPDB_SQLITE_SCHEMA::read_rows()
{
    QSqlQuery query;
    if (!m_connection.prepare(query, SCHEMA_STATEMENT) || !m_connection.run(query))
        return std::nullopt;
    const QStringList rows = schema_rows(query);
    if (query.lastError().isValid()) {
        m_connection.fail(query.lastError());
        return std::nullopt;
    }
    return rows;
}

bool GFPDB_SQLITE_SCHEMA::read()
{
    return check_tables() && check_encoding();
}

// Texts are compared and cast as the bytes that they are: another encoding would cut them.
bool GFPDB_SQLITE_SCHEMA::check_encoding()
{
    QSqlQuery query;
    if (!m_connection.prepare(query, "PRAGMA encoding") || !m_connection.run(query) || !query.next())
        return m_connection.fail(query.lastError());
    const QString encoding = query.value(0).toString();
    return encoding == QLatin1String("UTF-8") ||
           m_connection.fail(
               GFPDB_WORDS::say("The database %1 was altered by another program: its texts are %2, not UTF-8. "
                                "It is left as it is.",
                                {m_connection.path(), gfpdb_to_utf8(encoding)}));
}

// Nothing but the list of what is in the file is read before that list is known to be ours. SQLite must not go on with
// tables and triggers that it has read before: who changes the file can change them back, and set their count, by which
// SQLite notices changes. The first statement takes the lock, so that the tables are those of this transaction.
bool GFPDB_SQLITE_SCHEMA::check_tables()
{
    static const QString META_ROW = schema_row(
        {QStringLiteral("table"), QStringLiteral("meta"), QStringLiteral("meta"), QStringLiteral(GFPDB_META_TABLE)});
    m_count = read_count();
    const std::optional<QStringList> rows =
        m_count && m_connection.run("PRAGMA writable_schema = RESET") ? read_rows() : std::nullopt;
    const std::optional<std::string> version =
        rows && rows->contains(META_ROW) ? read_meta("schema_version") : std::string();
    return rows && version && is_known(*rows, QByteArray::fromStdString(*version).toInt());
}

bool GFPDB_SQLITE_SCHEMA::is_known(const QStringList& rows, int version)
{
    m_version = version;
    if (m_version < 1)
        return m_connection.fail(GFPDB_WORDS::say("The file %1 is a database of another program. It is left as it is.",
                                                  {m_connection.path()}));
    if (m_version > VERSION)
        return m_connection.fail(
            GFPDB_WORDS::say("The database %1 was written by a newer program (its schema is %2, this "
                             "program knows up to %3). It is left as it is.",
                             {m_connection.path(), std::to_string(m_version), std::to_string(VERSION)}));
    if (rows != known_schema(m_version))
        return m_connection.fail(
            GFPDB_WORDS::say("The database %1 was altered by another program: its tables are not those of "
                             "schema %2. It is left as it is.",
                             {m_connection.path(), std::to_string(m_version)}));
    const std::optional<std::string> database_id = read_meta("database_id");
    m_database_id = database_id.value_or(std::string());
    return database_id.has_value();
}

std::optional<int> GFPDB_SQLITE_SCHEMA::read_count()
{
    QSqlQuery query;
    if (!m_connection.prepare(query, "PRAGMA schema_version") || !m_connection.run(query) || !query.next())
        return std::nullopt;
    return query.value(0).toInt();
}

// What cannot be read is reported by the statement that follows.
bool GFPDB_SQLITE_SCHEMA::is_changed()
{
    const std::optional<int> count = read_count();
    if (!count)
        m_connection.clear_error();
    return count && count != m_count;
}

// Reads the version again: another program may have upgraded the file meanwhile. Every record may be written: that is
// more than memory need hold.
bool GFPDB_SQLITE_SCHEMA::migrate()
{
    const std::optional<std::string> text = read_meta("schema_version");
    if (!text || !m_connection.run("PRAGMA cache_spill = ON") || !run_steps(QByteArray::fromStdString(*text).toInt()))
        return false;
    m_version = VERSION;
    m_count = read_count();
    return m_connection.run("PRAGMA cache_spill = OFF");
}

bool GFPDB_SQLITE_SCHEMA::make()
{
    QSqlQuery query;
    return run_steps(0) &&
           m_connection.prepare(query, "INSERT INTO meta (name, value) VALUES ('database_id', ?)",
                                {QUuid::createUuid().toString(QUuid::WithoutBraces)}) &&
           m_connection.run(query);
}

// From the schema `from` to the present one.
bool GFPDB_SQLITE_SCHEMA::run_steps(int from)
{
    for (int version = from; version < VERSION; ++version) {
        if (!run_step(version))
            return false;
    }
    return true;
}

bool GFPDB_SQLITE_SCHEMA::run_step(int from)
{
    const MIGRATION& migration = MIGRATIONS[static_cast<std::size_t>(from)];
    QSqlQuery query;
    return run_all(migration.tables) && (from + 1 != GFPDB_FLOW_TEXT_SCHEMA || convert_rows()) &&
           run_all(migration.indexes) &&
           m_connection.prepare(query, "UPDATE meta SET value = ? WHERE name = 'schema_version'",
                                {QString::number(from + 1)}) &&
           m_connection.run(query);
}

bool GFPDB_SQLITE_SCHEMA::run_all(const std::vector<const char*>& statements)
{
    return std::all_of(statements.begin(), statements.end(),
                       [this](const char* statement) { return m_connection.run(statement); });
}

// What cannot be read stays, byte for byte.
bool GFPDB_SQLITE_SCHEMA::convert_rows()
{
    const std::optional<int> total = count_rows();
    int done = 0;
    for (const CONVERSION& conversion : CONVERSIONS) {
        QSqlQuery ids;
        QSqlQuery row;
        QSqlQuery update;
        if (!total || !m_connection.prepare(ids, conversion.ids) || !m_connection.run(ids) ||
            !m_connection.prepare(row, conversion.row) || !m_connection.prepare(update, conversion.update))
            return false;
        QVector<qlonglong> numbers;
        while (ids.next())
            numbers.push_back(ids.value(0).toLongLong());
        if (ids.lastError().isValid())
            return m_connection.fail(ids.lastError());
        for (const qlonglong number : numbers) {
            if (!convert_row(row, update, number, conversion.has_key))
                return false;
            if (gfpdb_upgrade_progress())
                gfpdb_upgrade_progress()(++done, *total);
        }
    }
    return true;
}

std::optional<int> GFPDB_SQLITE_SCHEMA::count_rows()
{
    QSqlQuery query;
    if (m_connection.prepare(query, "SELECT (SELECT count(*) FROM device) + (SELECT count(*) FROM template) + "
                                    "(SELECT count(*) FROM history)") &&
        m_connection.run(query) && query.next())
        return query.value(0).toInt();
    return std::nullopt;
}

bool GFPDB_SQLITE_SCHEMA::convert_row(QSqlQuery& row, QSqlQuery& update, qlonglong number, bool has_key)
{
    row.bindValue(0, number);
    if (!m_connection.run(row) || !row.next())
        return m_connection.fail(row.lastError());
    int column = 0;
    for (; column < 2; ++column)
        update.bindValue(column, bytes_of(gfpdb_flows_of_schema_2(text_at(row, column))));
    if (has_key)
        update.bindValue(column++, key_of(text_at(row, 2)));
    update.bindValue(column, number);
    row.finish();
    return m_connection.run(update);
}
