// SPDX-License-Identifier: MIT
#include "dialog/host_offer.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QString>

#include <algorithm>
#include <bitset>
#include <iterator>
#include <utility>

namespace {

// The properties that have a row of the device form.
constexpr GFPDB_FLASH_PROPERTY FORM_PROPERTIES[] = {
    GFPDB_FLASH_NAME,
    GFPDB_FLASH_DEVICE_ID,
    GFPDB_FLASH_VOLTAGE,
    GFPDB_FLASH_DENSITY,
    GFPDB_FLASH_TOTAL_DIE,
    GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
    GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK,
    GFPDB_FLASH_FLOW_TEMPLATE,
};

// What a device form depends on: which properties the devices of a mode have, whether there can be devices at all, and
// whether they have flows to edit. Modes with the same form are of one kind.
struct FORM
{
    bool operator==(const FORM& other) const
    {
        return properties == other.properties && has_devices == other.has_devices && has_flows == other.has_flows;
    }

    std::bitset<std::size(FORM_PROPERTIES)> properties;
    bool has_devices = false;
    bool has_flows = false;
};

bool contains(const std::vector<int>& values, int value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

// The manager that goes with `scheme`, or null.
GFPDB_MGR* manager_for(int scheme)
{
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme));
    GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    if (manager)
        manager->set_config_scheme(scheme);
    return manager;
}

FORM form_of(int scheme)
{
    FORM form;
    const GFPDB_MGR* manager = manager_for(scheme);
    if (!manager)
        return form;
    for (std::size_t row = 0; row < form.properties.size(); ++row)
        form.properties[row] = manager->is_property_used(FORM_PROPERTIES[row]);
    form.has_devices = manager->can_add_flash();
    form.has_flows = manager->can_edit_flow();
    return form;
}

// All modes of the kind of `scheme`.
std::vector<int> modes_like(int scheme)
{
    const FORM form = form_of(scheme);
    std::vector<int> result;
    for (int other = 0; other < PGMIO_CONFIG_SCHEME_COUNT; ++other) {
        if (form_of(other) == form)
            result.push_back(other);
    }
    return result;
}

std::vector<int> those_among(const std::vector<int>& schemes, const std::vector<int>& allowed)
{
    std::vector<int> result;
    std::copy_if(schemes.begin(), schemes.end(), std::back_inserter(result),
                 [&allowed](int scheme) { return contains(allowed, scheme); });
    return result;
}

} // namespace

HOST_OFFER::HOST_OFFER(RESTRICTION restriction) : m_restriction(std::move(restriction)) {}

std::vector<int> HOST_OFFER::families() const
{
    std::vector<int> families;
    const GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    if (manager)
        manager->get_family_list(families);
    const auto is_refused = [this](int family) { return !m_restriction.empty() && m_restriction.count(family) == 0; };
    families.erase(std::remove_if(families.begin(), families.end(), is_refused), families.end());
    return families;
}

std::vector<int> HOST_OFFER::schemes(int family) const
{
    const auto restricted = m_restriction.find(family);
    if (restricted != m_restriction.end() && !restricted->second.empty())
        return restricted->second;
    std::vector<int> schemes;
    if (GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false)) {
        manager->set_device_family(family);
        manager->get_config_scheme_list(schemes);
    }
    return schemes;
}

std::vector<int> HOST_OFFER::schemes_with_flows(int family) const
{
    std::vector<int> offered = schemes(family);
    const auto has_none = [](int scheme) { return !form_of(scheme).has_flows; };
    offered.erase(std::remove_if(offered.begin(), offered.end(), has_none), offered.end());
    return offered;
}

std::vector<int> HOST_OFFER::families_with_flows() const
{
    std::vector<int> offered = families();
    const auto has_none = [this](int family) { return schemes_with_flows(family).empty(); };
    offered.erase(std::remove_if(offered.begin(), offered.end(), has_none), offered.end());
    return offered;
}

HOST_CHOICE HOST_OFFER::nearest(const HOST_CHOICE& wanted) const
{
    HOST_CHOICE choice = wanted;
    const std::vector<int> offered_families = families();
    if (!offered_families.empty() && !contains(offered_families, wanted.family))
        choice.family = offered_families.front();

    const std::vector<int> offered = schemes(choice.family);
    if (offered.empty() || contains(offered, wanted.config_scheme))
        return choice;
    const std::vector<int> alike = those_among(offered, modes_like(wanted.config_scheme));
    const auto with_devices =
        std::find_if(offered.begin(), offered.end(), [](int scheme) { return form_of(scheme).has_devices; });
    if (!alike.empty())
        choice.config_scheme = alike.front();
    else
        choice.config_scheme = with_devices != offered.end() ? *with_devices : offered.front();
    return choice;
}

HOST_CHOICE HOST_OFFER::choice_for(const GFPDB_RECORD& device, const HOST_CHOICE& now) const
{
    HOST_CHOICE choice = now;
    choice.device_name = QString::fromStdString(device.row.name).toLocal8Bit().toStdString();
    if (device.row.scheme >= 0) {
        choice.family = device.row.family;
        choice.config_scheme = device.row.scheme;
        return choice;
    }
    if (!contains(families_with_flows(), choice.family) && !families_with_flows().empty())
        choice.family = families_with_flows().front();
    const std::vector<int> serving = schemes_with_flows(choice.family);
    if (!serving.empty() && !contains(serving, choice.config_scheme))
        choice.config_scheme = serving.front();
    return choice;
}

bool HOST_OFFER::has_device(const HOST_CHOICE& choice) const
{
    GFPDB_MGR* manager = manager_for(choice.config_scheme);
    if (!manager || !GFPDB_HELPER::get_database_problem().empty())
        return true;
    manager->set_device_family(choice.family);
    return manager->is_builtin_flash(choice.device_name) || manager->is_custom_flash(choice.device_name);
}

RESTRICTION HOST_OFFER::for_opening(int scheme) const
{
    if (!m_restriction.empty())
        return m_restriction;
    const std::vector<int> kind = modes_like(scheme);
    RESTRICTION result;
    for (const int family : families()) {
        const std::vector<int> alike = those_among(schemes(family), kind);
        if (!alike.empty())
            result.emplace(family, alike);
    }
    return result;
}
