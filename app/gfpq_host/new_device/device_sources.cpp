// SPDX-License-Identifier: MIT
#include "new_device/device_sources.h"

#include "dialog/choice_combo.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_new_device.h"

#include <algorithm>

namespace {

GFPDB_DATABASE users_database()
{
    return GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir());
}

std::optional<GFPDB_RECORD> load(const GFPDB_RECORD& device, QString& problem)
{
    GFPDB_DATABASE database = users_database();
    std::optional<GFPDB_RECORD> loaded;
    if (device.row.scheme >= 0) {
        loaded = database.load(device);
    } else {
        GFPDB_SELECTION selection;
        selection.name = device.row.name;
        const std::vector<GFPDB_RECORD> found = database.find_builtin(selection);
        if (!found.empty())
            loaded = found.front();
    }
    problem = QString::fromStdString(database.get_last_error());
    if (!loaded && problem.isEmpty())
        problem = DEVICE_SOURCES::tr("The device \"%1\" does not exist.").arg(QString::fromStdString(device.row.name));
    return loaded;
}

} // namespace

// What is not to be shown is not copied.
DEVICE_SOURCES::DEVICE_SOURCES()
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        GFPDB_RECORD device;
        device.row.name = part.name;
        if (!part.properties_hidden && !part.flows_hidden)
            add(device);
    }
    for (const GFPDB_RECORD& device : users_database().find_stored({})) {
        if (!device.is_template)
            add(device);
    }
}

void DEVICE_SOURCES::add(const GFPDB_RECORD& device)
{
    m_devices.push_back(device);
    m_titles.append(device_title(device));
}

int DEVICE_SOURCES::find(const HOST_CHOICE& choice) const
{
    const std::string name = QString::fromLocal8Bit(choice.device_name.c_str()).toStdString();
    const auto is_chosen = [&](const GFPDB_RECORD& device) {
        const bool is_here = device.row.family == choice.family && device.row.scheme == choice.config_scheme;
        return device.row.name == name && (device.row.scheme < 0 || is_here);
    };
    const auto found = std::find_if(m_devices.begin(), m_devices.end(), is_chosen);
    return found == m_devices.end() ? -1 : static_cast<int>(found - m_devices.begin());
}

std::optional<GFPDB_RECORD> DEVICE_SOURCES::copy(int source, const GFPDB_ROW& place, QStringList& warnings,
                                                 QString& problem) const
{
    warnings.clear();
    const std::optional<GFPDB_RECORD> device = load(m_devices.at(static_cast<std::size_t>(source)), problem);
    if (!device)
        return std::nullopt;
    std::string text;
    std::vector<std::string> changes;
    std::optional<GFPDB_RECORD> copied = gfpdb_copy_of(*device, place.name, place.family, place.scheme, changes, text);
    for (const std::string& change : changes)
        warnings.append(QString::fromStdString(change));
    problem = QString::fromStdString(text);
    return copied;
}
