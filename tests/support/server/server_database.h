// SPDX-License-Identifier: MIT

// The same tests on both stores: a program that ctest runs a second time with GFPDB_TEST_STORE=server has a schema on
// its server, a fresh one for each test function, where it has a file otherwise. Which functions then do not run,
// because they test what only a file has, says embedded_only.txt, with the reason.
#pragma once

#include "postgres_server.h"

#include <memory>
#include <string>

class QObject;

// True in that run. With GFPDB_TEST_STORE=pooled there is a pooler in front of the server.
bool tests_are_on_server();

// A schema of the program's server, and gfpdb-server.ini in a directory, which names it. Its user "tester" may change
// what is stored, not the schema.
class SERVER_DATABASE
{
public:
    static constexpr char USER[] = "tester";

    // `make_sql` gives the statements that make a schema of that name.
    SERVER_DATABASE(const std::string& directory, std::string (*make_sql)(const std::string& schema));
    ~SERVER_DATABASE();
    SERVER_DATABASE(const SERVER_DATABASE&) = delete;
    SERVER_DATABASE& operator=(const SERVER_DATABASE&) = delete;

    // The one that `directory` (ending in "/") names; null when it names none.
    static SERVER_DATABASE* find(const std::string& directory);

    const QString& schema() const { return m_schema; }
    // Writes the file again: hosts and ports as it has them, with commas between them, and more lines of it. The
    // library reads it when the directory is opened again.
    void name(const QString& hosts, const QString& ports, const QString& more = QString()) const;
    // Names 127.0.0.1 and a port, without TLS: a proxy that understands what is said.
    void go_through(int port) const;
    // Any program's statement; the superuser runs it. Its first value, or the values of its first column. The test
    // program ends where it fails.
    QVariant run(const QString& statement) const;
    QStringList list(const QString& query) const;
    // Another program keeps everybody from changing what is stored ("IMMEDIATE"), or from reading it too ("EXCLUSIVE").
    void lock(const QString& how);
    void unlock();

private:
    std::string m_directory;
    QString m_schema;
};

// The arguments of a test program, with the functions of `test` to be run.
QStringList arguments_for_store(const QObject& test, const QStringList& arguments);

// As QTEST_GUILESS_MAIN.
#define EITHER_STORE_TEST_MAIN(TEST_CLASS)                                                                             \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        QCoreApplication app(argc, argv);                                                                              \
        TEST_CLASS test;                                                                                               \
        return QTest::qExec(&test, arguments_for_store(test, app.arguments()));                                        \
    }
