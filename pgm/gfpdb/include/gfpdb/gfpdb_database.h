// SPDX-License-Identifier: MIT

// A database directory as a whole, for tools: the records of all families and schemes, their history, imports.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_mgr.h"
#include "gfpdb/gfpdb_record.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class GFPDB_IMPORT_PLAN;

// Which records are meant.
struct GFPDB_SELECTION
{
    // Empty for all; compared as the library compares names.
    std::string name;
    std::optional<int> family;
    std::optional<int> scheme;
};

// Every change is one transaction. When a call fails, get_last_error() says why. Texts are UTF-8. GUI thread only. The
// directory is the one that the manager has opened last, also when that was somebody else's doing.
class GFPDB_EXPORT GFPDB_DATABASE
{
public:
    // Opens `directory` (local 8-bit), which becomes the manager's custom directory; empty for the user's own.
    explicit GFPDB_DATABASE(const std::string& directory);

    // What keeps the catalogue of built-in devices from being used, as a sentence; empty when nothing does.
    static std::string get_catalogue_problem();
    // Who hears how many records of how many are done while a database of an older version is upgraded, which its first
    // use does; an empty function for nobody.
    static void set_upgrade_progress(std::function<void(int done, int total)> progress);

    // From now on this program only looks: it upgrades and changes no database, waits for no lock, and for a server for
    // two seconds at most. What cannot be read so is not found.
    static void only_look();

    const std::string& get_directory() const;
    // Checks values and restores states in the directory.
    GFPDB_MGR& get_manager() { return m_manager; }
    // What keeps the directory from being read or changed, as a sentence; empty when nothing does.
    std::string get_read_problem();
    std::string get_write_problem();
    // Why the last call failed; empty when it did not.
    const std::string& get_last_error() const;

    // The devices of the directory, then its stored templates, without their flows. Templates have no family and scheme
    // to be selected by: they serve all.
    std::vector<GFPDB_RECORD> find_stored(const GFPDB_SELECTION& selection);
    // The built-in device of that name, or all of them; with flows.
    std::vector<GFPDB_RECORD> find_builtin(const GFPDB_SELECTION& selection);
    // Records that load() does not find, because their key in the database is not that of their name.
    std::vector<GFPDB_RECORD> find_misplaced(const GFPDB_SELECTION& selection);
    // Stores them under the keys of their names. Those whose name another record has stay misplaced.
    bool rebuild_keys();
    // The record with its flows; none when it is gone, or cannot be read.
    std::optional<GFPDB_RECORD> load(const GFPDB_RECORD& record);
    // Removes that very state of the device or stored template (its revision counts). Its number in the history; 0 when
    // the record was gone already. None on failure, also when someone else has changed the record since:
    // get_last_error() says who and when.
    std::optional<std::int64_t> remove(const GFPDB_RECORD& record);
    // True when a stored template has the name of the device `record`, or a device that of the template `record`.
    bool is_name_of_other_kind(const GFPDB_RECORD& record);
    // Reads the whole file and compares it with its indexes.
    bool check_integrity();

    // Stores the records of the plan, all or none. Refused when someone else has changed one of them since the plan was
    // made: make another plan then. `goes_on` hears the number of records that are done; where it returns false nothing
    // is stored. Neither it nor what it lets run may use the database.
    bool import(const GFPDB_IMPORT_PLAN& plan, const std::function<bool(int done)>& goes_on);

    // The states in the history, oldest first, without their flows; and one of them, with its flows.
    std::vector<GFPDB_HISTORY_ENTRY> find_history(const GFPDB_SELECTION& selection);
    std::optional<GFPDB_HISTORY_ENTRY> load_state(std::int64_t id);
    // The newest `count` states that `filter` picks, of those whose numbers are below `before`. One call looks at a
    // part of a large history, so it may find fewer, or none, although more follow.
    GFPDB_HISTORY_PAGE find_history_page(const GFPDB_HISTORY_FILTER& filter, std::optional<std::int64_t> before,
                                         int count);
    // How many states the history has; a million are counted within about 50 ms.
    std::int64_t count_history();
    // As GFPDB_MGR::restore_flash(), for a user who was shown the record that is replaced: refused when its revision is
    // not `seen` (empty for no record), which then becomes the one that is stored. The manager has the reason.
    bool restore_state(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name, std::string& seen);
    // Removes states of the selected records; their number, or none on failure.
    std::optional<int> prune_history(const GFPDB_SELECTION& selection, GFPDB_PRUNING pruning);

private:
    GFPDB_MGR& m_manager;
};
