// SPDX-License-Identifier: MIT
#include "database/listed_device.h"

#include "record_facts.h"

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_text.h"

#include <utility>

namespace {

// They stay the same while the program runs.
const std::vector<LISTED_DEVICE>& builtin_devices(GFPDB_DATABASE& database)
{
    static const std::vector<LISTED_DEVICE> DEVICES = [&database] {
        std::vector<LISTED_DEVICE> devices;
        for (GFPDB_RECORD& device : database.find_builtin({})) {
            const std::string address_bytes = record_facts(device).address_bytes;
            device.row.single_flows.clear();
            device.row.quad_flows.clear();
            devices.push_back({std::move(device), address_bytes});
        }
        return devices;
    }();
    return DEVICES;
}

} // namespace

std::vector<LISTED_DEVICE> list_devices(GFPDB_DATABASE& database)
{
    std::vector<LISTED_DEVICE> devices = builtin_devices(database);
    std::vector<GFPDB_RECORD> stored = database.find_stored({});
    devices.reserve(devices.size() + stored.size());
    for (GFPDB_RECORD& device : stored) {
        if (!device.is_template)
            devices.push_back({std::move(device), std::nullopt});
    }
    return devices;
}

bool is_same_device(const GFPDB_RECORD& left, const GFPDB_RECORD& right)
{
    return left.row.scheme == right.row.scheme && left.row.family == right.row.family &&
           (left.row.name == right.row.name || gfpdb_name_key(left.row.name) == gfpdb_name_key(right.row.name));
}

std::optional<GFPDB_RECORD> load_device(GFPDB_DATABASE& database, const GFPDB_RECORD& device)
{
    if (device.row.scheme >= 0)
        return database.load(device);
    GFPDB_SELECTION selection;
    selection.name = device.row.name;
    const std::vector<GFPDB_RECORD> found = database.find_builtin(selection);
    return found.empty() ? std::nullopt : std::optional<GFPDB_RECORD>(found.front());
}
