// SPDX-License-Identifier: MIT

// All SQL of the flash database: one SQLite file in one database directory.
//
// Every public change is one transaction: it happened whole, or not at all, also when the process is killed in between;
// false leaves the file as it was and puts the reason into get_last_error(). What a change replaces or removes goes
// into the history in the same transaction. Several programs may use one directory: who finds the database locked waits
// (GFPDB_SETTING_BUSY_TIMEOUT, 5 seconds if not set), then gives up.
//
// The file is opened lazily by the first call and made by the first change. It is never overwritten: a file that is
// empty, damaged, of another program, altered by one or of a newer schema stays as it is, and get_problem() says so.
// Before every use the store looks whether the file of that name is still the one it has open: reads follow a file that
// was put in its place, but the first change afterwards is refused, because the user has not seen yet what is there
// now.
//
// Texts are UTF-8 and are stored byte for byte; the directory is in the local 8-bit encoding. Throws nothing. GUI
// thread only.
#pragma once

#include "model/gfpdb_row.h"

#include "gfpdb/gfpdb_enums.h"

#include <QStringList>
#include <QVariant>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

class GFPDB_STORE
{
public:
    // `directory` ends in "/".
    explicit GFPDB_STORE(const std::string& directory);
    ~GFPDB_STORE();
    GFPDB_STORE(const GFPDB_STORE&) = delete;
    GFPDB_STORE& operator=(const GFPDB_STORE&) = delete;

    const std::string& get_directory() const { return m_directory; }
    // The next call opens the file anew, and what it finds counts as seen by the user.
    void reload();
    // True when the records of the directory can be read: also when there is no file yet, but one can be made.
    bool is_readable();
    bool is_writable();
    // True when the records can be read, but not changed.
    bool is_read_only();
    // False, with the reason in get_last_error(), when a change would be refused now whatever it is.
    bool can_be_changed() { return prepare_write(); }
    // What keeps the database from being read or written, as a sentence for the user; empty when nothing does.
    std::string get_problem();
    // Why the last call failed; empty when it did not.
    const std::string& get_last_error() const { return m_last_error; }
    // Reads the whole file and compares it with its indexes. False: get_last_error() says what is wrong.
    bool check_integrity();

    // The names of the devices of (family, scheme), ordered by name without regard to case.
    std::vector<std::string> get_device_names(int family, int scheme);
    // The names of the stored templates, ordered likewise.
    std::vector<std::string> get_template_names();
    // The voltages and densities of the devices and templates of `schemes`. They are read once, and again when another
    // program has changed the database; what this program removed stays until then, or until the file is opened anew.
    // While they cannot be read, those that are known stay.
    GFPDB_USED_VALUES get_used_values(const std::vector<int>& schemes);
    // Adds those of a device that was read to what is known for `schemes`.
    void note_used_values(const std::vector<int>& schemes, const std::string& voltage, const std::string& density);
    // The record, or none; names are compared without regard to case.
    std::optional<GFPDB_ROW> find_device(int family, int scheme, const std::string& name);
    std::optional<GFPDB_ROW> find_template(const std::string& template_name);
    // The name of the record as it is stored; empty when there is none.
    std::string get_device_name(int family, int scheme, const std::string& name);
    std::string get_template_name(const std::string& template_name);
    // The name, as it is stored, of a device of any family and scheme; empty when none has that name.
    std::string get_any_device_name(const std::string& name);
    // Those of `keys` (gfpdb_name_key()) that are the keys of devices of (family, scheme), in no order.
    std::vector<std::string> find_device_keys(int family, int scheme, const std::vector<std::string>& keys);
    // The revision of the record alone; empty when there is none.
    std::string get_device_revision(int family, int scheme, const std::string& name);
    std::string get_template_revision(const std::string& template_name);
    // True when a device of any family and scheme has that name.
    bool has_device(const std::string& name);

    // Stores `row` as the device of its family, scheme and name, and, when it has a template name, a copy of it as the
    // template of that name. A device of that name is replaced. Refused when the name is a stored template's, or the
    // template name is a device's or the template of another device. Gives the revision that is stored now: a former
    // one when that state is stored already, which changes nothing. None on failure.
    //
    // `taken` is what was removed to be replaced by `row`, or null: the history then says that it was replaced. When
    // `row` is the very state that was taken, all is as it was before the removal.
    //
    // With `is_new_name` a device of that name is not replaced: the save is refused.
    std::optional<std::string> save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken = nullptr,
                                           bool is_new_name = false);
    // True also when there is no such record. `taken` (may be null) hears what was removed, if anything was.
    bool remove_device(int family, int scheme, const std::string& name, std::optional<GFPDB_TAKEN>* taken = nullptr);
    // Makes what was removed the current record again, as it was; the history says so. Refused when its name is in use,
    // or when the database is another one now. get_last_error() then says where the record is kept.
    bool undo_removal(const GFPDB_TAKEN& taken);
    bool remove_template(const std::string& template_name);

    // The devices of all families and schemes, and all stored templates, without their flows: ordered by family, scheme
    // and name, and by template name.
    std::vector<GFPDB_ROW> get_devices();
    std::vector<GFPDB_ROW> get_templates();
    // Stores all `devices` and all `templates`, or none of them. What has the same name is replaced; a template name of
    // a device makes no template here. Refused when a device would have the name of a template. `progress` hears the
    // number of records that are done; it must not use the database.
    bool save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                  const std::function<void(int)>& progress);

    // The states in the history, oldest first, without their flows.
    std::vector<GFPDB_HISTORY_ENTRY> get_history();
    std::optional<GFPDB_HISTORY_ENTRY> find_history(std::int64_t id);
    // Makes the state `id` the current record again, with a new revision, under `new_name` when that is not empty. The
    // history keeps it. When a record of its kind has the name, `how` decides; refused when one of the other kind has
    // it, or when a device and the template that was made from it would have the same name.
    bool restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name);

    // Removes states from the history, all at once; their number, or none on failure.
    std::optional<int> prune_history(const GFPDB_PRUNING& pruning);

    // Records that no search by name finds, because the key under which they are stored is not that of their name: the
    // Unicode tables by which names are compared have changed, or another program has written the file. Each with its
    // place, names and revision.
    std::vector<GFPDB_MISPLACED> get_misplaced();
    // Stores them under the keys of their names, all at once; their number, or none on failure. Those whose name
    // another record has stay misplaced.
    std::optional<int> rebuild_keys();

    // The name of the database file in its directory.
    static const char FILE_NAME[];
    static constexpr int SCHEMA_VERSION = 2;

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

    // gfpdb_store_file.cpp: the file, its schema, transactions.
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
    // `values` are what the question marks stand for, in their order.
    bool prepare(QSqlQuery& query, const char* statement, const QVariantList& values = {});
    bool run(const char* statement);
    bool run(QSqlQuery& query);

    // gfpdb_store_schema.cpp: what is in the file besides records.
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

    // gfpdb_store.cpp: the records.
    bool read_used_values(const std::vector<int>& schemes, GFPDB_USED_VALUES& values);
    void note_used_values(const GFPDB_ROW& row);
    void forget_used_values();
    bool start_read(QSqlQuery& query, const char* statement, const QVariantList& values = {});
    bool next_row(QSqlQuery& query);
    bool note_read_problem();
    std::vector<std::string> read_names(QSqlQuery& query);
    std::string read_text(const char* statement, const QVariantList& values);
    std::vector<GFPDB_ROW> read_rows(const char* statement);
    bool replace_device(const GFPDB_ROW& row);
    bool replace_template(const GFPDB_ROW& row);
    bool put_back_device(const GFPDB_ROW& row, GFPDB_RESTORE how);
    bool put_back_template(const GFPDB_ROW& row, GFPDB_RESTORE how);
    bool finds_none(QSqlQuery& query, const char* what, const std::string& name);
    bool look_up(const char* statement, const QVariantList& values, std::optional<GFPDB_ROW>& row);
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

    // gfpdb_store_apply.cpp: saving and removing one device.
    bool read_revision(GFPDB_TAKEN& taken);
    bool find_taken(const GFPDB_TAKEN& taken, std::optional<GFPDB_ROW>& row);
    bool save_over(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, std::string& revision);
    bool save_template(const GFPDB_ROW& row);
    bool insert_taken(const GFPDB_TAKEN& taken);
    bool mark_taken(const GFPDB_TAKEN& taken, const char* reason);
    bool forget_taken(const GFPDB_TAKEN& taken);

    // gfpdb_store_upkeep.cpp: keeping the history small and the keys right.
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
    // The last error was another program's lock; then an unusable database is not tried again before that time.
    bool m_is_locked = false;
    std::chrono::steady_clock::time_point m_locked_until;
    // What was wrong when the file was opened, and when it was last read.
    std::string m_problem;
    std::string m_read_problem;
    std::string m_last_error;
};
