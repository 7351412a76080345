// SPDX-License-Identifier: MIT

// The recording actions, operations and records.
#include "gfpdb_double.h"

#include <algorithm>

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

QString label_of(const GFPDB_ACTION* action)
{
    const auto* known = dynamic_cast<const ACTION_DOUBLE*>(action);
    return known == nullptr ? QStringLiteral("null") : known->label();
}

QString label_of(const GFPDB_OPERATION* operation)
{
    const auto* known = dynamic_cast<const OPERATION_DOUBLE*>(operation);
    return known == nullptr ? QStringLiteral("null") : known->label();
}

void record(const ACTION_DOUBLE& action, const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(QStringLiteral("action(") + action.label() + QLatin1Char(')'), QLatin1String(function),
                                arguments);
}

void record(const OPERATION_DOUBLE& operation, const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(operation.label(), QLatin1String(function), arguments);
}

void record(const FLASH_DOUBLE& flash, const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(flash.label(), QLatin1String(function), arguments);
}

} // namespace

GFPDB_ACTION::GFPDB_ACTION(int action_type, const std::vector<GFPDB_ACT_PROPERTY>* properties)
    : m_action_type(action_type), m_properties(properties)
{}

GFPDB_ACT_TYPE GFPDB_ACTION::get_action_type() const
{
    record(dynamic_cast<const ACTION_DOUBLE&>(*this), "get_action_type");
    return static_cast<GFPDB_ACT_TYPE>(m_action_type);
}

std::vector<GFPDB_ACT_PROPERTY> GFPDB_ACTION::get_property_enum_list() const
{
    record(dynamic_cast<const ACTION_DOUBLE&>(*this), "get_property_enum_list");
    return m_properties == nullptr ? std::vector<GFPDB_ACT_PROPERTY>() : *m_properties;
}

ACTION_DOUBLE::ACTION_DOUBLE(int type) : GFPDB_ACTION(type, &properties)
{
    ++g_live_actions;
    if (type < 0 || type >= GFPDB_ACT_TYPE_COUNT)
        return;
    for (int property = PROPERTY_RUNS[type].first; property <= PROPERTY_RUNS[type].last; ++property) {
        properties.push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
        values[property] = "default " + std::to_string(property);
    }
}

ACTION_DOUBLE::~ACTION_DOUBLE()
{
    --g_live_actions;
}

QString ACTION_DOUBLE::label() const
{
    const auto first = properties.empty() ? values.end() : values.find(properties.front());
    const std::string name = first == values.end() ? std::string() : first->second;
    return log_int(m_action_type) + QLatin1Char(':') + QString::fromUtf8(name.c_str());
}

std::string ACTION_DOUBLE::get_property_label(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "get_property_label", {log_int(property)});
    const auto found = labels.find(property);
    return found == labels.end() ? "label " + std::to_string(property) : found->second;
}

std::string ACTION_DOUBLE::get_property_value(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "get_property_value", {log_int(property)});
    const auto found = values.find(property);
    return found == values.end() ? std::string() : found->second;
}

std::string ACTION_DOUBLE::get_property_default(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "get_property_default", {log_int(property)});
    return "default " + std::to_string(property);
}

bool ACTION_DOUBLE::has_property(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "has_property", {log_int(property)});
    return std::find(properties.begin(), properties.end(), property) != properties.end();
}

std::vector<std::string> ACTION_DOUBLE::get_property_choices(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "get_property_choices", {log_int(property)});
    const auto found = choices.find(property);
    return found == choices.end() ? std::vector<std::string>() : found->second;
}

void ACTION_DOUBLE::set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value)
{
    record(*this, "set_property_value", {log_int(property), log_text(value)});
    values[property] = value;
}

bool ACTION_DOUBLE::check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value,
                                         std::string& error) const
{
    QStringList arguments{log_int(property), log_text(value)};
    if (!error.empty())
        arguments.append(QStringLiteral("error was ") + log_text(error));
    record(*this, "check_property_value", arguments);
    const auto found = refused.find(property);
    if (found == refused.end())
        return true;
    error = found->second;
    return false;
}

bool ACTION_DOUBLE::is_property_enabled(GFPDB_ACT_PROPERTY property) const
{
    record(*this, "is_property_enabled", {log_int(property)});
    return disabled.count(property) == 0;
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

const std::vector<GFPDB_ACTION*>* OPERATION_DOUBLE::get_actions() const
{
    record(*this, "get_actions");
    return without_list ? nullptr : &actions;
}

int OPERATION_DOUBLE::get_action_count() const
{
    record(*this, "get_action_count");
    return static_cast<int>(actions.size());
}

void OPERATION_DOUBLE::add_action(GFPDB_ACTION* action)
{
    record(*this, "add_action", {label_of(action)});
    if (action != nullptr)
        actions.push_back(action);
}

FLASH_DOUBLE::FLASH_DOUBLE(const QString& label_prefix, std::string flash_name)
    : prefix(label_prefix), name(std::move(flash_name))
{}

FLASH_DOUBLE::~FLASH_DOUBLE()
{
    for (const auto& variant : operations) {
        for (GFPDB_OPERATION* operation : variant.second)
            delete operation;
    }
}

QString FLASH_DOUBLE::label() const
{
    return prefix + QLatin1Char(':') + QString::fromUtf8(name.c_str());
}

QStringList FLASH_DOUBLE::flow(int kind, bool flow_variant) const
{
    QStringList result;
    const auto found = operations.find(flow_variant);
    if (found == operations.end())
        return result;
    for (const GFPDB_OPERATION* operation : found->second) {
        if (operation == nullptr || operation->m_kind != kind)
            continue;
        for (const GFPDB_ACTION* action : dynamic_cast<const OPERATION_DOUBLE&>(*operation).actions)
            result.append(label_of(action));
    }
    return result;
}

QStringList FLASH_DOUBLE::flows(bool flow_variant) const
{
    QStringList result;
    for (int kind = 0; kind < 5; ++kind)
        result += flow(kind, flow_variant);
    return result;
}

std::string FLASH_DOUBLE::get_name() const
{
    record(*this, "get_name");
    return name;
}

void FLASH_DOUBLE::set_name(const std::string& new_name)
{
    record(*this, "set_name", {log_text(new_name)});
    name = new_name;
}

std::string FLASH_DOUBLE::get_density() const
{
    record(*this, "get_density");
    const auto found = strings.find(GFPDB_FLASH_DENSITY);
    return found == strings.end() ? std::string() : found->second;
}

void FLASH_DOUBLE::set_density(const std::string& density)
{
    record(*this, "set_density", {log_text(density)});
    strings[GFPDB_FLASH_DENSITY] = density;
}

int FLASH_DOUBLE::get_device_family() const
{
    record(*this, "get_device_family");
    return 0;
}

int FLASH_DOUBLE::get_config_scheme() const
{
    record(*this, "get_config_scheme");
    return -1;
}

std::string FLASH_DOUBLE::get_db_dir() const
{
    record(*this, "get_db_dir");
    return db_dir;
}

void FLASH_DOUBLE::set_db_dir(const std::string& directory)
{
    record(*this, "set_db_dir", {log_text(directory)});
    db_dir = directory;
}

bool FLASH_DOUBLE::is_user_defined() const
{
    record(*this, "is_user_defined");
    return user_defined;
}

void FLASH_DOUBLE::set_user_defined(bool defined)
{
    record(*this, "set_user_defined", {log_bool(defined)});
    user_defined = defined;
}

bool FLASH_DOUBLE::is_template() const
{
    record(*this, "is_template");
    return false;
}

std::string FLASH_DOUBLE::get_revision() const
{
    record(*this, "get_revision");
    return std::string();
}

const std::vector<GFPDB_OPERATION*>* FLASH_DOUBLE::get_operations(bool flow_variant) const
{
    record(*this, "get_operations", {log_bool(flow_variant)});
    const auto found = operations.find(flow_variant);
    return found == operations.end() ? nullptr : &found->second;
}

void FLASH_DOUBLE::set_operation(GFPDB_OPERATION* operation, bool flow_variant)
{
    record(*this, "set_operation", {label_of(operation), log_bool(flow_variant)});
    if (operation == nullptr)
        return;
    std::vector<GFPDB_OPERATION*>& list = operations[flow_variant];
    const auto same_kind = [operation](const GFPDB_OPERATION* other) { return other->m_kind == operation->m_kind; };
    const auto found = std::find_if(list.begin(), list.end(), same_kind);
    if (found == list.end()) {
        list.push_back(operation);
        return;
    }
    delete *found;
    *found = operation;
}

GFPDB_OPERATION* FLASH_DOUBLE::find_operation(int kind, bool flow_variant) const
{
    record(*this, "find_operation", {log_int(kind), log_bool(flow_variant)});
    const auto found = operations.find(flow_variant);
    if (found == operations.end())
        return nullptr;
    for (GFPDB_OPERATION* operation : found->second) {
        if (operation != nullptr && operation->m_kind == kind)
            return operation;
    }
    return nullptr;
}

void FLASH_DOUBLE::clear_operations()
{
    record(*this, "clear_operations");
    for (const auto& variant : operations) {
        for (GFPDB_OPERATION* operation : variant.second)
            delete operation;
    }
    operations.clear();
}

std::string FLASH_DOUBLE::get_string_property(GFPDB_FLASH_PROPERTY property) const
{
    record(*this, "get_string_property", {log_int(property)});
    const auto found = strings.find(property);
    return found == strings.end() ? std::string() : found->second;
}

int FLASH_DOUBLE::get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const
{
    record(*this, "get_int_property", {log_int(property), log_int(default_value)});
    const auto found = ints.find(property);
    return found == ints.end() ? default_value : found->second;
}

void FLASH_DOUBLE::set_int_property(GFPDB_FLASH_PROPERTY property, int value)
{
    record(*this, "set_int_property", {log_int(property), log_int(value)});
    ints[property] = value;
}

void FLASH_DOUBLE::set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value)
{
    record(*this, "set_string_property", {log_int(property), log_text(value)});
    strings[property] = value;
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
