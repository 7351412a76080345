// SPDX-License-Identifier: MIT
#include "postgres_server.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <csignal>
#include <functional>

namespace {

// Settings for many small servers on a busy machine.
constexpr char COMMON_SETTINGS[] = R"(
unix_socket_permissions = 0777
listen_addresses = '127.0.0.1'
max_connections = 300
shared_buffers = 32MB
fsync = off
full_page_writes = off
ssl = on
ssl_cert_file = '../server.crt'
ssl_key_file = '../server.key'
log_line_prefix = '%m %u '
)";
constexpr char ACCESS[] = R"(
local    all          all                             trust
host     all          +secret    127.0.0.1/32         scram-sha-256
host     all          all        127.0.0.1/32         trust
local    replication  all                             trust
)";

void make_certificate(const SERVER_DIRECTORY& directory, const QString& name, const QString& authority,
                      const QString& hosts)
{
    const auto file = [&directory](const QString& file_name) { return directory.path(file_name); };
    QStringList command = {"/usr/bin/openssl",
                           "req",
                           "-x509",
                           "-nodes",
                           "-newkey",
                           "ec",
                           "-pkeyopt",
                           "ec_paramgen_curve:prime256v1",
                           "-days",
                           "2",
                           "-subj",
                           "/CN=" + name,
                           "-keyout",
                           file(name + ".key"),
                           "-out",
                           file(name + ".crt")};
    if (!authority.isEmpty()) {
        command += {"-CA",     file(authority + ".crt"),
                    "-CAkey",  file(authority + ".key"),
                    "-addext", "basicConstraints=critical,CA:FALSE",
                    "-addext", "subjectAltName=" + hosts};
    }
    run_as_server_user(command, file("openssl.log"));
}

void make_certificates(const SERVER_DIRECTORY& directory)
{
    const QString here = "DNS:localhost,IP:127.0.0.1";
    make_certificate(directory, "ca", QString(), QString());
    make_certificate(directory, "foreign-ca", QString(), QString());
    make_certificate(directory, "server", "ca", here);
    make_certificate(directory, "wrong", "ca", "DNS:elsewhere.example");
    make_certificate(directory, "foreign", "foreign-ca", here);
}

// PostgreSQL says in a line of this file when it takes connections.
bool says_ready(const QString& pid_file)
{
    QFile file(pid_file);
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("\nready ");
}

int signal_of(const QByteArray& how)
{
    if (how == "immediate")
        return SIGQUIT;
    return how == "fast" ? SIGINT : SIGTERM;
}

QSqlDatabase connect_to(const POSTGRES_SERVER& server, const QString& database, const QString& name,
                        const QString& schema)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase("QPSQL", name);
    connection.setHostName(server.socket_directory());
    connection.setPort(server.port());
    connection.setUserName(QLatin1String(POSTGRES_SERVER::ADMIN));
    connection.setDatabaseName(database);
    if (!schema.isEmpty())
        connection.setConnectOptions("options=-csearch_path=" + schema + ",public");
    if (!connection.open())
        qFatal("%s", qPrintable(connection.lastError().text()));
    return connection;
}

// Calls `use` with the executed statement.
void run_statement(const POSTGRES_SERVER& server, const QString& schema, const QString& statement,
                   const std::function<void(QSqlQuery&)>& use)
{
    const QString name = "the test's own server";
    {
        QSqlQuery query(server.connect(name, schema));
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        use(query);
    }
    QSqlDatabase::removeDatabase(name);
}

} // namespace

QString postgres_program(const char* name)
{
    const QDir versions("/usr/lib/postgresql");
    int highest = 0;
    for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (QFile::exists(versions.filePath(version + "/bin/initdb")))
            highest = qMax(highest, version.toInt());
    }
    return versions.filePath(QString::number(highest) + "/bin/" + QLatin1String(name));
}

POSTGRES_SERVER::POSTGRES_SERVER(const QStringList& settings) : POSTGRES_SERVER(settings, nullptr) {}

POSTGRES_SERVER::POSTGRES_SERVER(const QStringList& settings, const POSTGRES_SERVER* primary) : m_settings(settings)
{
    make_certificates(m_directory);
    if (primary != nullptr) {
        copy_from(*primary);
        start();
        return;
    }
    make_cluster();
    start();
    make_database();
}

void POSTGRES_SERVER::make_database()
{
    const QString name = "the first database";
    {
        QSqlQuery query(connect_to(*this, "postgres", name, QString()));
        if (!query.exec("CREATE ROLE secret") || !query.exec("CREATE DATABASE " + QLatin1String(DATABASE)))
            qFatal("%s", qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase(name);
}

std::unique_ptr<POSTGRES_SERVER> POSTGRES_SERVER::standby_of(const POSTGRES_SERVER& primary)
{
    return std::unique_ptr<POSTGRES_SERVER>(new POSTGRES_SERVER(QStringList(), &primary));
}

void POSTGRES_SERVER::copy_from(const POSTGRES_SERVER& primary)
{
    run_as_server_user({postgres_program("pg_basebackup"), "--host=" + primary.socket_directory(),
                        "--port=" + QString::number(primary.port()), "--username=" + QLatin1String(ADMIN),
                        "--write-recovery-conf", "--checkpoint=fast", "--no-sync",
                        "--pgdata=" + m_directory.path("data")},
                       m_directory.path("pg_basebackup.log"));
}

void POSTGRES_SERVER::make_cluster()
{
    const QString data = m_directory.path("data");
    run_as_server_user({postgres_program("initdb"), "--no-sync", "--auth=trust", "--no-locale", "--encoding=UTF8",
                        "--username=" + QLatin1String(ADMIN), "--pgdata=" + data},
                       m_directory.path("initdb.log"));
    QFile access(data + "/pg_hba.conf");
    QFile common(data + "/postgresql.conf");
    if (!access.open(QIODevice::WriteOnly) || !common.open(QIODevice::Append))
        qFatal("cannot write the settings of the server");
    access.write(ACCESS);
    common.write(COMMON_SETTINGS);
}

POSTGRES_SERVER::~POSTGRES_SERVER()
{
    stop("immediate");
}

POSTGRES_SERVER& POSTGRES_SERVER::of_program()
{
    static POSTGRES_SERVER server;
    return server;
}

QString POSTGRES_SERVER::log() const
{
    QFile file(m_directory.path("server.log"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void POSTGRES_SERVER::stop(const char* how)
{
    if (m_process != nullptr)
        m_process->end(signal_of(how));
    m_process.reset();
}

void POSTGRES_SERVER::start(const QStringList& settings, const QStringList& environment)
{
    // A port that was free a moment ago may be another server's now.
    const int tries = m_port == 0 ? 5 : 1;
    for (int attempt = 0; attempt < tries; ++attempt) {
        if (tries > 1)
            m_port = free_tcp_port();
        if (start_once(settings, environment))
            return;
    }
    qFatal("PostgreSQL does not start: %s", qPrintable(log()));
}

bool POSTGRES_SERVER::start_once(const QStringList& settings, const QStringList& environment)
{
    const QString data = m_directory.path("data");
    const QString pid_file = data + "/postmaster.pid";
    // What a server that was killed has left says that it is ready.
    QFile::remove(pid_file);
    QStringList command = {postgres_program("postgres"), "-D", data};
    for (const QString& setting :
         QStringList{"port=" + QString::number(m_port), "unix_socket_directories=" + socket_directory()} + m_settings +
             settings)
        command += {"-c", setting};
    m_process = std::make_unique<SERVER_PROCESS>(command, m_directory.path("server.log"), SIGQUIT, environment);
    return wait_until_ready(*m_process, &says_ready, pid_file);
}

QSqlDatabase POSTGRES_SERVER::connect(const QString& name, const QString& schema) const
{
    return connect_to(*this, QLatin1String(DATABASE), name, schema);
}

QVariant POSTGRES_SERVER::run(const QString& statement, const QString& schema) const
{
    QVariant value;
    run_statement(*this, schema, statement, [&value](QSqlQuery& query) {
        if (query.next())
            value = query.value(0);
    });
    return value;
}

QStringList POSTGRES_SERVER::list(const QString& query, const QString& schema) const
{
    QStringList values;
    run_statement(*this, schema, query, [&values](QSqlQuery& result) {
        while (result.next())
            values.append(result.value(0).toString());
    });
    return values;
}
