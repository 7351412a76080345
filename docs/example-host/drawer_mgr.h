// SPDX-License-Identifier: MIT

// The manager of the example's flash database: a drawer of devices that is emptied when the program ends. It knows one
// built-in device, takes any new one, and has five templates without steps.
#pragma once

#include "drawer_flash.h"

#include "gfpdb/gfpdb_mgr.h"

#include <memory>
#include <string>
#include <vector>

class DRAWER_MGR : public GFPDB_MGR
{
public:
    DRAWER_MGR();
    ~DRAWER_MGR() override;

    bool get_flow_variant() const override;
    int get_device_family() const override { return m_family; }
    void set_device_family(int family) override { m_family = family; }
    int get_config_scheme() const override { return m_scheme; }
    void set_config_scheme(int scheme) override { m_scheme = scheme; }
    GFPDB_FLASH* find_flash(const std::string& name, bool load_flows) override;
    bool is_builtin_flash(const std::string& name) const override;
    bool is_custom_flash(const std::string& name) const override;
    std::string get_last_error() const override { return std::string(); }
    bool is_hidden_flash(const std::string& name, bool flows) const override;
    bool can_add_flash() const override { return true; }
    bool can_edit_flow() const override { return true; }
    bool is_writable() const override { return true; }
    bool check_int_property(GFPDB_FLASH_PROPERTY property, int value, std::string& error) const override;
    bool check_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                               std::string& error) const override;
    bool is_property_used(GFPDB_FLASH_PROPERTY property) const override;
    bool verify_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value,
                                std::string& error) const override;
    bool save_flash(GFPDB_FLASH* flash, const std::string& directory) override;
    bool delete_flash(const std::string& name, const std::string& directory) override;
    bool restore_flash(std::int64_t history_id, const std::string& directory, GFPDB_RESTORE how,
                       const std::string& new_name) override;
    void get_family_list(std::vector<int>& families) const override;
    std::vector<int>& get_config_scheme_list(std::vector<int>& schemes) const override;
    std::vector<std::string>& get_custom_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                     int reserved) const override;
    std::vector<std::string>& get_builtin_flash_names(std::vector<std::string>& names, int family, int scheme,
                                                      int reserved) const override;
    std::vector<std::string>& get_voltage_list(std::vector<std::string>& voltages) const override;
    std::vector<std::string>& get_density_list(std::vector<std::string>& densities) const override;
    std::vector<std::string>& get_template_list(std::vector<std::string>& templates) const override;
    std::vector<std::string>& get_user_template_list(std::vector<std::string>& templates) const override;
    bool is_template(const std::string& name) const override;
    GFPDB_FLASH* create_flash(const std::string& name) override;
    GFPDB_ACTION* create_action(GFPDB_ACT_TYPE type) override;
    GFPDB_OPERATION* create_operation(int kind) override;
    const std::vector<GFPDB_OPERATION*>* get_builtin_template_operations(int index, bool flow_variant) override;
    const std::vector<GFPDB_OPERATION*>* get_template_operations(const std::string& name, bool flow_variant) override;
    bool is_flow_editable(const GFPDB_FLASH* flash) const override;
    bool remove_template(const std::string& name) override;

private:
    DRAWER_FLASH* make_flash(const std::string& name);
    void add_builtin(const std::string& name);

    int m_family = DEV_FAMILY_FIRST;
    int m_scheme = PGMIO_ACTIVE_SERIAL;
    // Every record that was handed out: it stays valid until the program ends.
    std::vector<std::unique_ptr<DRAWER_FLASH>> m_records;
    // Those of them that are in the drawer.
    std::vector<DRAWER_FLASH*> m_devices;
};
