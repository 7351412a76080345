// SPDX-License-Identifier: MIT

// The flash database as tests see it: every call is recorded, every answer can be set.
//
// Linked instead of the real library. The world holds the managers and the settings; GFPDB_WORLD::instance().reset()
// before each test gives a fresh one with one active manager, labelled "mgr". Objects handed out belong to whom the
// interface says; what nobody took is deleted by reset(). live_actions() tells how many actions exist. Data members are
// the answers, to be set freely.
#pragma once

#include "call_log.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

// A double that records its calls: recorded("get_name").name is the answer to a call, taken after it was recorded.
template <typename SELF>
class RECORDING
{
protected:
    template <typename... ARGUMENTS>
    SELF& recorded(const char* function, const ARGUMENTS&... arguments)
    {
        return const_cast<SELF&>(std::as_const(*this).recorded(function, arguments...));
    }
    template <typename... ARGUMENTS>
    const SELF& recorded(const char* function, const ARGUMENTS&... arguments) const
    {
        const SELF& self = static_cast<const SELF&>(*this);
        log_call(self.label_of_calls(), function, arguments...);
        return self;
    }
};

// The text that a check is to fill, as it comes in: logged if it is not empty.
struct ERROR_IN
{
    const std::string& text;
};
QString logged(const ERROR_IN& error);
QString logged(const GFPDB_FLASH* flash);
QString logged(const GFPDB_OPERATION* operation);
QString logged(const GFPDB_ACTION* action);

template <typename LIST, typename VALUE>
bool contains(const LIST& list, const VALUE& value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

// The entry of `key`; `otherwise` where there is none.
template <typename MAP>
typename MAP::mapped_type entry(const MAP& map, const typename MAP::key_type& key,
                                const typename MAP::mapped_type& otherwise = {})
{
    const auto found = map.find(key);
    return found == map.end() ? otherwise : found->second;
}

template <typename MAP>
const typename MAP::mapped_type* entry_or_null(const MAP& map, const typename MAP::key_type& key)
{
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

// Appends, as a library may that leaves clearing to its caller: whoever asks twice with one list shows it.
template <typename LIST>
LIST& filled(LIST& out, const LIST& answer)
{
    out.insert(out.end(), answer.begin(), answer.end());
    return out;
}

// An action whose property list, values, choices and checks are set by the test. Its line in the log is its type and
// the value of its first property: "0:write enable".
class ACTION_DOUBLE : public GFPDB_ACTION, public RECORDING<ACTION_DOUBLE>
{
public:
    // An action with the properties of `type` (value N starts as "default N"); none for an unknown type.
    explicit ACTION_DOUBLE(int type);
    ~ACTION_DOUBLE() override;

    std::string get_property_label(GFPDB_ACT_PROPERTY property) const override
    {
        return entry(recorded("get_property_label", property).labels, property, "label " + std::to_string(property));
    }
    std::string get_property_value(GFPDB_ACT_PROPERTY property) const override
    {
        return entry(recorded("get_property_value", property).values, property);
    }
    std::string get_property_default(GFPDB_ACT_PROPERTY property) const override
    {
        return recorded("get_property_default", property).default_of(property);
    }
    bool has_property(GFPDB_ACT_PROPERTY property) const override
    {
        return contains(recorded("has_property", property).properties, property);
    }
    std::vector<std::string> get_property_choices(GFPDB_ACT_PROPERTY property) const override
    {
        return entry(recorded("get_property_choices", property).choices, property);
    }
    void set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value) override
    {
        recorded("set_property_value", property, value).values[property] = value;
    }
    bool check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value, std::string& error) const override;
    bool is_property_enabled(GFPDB_ACT_PROPERTY property) const override
    {
        return recorded("is_property_enabled", property).disabled.count(property) == 0;
    }

    static std::string default_of(int property) { return "default " + std::to_string(property); }
    QString label_of_calls() const { return QStringLiteral("action(") + label() + QLatin1Char(')'); }
    QString label() const;

    std::vector<GFPDB_ACT_PROPERTY> properties;
    std::map<int, std::string> values;
    // Answers of get_property_label; "label N" for a property that is not there.
    std::map<int, std::string> labels;
    std::map<int, std::vector<std::string>> choices;
    // Properties that is_property_enabled answers false for.
    std::set<int> disabled;
    // Properties that check_property_value refuses, and with which text.
    std::map<int, std::string> refused;
};

class OPERATION_DOUBLE : public GFPDB_OPERATION, public RECORDING<OPERATION_DOUBLE>
{
public:
    // Takes `actions` over.
    explicit OPERATION_DOUBLE(int kind, std::vector<GFPDB_ACTION*> actions = {});
    ~OPERATION_DOUBLE() override;

    const std::vector<GFPDB_ACTION*>* get_actions() const override
    {
        return recorded("get_actions").without_list ? nullptr : &actions;
    }
    int get_action_count() const override { return static_cast<int>(recorded("get_action_count").actions.size()); }
    void add_action(GFPDB_ACTION* action) override;

    QString label() const { return QStringLiteral("op%1").arg(m_kind); }
    QString label_of_calls() const { return label(); }

    std::vector<GFPDB_ACTION*> actions;
    // get_actions() answers null.
    bool without_list = false;
};

// A record. In the log it is "flash:NAME", or "new:NAME" when create_flash made it.
class FLASH_DOUBLE : public GFPDB_FLASH, public RECORDING<FLASH_DOUBLE>
{
public:
    FLASH_DOUBLE(QString label_prefix, std::string flash_name)
        : prefix(std::move(label_prefix)), name(std::move(flash_name))
    {}
    ~FLASH_DOUBLE() override { delete_operations(); }

    std::string get_name() const override { return recorded("get_name").name; }
    void set_name(const std::string& new_name) override { recorded("set_name", new_name).name = new_name; }
    std::string get_density() const override { return entry(recorded("get_density").strings, GFPDB_FLASH_DENSITY); }
    void set_density(const std::string& density) override
    {
        recorded("set_density", density).strings[GFPDB_FLASH_DENSITY] = density;
    }
    int get_device_family() const override { return recorded("get_device_family").family; }
    int get_config_scheme() const override { return recorded("get_config_scheme").scheme; }
    std::string get_db_dir() const override { return recorded("get_db_dir").db_dir; }
    void set_db_dir(const std::string& directory) override { recorded("set_db_dir", directory).db_dir = directory; }
    bool is_user_defined() const override { return recorded("is_user_defined").user_defined; }
    void set_user_defined(bool defined) override { recorded("set_user_defined", defined).user_defined = defined; }
    bool is_template() const override { return recorded("is_template").template_record; }
    std::string get_revision() const override { return recorded("get_revision").revision; }
    const std::vector<GFPDB_OPERATION*>* get_operations(bool flow_variant) const override
    {
        return entry_or_null(recorded("get_operations", flow_variant).operations, flow_variant);
    }
    void set_operation(GFPDB_OPERATION* operation, bool flow_variant) override;
    GFPDB_OPERATION* find_operation(int kind, bool flow_variant) const override
    {
        return recorded("find_operation", kind, flow_variant).operation_of(kind, flow_variant);
    }
    void clear_operations() override { recorded("clear_operations").delete_operations(); }
    std::string get_string_property(GFPDB_FLASH_PROPERTY property) const override
    {
        return entry(recorded("get_string_property", property).strings, property);
    }
    int get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const override
    {
        return entry(recorded("get_int_property", property, default_value).ints, property, default_value);
    }
    void set_int_property(GFPDB_FLASH_PROPERTY property, int value) override
    {
        recorded("set_int_property", property, value).ints[property] = value;
    }
    void set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value) override
    {
        recorded("set_string_property", property, value).strings[property] = value;
    }

    QString label() const { return prefix + QLatin1Char(':') + QString::fromUtf8(name.c_str()); }
    QString label_of_calls() const { return label(); }
    // The name and value lines of the actions of one operation, for a comparison: "0:write enable".
    QStringList flow(int kind, bool flow_variant) const;
    // Those of all five kinds in one list.
    QStringList flows(bool flow_variant) const;

    QString prefix;
    std::string name;
    std::string db_dir;
    bool user_defined = true;
    std::map<int, std::string> strings;
    std::map<int, int> ints;
    int family = 0;
    int scheme = -1;
    bool template_record = false;
    std::string revision;
    // Owned. A variant that is not there answers null.
    std::map<bool, std::vector<GFPDB_OPERATION*>> operations;

private:
    // Null where there is none.
    GFPDB_OPERATION* operation_of(int kind, bool flow_variant) const;
    void delete_operations();
};

// A manager. In the log it is its label. Names are looked up in `flashes`; with `follows_saves` a successful save or
// delete changes `flashes` and `custom_names`, as a real database would.
class MGR_DOUBLE : public GFPDB_MGR, public RECORDING<MGR_DOUBLE>
{
public:
    explicit MGR_DOUBLE(QString manager_label);
    ~MGR_DOUBLE() override;

    // Makes a custom device with a record, listed for every family and scheme.
    FLASH_DOUBLE& add_custom(const std::string& name);
    // Makes a built-in device with a record.
    FLASH_DOUBLE& add_builtin(const std::string& name);
    // Makes a record that find_flash finds, but that no list names.
    FLASH_DOUBLE& add_record(const std::string& name);
    // Refuses every value of `property`, or one value, with `error`.
    void refuse(int property, const std::string& error) { refused_properties[property] = error; }
    void refuse(int property, const std::string& value, const std::string& error)
    {
        refused_values[{property, value}] = error;
    }

    bool get_flow_variant() const override { return recorded("get_flow_variant").flow_variant; }
    int get_device_family() const override { return recorded("get_device_family").m_family; }
    void set_device_family(int family) override { recorded("set_device_family", family).m_family = family; }
    int get_config_scheme() const override { return recorded("get_config_scheme").m_scheme; }
    void set_config_scheme(int scheme) override { recorded("set_config_scheme", scheme).m_scheme = scheme; }
    GFPDB_FLASH* find_flash(const std::string& name, bool load_flows) override
    {
        return entry(recorded("find_flash", name, load_flows).flashes, name);
    }
    bool is_builtin_flash(const std::string& name) const override
    {
        return contains(recorded("is_builtin_flash", name).builtin_names, name);
    }
    bool is_custom_flash(const std::string& name) const override
    {
        return contains(recorded("is_custom_flash", name).custom_names, name);
    }
    std::string get_last_error() const override { return recorded("get_last_error").last_error; }
    bool is_hidden_flash(const std::string& name, bool flows) const override
    {
        recorded("is_hidden_flash", name, flows);
        return (flows ? hidden_flows : hidden_properties).count(name) != 0;
    }
    bool can_add_flash() const override
    {
        return recorded("can_add_flash").add_allowed && schemes_without_devices.count(m_scheme) == 0;
    }
    bool can_edit_flow() const override
    {
        return recorded("can_edit_flow").flow_edit_allowed && schemes_without_flows.count(m_scheme) == 0;
    }
    bool is_writable() const override { return recorded("is_writable").writable; }
    bool check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const override
    {
        return recorded("check_int_property", property, value, ERROR_IN{error})
            .is_accepted(property, std::to_string(value), error);
    }
    bool check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                               std::string& error) const override
    {
        return recorded("check_string_property", property, value, ERROR_IN{error}).is_accepted(property, value, error);
    }
    bool is_property_used(GFPDB_FLASH_PROPERTY property) const override
    {
        recorded("is_property_used", property);
        return entry(unused_properties_of, m_scheme, unused_properties).count(property) == 0;
    }
    bool verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                std::string& error) const override;
    bool save_flash(GFPDB_FLASH* flash, const std::string& directory) override;
    bool delete_flash(const std::string& name, const std::string& directory) override;
    bool restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                       const std::string& new_name) override
    {
        return recorded("restore_flash", history_id, directory, how, new_name).restore_succeeds;
    }
    void get_family_list(std::vector<int>& list) const override { list = recorded("get_family_list").families; }
    std::vector<int>& get_config_scheme_list(std::vector<int>& list) const override
    {
        return filled(list, entry(recorded("get_config_scheme_list").schemes_of, m_family, schemes));
    }
    std::vector<std::string>& get_custom_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                     int reserved) const override
    {
        recorded("get_custom_flash_names", family, scheme, reserved);
        return filled(names, entry(custom_names_of, {family, scheme}, custom_names));
    }
    std::vector<std::string>& get_builtin_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                      int reserved) const override
    {
        recorded("get_builtin_flash_names", family, scheme, reserved);
        return filled(names, entry(builtin_names_of, {family, scheme}, builtin_names));
    }
    std::vector<std::string>& get_voltage_list(std::vector<std::string>& list) const override
    {
        return filled(list, recorded("get_voltage_list").voltages);
    }
    std::vector<std::string>& get_density_list(std::vector<std::string>& list) const override
    {
        return filled(list, recorded("get_density_list").densities);
    }
    std::vector<std::string>& get_template_list(std::vector<std::string>& list) const override
    {
        return filled(list, recorded("get_template_list").templates);
    }
    std::vector<std::string>& get_user_template_list(std::vector<std::string>& list) const override
    {
        return filled(list, recorded("get_user_template_list").user_templates);
    }
    bool is_template(const std::string& name) const override
    {
        return contains(recorded("is_template", name).templates, name);
    }
    GFPDB_FLASH* create_flash(const std::string& name) override;
    GFPDB_ACTION* create_action(GFPDB_ACT_TYPE type) override;
    GFPDB_OPERATION* create_operation(int kind) override
    {
        const bool refused = recorded("create_operation", kind).refused_operations.count(kind) != 0;
        return refused ? nullptr : new OPERATION_DOUBLE(kind);
    }
    const std::vector<GFPDB_OPERATION*>* get_builtin_template_operations(int index, bool variant) override
    {
        recorded("get_builtin_template_operations", index, variant);
        return entry_or_null(builtin_template_operations, {index, variant});
    }
    const std::vector<GFPDB_OPERATION*>* get_template_operations(const std::string& name, bool variant) override
    {
        return entry_or_null(recorded("get_template_operations", name, variant).template_operations, {name, variant});
    }
    bool is_flow_editable(const GFPDB_FLASH* flash) const override
    {
        return recorded("is_flow_editable", flash).flow_editable;
    }
    bool remove_template(const std::string& name) override;
    QString label_of_calls() const { return label; }

    QString label;
    bool flow_variant = false;
    bool add_allowed = true;
    bool flow_edit_allowed = true;
    bool flow_editable = true;
    std::vector<int> families;
    std::vector<int> schemes;
    // Schemes of one family only; where there is an entry it stands for schemes.
    std::map<int, std::vector<int>> schemes_of;
    std::vector<std::string> custom_names;
    std::vector<std::string> builtin_names;
    // Names for one (family, scheme) only; where there is an entry it stands for custom_names or builtin_names.
    std::map<std::pair<int, int>, std::vector<std::string>> custom_names_of;
    std::map<std::pair<int, int>, std::vector<std::string>> builtin_names_of;
    std::vector<std::string> voltages;
    std::vector<std::string> densities;
    std::vector<std::string> templates;
    std::vector<std::string> user_templates;
    // Not owned; the records live in `records`.
    std::map<std::string, FLASH_DOUBLE*> flashes;
    std::set<std::string> hidden_properties;
    std::set<std::string> hidden_flows;
    std::set<int> unused_properties;
    // For one scheme only; where there is an entry it stands for unused_properties.
    std::map<int, std::set<int>> unused_properties_of;
    // Schemes for which can_add_flash and can_edit_flow answer false whatever add_allowed and flow_edit_allowed say.
    std::set<int> schemes_without_devices;
    std::set<int> schemes_without_flows;
    std::map<int, std::string> refused_properties;
    std::map<std::pair<int, std::string>, std::string> refused_values;
    // What a check that accepts a value of the property leaves in the error.
    std::map<int, std::string> remarks;
    // Voltages (or other values) that verify_string_property refuses.
    std::map<std::pair<int, std::string>, std::string> unverified_values;
    bool follows_saves = true;
    bool save_succeeds = true;
    bool delete_succeeds = true;
    bool remove_succeeds = true;
    bool restore_succeeds = false;
    bool writable = true;
    // What get_last_error answers.
    std::string last_error;
    bool creates_flash = true;
    // Kinds of operation and types of action that are answered with null.
    std::set<int> refused_operations;
    std::set<int> refused_actions;
    // Called with every action that create_action made, before it is handed out: a test sets its answers there.
    std::function<void(ACTION_DOUBLE&)> on_new_action;
    // Owned. What is not there answers null.
    std::map<std::pair<int, bool>, std::vector<GFPDB_OPERATION*>> builtin_template_operations;
    std::map<std::pair<std::string, bool>, std::vector<GFPDB_OPERATION*>> template_operations;
    // Every record that this manager made, oldest first; owned.
    std::vector<std::unique_ptr<FLASH_DOUBLE>> records;
    // The record of the last create_flash, or null.
    FLASH_DOUBLE* last_created = nullptr;
    // The last record that save_flash was called with.
    GFPDB_FLASH* last_saved = nullptr;

private:
    bool is_accepted(int property, const std::string& value, std::string& error) const;

    int m_family = 0;
    int m_scheme = 0;
};

// What is one per process: the managers, the active one, the custom directory.
class GFPDB_WORLD
{
public:
    static GFPDB_WORLD& instance();
    // The same, after a call of a function of the class `object` was recorded.
    template <typename... ARGUMENTS>
    static GFPDB_WORLD& recorded(const char* object, const char* function, const ARGUMENTS&... arguments)
    {
        log_call(QLatin1String(object), function, arguments...);
        return instance();
    }

    // A fresh world with one active manager "mgr" of six families, five schemes and no devices.
    void reset();
    // Another manager with the same answers as a fresh one; not active.
    MGR_DOUBLE& add_manager(const QString& label);

    // What get_active_flash_manager answers; null on request.
    MGR_DOUBLE* active = nullptr;
    std::string custom_dir = "/db/custom/";
    // What GFPDB_HELPER::set_base_dir was called with last.
    std::string base_dir;
    // What GFPDB_HELPER::get_database_problem answers.
    std::string database_problem;
    // What the library makes of a directory that it is set to; the directory itself when empty.
    std::function<std::string(const std::string&)> canonical_dir;
    bool save_dir_succeeds = true;
    bool set_family_succeeds = true;

private:
    std::vector<std::unique_ptr<MGR_DOUBLE>> m_managers;
};

// The active manager of the world; it must not be null.
MGR_DOUBLE& gfpdb_mgr();

// A new action with these values (the rest as ACTION_DOUBLE makes them); owned by the caller.
ACTION_DOUBLE* make_action(int type, const std::map<int, std::string>& values = {});
// A new action called `name`: its first property has that value.
ACTION_DOUBLE* make_named_action(int type, const std::string& name);
// A loop marker: a custom action with properties 38 and 39.
ACTION_DOUBLE* make_loop_action(const std::string& unit, const std::string& marker);
// The five operations of a flow, each with one action called "PREFIX K" (K the kind); owned by the caller.
std::vector<GFPDB_OPERATION*> make_operations(const std::string& prefix);

// How many actions and operations exist now.
int live_actions();
int live_operations();
