// SPDX-License-Identifier: MIT

// What is in a database file besides records: its tables, their version, what identifies the database.
//
// A file that others can write is believed only as far as its schema is, word for word, one that this library makes:
// then nothing runs but the library's own statements. A view in the place of a table could run for ever, a trigger
// could remove what is being saved.
//
// What returns false has put the reason into the connection's last_error(), which must be open. All statements are run
// in the caller's transaction.
#pragma once

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

class GFPDB_SQLITE_CONNECTION;
class QSqlQuery;

class GFPDB_SQLITE_SCHEMA
{
public:
    static constexpr int VERSION = 4;

    // `connection` outlives this object.
    explicit GFPDB_SQLITE_SCHEMA(GFPDB_SQLITE_CONNECTION& connection);

    // Fills a new file.
    bool make();
    // False when the schema is none of ours. SQLite forgets what it had read of it before. Every transaction begins
    // with this, so that nothing runs in it but what is ours.
    bool read();
    // Brings the file to the present version.
    bool migrate();

    // True when something has changed the schema since then; also by SQLite's count alone.
    bool is_changed();

    // As read() found them, and migrate() left them.
    int version() const { return m_version; }
    // A text that no other database has.
    const std::string& database_id() const { return m_database_id; }

private:
    std::optional<std::string> read_meta(const char* name);
    std::optional<QStringList> read_rows();
    bool check_tables();
    bool check_encoding();
    bool is_known(const QStringList& rows, int version);
    std::optional<int> read_count();
    bool run_steps(int from);
    bool run_step(int from);
    bool run_all(const std::vector<const char*>& statements);
    bool convert_rows();
    std::optional<int> count_rows();
    bool convert_row(QSqlQuery& row, QSqlQuery& update, qlonglong number, bool has_key);

    GFPDB_SQLITE_CONNECTION& m_connection;
    std::string m_database_id;
    int m_version = 0;
    // SQLite's count of changes of the schema. As long as it stays, SQLite goes on with what it has read.
    std::optional<int> m_count;
};
