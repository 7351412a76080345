// SPDX-License-Identifier: MIT

// A connection to a SQLite file: its statements, and why one failed.
//
// A function that returns false has put the reason, as a sentence for the user, into last_error(), which stays until
// the next failure or clear_error().
#pragma once

#include <QString>
#include <QVariant>

#include <string>

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

class GFPDB_SQLITE_CONNECTION
{
public:
    enum class MODE
    {
        READ_ONLY,
        READ_WRITE,
    };

    // Not open yet. `path` is the file that the reasons name.
    explicit GFPDB_SQLITE_CONNECTION(const std::string& path);
    ~GFPDB_SQLITE_CONNECTION();
    GFPDB_SQLITE_CONNECTION(const GFPDB_SQLITE_CONNECTION&) = delete;
    GFPDB_SQLITE_CONNECTION& operator=(const GFPDB_SQLITE_CONNECTION&) = delete;

    const std::string& path() const { return m_path; }
    // `file` is path(), or becomes it when it is complete. It must exist.
    bool open(const std::string& file, MODE mode);
    void close();
    // False also when Qt has closed all connections, because the application object is gone.
    bool is_open() const;

    // `values` are what the question marks stand for, in their order.
    bool prepare(QSqlQuery& query, const std::string& statement, const QVariantList& values = {});
    bool run(const char* statement);
    bool run(QSqlQuery& query);

    bool fail(const std::string& error);
    bool fail(const QSqlError& error);
    const std::string& last_error() const { return m_last_error; }
    void clear_error() { m_last_error.clear(); }
    // True while the last failure of a statement was another program's lock.
    bool is_locked() const { return m_is_locked; }
    // Sets how long the next statement waits for another program's lock: not at all for two seconds after a wait in
    // vain, because a user action makes many calls.
    void limit_wait();
    // True when a statement has found that the file, which was opened to be written, cannot be written now. SQLite
    // stays with that until the file is opened again.
    bool is_stale() const { return m_is_stale; }

private:
    QString name() const;
    QSqlDatabase database() const;

    std::string m_path;
    int m_number;
    MODE m_mode = MODE::READ_ONLY;
    // How long to wait for a lock by the settings, and how long the connection waits now.
    int m_busy_timeout_ms = 0;
    int m_wait_ms = 0;
    bool m_is_locked = false;
    bool m_is_stale = false;
    std::string m_last_error;
};
