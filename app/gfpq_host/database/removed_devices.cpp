// SPDX-License-Identifier: MIT
#include "database/removed_devices.h"

#include "gfpdb/gfpdb_database.h"

#include <utility>

namespace {

QString name_of(const GFPDB_RECORD& device)
{
    return QString::fromStdString(device.row.name);
}

// Notes why this device stays. True for a reason that came twice and does not name the device: it is one for all that
// follow, as a full disk or a server that is gone. Devices of one name are in several modes.
bool note_failure(const std::string& reason, const GFPDB_RECORD& device, QStringList& problems)
{
    const QString problem = QString::fromStdString(reason);
    const bool is_for_all = !problems.isEmpty() && problems.last() == problem &&
                            !problem.contains(QStringLiteral("\"%1\"").arg(name_of(device)), Qt::CaseInsensitive);
    problems.append(problem);
    return is_for_all;
}

} // namespace

QStringList REMOVED_DEVICES::remove(const std::vector<GFPDB_RECORD>& devices, const GOES_ON& goes_on,
                                    QStringList& problems)
{
    STEP step;
    QStringList names;
    bool is_ended = false;
    for (const GFPDB_RECORD& device : devices) {
        const int done = static_cast<int>(&device - devices.data());
        if (is_ended || !goes_on(done))
            break;
        const std::optional<std::int64_t> state = m_database.remove(device);
        if (!state)
            is_ended = note_failure(m_database.get_last_error(), device, problems);
        else if (*state == 0)
            problems.append(tr("The device \"%1\" was deleted by another program already.").arg(name_of(device)));
        else
            step.push_back({*state, device});
    }
    problems.removeDuplicates();
    for (const REMOVED& removed : step)
        names.append(name_of(removed.device));
    if (!step.empty())
        m_steps.push_back(std::move(step));
    return names;
}

QStringList REMOVED_DEVICES::last() const
{
    QStringList names;
    if (can_undo()) {
        for (const REMOVED& removed : m_steps.back())
            names.append(name_of(removed.device));
    }
    return names;
}

// Where the file was replaced by a backup copy of it, the number may be that of another state.
bool REMOVED_DEVICES::is_gone(const REMOVED& removed) const
{
    const std::optional<GFPDB_HISTORY_ENTRY> state = m_database.load_state(removed.state);
    return state ? state->row.revision != removed.device.row.revision : m_database.get_last_error().empty();
}

std::vector<GFPDB_RECORD> REMOVED_DEVICES::undo(const GOES_ON& goes_on, QStringList& problems)
{
    std::vector<GFPDB_RECORD> restored;
    if (!can_undo())
        return restored;
    const STEP step = std::exchange(m_steps.back(), STEP());
    m_steps.pop_back();
    STEP left;
    bool is_ended = false;
    for (const REMOVED& removed : step) {
        GFPDB_MGR& manager = m_database.get_manager();
        const int done = static_cast<int>(&removed - step.data());
        is_ended = is_ended || !goes_on(done);
        if (is_ended) {
            left.push_back(removed);
        } else if (is_gone(removed)) {
            problems.append(tr("The history does not have the device \"%1\" any more.").arg(name_of(removed.device)));
        } else if (manager.restore_flash(removed.state, std::string(), GFPDB_RESTORE_KEEP, std::string())) {
            restored.push_back(removed.device);
        } else {
            is_ended = note_failure(manager.get_last_error(), removed.device, problems);
            left.push_back(removed);
        }
    }
    problems.removeDuplicates();
    if (!left.empty())
        m_steps.push_back(std::move(left));
    return restored;
}
