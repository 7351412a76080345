// SPDX-License-Identifier: MIT

// The database file of a directory: finding, opening and making it, its identity, its transactions.
//
// The file is opened by the first use and made by the first change. It is never overwritten: one that is empty,
// damaged, of another program, altered by one or of a newer schema stays as it is, and problem() says so. Before every
// use it is looked whether the file of that name is still the one that is open: reads follow a file that was put in its
// place, but the first change afterwards is refused, because the user has not seen yet what is there now.
//
// What returns false has put the reason into the connection's last_error().
#pragma once

#include "store/sqlite/gfpdb_sqlite_connection.h"
#include "store/sqlite/gfpdb_sqlite_schema.h"

#include <functional>
#include <optional>
#include <string>

#include <sys/types.h>

class GFPDB_SQLITE_FILE
{
public:
    using WORK = std::function<bool()>;

    // The name of the file in its directory.
    static const char NAME[];

    // `directory` ends in "/".
    explicit GFPDB_SQLITE_FILE(const std::string& directory);

    const std::string& directory() const { return m_directory; }
    GFPDB_SQLITE_CONNECTION& connection() { return m_connection; }
    const GFPDB_SQLITE_CONNECTION& connection() const { return m_connection; }
    // The next use opens the file again, and what it finds counts as seen by the user.
    void reload();
    // See GFPDB_STORE.
    bool is_readable();
    bool is_writable();
    bool is_read_only();
    std::string problem();

    // False when there is nothing to read; that is not a failure where there is no file yet.
    bool prepare_read();
    // False when nothing can be changed.
    bool prepare_write();
    // After prepare_write(): true when the first change will make the file.
    bool is_missing() const { return m_state == STATE::NO_FILE; }
    // After prepare_write(): does `work` in one transaction, or nothing when that returns false.
    bool change(const WORK& work);
    // Keeps last_error(), of a read, as the problem until the file is opened again. Returns false.
    bool note_read_problem();
    // Forgets such a problem that was a lock, because a read has succeeded.
    void note_read();

    // How often a file was opened so far.
    int openings() const { return m_openings; }
    // Of the open file; empty and any number when none is open.
    std::string database_id() const { return m_connection.is_open() ? m_schema.database_id() : std::string(); }
    int schema_version() const { return m_schema.version(); }

private:
    enum class STATE
    {
        CLOSED,    // not looked at yet
        UNUSABLE,  // m_problem says why
        NO_FILE,   // the first change makes the file
        READ_ONLY, // m_problem says why
        READ_WRITE,
    };
    // What a transaction finds in the place of what was opened.
    enum class FOUND
    {
        THE_SAME,
        ANOTHER,    // another file or database
        UNREADABLE, // last_error() says why
    };
    // Which file a name stands for.
    struct FILE_IDENTITY
    {
        dev_t device = 0;
        ino_t inode = 0;
        bool operator==(const FILE_IDENTITY& other) const { return device == other.device && inode == other.inode; }
    };

    void refresh();
    bool is_open() const { return m_state == STATE::READ_ONLY || m_state == STATE::READ_WRITE; }
    void open();
    bool open_connection(bool is_writable);
    bool examine_directory();
    bool examine_file();
    void examine_missing_file(int error, const std::string& left);
    bool has_own_companions();
    bool is_whole_file();
    bool upgrade();
    bool is_same_file() const;
    bool refuse_replaced_file();
    void set_problem(STATE state, const std::string& problem);

    bool create_file();
    bool build_new_file(const std::string& path);
    bool fail_to_make(const std::string& why);

    FOUND look_again();
    bool do_work(const WORK& work);
    bool run_transaction(const WORK& work);
    bool set_mark(int mark);
    std::optional<int> read_mark();
    bool is_stored(int mark, const std::string& error);
    bool is_stored_in_place();

    std::string m_directory;
    std::string m_path;
    GFPDB_SQLITE_CONNECTION m_connection;
    GFPDB_SQLITE_SCHEMA m_schema;
    STATE m_state = STATE::CLOSED;
    int m_openings = 0;
    // The file that is open, if one is.
    FILE_IDENTITY m_identity;
    // The file that the user has seen is gone, and no change was refused for that yet.
    bool m_was_replaced = false;
    // In the middle of a transaction's work.
    bool m_is_in_change = false;
    // What was wrong when the file was opened, and when it was last read.
    std::string m_problem;
    std::string m_read_problem;
};
