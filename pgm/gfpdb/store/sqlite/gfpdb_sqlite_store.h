// SPDX-License-Identifier: MIT

// The store in a SQLite file of the database directory: the SQL of records, templates and the history.
#pragma once

#include "store/gfpdb_record_place.h"
#include "store/gfpdb_seen.h"
#include "store/gfpdb_store.h"
#include "store/sqlite/gfpdb_sqlite_file.h"
#include "store/sqlite/gfpdb_sqlite_sql.h"

#include <QVariant>

#include <map>

class QSqlQuery;

class GFPDB_SQLITE_STORE final : public GFPDB_STORE
{
public:
    // `directory` ends in "/".
    explicit GFPDB_SQLITE_STORE(const std::string& directory) : m_file(directory) {}

    const std::string& get_directory() const override { return m_file.directory(); }
    void reload() override { m_file.reload(); }
    bool is_readable() override { return m_file.is_readable(); }
    bool is_writable() override { return m_file.is_writable(); }
    bool is_read_only() override { return m_file.is_read_only(); }
    bool can_be_changed() override { return m_file.prepare_write(); }
    std::string get_problem() override { return m_file.problem(); }
    const std::string& get_last_error() const override { return m_file.connection().last_error(); }
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
    bool check_seen_device(int family, int scheme, const std::string& name, std::string& seen) override;
    bool has_device(const std::string& name) override;
    std::optional<std::string> save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, bool is_new_name,
                                           std::string* seen) override;
    bool remove_device(int family, int scheme, const std::string& name, std::optional<GFPDB_TAKEN>* taken,
                       std::string* seen) override;
    bool undo_removal(const GFPDB_TAKEN& taken) override;
    bool remove_template(const std::string& template_name, std::string* seen) override;
    std::vector<GFPDB_ROW> get_devices() override;
    std::vector<GFPDB_ROW> get_templates() override;
    bool save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                  const std::function<bool(int)>& goes_on, const GFPDB_SEEN_STATES* seen) override;
    std::vector<GFPDB_HISTORY_ENTRY> get_history(const std::string& name) override;
    GFPDB_HISTORY_PAGE get_history_page(const GFPDB_HISTORY_FILTER& filter, std::optional<std::int64_t> before,
                                        int count) override;
    std::int64_t count_history() override;
    std::optional<GFPDB_HISTORY_ENTRY> find_history(std::int64_t id) override;
    bool restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string* seen) override;
    bool read_all(const GFPDB_HEAR_STORED& hear) override;
    std::int64_t get_last_state() override;
    bool fill(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source, std::int64_t last_state) override;
    std::optional<int> prune_history(const GFPDB_PRUNING& pruning) override;
    std::vector<GFPDB_MISPLACED> get_misplaced() override;
    std::optional<int> rebuild_keys() override;

private:
    using PLACE = GFPDB_RECORD_PLACE;

    bool prepare(QSqlQuery& query, const std::string& statement, const QVariantList& values = {})
    {
        return m_file.connection().prepare(query, statement, values);
    }
    bool run(const char* statement) { return m_file.connection().run(statement); }
    bool run(QSqlQuery& query) { return m_file.connection().run(query); }
    bool fail(const std::string& error) { return m_file.connection().fail(error); }

    // gfpdb_sqlite_store.cpp: the records.
    bool read_used_values(const std::vector<int>& schemes, GFPDB_USED_VALUES& values);
    void note_used_values(const GFPDB_ROW& row);
    void forget_used_values();
    // What is selected of a record of the open file, see GFPDB_SQL.
    std::string scalars() const { return GFPDB_SQL::scalars_read(m_file.schema_version()); }
    std::string all() const { return GFPDB_SQL::all_read(m_file.schema_version()); }
    bool start_read(QSqlQuery& query, const std::string& statement, const QVariantList& values = {});
    bool go_on_reading(QSqlQuery& query, const std::string& statement, const QVariantList& values = {});
    bool next_row(QSqlQuery& query);
    std::vector<std::string> read_names(QSqlQuery& query);
    std::string read_text(const std::string& statement, const QVariantList& values);
    std::vector<GFPDB_ROW> read_rows(const std::string& from);
    std::optional<GFPDB_ROW> find(const PLACE& place);
    bool replace(bool is_template, const GFPDB_ROW& row, const std::string* seen);
    bool put_back(bool is_template, const GFPDB_ROW& row, GFPDB_RESTORE how, std::string* seen);
    bool finds_none(QSqlQuery& query, bool is_template, const std::string& name);
    GFPDB_ROW full_row(const QSqlQuery& query, int first) const;
    bool look_up(const std::string& from, const QVariantList& values, std::optional<GFPDB_ROW>& row);
    bool check_free(const PLACE& place);
    bool check_free_names(const GFPDB_ROW& row);
    bool check_no_other_kind(const PLACE& place);
    bool check_different_names(const GFPDB_ROW& row);
    bool insert(bool is_template, const GFPDB_ROW& row);
    bool drop(const PLACE& place, const char* reason, std::int64_t* history_id = nullptr);

    // gfpdb_sqlite_store_history.cpp: reading the history.
    std::string history_statement(const std::string& columns, const char* which) const;
    GFPDB_HISTORY_ENTRY history_at(const QSqlQuery& query) const;

    // gfpdb_sqlite_store_seen.cpp: what was seen of a record against what is stored.
    bool find_state(const PLACE& place, GFPDB_FOUND& found);
    bool find_last_change(const PLACE& place, GFPDB_FOUND& found);
    bool check_seen(const PLACE& place, std::string& seen, const GFPDB_FOUND& found);
    bool check_seen(const PLACE& place, std::string* seen);
    bool check_seen_to_remove(const PLACE& place, std::string* seen);

    // gfpdb_sqlite_store_apply.cpp: saving and removing one device.
    bool read_revision(GFPDB_TAKEN& taken);
    bool find_taken(const GFPDB_TAKEN& taken, std::optional<GFPDB_ROW>& row);
    bool save_over(const GFPDB_ROW& row, const GFPDB_TAKEN* taken, std::string& revision);
    bool save_template(const GFPDB_ROW& row);
    bool insert_taken(const GFPDB_TAKEN& taken);
    bool mark_taken(const GFPDB_TAKEN& taken, const char* reason);
    bool forget_taken(const GFPDB_TAKEN& taken);

    // gfpdb_sqlite_store_copy.cpp: all that is stored, out and in.
    bool read_table(const char* table, bool is_template, const GFPDB_HEAR_STORED& hear);
    bool read_states(const GFPDB_HEAR_STORED& hear);
    bool check_empty();
    bool put(QSqlQuery& query, const QVariantList& values);
    bool note_last_state(std::int64_t number);

    // gfpdb_sqlite_store_upkeep.cpp: keeping the history small and the keys right.
    bool is_stored(const GFPDB_HISTORY_ENTRY& entry);
    bool find_prunable(const GFPDB_PRUNING& pruning, std::vector<std::int64_t>& ids);
    bool note_last_state();
    bool remove_states(const std::vector<std::int64_t>& ids);
    bool read_misplaced(std::vector<GFPDB_MISPLACED>& misplaced);
    bool rekey_history();
    bool set_key(const GFPDB_MISPLACED& record, const std::string& key);
    bool place(const GFPDB_MISPLACED& record, int& placed);

    GFPDB_SQLITE_FILE m_file;
    // What is known of used values for which schemes, and which opening of the file and which count of other programs'
    // changes that was read at; empty when it is to be read again.
    struct KNOWN_VALUES
    {
        GFPDB_USED_VALUES values;
        std::string read_at;
    };
    std::map<std::vector<int>, KNOWN_VALUES> m_used_values;
};
