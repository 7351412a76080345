// SPDX-License-Identifier: MIT

// The recording manager, its statics and the helper.
#include "gfpdb_double.h"

#include <algorithm>

namespace {

void record(const MGR_DOUBLE& manager, const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(manager.label, QLatin1String(function), arguments);
}

void record_static(const char* object, const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(QLatin1String(object), QLatin1String(function), arguments);
}

QString label_of(const GFPDB_FLASH* flash)
{
    const auto* known = dynamic_cast<const FLASH_DOUBLE*>(flash);
    return known == nullptr ? QStringLiteral("null") : known->label();
}

void delete_all(const std::vector<GFPDB_OPERATION*>& operations)
{
    for (GFPDB_OPERATION* operation : operations)
        delete operation;
}

QStringList with_error(QStringList arguments, const std::string& error)
{
    if (!error.empty())
        arguments.append(QStringLiteral("error was ") + log_text(error));
    return arguments;
}

// Appends, as a library may that leaves clearing to its caller: whoever asks twice with one list shows it.
template <typename LIST>
LIST& filled(LIST& out, const LIST& answer)
{
    out.insert(out.end(), answer.begin(), answer.end());
    return out;
}

} // namespace

MGR_DOUBLE::MGR_DOUBLE(QString manager_label)
    : label(std::move(manager_label)), families{5, 3, 9, 70, 1, 72}, schemes{13, 7, 10, 23, 25},
      voltages{"1.8 V", "2.5 V", "3.3 V"}, densities{"16 Mb", "128 Mb", "1 Gb"}, templates{"Built-in A", "Built-in B",
                                                                                           "Built-in C", "Built-in D",
                                                                                           "Built-in E"}
{}

MGR_DOUBLE::~MGR_DOUBLE()
{
    for (const auto& entry : builtin_template_operations)
        delete_all(entry.second);
    for (const auto& entry : template_operations)
        delete_all(entry.second);
}

FLASH_DOUBLE& MGR_DOUBLE::add_record(const std::string& name)
{
    records.push_back(std::make_unique<FLASH_DOUBLE>(QStringLiteral("flash"), name));
    flashes[name] = records.back().get();
    return *records.back();
}

FLASH_DOUBLE& MGR_DOUBLE::add_custom(const std::string& name)
{
    custom_names.push_back(name);
    FLASH_DOUBLE& flash = add_record(name);
    flash.db_dir = "/db/of/" + name + "/";
    return flash;
}

FLASH_DOUBLE& MGR_DOUBLE::add_builtin(const std::string& name)
{
    builtin_names.push_back(name);
    FLASH_DOUBLE& flash = add_record(name);
    flash.user_defined = false;
    return flash;
}

void MGR_DOUBLE::refuse(int property, const std::string& error)
{
    refused_properties[property] = error;
}

void MGR_DOUBLE::refuse(int property, const std::string& value, const std::string& error)
{
    refused_values[{property, value}] = error;
}

bool MGR_DOUBLE::is_accepted(int property, const std::string& value, std::string& error) const
{
    const auto of_value = refused_values.find({property, value});
    const auto of_property = refused_properties.find(property);
    if (of_value != refused_values.end())
        error = of_value->second;
    else if (of_property != refused_properties.end())
        error = of_property->second;
    else
        return true;
    return false;
}

bool MGR_DOUBLE::get_flow_variant() const
{
    record(*this, "get_flow_variant");
    return flow_variant;
}

int MGR_DOUBLE::get_device_family() const
{
    record(*this, "get_device_family");
    return m_family;
}

void MGR_DOUBLE::set_device_family(int new_family)
{
    record(*this, "set_device_family", {log_int(new_family)});
    m_family = new_family;
}

int MGR_DOUBLE::get_config_scheme() const
{
    record(*this, "get_config_scheme");
    return m_scheme;
}

void MGR_DOUBLE::set_config_scheme(int new_scheme)
{
    record(*this, "set_config_scheme", {log_int(new_scheme)});
    m_scheme = new_scheme;
}

GFPDB_FLASH* MGR_DOUBLE::find_flash(const std::string& name, bool load_flows)
{
    record(*this, "find_flash", {log_text(name), log_bool(load_flows)});
    const auto found = flashes.find(name);
    return found == flashes.end() ? nullptr : found->second;
}

bool MGR_DOUBLE::is_builtin_flash(const std::string& name) const
{
    record(*this, "is_builtin_flash", {log_text(name)});
    return std::find(builtin_names.begin(), builtin_names.end(), name) != builtin_names.end();
}

bool MGR_DOUBLE::is_custom_flash(const std::string& name) const
{
    record(*this, "is_custom_flash", {log_text(name)});
    return std::find(custom_names.begin(), custom_names.end(), name) != custom_names.end();
}

std::string MGR_DOUBLE::get_last_error() const
{
    record(*this, "get_last_error");
    return last_error;
}

bool MGR_DOUBLE::is_hidden_flash(const std::string& name, bool flows) const
{
    record(*this, "is_hidden_flash", {log_text(name), log_bool(flows)});
    return (flows ? hidden_flows : hidden_properties).count(name) != 0;
}

bool MGR_DOUBLE::can_add_flash() const
{
    record(*this, "can_add_flash");
    return add_allowed && schemes_without_devices.count(m_scheme) == 0;
}

bool MGR_DOUBLE::can_edit_flow() const
{
    record(*this, "can_edit_flow");
    return flow_edit_allowed && schemes_without_flows.count(m_scheme) == 0;
}

bool MGR_DOUBLE::is_writable() const
{
    record(*this, "is_writable");
    return true;
}

bool MGR_DOUBLE::check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const
{
    record(*this, "check_int_property", with_error({log_int(property), log_int(value)}, error));
    return is_accepted(property, std::to_string(value), error);
}

bool MGR_DOUBLE::check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                       std::string& error) const
{
    record(*this, "check_string_property", with_error({log_int(property), log_text(value)}, error));
    return is_accepted(property, value, error);
}

bool MGR_DOUBLE::is_property_used(GFPDB_FLASH_PROPERTY property) const
{
    record(*this, "is_property_used", {log_int(property)});
    const auto found = unused_properties_of.find(m_scheme);
    const std::set<int>& unused = found == unused_properties_of.end() ? unused_properties : found->second;
    return unused.count(property) == 0;
}

bool MGR_DOUBLE::verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                        std::string& error) const
{
    record(*this, "verify_string_property", with_error({log_int(property), log_text(value)}, error));
    const auto found = unverified_values.find({property, value});
    if (found == unverified_values.end())
        return true;
    error = found->second;
    return false;
}

bool MGR_DOUBLE::save_flash(GFPDB_FLASH* flash, const std::string& directory)
{
    record(*this, "save_flash", {label_of(flash), log_text(directory)});
    last_saved = flash;
    auto* const known = dynamic_cast<FLASH_DOUBLE*>(flash);
    if (save_succeeds && follows_saves && known != nullptr) {
        flashes[known->name] = known;
        if (std::find(custom_names.begin(), custom_names.end(), known->name) == custom_names.end())
            custom_names.push_back(known->name);
    }
    return save_succeeds;
}

bool MGR_DOUBLE::delete_flash(const std::string& name, const std::string& directory)
{
    record(*this, "delete_flash", {log_text(name), log_text(directory)});
    if (delete_succeeds && follows_saves) {
        flashes.erase(name);
        custom_names.erase(std::remove(custom_names.begin(), custom_names.end(), name), custom_names.end());
    }
    return delete_succeeds;
}

bool MGR_DOUBLE::restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                               const std::string& new_name)
{
    record(*this, "restore_flash",
           {QString::number(history_id), log_text(directory), log_int(how), log_text(new_name)});
    return false;
}

void MGR_DOUBLE::get_family_list(std::vector<int>& list) const
{
    record(*this, "get_family_list");
    list = families;
}

std::vector<int>& MGR_DOUBLE::get_config_scheme_list(std::vector<int>& list) const
{
    record(*this, "get_config_scheme_list");
    const auto found = schemes_of.find(m_family);
    return filled(list, found == schemes_of.end() ? schemes : found->second);
}

std::vector<std::string>& MGR_DOUBLE::get_custom_flash_names(std::vector<std::string>& names, int of_family,
                                                             int of_scheme, int reserved) const
{
    record(*this, "get_custom_flash_names", {log_int(of_family), log_int(of_scheme), log_int(reserved)});
    const auto found = custom_names_of.find({of_family, of_scheme});
    return filled(names, found == custom_names_of.end() ? custom_names : found->second);
}

std::vector<std::string>& MGR_DOUBLE::get_builtin_flash_names(std::vector<std::string>& names, int of_family,
                                                              int of_scheme, int reserved) const
{
    record(*this, "get_builtin_flash_names", {log_int(of_family), log_int(of_scheme), log_int(reserved)});
    const auto found = builtin_names_of.find({of_family, of_scheme});
    return filled(names, found == builtin_names_of.end() ? builtin_names : found->second);
}

std::vector<std::string>& MGR_DOUBLE::get_voltage_list(std::vector<std::string>& list) const
{
    record(*this, "get_voltage_list");
    return filled(list, voltages);
}

std::vector<std::string>& MGR_DOUBLE::get_density_list(std::vector<std::string>& list) const
{
    record(*this, "get_density_list");
    return filled(list, densities);
}

std::vector<std::string>& MGR_DOUBLE::get_template_list(std::vector<std::string>& list) const
{
    record(*this, "get_template_list");
    return filled(list, templates);
}

std::vector<std::string>& MGR_DOUBLE::get_user_template_list(std::vector<std::string>& list) const
{
    record(*this, "get_user_template_list");
    return filled(list, user_templates);
}

bool MGR_DOUBLE::is_template(const std::string& name) const
{
    record(*this, "is_template", {log_text(name)});
    return std::find(templates.begin(), templates.end(), name) != templates.end();
}

GFPDB_FLASH* MGR_DOUBLE::create_flash(const std::string& name)
{
    record(*this, "create_flash", {log_text(name)});
    last_created = nullptr;
    if (!creates_flash)
        return nullptr;
    records.push_back(std::make_unique<FLASH_DOUBLE>(QStringLiteral("new"), name));
    last_created = records.back().get();
    last_created->user_defined = false;
    return last_created;
}

GFPDB_ACTION* MGR_DOUBLE::create_action(GFPDB_ACT_TYPE type)
{
    record(*this, "create_action", {log_int(type)});
    if (refused_actions.count(type) != 0)
        return nullptr;
    auto* const action = new ACTION_DOUBLE(type);
    if (on_new_action)
        on_new_action(*action);
    return action;
}

GFPDB_OPERATION* MGR_DOUBLE::create_operation(int kind)
{
    record(*this, "create_operation", {log_int(kind)});
    if (refused_operations.count(kind) != 0)
        return nullptr;
    return new OPERATION_DOUBLE(kind);
}

const std::vector<GFPDB_OPERATION*>* MGR_DOUBLE::get_builtin_template_operations(int index, bool variant)
{
    record(*this, "get_builtin_template_operations", {log_int(index), log_bool(variant)});
    const auto found = builtin_template_operations.find({index, variant});
    return found == builtin_template_operations.end() ? nullptr : &found->second;
}

const std::vector<GFPDB_OPERATION*>* MGR_DOUBLE::get_template_operations(const std::string& name, bool variant)
{
    record(*this, "get_template_operations", {log_text(name), log_bool(variant)});
    const auto found = template_operations.find({name, variant});
    return found == template_operations.end() ? nullptr : &found->second;
}

bool MGR_DOUBLE::is_flow_editable(const GFPDB_FLASH* flash) const
{
    record(*this, "is_flow_editable", {label_of(flash)});
    return flow_editable;
}

bool MGR_DOUBLE::remove_template(const std::string& name)
{
    record(*this, "remove_template", {log_text(name)});
    if (remove_succeeds && follows_saves) {
        templates.erase(std::remove(templates.begin(), templates.end(), name), templates.end());
        user_templates.erase(std::remove(user_templates.begin(), user_templates.end(), name), user_templates.end());
    }
    return remove_succeeds;
}

std::string GFPDB_MGR::get_db_custom_dir()
{
    record_static("GFPDB_MGR", "get_db_custom_dir");
    return GFPDB_WORLD::instance().custom_dir;
}

void GFPDB_MGR::set_db_custom_dir(std::string directory)
{
    record_static("GFPDB_MGR", "set_db_custom_dir", {log_text(directory)});
    GFPDB_WORLD& world = GFPDB_WORLD::instance();
    world.custom_dir = world.canonical_dir ? world.canonical_dir(directory) : std::move(directory);
}

bool GFPDB_MGR::save_custom_dir_to_ini(std::string directory, bool create)
{
    record_static("GFPDB_MGR", "save_custom_dir_to_ini", {log_text(directory), log_bool(create)});
    return GFPDB_WORLD::instance().save_dir_succeeds;
}

bool GFPDB_HELPER::set_active_flash_family(PGMIO_CONFIG_SCHEME scheme)
{
    record_static("GFPDB_HELPER", "set_active_flash_family", {log_int(scheme)});
    return GFPDB_WORLD::instance().set_family_succeeds;
}

GFPDB_MGR* GFPDB_HELPER::get_active_flash_manager(bool reload)
{
    record_static("GFPDB_HELPER", "get_active_flash_manager", {log_bool(reload)});
    return GFPDB_WORLD::instance().active;
}

void GFPDB_HELPER::set_base_dir(std::string directory)
{
    record_static("GFPDB_HELPER", "set_base_dir", {log_text(directory)});
    GFPDB_WORLD::instance().base_dir = std::move(directory);
}

std::string GFPDB_HELPER::get_database_problem()
{
    record_static("GFPDB_HELPER", "get_database_problem");
    return GFPDB_WORLD::instance().database_problem;
}

GFPDB_WORLD& GFPDB_WORLD::instance()
{
    static GFPDB_WORLD world;
    return world;
}

void GFPDB_WORLD::reset()
{
    m_managers.clear();
    custom_dir = "/db/custom/";
    base_dir.clear();
    canonical_dir = nullptr;
    database_problem.clear();
    save_dir_succeeds = true;
    set_family_succeeds = true;
    active = &add_manager(QStringLiteral("mgr"));
}

MGR_DOUBLE& GFPDB_WORLD::add_manager(const QString& label)
{
    m_managers.push_back(std::make_unique<MGR_DOUBLE>(label));
    return *m_managers.back();
}

MGR_DOUBLE& gfpdb_mgr()
{
    return *GFPDB_WORLD::instance().active;
}
