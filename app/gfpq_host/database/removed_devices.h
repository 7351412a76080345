// SPDX-License-Identifier: MIT

// Deleting devices, and taking that back. Knows no widget.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

class GFPDB_DATABASE;

// What is deleted stays in the history of the database; here is only known what was deleted last. GUI thread only.
class REMOVED_DEVICES
{
    Q_DECLARE_TR_FUNCTIONS(REMOVED_DEVICES)

public:
    // Hears how many devices are done, and says whether to go on.
    using GOES_ON = std::function<bool(int done)>;

    // Not owned, must outlive this.
    explicit REMOVED_DEVICES(GFPDB_DATABASE& database) : m_database(database) {}

    // Deletes these very states of stored devices, each for itself; the names of those that are deleted now. `problems`
    // has a sentence for each of the others: somebody else has changed or deleted it, or the database refuses. A
    // reason that came twice and does not name the device ends it: it would come for each that follows.
    QStringList remove(const std::vector<GFPDB_RECORD>& devices, const GOES_ON& goes_on, QStringList& problems);

    bool can_undo() const { return !m_steps.empty(); }
    // The names of what was deleted together last.
    QStringList last() const;
    // Brings back what was deleted together last: the devices as they are now. Those that cannot be brought back stay
    // to be tried again, unless the history does not have them any more; `problems` says why, as above.
    std::vector<GFPDB_RECORD> undo(const GOES_ON& goes_on, QStringList& problems);
    // The directory is another one.
    void forget() { m_steps.clear(); }

private:
    struct REMOVED
    {
        std::int64_t state = 0;
        GFPDB_RECORD device;
    };
    using STEP = std::vector<REMOVED>;

    bool is_gone(const REMOVED& removed) const;

    GFPDB_DATABASE& m_database;
    // The latest last; none is empty.
    std::vector<STEP> m_steps;
};
