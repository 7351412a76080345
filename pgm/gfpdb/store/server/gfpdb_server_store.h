// SPDX-License-Identifier: MIT

// The store on a PostgreSQL server: the SQL of records, templates and the history. docs/database.md says what differs
// from the embedded one.
#pragma once

#include "store/gfpdb_record_place.h"
#include "store/gfpdb_seen.h"
#include "store/gfpdb_store.h"
#include "store/server/gfpdb_server_session.h"

#include <map>

class GFPDB_SERVER_STORE final : public GFPDB_STORE
{
public:
    // `directory` ends in "/".
    explicit GFPDB_SERVER_STORE(const std::string& directory) : m_session(directory) {}

    const std::string& get_directory() const override { return m_session.directory(); }
    void reload() override { m_session.reload(); }
    bool is_readable() override { return m_session.is_readable(); }
    bool is_writable() override { return m_session.is_writable(); }
    bool is_read_only() override { return m_session.is_read_only(); }
    bool can_be_changed() override;
    std::string get_problem() override { return m_session.problem(); }
    const std::string& get_last_error() const override { return m_session.last_error(); }
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
    bool read_all(const GFPDB_HEAR_STORED& hear) override;
    std::int64_t get_last_state() override;
    bool fill(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source, std::int64_t last_state) override;
    bool restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string* seen) override;
    std::optional<int> prune_history(const GFPDB_PRUNING& pruning) override;
    std::vector<GFPDB_MISPLACED> get_misplaced() override;
    std::optional<int> rebuild_keys() override;

private:
    using ROWS = GFPDB_SERVER_SESSION::ROWS;
    using RESULTS = GFPDB_SERVER_SESSION::RESULTS;
    using CHANGE = GFPDB_SERVER_SESSION::CHANGE;
    using PLACE = GFPDB_RECORD_PLACE;
    // What one transaction saves: the device, and what was found in its way.
    struct SAVING
    {
        const GFPDB_ROW& row;
        const GFPDB_TAKEN* taken;
        bool is_new_name;
        std::string* seen;
        // The revision that is stored when it has succeeded.
        std::string revision;
    };
    // A record whose key is not that of its name, and the key.
    struct KEYED
    {
        GFPDB_MISPLACED record;
        std::string key;
    };

    std::string from(const char* table) const { return " FROM " + m_session.in_schema() + table; }
    static std::string where(const PLACE& place);

    // gfpdb_server_store.cpp: reading.
    std::string question_of_names(int family, int scheme) const;
    std::string question_of_keys(int family, int scheme, const std::vector<std::string>& keys) const;
    std::string question_of_template_names() const;
    std::string question_of_used_values() const;
    std::string question_of(const PLACE& place) const;
    std::string question_of_any_device(const std::string& name) const;
    std::string question_of_history(const std::string& columns, const std::string& which) const;
    std::string question_of_last_change(const PLACE& place) const;
    std::vector<std::string> questions_after_change(const GFPDB_ROW* row) const;
    std::optional<GFPDB_ROW> find(const PLACE& place);
    std::vector<std::string> read_names(const std::string& question);
    std::vector<GFPDB_ROW> read_rows(const std::string& question);

    // gfpdb_server_store_change.cpp: what changes are made of.
    bool finds_none(const ROWS& rows, bool is_template, const std::string& name);
    bool check_different_names(const GFPDB_ROW& row);
    bool check_seen(const PLACE& place, std::string* seen, const ROWS& found, const ROWS& last_change);
    std::string drop(const PLACE& place, const char* reason, const std::string& change_id) const;
    std::string drop_all(bool is_template, const std::string& which, const char* reason,
                         const std::string& change_id) const;
    std::string insert(bool is_template, const GFPDB_ROW& row) const;
    std::string mark_taken(const GFPDB_TAKEN& taken, const char* reason, const std::string& change_id) const;
    std::string bring_back(const GFPDB_TAKEN& taken, bool is_kept, const std::string& change_id) const;
    std::string where_taken(const GFPDB_TAKEN& taken) const;
    std::string proof_of_change(const std::string& columns, const std::string& change_id) const;
    std::string proof_of_revision(const PLACE& place, const std::string& revision) const;
    std::string proof_of_return(const GFPDB_TAKEN& taken) const;
    bool decide_save(SAVING& saving, const std::string& change_id, std::string& statements);
    bool decide_template(const GFPDB_ROW& row, const ROWS& found, const std::string& change_id,
                         std::string& statements);
    std::optional<bool> save_at_once(SAVING& saving, const CHANGE& change, const std::string& change_id);
    bool put_back(const GFPDB_HISTORY_ENTRY& entry, const GFPDB_ROW& row, GFPDB_RESTORE how, std::string* seen,
                  const std::string& change_id, std::string& statements);

    // gfpdb_server_store_copy.cpp: whole databases.
    static GFPDB_HISTORY_ENTRY history_at(const ROWS& rows, int row);
    bool copy_all(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source);

    // gfpdb_server_store_import.cpp: storing many records.
    struct ROWS_TO_STORE
    {
        bool is_template;
        const std::vector<GFPDB_ROW>& rows;
        // The states that were seen, or null.
        const std::vector<std::string>* seen;
    };
    bool can_keep(const GFPDB_ROW& row);
    bool can_keep(const std::vector<GFPDB_ROW>& rows);
    bool store_rows(const ROWS_TO_STORE& rows, const std::function<bool(int)>& goes_on, int& done);
    bool clear_way(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end);
    bool check_way(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end, const ROWS& others,
                   const ROWS& former);
    bool refuse_changed(const PLACE& place, const std::string& seen, const GFPDB_FOUND& found);
    bool copy_rows(const ROWS_TO_STORE& rows, std::size_t begin, std::size_t end,
                   const std::function<bool(int)>& goes_on, int& done);

    // gfpdb_server_store_upkeep.cpp: keeping the history small and the keys right.
    bool find_prunable(const GFPDB_PRUNING& pruning, std::vector<std::string>& ids);
    std::string question_of_keyed() const;
    static std::vector<KEYED> misplaced_in(const ROWS& rows);
    std::string set_key(const KEYED& keyed, const std::string& from, const std::string& to) const;
    bool place(const KEYED& keyed, const std::string& parked, int& placed);
    bool rekey_history();

    GFPDB_SERVER_SESSION m_session;
    // What is asked whenever the list is shown.
    std::string m_names_question;
    // The device that was looked for last: checks of names precede its change.
    std::string m_device_question;
    // What was known last of used values for which schemes.
    std::map<std::vector<int>, GFPDB_USED_VALUES> m_used_values;
    // What was removed last, for a save that follows.
    std::optional<GFPDB_TAKEN> m_taken;
    GFPDB_ROW m_taken_row;
};
