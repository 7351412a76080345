// SPDX-License-Identifier: MIT

// A real PostgreSQL server for tests, in a directory of its own, ended with the test program. It listens on a Unix
// socket and on 127.0.0.1 with TLS, on a port that no other server has. It takes about a second to begin.
//
//     POSTGRES_SERVER& server = POSTGRES_SERVER::of_program();
//     server.run("CREATE ROLE reader LOGIN");
//     host=server.socket_directory() port=server.port() user=reader dbname=POSTGRES_SERVER::DATABASE
//
// Who comes is believed (trust), but for members of the role "secret": over TCP they need their password
// (scram-sha-256). What is written is not synced, unless the settings say fsync=on.
#pragma once

#include "server_process.h"

#include <QSqlDatabase>
#include <QVariant>

#include <memory>

class POSTGRES_SERVER
{
public:
    static constexpr char ADMIN[] = "admin"; // a superuser
    static constexpr char DATABASE[] = "flash";

    // Makes a server with `settings` ("name=value") and starts it.
    explicit POSTGRES_SERVER(const QStringList& settings = QStringList());
    // A standby of `primary`, which follows it from now on and takes no changes until it is promoted.
    static std::unique_ptr<POSTGRES_SERVER> standby_of(const POSTGRES_SERVER& primary);
    ~POSTGRES_SERVER();
    POSTGRES_SERVER(const POSTGRES_SERVER&) = delete;
    POSTGRES_SERVER& operator=(const POSTGRES_SERVER&) = delete;

    // The one that all tests of a program share; made by the first call.
    static POSTGRES_SERVER& of_program();

    QString socket_directory() const { return m_directory.path(); }
    int port() const { return m_port; }
    // Of this server's TLS: "ca.crt", "server.crt" (for localhost and 127.0.0.1, what it shows), "wrong.crt" (for
    // another host) and "foreign.crt" (of another authority), each with its ".key".
    QString certificate(const char* file) const { return m_directory.path(QLatin1String(file)); }
    // What PostgreSQL has logged so far.
    QString log() const;

    // "immediate" as a power failure, "fast" as an administrator does it, "smart" when nobody uses it any more.
    void stop(const char* how = "fast");
    // Starts it again, on the same port, with `settings` over those that it was made with; `environment` as
    // SERVER_PROCESS has it.
    void start(const QStringList& settings = QStringList(), const QStringList& environment = QStringList());
    bool is_running() { return m_process != nullptr && m_process->is_running(); }
    pid_t pid() const { return m_process->pid(); }

    // Runs SQL as the superuser, where names without a schema are those of `schema`, or else of "public"; the first
    // value of the first statement's first row, if there is one. The whole test program ends where that fails.
    QVariant run(const QString& statement, const QString& schema = QString()) const;
    // As run(), all rows of one column.
    QStringList list(const QString& query, const QString& schema = QString()) const;
    // A connection of the superuser; open.
    QSqlDatabase connect(const QString& name, const QString& schema = QString()) const;

private:
    POSTGRES_SERVER(const QStringList& settings, const POSTGRES_SERVER* primary);
    void copy_from(const POSTGRES_SERVER& primary);
    void make_cluster();
    void make_database();
    bool start_once(const QStringList& settings, const QStringList& environment);

    SERVER_DIRECTORY m_directory;
    QStringList m_settings;
    int m_port = 0;
    std::unique_ptr<SERVER_PROCESS> m_process;
};

// The whole path of a program of PostgreSQL, of the highest version that is installed.
QString postgres_program(const char* name);
