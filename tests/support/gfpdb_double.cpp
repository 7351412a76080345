// SPDX-License-Identifier: MIT
#include "gfpdb_double.h"

namespace {

int g_live_actions = 0;
int g_live_operations = 0;

struct PROPERTY_RUN
{
    int first;
    int last;
};
constexpr PROPERTY_RUN PROPERTY_RUNS[GFPDB_ACT_TYPE_COUNT] = {
    {GFPDB_WR_NAME, GFPDB_WR_BUS_WIDTH}, {GFPDB_RR_NAME, GFPDB_RR_BUS_WIDTH},
    {GFPDB_WD_NAME, GFPDB_WD_BUS_WIDTH}, {GFPDB_RD_NAME, GFPDB_RD_BUS_WIDTH},
    {GFPDB_ER_NAME, GFPDB_ER_BUS_WIDTH}, {GFPDB_CUSTOM_LOOP_UNIT, GFPDB_CUSTOM_LOOP_MARKER},
};

template <typename DOUBLE, typename INTERFACE>
QString label_or_null(const INTERFACE* object)
{
    const auto* known = dynamic_cast<const DOUBLE*>(object);
    return known == nullptr ? QStringLiteral("null") : known->label();
}

void delete_all(const std::vector<GFPDB_OPERATION*>& operations)
{
    for (GFPDB_OPERATION* operation : operations)
        delete operation;
}

template <typename LIST, typename VALUE>
void remove_from(LIST& list, const VALUE& value)
{
    list.erase(std::remove(list.begin(), list.end(), value), list.end());
}

} // namespace

QString logged(const ERROR_IN& error)
{
    return error.text.empty() ? QString() : QStringLiteral("error was ") + logged(error.text);
}

QString logged(const GFPDB_FLASH* flash)
{
    return label_or_null<FLASH_DOUBLE>(flash);
}

QString logged(const GFPDB_OPERATION* operation)
{
    return label_or_null<OPERATION_DOUBLE>(operation);
}

QString logged(const GFPDB_ACTION* action)
{
    return label_or_null<ACTION_DOUBLE>(action);
}

GFPDB_ACTION::GFPDB_ACTION(int action_type, const std::vector<GFPDB_ACT_PROPERTY>* properties)
    : m_action_type(action_type), m_properties(properties)
{}

GFPDB_ACT_TYPE GFPDB_ACTION::get_action_type() const
{
    log_call(dynamic_cast<const ACTION_DOUBLE&>(*this).label_of_calls(), "get_action_type");
    return static_cast<GFPDB_ACT_TYPE>(m_action_type);
}

std::vector<GFPDB_ACT_PROPERTY> GFPDB_ACTION::get_property_enum_list() const
{
    log_call(dynamic_cast<const ACTION_DOUBLE&>(*this).label_of_calls(), "get_property_enum_list");
    return m_properties == nullptr ? std::vector<GFPDB_ACT_PROPERTY>() : *m_properties;
}

ACTION_DOUBLE::ACTION_DOUBLE(int type) : GFPDB_ACTION(type, &properties)
{
    ++g_live_actions;
    if (type < 0 || type >= GFPDB_ACT_TYPE_COUNT)
        return;
    for (int property = PROPERTY_RUNS[type].first; property <= PROPERTY_RUNS[type].last; ++property) {
        properties.push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
        values[property] = default_of(property);
    }
}

ACTION_DOUBLE::~ACTION_DOUBLE()
{
    --g_live_actions;
}

QString ACTION_DOUBLE::label() const
{
    const std::string name = properties.empty() ? std::string() : entry(values, properties.front());
    return logged(m_action_type) + QLatin1Char(':') + QString::fromUtf8(name.c_str());
}

bool ACTION_DOUBLE::check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value,
                                         std::string& error) const
{
    const std::string* refusal =
        entry_or_null(recorded("check_property_value", property, value, ERROR_IN{error}).refused, property);
    if (refusal != nullptr)
        error = *refusal;
    return refusal == nullptr;
}

OPERATION_DOUBLE::OPERATION_DOUBLE(int kind, std::vector<GFPDB_ACTION*> owned_actions)
    : GFPDB_OPERATION(kind), actions(std::move(owned_actions))
{
    ++g_live_operations;
}

OPERATION_DOUBLE::~OPERATION_DOUBLE()
{
    for (GFPDB_ACTION* action : actions)
        delete action;
    --g_live_operations;
}

void OPERATION_DOUBLE::add_action(GFPDB_ACTION* action)
{
    recorded("add_action", action);
    if (action != nullptr)
        actions.push_back(action);
}

QStringList FLASH_DOUBLE::flow(int kind, bool flow_variant) const
{
    QStringList result;
    if (const auto* const operation = dynamic_cast<const OPERATION_DOUBLE*>(operation_of(kind, flow_variant))) {
        for (const GFPDB_ACTION* action : operation->actions)
            result.append(logged(action));
    }
    return result;
}

QStringList FLASH_DOUBLE::flows(bool flow_variant) const
{
    QStringList result;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        result += flow(kind, flow_variant);
    return result;
}

void FLASH_DOUBLE::set_operation(GFPDB_OPERATION* operation, bool flow_variant)
{
    recorded("set_operation", operation, flow_variant);
    if (operation == nullptr)
        return;
    std::vector<GFPDB_OPERATION*>& list = operations[flow_variant];
    GFPDB_OPERATION* const replaced = operation_of(operation->m_kind, flow_variant);
    if (replaced == nullptr) {
        list.push_back(operation);
        return;
    }
    *std::find(list.begin(), list.end(), replaced) = operation;
    delete replaced;
}

GFPDB_OPERATION* FLASH_DOUBLE::operation_of(int kind, bool flow_variant) const
{
    for (GFPDB_OPERATION* operation : entry(operations, flow_variant)) {
        if (operation != nullptr && operation->m_kind == kind)
            return operation;
    }
    return nullptr;
}

void FLASH_DOUBLE::delete_operations()
{
    for (const auto& variant : operations)
        delete_all(variant.second);
    operations.clear();
}

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

bool MGR_DOUBLE::is_accepted(int property, const std::string& value, std::string& error) const
{
    const std::string* refusal = entry_or_null(refused_values, {property, value});
    if (refusal == nullptr)
        refusal = entry_or_null(refused_properties, property);
    error = refusal != nullptr ? *refusal : entry(remarks, property, error);
    return refusal == nullptr;
}

bool MGR_DOUBLE::verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                        std::string& error) const
{
    recorded("verify_string_property", property, value, ERROR_IN{error});
    const std::string* refusal = entry_or_null(unverified_values, {property, value});
    if (refusal != nullptr)
        error = *refusal;
    return refusal == nullptr;
}

bool MGR_DOUBLE::save_flash(GFPDB_FLASH* flash, const std::string& directory)
{
    recorded("save_flash", flash, directory).last_saved = flash;
    auto* const known = dynamic_cast<FLASH_DOUBLE*>(flash);
    if (save_succeeds && follows_saves && known != nullptr) {
        flashes[known->name] = known;
        if (!contains(custom_names, known->name))
            custom_names.push_back(known->name);
    }
    return save_succeeds;
}

bool MGR_DOUBLE::delete_flash(const std::string& name, const std::string& directory)
{
    recorded("delete_flash", name, directory);
    if (delete_succeeds && follows_saves) {
        flashes.erase(name);
        remove_from(custom_names, name);
    }
    return delete_succeeds;
}

GFPDB_FLASH* MGR_DOUBLE::create_flash(const std::string& name)
{
    recorded("create_flash", name).last_created = nullptr;
    if (!creates_flash)
        return nullptr;
    records.push_back(std::make_unique<FLASH_DOUBLE>(QStringLiteral("new"), name));
    last_created = records.back().get();
    last_created->user_defined = false;
    return last_created;
}

GFPDB_ACTION* MGR_DOUBLE::create_action(GFPDB_ACT_TYPE type)
{
    if (recorded("create_action", type).refused_actions.count(type) != 0)
        return nullptr;
    auto* const action = new ACTION_DOUBLE(type);
    if (on_new_action)
        on_new_action(*action);
    return action;
}

bool MGR_DOUBLE::remove_template(const std::string& name)
{
    recorded("remove_template", name);
    if (remove_succeeds && follows_saves) {
        remove_from(templates, name);
        remove_from(user_templates, name);
    }
    return remove_succeeds;
}

std::string GFPDB_MGR::get_db_custom_dir()
{
    return GFPDB_WORLD::recorded("GFPDB_MGR", "get_db_custom_dir").custom_dir;
}

void GFPDB_MGR::set_db_custom_dir(std::string directory)
{
    GFPDB_WORLD& world = GFPDB_WORLD::recorded("GFPDB_MGR", "set_db_custom_dir", directory);
    world.custom_dir = world.canonical_dir ? world.canonical_dir(directory) : std::move(directory);
}

bool GFPDB_MGR::save_custom_dir_to_ini(std::string directory, bool create)
{
    return GFPDB_WORLD::recorded("GFPDB_MGR", "save_custom_dir_to_ini", directory, create).save_dir_succeeds;
}

bool GFPDB_HELPER::set_active_flash_family(PGMIO_CONFIG_SCHEME scheme)
{
    return GFPDB_WORLD::recorded("GFPDB_HELPER", "set_active_flash_family", scheme).set_family_succeeds;
}

GFPDB_MGR* GFPDB_HELPER::get_active_flash_manager(bool reload)
{
    return GFPDB_WORLD::recorded("GFPDB_HELPER", "get_active_flash_manager", reload).active;
}

void GFPDB_HELPER::set_base_dir(std::string directory)
{
    GFPDB_WORLD::recorded("GFPDB_HELPER", "set_base_dir", directory).base_dir = directory;
}

std::string GFPDB_HELPER::get_database_problem()
{
    return GFPDB_WORLD::recorded("GFPDB_HELPER", "get_database_problem").database_problem;
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

ACTION_DOUBLE* make_action(int type, const std::map<int, std::string>& values)
{
    auto* action = new ACTION_DOUBLE(type);
    for (const auto& value : values)
        action->values[value.first] = value.second;
    return action;
}

ACTION_DOUBLE* make_named_action(int type, const std::string& name)
{
    auto* action = new ACTION_DOUBLE(type);
    action->values[action->properties.front()] = name;
    return action;
}

ACTION_DOUBLE* make_loop_action(const std::string& unit, const std::string& marker)
{
    return make_action(GFPDB_ACT_CUSTOM, {{GFPDB_CUSTOM_LOOP_UNIT, unit}, {GFPDB_CUSTOM_LOOP_MARKER, marker}});
}

std::vector<GFPDB_OPERATION*> make_operations(const std::string& prefix)
{
    std::vector<GFPDB_OPERATION*> operations;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        GFPDB_ACTION* action = make_named_action(GFPDB_ACT_WRITE_REGISTER, prefix + " " + std::to_string(kind));
        operations.push_back(new OPERATION_DOUBLE(kind, {action}));
    }
    return operations;
}

int live_actions()
{
    return g_live_actions;
}

int live_operations()
{
    return g_live_operations;
}
