// SPDX-License-Identifier: MIT

// The store on a PostgreSQL server of its own, which syncs what it is told, on the disk of the system's temporary
// directory.
//
// Floor: bare libpq with the same SQL; for the last row, the embedded store.
#include "bench_harness.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_server.h"
#include "postgres_server.h"
#include "store/gfpdb_store.h"
#include "store/server/gfpdb_server_schema.h"
#include "store/server/gfpdb_server_sql.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <libpq-fe.h>
#include <stdexcept>

namespace {

using namespace GFPDB_SERVER_SQL;

constexpr int FAMILY = 3;
constexpr int SCHEME = PGMIO_ACTIVE_SERIAL;
constexpr int MANY_NAMES = 100000;
constexpr int MANY_RECORDS = 10000;
constexpr double GOAL = 1.5;
constexpr double IMPORT_GOAL = 2.0;
constexpr char SCHEMA[] = "gfpdb";
constexpr char KEYED[] = "gfpdb.device (name_key, ";

void require(bool holds, const std::string& what)
{
    if (!holds)
        throw std::runtime_error(what);
}

// A device with the flows of a built-in one.
GFPDB_ROW make_row(const std::string& name)
{
    static const GFPDB_ROW PART = gfpdb_builtin_record("MX25L25645G")->to_row(FAMILY, SCHEME).value_or(GFPDB_ROW());
    GFPDB_ROW row = PART;
    row.name = name;
    row.revision = gfpdb_new_revision();
    return row;
}

std::vector<GFPDB_ROW> make_rows(int count)
{
    std::vector<GFPDB_ROW> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(make_row("Record " + std::to_string(i)));
    return rows;
}

// Another connection to the server, without the library.
class BARE_SERVER
{
public:
    using RESULT = std::unique_ptr<PGresult, decltype(&PQclear)>;

    explicit BARE_SERVER(const POSTGRES_SERVER& server)
        : m_connection(PQconnectdb(("host=" + server.socket_directory().toStdString() + " port=" +
                                    std::to_string(server.port()) + " user=admin dbname=flash client_encoding=UTF8")
                                       .c_str()),
                       PQfinish)
    {
        require(PQstatus(m_connection.get()) == CONNECTION_OK, PQerrorMessage(m_connection.get()));
    }

    // The last result.
    RESULT run(const std::string& statements)
    {
        RESULT result(PQexec(m_connection.get(), statements.c_str()), PQclear);
        const ExecStatusType status = PQresultStatus(result.get());
        require(status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK || status == PGRES_COPY_IN,
                PQerrorMessage(m_connection.get()));
        return result;
    }

    void copy(const std::string& lines)
    {
        require(PQputCopyData(m_connection.get(), lines.data(), static_cast<int>(lines.size())) == 1, "copy");
        require(PQputCopyEnd(m_connection.get(), nullptr) == 1, "end of copy");
        while (const RESULT result = RESULT(PQgetResult(m_connection.get()), PQclear))
            require(PQresultStatus(result.get()) == PGRES_COMMAND_OK, PQerrorMessage(m_connection.get()));
    }

private:
    std::unique_ptr<PGconn, decltype(&PQfinish)> m_connection;
};

// The statements with which the store surrounds questions and changes.
const std::string QUESTION = "SET LOCAL lock_timeout = 5000;\n" + GFPDB_SERVER_SCHEMA_SQL::state(SCHEMA) + ";\n";
const std::string BEGINNING = "BEGIN ISOLATION LEVEL SERIALIZABLE; SET LOCAL statement_timeout = 8000; "
                              "SET LOCAL lock_timeout = 5000; SELECT count(*) FROM gfpdb.meta; ";
const std::string WHERE_DEVICE = " FROM gfpdb.device WHERE family = 3 AND scheme = 7 AND name_key = ";

std::vector<std::string> bare_names(BARE_SERVER& bare)
{
    const BARE_SERVER::RESULT result = bare.run(
        QUESTION + "SELECT name, name_key FROM gfpdb.device WHERE family = 3 AND scheme = 7 ORDER BY name_key");
    std::vector<std::string> names;
    for (int row = 0; row < PQntuples(result.get()); ++row)
        names.emplace_back(PQgetvalue(result.get(), row, 0));
    return names;
}

void bare_find(BARE_SERVER& bare)
{
    const BARE_SERVER::RESULT result = bare.run(QUESTION + "SELECT " + all_read() + WHERE_DEVICE + key_of("Many 5000"));
    require(PQntuples(result.get()) == 1, "the device was not found");
}

// What is in the way is looked up first; then the former state goes into the history.
void bare_save(BARE_SERVER& bare, const GFPDB_ROW& row)
{
    const std::string key = key_of(row.name);
    bare.run(BEGINNING + "SELECT template_name FROM gfpdb.template WHERE template_key = " + key + "; SELECT " +
             all_read() + WHERE_DEVICE + key + "; SELECT reason FROM gfpdb.history WHERE name_key = " + key +
             " ORDER BY id DESC LIMIT 1");
    bare.run("WITH gone AS (DELETE" + WHERE_DEVICE + key +
             " RETURNING *) INSERT INTO gfpdb.history (is_template, reason, changed_by, change_id, name_key, " +
             all_columns() + ") SELECT 0, 'replaced', session_user, 'x', name_key, " + all_columns() +
             " FROM gone RETURNING id, " + all_read() + "; INSERT INTO " + KEYED + columns() + ", saved_by) VALUES (" +
             key + ", " + values_of(row) + ", " + here() + "); COMMIT");
}

void bare_import(BARE_SERVER& bare, const std::vector<GFPDB_ROW>& rows)
{
    std::vector<std::string> names;
    std::vector<std::string> keys;
    std::string lines;
    for (const GFPDB_ROW& row : rows) {
        names.push_back(key_of(row.name));
        keys.push_back("(3, 7, " + key_of(row.name) + ')');
        add_copy_line(lines, gfpdb_name_key(row.name), row, "bench");
    }
    bare.run(BEGINNING + "SELECT template_key FROM gfpdb.template WHERE template_key IN " + list_of(names) +
             "; SELECT " + scalars_read() + " FROM gfpdb.device WHERE (family, scheme, name_key) IN (VALUES " +
             gfpdb_joined(keys) + ')');
    bare.run(std::string("COPY ") + KEYED + columns() + ", saved_by) FROM STDIN");
    bare.copy(lines);
    bare.run("COMMIT");
}

// A store on the server, or in a file of the directory when there is none.
std::unique_ptr<GFPDB_STORE> open_store(const QTemporaryDir& directory, const POSTGRES_SERVER* server)
{
    const std::string path = directory.path().toStdString() + '/';
    std::string error;
    GFPDB_SERVER settings;
    if (server != nullptr) {
        settings.hosts = {server->socket_directory().toStdString()};
        settings.ports = {server->port()};
        settings.database = POSTGRES_SERVER::DATABASE;
        settings.user = POSTGRES_SERVER::ADMIN;
        require(gfpdb_write_server(path, settings, error), error);
    }
    std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(path);
    require(store->is_writable(), store->get_problem());
    return store;
}

void store_all(GFPDB_STORE& store, const std::vector<GFPDB_ROW>& rows)
{
    require(store.save_all(rows, {}, [](int) { return true; }), store.get_last_error());
}

void measure_single_records(BENCH_HARNESS& bench, POSTGRES_SERVER& server, GFPDB_STORE& store, BARE_SERVER& bare)
{
    GFPDB_ROW first = make_row("Many 0");
    first.single_flows.clear();
    first.quad_flows.clear();
    store_all(store, {first});
    server.run("INSERT INTO gfpdb.device SELECT (made).* FROM (SELECT jsonb_populate_record(device, jsonb_build_object("
               "'name', 'Many ' || n, 'name_key', 'many ' || n)) AS made FROM gfpdb.device, generate_series(1, " +
               QString::number(MANY_NAMES - 1) + ") AS n) AS rows");
    server.run("VACUUM ANALYZE gfpdb.device");
    bench.compare(
        "Names of 100,000 devices", GOAL, [&] { require(bare_names(bare).size() == MANY_NAMES, "names"); },
        [&] { require(store.get_device_names(FAMILY, SCHEME).size() == MANY_NAMES, "names"); });
    constexpr int REPETITIONS = 50;
    const auto often = [](const std::function<void()>& act) {
        return [act] {
            for (int i = 0; i < REPETITIONS; ++i)
                act();
        };
    };
    bench.compare("Find a device, 50 times", GOAL, often([&] { bare_find(bare); }), often([&] {
                      require(store.find_device(FAMILY, SCHEME, "Many 5000").has_value(), store.get_last_error());
                  }));
    bench.compare("Save a device, 50 times", GOAL, often([&] {
                      GFPDB_ROW row = make_row("Many 7000");
                      row.device_id = row.revision;
                      bare_save(bare, row);
                  }),
                  often([&] {
                      GFPDB_ROW row = make_row("Many 8000");
                      row.device_id = row.revision;
                      require(store.save_device(row).has_value(), store.get_last_error());
                  }));
}

void measure_imports(BENCH_HARNESS& bench, POSTGRES_SERVER& server, GFPDB_STORE& store, BARE_SERVER& bare)
{
    const std::vector<GFPDB_ROW> rows = make_rows(MANY_RECORDS);
    const auto clear = [&] { server.run("TRUNCATE gfpdb.device, gfpdb.history"); };
    bench.compare(
        "Import 10,000 records with flows", GOAL, [&] { bare_import(bare, rows); }, [&] { store_all(store, rows); },
        clear);
    const auto in_file = [&] {
        const QTemporaryDir directory;
        store_all(*open_store(directory, nullptr), rows);
    };
    bench.compare(
        "Import 10,000 records, to the embedded database", IMPORT_GOAL, in_file, [&] { store_all(store, rows); },
        clear);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    BENCH_HARNESS bench;
    if (!QFileInfo::exists(postgres_program("initdb"))) {
        std::puts("The server is not measured: PostgreSQL's server programs (Debian: postgresql) are not installed.");
        return 0;
    }
    POSTGRES_SERVER server({QStringLiteral("fsync=on")});
    server.run(QString::fromStdString(gfpdb_server_sql(SCHEMA)));
    const QTemporaryDir directory;
    const std::unique_ptr<GFPDB_STORE> store = open_store(directory, &server);
    BARE_SERVER bare(server);
    measure_single_records(bench, server, *store, bare);
    measure_imports(bench, server, *store, bare);
    return bench.finish();
}
