// SPDX-License-Identifier: MIT

// What a store of devices and templates promises, whatever keeps them: transactions, names, revisions, a history. The
// embedded one is a SQLite file in the database directory (store/sqlite); a directory may name a PostgreSQL server
// instead (store/server).
//
// Every public change is one transaction: it happened whole, or not at all, also when the process is killed in between;
// false leaves what is stored as it was and puts the reason into get_last_error(). What a change replaces or removes
// goes into the history in the same transaction, with its reason. Several programs may use one store: who finds it
// locked waits (GFPDB_SETTING_BUSY_TIMEOUT, 5 seconds if not set), then gives up; the calls of the next two seconds do
// not wait.
//
// A change can be told which state of the record was seen here: its revision, empty for no record. `seen`, where it is
// not null, is that; a change that finds another state is refused, with who stored that and when, and `seen` becomes
// what is stored now: the next attempt goes through. Null stands for no expectation.
//
// The store is opened lazily by the first call and made by the first change. What cannot be used stays as it is, and
// get_problem() says why. Reads follow what another program puts in its place, but the first change afterwards is
// refused, because the user has not seen yet what is there now.
//
// Texts are UTF-8 and are stored byte for byte; the directory is in the local 8-bit encoding. Throws nothing. GUI
// thread only.
#pragma once

#include "model/gfpdb_row.h"

#include "gfpdb/gfpdb_enums.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Why a state is in the history (GFPDB_HISTORY_ENTRY::reason).
constexpr char GFPDB_REASON_REPLACED[] = "replaced";
constexpr char GFPDB_REASON_DELETED[] = "deleted";
constexpr char GFPDB_REASON_PUT_BACK[] = "put back";

// A window does not wait while a page of a large history is searched for.
constexpr int GFPDB_STATES_AT_ONCE = 10000;

// The states that were seen of what GFPDB_STORE::save_all() stores, in the same order.
struct GFPDB_SEEN_STATES
{
    std::vector<std::string> devices;
    std::vector<std::string> templates;
};

// Hears of one thing that a store keeps (GFPDB_STORE::read_all()); false when it can take no more.
using GFPDB_HEAR_STORED = std::function<bool(const GFPDB_HISTORY_ENTRY&)>;

class GFPDB_STORE
{
public:
    virtual ~GFPDB_STORE() = default;
    GFPDB_STORE(const GFPDB_STORE&) = delete;
    GFPDB_STORE& operator=(const GFPDB_STORE&) = delete;

    virtual const std::string& get_directory() const = 0;
    // The next call opens the store again, and what it finds counts as seen by the user.
    virtual void reload() = 0;
    // True when the records can be read: also when nothing is stored yet, but can be.
    virtual bool is_readable() = 0;
    virtual bool is_writable() = 0;
    // True when the records can be read, but not changed.
    virtual bool is_read_only() = 0;
    // False, with the reason in get_last_error(), when a change would be refused now whatever it is.
    virtual bool can_be_changed() = 0;
    // What keeps the database from being read or written, as a sentence for the user; empty when nothing does.
    virtual std::string get_problem() = 0;
    // Why the last call failed; empty when it did not.
    virtual const std::string& get_last_error() const = 0;
    // Reads all that is stored and compares it with its indexes. False: get_last_error() says what is wrong.
    virtual bool check_integrity() = 0;

    // The names of the devices of (family, scheme), ordered by name without regard to case.
    virtual std::vector<std::string> get_device_names(int family, int scheme) = 0;
    // The names of the stored templates, ordered likewise.
    virtual std::vector<std::string> get_template_names() = 0;
    // The voltages and densities of the devices and templates of `schemes`. They are read once, and again when another
    // program has changed the database; what this program removed stays until then, or until the store is opened again.
    // While they cannot be read, those that are known stay.
    virtual GFPDB_USED_VALUES get_used_values(const std::vector<int>& schemes) = 0;
    // Adds those of a device that was read to what is known for `schemes`.
    virtual void note_used_values(const std::vector<int>& schemes, const std::string& voltage,
                                  const std::string& density) = 0;
    // The record, or none; names are compared without regard to case.
    virtual std::optional<GFPDB_ROW> find_device(int family, int scheme, const std::string& name) = 0;
    virtual std::optional<GFPDB_ROW> find_template(const std::string& template_name) = 0;
    // The name of the record as it is stored; empty when there is none.
    virtual std::string get_device_name(int family, int scheme, const std::string& name) = 0;
    virtual std::string get_template_name(const std::string& template_name) = 0;
    // The name, as it is stored, of a device of any family and scheme; empty when none has that name.
    virtual std::string get_any_device_name(const std::string& name) = 0;
    // Those of `keys` (gfpdb_name_key()) that are the keys of devices of (family, scheme), in no order.
    virtual std::vector<std::string> find_device_keys(int family, int scheme, const std::vector<std::string>& keys) = 0;
    // The revision of the record alone; empty when there is none.
    virtual std::string get_device_revision(int family, int scheme, const std::string& name) = 0;
    virtual std::string get_template_revision(const std::string& template_name) = 0;
    // False when the state of the device is known to be another one than `seen`; as for a change, which it precedes.
    virtual bool check_seen_device(int family, int scheme, const std::string& name, std::string& seen) = 0;
    // True when a device of any family and scheme has that name.
    virtual bool has_device(const std::string& name) = 0;

    // Stores `row` as the device of its family, scheme and name, and, when it has a template name, a copy of it as the
    // template of that name. A device of that name is replaced. Refused when the name is a stored template's, or the
    // template name is a device's or the template of another device. Gives the revision that is stored now: a former
    // one when that state is stored already, which changes nothing. None on failure.
    //
    // `taken` is what was removed to be replaced by `row`, or null: the history then says that it was replaced. When
    // `row` is the very state that was taken, all is as it was before the removal.
    //
    // With `is_new_name` a device of that name is not replaced: the save is refused.
    //
    // `seen` becomes the revision that is stored.
    virtual std::optional<std::string> save_device(const GFPDB_ROW& row, const GFPDB_TAKEN* taken = nullptr,
                                                   bool is_new_name = false, std::string* seen = nullptr) = 0;
    // True also when there is no such record, whatever was seen: then `seen` stays. It is empty when one was removed.
    // `taken` (may be null) hears what was removed, if anything was.
    virtual bool remove_device(int family, int scheme, const std::string& name,
                               std::optional<GFPDB_TAKEN>* taken = nullptr, std::string* seen = nullptr) = 0;
    // Makes what was removed the current record again, as it was; the history says so. Refused when its name is in use,
    // or when the database is another one now. get_last_error() then says where the record is kept.
    virtual bool undo_removal(const GFPDB_TAKEN& taken) = 0;
    virtual bool remove_template(const std::string& template_name, std::string* seen = nullptr) = 0;

    // The devices of all families and schemes, and all stored templates, without their flows: ordered by family, scheme
    // and name, and by template name.
    virtual std::vector<GFPDB_ROW> get_devices() = 0;
    virtual std::vector<GFPDB_ROW> get_templates() = 0;
    // Stores all `devices` and all `templates`, or none of them. What has the same name is replaced; a template name of
    // a device makes no template here. Refused when a device would have the name of a template. `goes_on` hears the
    // number of records that are done, and must not use the database; where it returns false nothing is stored. `seen`
    // (may be null) stays as it is.
    virtual bool save_all(const std::vector<GFPDB_ROW>& devices, const std::vector<GFPDB_ROW>& templates,
                          const std::function<bool(int)>& goes_on, const GFPDB_SEEN_STATES* seen = nullptr) = 0;

    // The states in the history, oldest first, without their flows: of records called `name`, of all when it is empty.
    virtual std::vector<GFPDB_HISTORY_ENTRY> get_history(const std::string& name = std::string()) = 0;
    // The newest `count` states that `filter` picks, of those whose numbers are below `before`. One call looks at
    // GFPDB_STATES_AT_ONCE states at most, so it may find fewer, or none, although more follow. Both are none on
    // failure.
    virtual GFPDB_HISTORY_PAGE get_history_page(const GFPDB_HISTORY_FILTER& filter, std::optional<std::int64_t> before,
                                                int count) = 0;
    // How many states there are: counted from an index, in time linear in their number. 0 on failure.
    virtual std::int64_t count_history() = 0;
    virtual std::optional<GFPDB_HISTORY_ENTRY> find_history(std::int64_t id) = 0;
    // Makes the state `id` the current record again, with a new revision, under `new_name` when that is not empty. The
    // history keeps it. When a record of its kind has the name, `how` decides; refused when one of the other kind has
    // it, or when a device and the template that was made from it would have the same name. `seen` is of the record
    // that is replaced.
    virtual bool restore(std::int64_t id, GFPDB_RESTORE how, const std::string& new_name,
                         std::string* seen = nullptr) = 0;

    // All that is stored, as it was at one time, with flows: the devices, the templates, then the states of the history
    // in the order of their numbers; a device or template has the number 0. False when that fails, or when `hear`
    // returns false, which ends it.
    virtual bool read_all(const GFPDB_HEAR_STORED& hear) = 0;
    // The highest number that a state of the history was ever given; 0 before the first.
    virtual std::int64_t get_last_state() = 0;
    // Stores what `source` tells the function that it is given, in the order of read_all(), as it is: with revisions,
    // numbers, names and times. Later states get numbers above `last_state`. Refused when anything is stored here, in
    // the history too; nothing is stored when `source` returns false.
    virtual bool fill(const std::function<bool(const GFPDB_HEAR_STORED& put)>& source, std::int64_t last_state) = 0;

    // Removes states from the history, all at once; their number, or none on failure.
    virtual std::optional<int> prune_history(const GFPDB_PRUNING& pruning) = 0;

    // Records that no search by name finds, because the key under which they are stored is not that of their name: the
    // Unicode tables by which names are compared have changed, or another program has written the file. Each with its
    // place, names and revision.
    virtual std::vector<GFPDB_MISPLACED> get_misplaced() = 0;
    // Stores them under the keys of their names, all at once; their number, or none on failure. Those whose name
    // another record has stay misplaced. The states of the history get the keys of their names too.
    virtual std::optional<int> rebuild_keys() = 0;

protected:
    GFPDB_STORE() = default;
};

// The store of the devices in `directory`, which ends in "/".
std::unique_ptr<GFPDB_STORE> gfpdb_make_store(const std::string& directory);
// False when another kind of store would be made for `directory` now: it names a server since, or does not any more.
bool gfpdb_is_store_of(const GFPDB_STORE& store, const std::string& directory);

// Hears how many records of how many are done while a store upgrades its database, which any call of it may do; none at
// first. Of all stores of the process.
std::function<void(int done, int total)>& gfpdb_upgrade_progress();
