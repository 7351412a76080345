// SPDX-License-Identifier: MIT

// The records of the example's flash database: plain values, nothing is checked or shared.
#pragma once

#include "gfpdb/gfpdb_flash.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// An action: one text for each of its properties.
class DRAWER_ACTION : public GFPDB_ACTION
{
public:
    explicit DRAWER_ACTION(GFPDB_ACT_TYPE type);

    std::string get_property_label(GFPDB_ACT_PROPERTY property) const override;
    std::string get_property_value(GFPDB_ACT_PROPERTY property) const override;
    std::string get_property_default(GFPDB_ACT_PROPERTY property) const override;
    bool has_property(GFPDB_ACT_PROPERTY property) const override;
    std::vector<std::string> get_property_choices(GFPDB_ACT_PROPERTY property) const override;
    void set_property_value(GFPDB_ACT_PROPERTY property, const std::string& value) override;
    bool check_property_value(GFPDB_ACT_PROPERTY property, const std::string& value, std::string& error) const override;
    bool is_property_enabled(GFPDB_ACT_PROPERTY property) const override;

private:
    std::map<GFPDB_ACT_PROPERTY, std::string> m_values;
};

// An operation: owns its actions.
class DRAWER_OPERATION : public GFPDB_OPERATION
{
public:
    explicit DRAWER_OPERATION(int kind) : GFPDB_OPERATION(kind) {}
    ~DRAWER_OPERATION() override;

    const std::vector<GFPDB_ACTION*>* get_actions() const override { return &m_actions; }
    int get_action_count() const override { return static_cast<int>(m_actions.size()); }
    void add_action(GFPDB_ACTION* action) override;

private:
    std::vector<GFPDB_ACTION*> m_actions;
};

// A device: owns its operations.
class DRAWER_FLASH : public GFPDB_FLASH
{
public:
    explicit DRAWER_FLASH(std::string name) : m_name(std::move(name)) {}
    ~DRAWER_FLASH() override;

    std::string get_name() const override { return m_name; }
    void set_name(const std::string& name) override { m_name = name; }
    std::string get_density() const override { return get_string_property(GFPDB_FLASH_DENSITY); }
    void set_density(const std::string& density) override { set_string_property(GFPDB_FLASH_DENSITY, density); }
    int get_device_family() const override { return 0; }
    int get_config_scheme() const override { return -1; }
    std::string get_db_dir() const override { return m_directory; }
    void set_db_dir(const std::string& directory) override { m_directory = directory; }
    bool is_user_defined() const override { return m_user_defined; }
    void set_user_defined(bool user_defined) override { m_user_defined = user_defined; }
    bool is_template() const override { return false; }
    std::string get_revision() const override { return std::string(); }
    const std::vector<GFPDB_OPERATION*>* get_operations(bool flow_variant) const override;
    void set_operation(GFPDB_OPERATION* operation, bool flow_variant) override;
    GFPDB_OPERATION* find_operation(int kind, bool flow_variant) const override;
    void clear_operations() override;
    std::string get_string_property(GFPDB_FLASH_PROPERTY property) const override;
    int get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const override;
    void set_int_property(GFPDB_FLASH_PROPERTY property, int value) override;
    void set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value) override;

private:
    std::string m_name;
    std::string m_directory;
    bool m_user_defined = false;
    std::map<GFPDB_FLASH_PROPERTY, std::string> m_texts;
    std::map<GFPDB_FLASH_PROPERTY, int> m_numbers;
    // By flow variant; owned.
    std::map<bool, std::vector<GFPDB_OPERATION*>> m_operations;
};
