// SPDX-License-Identifier: MIT

// The store in a SQLite file of the database directory. All SQL is here and in the sources of this class.
//
// The file is never overwritten: one that is empty, damaged, of another program, altered by one or of a newer schema
// stays as it is. Before every use the store looks whether the file of that name is still the one it has open.
#pragma once

#include "store/gfpdb_store.h"

#include <QStringList>
#include <QVariant>

#include <map>

#include <sys/types.h>

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

class GFPDB_SQLITE_STORE : public GFPDB_STORE
{
public:
    explicit GFPDB_SQLITE_STORE(const std::string& directory);
    ~GFPDB_SQLITE_STORE() override;
    GFPDB_SQLITE_STORE(const GFPDB_SQLITE_STORE&) = delete;
    GFPDB_SQLITE_STORE& operator=(const GFPDB_SQLITE_STORE&) = delete;

    const std::string& get_directory() const override { return m_directory; }
    void reload() override;
    bool is_readable() override;
    bool is_writable() override;
    bool is_read_only() override;
    bool can_be_changed() override { return prepare_write(); }
    std::string get_problem() override;
    const std::string& get_last_error() const override { return m_last_error; }
    bool check_integrity() override;
    std::vector<std::string> get_device_names(int family, int scheme) override;
    std::vector<std::string> get_template_names() override;
    GFPDB_USED_VALUES get_used_values(const std::vector<int>& schemes) override;
    void note_used_values(const std::vector<int>& schemes, const std::string& voltage,
                          const std::string& density) override;
    std::optional<GFPDB_ROW> find_device(int family, int scheme, const std::string& name) override;
    std::optional<GFPDB_ROW> find_template(const std::string& template_name) override;
    std::string get_device_name(int family, int scheme, const std::string& name) override;
    std::string get_template_name(const std::string& template_name) override;
    std::string get_any_device_name(const std::string& name) override;
    std::vector<std::string> find_device_keys(int family, int scheme, const std::vector<std::string>& keys) override;
    std::string get_device_revision(int family, int scheme, const std::string& name) override;
    std::string get_template_revision(const std::string& template_name) override;
    bool has_device(const std::string& name) override;
    std::optional<std::string> save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, bool is_new_name) override;
    bool remove_device(int family, int scheme, const std::string& name, std::optional<GFPDB_TAKEN>* taken) override;
    bool undo_removal(const GFPDB_TAKEN& taken) override;
    bool remove_template(const std::string& template_name) override;
    std::vector<GFPDB_ROW> get_devices() override;
    std::vector<GFPDB_ROW> get_templates() override;
    bool save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                  const std::function<void(int)>& progress) override;
    std::vector<GFPDB_HISTORY_ENTRY> get_history(const std::string& name) override;
    std::optional<GFPDB_HISTORY_ENTRY> find_history(std::int64_t id) override;
    bool restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name) override;
    std::optional<int> prune_history(const GFPDB_PRUNING& pruning) override;
    std::vector<GFPDB_MISPLACED> get_misplaced() override;
    std::optional<int> rebuild_keys() override;

    // The name of the database file in its directory.
    static const char FILE_NAME[];
    static constexpr int SCHEMA_VERSION = 3;

private:
    enum class STATE
    {
        CLOSED,    // not looked at yet
        UNUSABLE,  // m_problem says why
        NO_FILE,   // the first change makes the file
        READ_ONLY, // m_problem says why
        READ_WRITE,
    };
    // Which file stands behind a name.
    struct FILE_IDENTITY
    {
        dev_t device = 0;
        ino_t inode = 0;
        bool operator==(const FILE_IDENTITY& other) const { return device == other.device && inode == other.inode; }
    };
    using WORK = std::function<bool()>;

    // gfpdb_sqlite_file.cpp: the file, its schema, transactions.
    std::string file_path() const;
    QString connection_name() const;
    QSqlDatabase database() const;
    void open();
    void close();
    bool examine_directory();
    bool examine_file();
    void examine_missing_file(int error, const std::string& left);
    bool has_own_companions();
    bool has_own_journal(const std::string& path);
    bool connect(const std::string& path, const char* mode);
    bool is_whole_file();
    bool create_file();
    bool build_new_file(const std::string& path);
    bool fail_to_make(const std::string& why);
    bool is_same_file() const;
    void refresh();
    bool prepare_read();
    bool prepare_write();
    bool refuse_replaced_file();
    bool change(const WORK& work);
    bool run_transaction(const WORK& work);
    bool set_mark(int mark);
    std::optional<int> read_mark();
    bool is_stored(int mark, const std::string& error);
    bool is_stored_in_place();
    void set_problem(STATE state, const std::string& problem);
    bool fail(const std::string& error);
    bool fail(const QSqlError& error);
    void limit_wait();
    // `values` are what the question marks stand for, in their order.
    bool prepare(QSqlQuery& query, const std::string& statement, const QVariantList& values = {});
    bool run(const char* statement);
    bool run(QSqlQuery& query);

    // gfpdb_sqlite_schema.cpp: what is in the file besides records.
    std::optional<std::string> read_meta(const char* name);
    std::optional<QStringList> read_schema_rows();
    bool read_schema();
    bool check_schema();
    bool check_encoding();
    bool is_known_schema(const QStringList& rows, int version);
    std::optional<int> read_schema_count();
    bool remember_schema();
    bool is_same_database();
    bool upgrade();
    bool migrate();
    bool run_steps(int from);
    bool run_step(int from);
    bool run_all(const std::vector<const char*>& statements);
    bool convert_rows();
    bool convert_row(QSqlQuery& row, QSqlQuery& update, qlonglong number);

    // gfpdb_sqlite_store.cpp: the records.
    bool read_used_values(const std::vector<int>& schemes, GFPDB_USED_VALUES& values);
    void note_used_values(const GFPDB_ROW& row);
    void forget_used_values();
    bool start_read(QSqlQuery& query, const std::string& statement, const QVariantList& values = {});
    bool next_row(QSqlQuery& query);
    bool note_read_problem();
    std::vector<std::string> read_names(QSqlQuery& query);
    std::string read_text(const std::string& statement, const QVariantList& values);
    std::vector<GFPDB_ROW> read_rows(const std::string& statement);
    bool replace_device(const GFPDB_ROW& row);
    bool replace_template(const GFPDB_ROW& row);
    bool put_back_device(const GFPDB_ROW& row, GFPDB_RESTORE how);
    bool put_back_template(const GFPDB_ROW& row, GFPDB_RESTORE how);
    bool finds_none(QSqlQuery& query, const char* what, const std::string& name);
    std::string history_statement(const std::string& columns, const char* which) const;
    GFPDB_ROW full_row(const QSqlQuery& query, int first) const;
    bool look_up(const std::string& statement, const QVariantList& values, std::optional<GFPDB_ROW>& row);
    bool check_no_such_device(int family, int scheme, const std::string& name);
    bool check_free_names(const GFPDB_ROW& row);
    bool check_no_template(const std::string& name);
    bool check_no_device(const std::string& name);
    bool check_different_names(const GFPDB_ROW& row);
    bool insert_device(const GFPDB_ROW& row);
    bool insert_template(const GFPDB_ROW& row);
    bool drop_device(int family, int scheme, const std::string& name, const char* reason,
                     std::int64_t* history_id = nullptr);
    bool drop_template(const std::string& template_name, const char* reason);

    // gfpdb_sqlite_store_apply.cpp: saving and removing one device.
    bool read_revision(GFPDB_TAKEN& taken);
    bool find_taken(const GFPDB_TAKEN& taken, std::optional<GFPDB_ROW>& row);
    bool save_over(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, std::string& revision);
    bool save_template(const GFPDB_ROW& row);
    bool insert_taken(const GFPDB_TAKEN& taken);
    bool mark_taken(const GFPDB_TAKEN& taken, const char* reason);
    bool forget_taken(const GFPDB_TAKEN& taken);

    // gfpdb_sqlite_store_upkeep.cpp: keeping the history small and the keys right.
    bool is_stored(const GFPDB_HISTORY_ENTRY& entry);
    bool find_prunable(const GFPDB_PRUNING& pruning, std::vector<std::int64_t>& ids);
    bool note_last_state();
    bool remove_states(const std::vector<std::int64_t>& ids);
    bool read_misplaced(std::vector<GFPDB_MISPLACED>& misplaced);
    bool set_key(const GFPDB_MISPLACED& record, const std::string& key);
    bool place(const GFPDB_MISPLACED& record, int& placed);

    std::string m_directory;
    int m_connection;
    STATE m_state = STATE::CLOSED;
    // The file that is open, if one is.
    FILE_IDENTITY m_identity;
    std::string m_database_id;
    int m_schema_version = 0;
    // The count of the schema that was found to be a known one.
    std::optional<int> m_schema_count;
    // What is known of used values for which schemes, and SQLite's count of other programs' changes when it was read;
    // empty when it is to be read again.
    struct KNOWN_VALUES
    {
        GFPDB_USED_VALUES values;
        std::string foreign_changes;
    };
    std::map<std::vector<int>, KNOWN_VALUES> m_used_values;
    // The file that the user has seen is gone, and no change was refused for that yet.
    bool m_was_replaced = false;
    // The last error was another program's lock.
    bool m_is_locked = false;
    // How long to wait for one by the settings, and how long the connection waits now.
    int m_busy_timeout_ms = 0;
    int m_wait_ms = 0;
    // What was wrong when the file was opened, and when it was last read.
    std::string m_problem;
    std::string m_read_problem;
    std::string m_last_error;
};
