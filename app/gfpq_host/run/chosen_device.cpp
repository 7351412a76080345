// SPDX-License-Identifier: MIT
#include "run/chosen_device.h"

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "gfpdb/gfpdb_text.h"
#include "gfpe/gfpe_detect.h"

#include <QByteArray>

#include <algorithm>

namespace {

GFPDB_DATABASE users_database()
{
    return GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir());
}

// The record of that name, built in or stored, without the stored one's flows.
std::optional<GFPDB_RECORD> find_record(GFPDB_DATABASE& database, const HOST_CHOICE& choice)
{
    GFPDB_SELECTION selection;
    selection.name = choice.device_name;
    const std::vector<GFPDB_RECORD> builtin = database.find_builtin(selection);
    if (!builtin.empty())
        return builtin.front();
    selection.family = choice.family;
    selection.scheme = choice.config_scheme;
    for (const GFPDB_RECORD& stored : database.find_stored(selection)) {
        if (!stored.is_template)
            return database.load(stored);
    }
    return std::nullopt;
}

} // namespace

std::optional<GFPDB_RECORD> find_chosen_device(const HOST_CHOICE& choice, QString& problem)
{
    if (choice.device_name.empty())
        return std::nullopt;
    GFPDB_DATABASE database = users_database();
    std::optional<GFPDB_RECORD> record = find_record(database, choice);
    if (!record)
        problem = QString::fromStdString(database.get_last_error());
    return record;
}

bool flow_variant_of(int config_scheme)
{
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(config_scheme));
    GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    if (!manager)
        return false;
    manager->set_config_scheme(config_scheme);
    return manager->get_flow_variant();
}

std::vector<GFPDB_RECORD> find_devices_with_id(const std::vector<std::uint8_t>& id)
{
    GFPDB_DATABASE database = users_database();
    return gfpe_find_devices(database, id);
}

QString id_text(const std::vector<std::uint8_t>& id)
{
    std::size_t length = 1;
    while (length < id.size() && !std::equal(id.begin() + static_cast<std::ptrdiff_t>(length), id.end(), id.begin()))
        ++length;
    const QByteArray bytes(reinterpret_cast<const char*>(id.data()), static_cast<int>(std::min(length, id.size())));
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}
