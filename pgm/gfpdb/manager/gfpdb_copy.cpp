// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_copy.h"

#include "base/gfpdb_words.h"
#include "manager/gfpdb_custom_dir.h"
#include "model/gfpdb_field.h"
#include "store/gfpdb_store.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>
#include <vector>

namespace {

using DIGESTS = std::vector<QByteArray>;

// Everything of what is stored; texts have no zeros.
QByteArray digest_of(const GFPDB_HISTORY_ENTRY& entry)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const std::string& text) {
        hash.addData(text.data(), static_cast<int>(text.size()));
        hash.addData("", 1);
    };
    add(std::to_string(entry.id) + (entry.is_template ? " template" : " device"));
    for (const std::string* text : {&entry.reason, &entry.changed_at, &entry.changed_by, &entry.row.revision,
                                    &entry.row.saved_at, &entry.row.saved_by})
        add(*text);
    for (const GFPDB_FIELD& field : gfpdb_fields())
        add(field.text(entry.row));
    return hash.result();
}

// What is in `store` now; empty, with the reason as the store's last error, when it cannot be read.
DIGESTS digests_of(GFPDB_STORE& store)
{
    DIGESTS digests;
    const auto read = [&] {
        digests.clear();
        return store.read_all([&digests](const GFPDB_HISTORY_ENTRY& entry) {
            digests.push_back(digest_of(entry));
            return true;
        });
    };
    // A connection may be lost in between.
    const bool is_read = read() || read();
    std::sort(digests.begin(), digests.end());
    return is_read ? digests : DIGESTS();
}

void count(const GFPDB_HISTORY_ENTRY& entry, GFPDB_COPY& copy)
{
    ++(entry.id != 0 ? copy.states : entry.is_template ? copy.templates : copy.devices);
}

std::string problem_of(GFPDB_STORE& from, GFPDB_STORE& to)
{
    if (!from.is_readable())
        return from.get_problem();
    return to.is_writable() ? std::string() : to.get_problem();
}

// Both are read: what was put in is not yet what is there. Someone may have changed either since.
std::string difference(GFPDB_STORE& from, GFPDB_STORE& to, const DIGESTS& copied)
{
    const DIGESTS read = digests_of(to);
    if (read == copied)
        return std::string();
    if (!to.get_last_error().empty())
        return GFPDB_WORDS::say("The copy in %1 cannot be compared: %2", {to.get_directory(), to.get_last_error()});
    return GFPDB_WORDS::say("The copy in %1 is not the same as %2.", {to.get_directory(), from.get_directory()});
}

} // namespace

GFPDB_COPY gfpdb_copy_database(const std::string& from, const std::string& to,
                               const std::function<void(int done)>& progress)
{
    const std::unique_ptr<GFPDB_STORE> source = gfpdb_make_store(gfpdb_normalised_dir(from));
    const std::unique_ptr<GFPDB_STORE> target = gfpdb_make_store(gfpdb_normalised_dir(to));
    GFPDB_COPY copy;
    copy.problem = problem_of(*source, *target);
    if (!copy.problem.empty())
        return copy;
    DIGESTS copied;
    // A server may want it again, from the beginning.
    const auto read = [&](const GFPDB_HEAR_STORED& put) {
        copy = GFPDB_COPY();
        copied.clear();
        return source->read_all([&](const GFPDB_HISTORY_ENTRY& entry) {
            if (!put(entry))
                return false;
            count(entry, copy);
            copied.push_back(digest_of(entry));
            progress(static_cast<int>(copied.size()));
            return true;
        });
    };
    if (!target->fill(read, source->get_last_state())) {
        copy = GFPDB_COPY();
        copy.problem = source->get_last_error().empty() ? target->get_last_error() : source->get_last_error();
        return copy;
    }
    std::sort(copied.begin(), copied.end());
    copy.problem = copied.empty() ? GFPDB_WORDS::say("There is nothing to copy in %1.", {source->get_directory()})
                                  : difference(*source, *target, copied);
    return copy;
}
