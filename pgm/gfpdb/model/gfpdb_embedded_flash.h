// SPDX-License-Identifier: MIT

// The flash record of the embedded library.
#pragma once

#include "gfpdb/gfpdb_flash.h"
#include "model/gfpdb_row.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// A record in memory. What of it is stored, and how, is a GFPDB_ROW; the conversion is here. Owns its operations. Texts
// are UTF-8, the directory is in the local 8-bit encoding. GUI thread only.
class GFPDB_EMBEDDED_FLASH : public GFPDB_FLASH
{
public:
    explicit GFPDB_EMBEDDED_FLASH(const std::string& name);
    ~GFPDB_EMBEDDED_FLASH() override;

    // The record that `row` of the database in `directory` stands for; null when its flows cannot be read.
    static std::unique_ptr<GFPDB_EMBEDDED_FLASH> from_row(const GFPDB_ROW& row, const std::string& directory,
                                                          bool is_template);
    // The record as a row of (family, scheme), with the revision empty; none when a text is not UTF-8.
    std::optional<GFPDB_ROW> to_row(int family, int scheme) const;
    // Notes that the record was stored as `row`.
    void set_stored(const GFPDB_ROW& row);
    // True while nothing of the record was changed since it was read.
    bool is_unchanged() const { return !m_is_changed; }
    // From here on, is_unchanged() tells.
    void set_unchanged() { m_is_changed = false; }

    std::string get_name() const override;
    void set_name(const std::string& name) override;
    std::string get_density() const override;
    void set_density(const std::string& density) override;
    int get_device_family() const override;
    int get_config_scheme() const override;
    std::string get_db_dir() const override;
    void set_db_dir(const std::string& directory) override;
    bool is_user_defined() const override;
    void set_user_defined(bool user_defined) override;
    bool is_template() const override;
    std::string get_revision() const override;
    const std::vector<GFPDB_OPERATION*>* get_operations(bool flow_variant) const override;
    void set_operation(GFPDB_OPERATION* operation, bool flow_variant) override;
    GFPDB_OPERATION* find_operation(int kind, bool flow_variant) const override;
    void clear_operations() override;
    std::string get_string_property(GFPDB_FLASH_PROPERTY property) const override;
    int get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const override;
    void set_int_property(GFPDB_FLASH_PROPERTY property, int value) override;
    void set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value) override;

private:
    using OPERATIONS = std::vector<GFPDB_OPERATION*>;
    OPERATIONS& operations(bool flow_variant) { return flow_variant ? m_quad_operations : m_single_operations; }
    const OPERATIONS& operations(bool flow_variant) const
    {
        return flow_variant ? m_quad_operations : m_single_operations;
    }
    bool read_flows(const std::string& json, bool flow_variant);

    // The properties; the flows of the row stay empty.
    GFPDB_ROW m_row;
    std::string m_directory;
    bool m_is_user_defined = false;
    bool m_is_template = false;
    bool m_is_changed = false;
    OPERATIONS m_single_operations;
    OPERATIONS m_quad_operations;
};
