// SPDX-License-Identifier: MIT
#include "drawer_mgr.h"

#include "dstr/dstr.h"

#include "gfpdb/gfpdb_helper.h"

#include <algorithm>

namespace {

std::string g_directory = "/drawer/";

std::vector<std::string>& fill(std::vector<std::string>& list, std::initializer_list<const char*> texts)
{
    list.assign(texts.begin(), texts.end());
    return list;
}

} // namespace

// The program's one manager. Made at the first call, and never replaced.
GFPDB_MGR* GFPDB_HELPER::get_active_flash_manager(bool /*reload*/)
{
    static DRAWER_MGR manager;
    return &manager;
}

bool GFPDB_HELPER::set_active_flash_family(PGMIO_CONFIG_SCHEME /*scheme*/)
{
    return true;
}

std::string GFPDB_HELPER::get_database_problem()
{
    return std::string();
}

std::string GFPDB_MGR::get_db_custom_dir()
{
    return g_directory;
}

void GFPDB_MGR::set_db_custom_dir(std::string directory)
{
    g_directory = std::move(directory);
}

// The drawer has no files, so any directory will do.
bool GFPDB_MGR::save_custom_dir_to_ini(std::string /*directory*/, bool /*create*/)
{
    return true;
}

DRAWER_MGR::DRAWER_MGR()
{
    add_builtin("EXAMPLE-64");
}

DRAWER_MGR::~DRAWER_MGR() = default;

DRAWER_FLASH* DRAWER_MGR::make_flash(const std::string& name)
{
    m_records.push_back(std::make_unique<DRAWER_FLASH>(name));
    return m_records.back().get();
}

// A device with one step: it is erased as a whole.
void DRAWER_MGR::add_builtin(const std::string& name)
{
    DRAWER_FLASH* const flash = make_flash(name);
    flash->set_string_property(GFPDB_FLASH_DEVICE_ID, "0x00 0x00 0x40");
    flash->set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V");
    flash->set_density("64Mb");
    flash->set_int_property(GFPDB_FLASH_TOTAL_DIE, 1);
    flash->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, "Plain");
    GFPDB_OPERATION* const erase = create_operation(GFPDB_OPERATION_ERASE);
    GFPDB_ACTION* const step = create_action(GFPDB_ACT_ERASE);
    step->set_property_value(GFPDB_ER_NAME, "chip erase");
    step->set_property_value(GFPDB_ER_COMMAND, "0xC7");
    erase->add_action(step);
    flash->set_operation(erase, false);
    m_devices.push_back(flash);
}

// One set of flows for all modes.
bool DRAWER_MGR::get_flow_variant() const
{
    return false;
}

GFPDB_FLASH* DRAWER_MGR::find_flash(const std::string& name, bool /*load_flows*/)
{
    const auto found = std::find_if(m_devices.begin(), m_devices.end(),
                                    [&name](const DRAWER_FLASH* flash) { return flash->get_name() == name; });
    return found == m_devices.end() ? nullptr : *found;
}

bool DRAWER_MGR::is_builtin_flash(const std::string& name) const
{
    std::vector<std::string> names;
    get_builtin_flash_names(names, m_family, m_scheme, 0);
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool DRAWER_MGR::is_custom_flash(const std::string& name) const
{
    std::vector<std::string> names;
    get_custom_flash_names(names, m_family, m_scheme, 0);
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool DRAWER_MGR::is_hidden_flash(const std::string& /*name*/, bool /*flows*/) const
{
    return false;
}

bool DRAWER_MGR::check_int_property(GFPDB_FLASH_PROPERTY /*property*/, int value, std::string& error) const
{
    if (value >= 0)
        return true;
    error = "The number must not be negative.";
    return false;
}

bool DRAWER_MGR::check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                       std::string& error) const
{
    if (property == GFPDB_FLASH_NAME && value.empty())
        error = "Give the device a name.";
    else if (property == GFPDB_FLASH_NAME && (is_builtin_flash(value) || is_custom_flash(value)))
        error = "A device called \"" + value + "\" already exists.";
    else
        return true;
    return false;
}

bool DRAWER_MGR::is_property_used(GFPDB_FLASH_PROPERTY property) const
{
    return property != GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK && property != GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK;
}

bool DRAWER_MGR::verify_string_property(GFPDB_FLASH_PROPERTY /*property*/, const std::string& /*value*/,
                                        std::string& /*error*/) const
{
    return true;
}

bool DRAWER_MGR::save_flash(GFPDB_FLASH* flash, const std::string& directory)
{
    const auto record =
        std::find_if(m_records.begin(), m_records.end(), [flash](const auto& known) { return known.get() == flash; });
    if (record == m_records.end())
        return false;
    delete_flash(flash->get_name(), directory);
    m_devices.push_back(record->get());
    return true;
}

bool DRAWER_MGR::delete_flash(const std::string& name, const std::string& /*directory*/)
{
    if (is_custom_flash(name))
        m_devices.erase(std::find(m_devices.begin(), m_devices.end(), find_flash(name, true)));
    return true;
}

// There is no history here.
bool DRAWER_MGR::restore_flash(std::int64_t /*history_id*/, const std::string& /*directory*/, GFPDB_RESTORE /*how*/,
                               const std::string& /*new_name*/)
{
    return false;
}

void DRAWER_MGR::get_family_list(std::vector<int>& families) const
{
    families = dstr_get_families();
}

std::vector<int>& DRAWER_MGR::get_config_scheme_list(std::vector<int>& schemes) const
{
    schemes = {PGMIO_ACTIVE_SERIAL, PGMIO_ACTIVE_SERIAL_X4};
    return schemes;
}

std::vector<std::string>& DRAWER_MGR::get_custom_flash_names(std::vector<std::string>& names, int /*family*/,
                                                             int /*scheme*/, int /*reserved*/) const
{
    names.clear();
    for (const DRAWER_FLASH* const flash : m_devices) {
        if (flash->is_user_defined())
            names.push_back(flash->get_name());
    }
    return names;
}

std::vector<std::string>& DRAWER_MGR::get_builtin_flash_names(std::vector<std::string>& names, int /*family*/,
                                                              int /*scheme*/, int /*reserved*/) const
{
    names.clear();
    for (const DRAWER_FLASH* const flash : m_devices) {
        if (!flash->is_user_defined())
            names.push_back(flash->get_name());
    }
    return names;
}

std::vector<std::string>& DRAWER_MGR::get_voltage_list(std::vector<std::string>& voltages) const
{
    return fill(voltages, {"1.8V", "3.3V"});
}

std::vector<std::string>& DRAWER_MGR::get_density_list(std::vector<std::string>& densities) const
{
    return fill(densities, {"16Mb", "32Mb", "64Mb", "128Mb"});
}

std::vector<std::string>& DRAWER_MGR::get_template_list(std::vector<std::string>& templates) const
{
    return fill(templates, {"Plain", "Plain 2", "Plain 3", "Plain 4", "Plain 5"});
}

std::vector<std::string>& DRAWER_MGR::get_user_template_list(std::vector<std::string>& templates) const
{
    return fill(templates, {});
}

bool DRAWER_MGR::is_template(const std::string& /*name*/) const
{
    return false;
}

GFPDB_FLASH* DRAWER_MGR::create_flash(const std::string& name)
{
    return name.empty() ? nullptr : make_flash(name);
}

GFPDB_ACTION* DRAWER_MGR::create_action(GFPDB_ACT_TYPE type)
{
    const bool is_type = type >= 0 && type < GFPDB_ACT_TYPE_COUNT;
    return is_type ? new DRAWER_ACTION(type) : nullptr;
}

GFPDB_OPERATION* DRAWER_MGR::create_operation(int kind)
{
    const bool is_kind = kind >= 0 && kind < GFPDB_OPERATION_COUNT;
    return is_kind ? new DRAWER_OPERATION(kind) : nullptr;
}

const std::vector<GFPDB_OPERATION*>* DRAWER_MGR::get_builtin_template_operations(int /*index*/, bool /*flow_variant*/)
{
    return nullptr;
}

const std::vector<GFPDB_OPERATION*>* DRAWER_MGR::get_template_operations(const std::string& /*name*/,
                                                                         bool /*flow_variant*/)
{
    return nullptr;
}

bool DRAWER_MGR::is_flow_editable(const GFPDB_FLASH* flash) const
{
    return flash == nullptr || flash->is_user_defined();
}

bool DRAWER_MGR::remove_template(const std::string& /*name*/)
{
    return false;
}
