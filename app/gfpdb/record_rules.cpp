// SPDX-License-Identifier: MIT
#include "record_rules.h"

#include "record_fields.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_part.h"
#include "model/gfpdb_json.h"
#include "rules/gfpdb_checks.h"
#include "rules/gfpdb_options.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_mgr.h"

namespace {

bool is_density(const std::string& text)
{
    return gfpdb_density_bytes(text) > 0;
}

struct TEXT_FIELD
{
    const char* member;
    GFPDB_FLASH_PROPERTY property;
    std::string GFPDB_ROW::*value;
    // Of a value that is chosen from a list: what it is called, the list, and what a value may be that is not in it.
    const char* label = nullptr;
    std::vector<std::string> (*options)(GFPDB_SCHEME_KIND kind) = nullptr;
    bool (*is_possible)(const std::string& value) = nullptr;
};
constexpr TEXT_FIELD TEXTS[] = {
    {RECORD_DEVICE_ID, GFPDB_FLASH_DEVICE_ID, &GFPDB_ROW::device_id},
    {RECORD_VOLTAGE, GFPDB_FLASH_VOLTAGE, &GFPDB_ROW::voltage, "I/O voltage", &gfpdb_voltage_options,
     &gfpdb_is_voltage},
    {RECORD_DENSITY, GFPDB_FLASH_DENSITY, &GFPDB_ROW::density, "density", &gfpdb_density_options, &is_density},
};

struct NUMBER_FIELD
{
    const char* member;
    GFPDB_FLASH_PROPERTY property;
    std::optional<int> GFPDB_ROW::*value;
    // What a file that does not say it means.
    int default_value;
};
constexpr NUMBER_FIELD NUMBERS[] = {
    {RECORD_TOTAL_DIE, GFPDB_FLASH_TOTAL_DIE, &GFPDB_ROW::total_die, GFPDB_TOTAL_DIE_MIN},
    {RECORD_SINGLE_DUMMY, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, &GFPDB_ROW::single_io_dummy_clock, 0},
    {RECORD_QUAD_DUMMY, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, &GFPDB_ROW::quad_io_dummy_clock, 0},
};

// A number that a record does not have reads as this.
constexpr int UNSET_NUMBER = 0;

void make_current(GFPDB_MGR& manager, const GFPDB_ROW& row)
{
    manager.set_device_family(row.family);
    manager.set_config_scheme(row.scheme);
}

// What is there already keeps a name that a built-in device has got since.
void check_name(const GFPDB_MGR& manager, bool of_template, const std::string& name, std::vector<RECORD_REMARK>& found)
{
    const std::string what = of_template ? "template name" : "device name";
    const bool keeps_name = gfpdb_builtin_part(name) != nullptr &&
                            (of_template ? manager.is_template(name) : manager.is_custom_flash(name));
    const char* member = of_template ? RECORD_TEMPLATE_NAME : RECORD_NAME;
    std::string error;
    if (!gfpdb_check_name(name, what, error))
        found.push_back({member, error});
    else if (!keeps_name && !gfpdb_check_record_name(name, what, error))
        found.push_back({member, error, CLI_SERIOUSNESS::BUILTIN_NAME});
}

// A template goes by its template name; its device name only says what it is a copy of.
void check_names(const GFPDB_MGR& manager, const CLI_RECORD& record, std::vector<RECORD_REMARK>& found)
{
    const GFPDB_ROW& row = record.row;
    if (!record.is_template)
        check_name(manager, false, row.name, found);
    if (record.is_template || !row.template_name.empty())
        check_name(manager, true, row.template_name, found);
    if (found.empty() && gfpdb_name_key(row.name) == gfpdb_name_key(row.template_name))
        found.push_back({RECORD_TEMPLATE_NAME, "The device and its template need different names: both are called " +
                                                   gfpdb_quoted(row.template_name) + "."});
}

void check_place(const GFPDB_MGR& manager, const GFPDB_ROW& row, std::vector<RECORD_REMARK>& found)
{
    if (row.family < DEV_FAMILY_FIRST || row.family > DEV_FAMILY_LAST)
        found.push_back({RECORD_FAMILY, "There is no family " + std::to_string(row.family) +
                                            ". Allowed: " + std::to_string(DEV_FAMILY_FIRST) + " to " +
                                            std::to_string(DEV_FAMILY_LAST) + "."});
    if (!manager.can_add_flash())
        found.push_back(
            {RECORD_SCHEME, "The configuration mode " + std::to_string(row.scheme) + " has no flash devices."});
}

// The first voltage that fits, as the dialog proposes it for a new device.
std::string default_voltage(const GFPDB_MGR& manager)
{
    std::vector<std::string> voltages;
    std::string error;
    for (const std::string& voltage : manager.get_voltage_list(voltages)) {
        if (manager.verify_string_property(GFPDB_FLASH_VOLTAGE, voltage, error))
            return voltage;
    }
    return std::string();
}

// The manager's lists have what stored devices have, wrong or not: here only the standard ones count.
std::vector<std::string> usual_values(const TEXT_FIELD& field, const GFPDB_ROW& row)
{
    return field.options(gfpdb_scheme_kind(row.scheme));
}

bool check_text(const GFPDB_MGR& manager, const TEXT_FIELD& field, const GFPDB_ROW& row, std::string& error)
{
    const std::string& value = row.*field.value;
    const bool is_right =
        field.options == nullptr
            ? manager.check_string_property(field.property, value, error)
            : field.is_possible(value) || gfpdb_check_choice(value, usual_values(field, row), field.label, error);
    return is_right && manager.verify_string_property(field.property, value, error);
}

void check_values(const GFPDB_MGR& manager, const GFPDB_ROW& row, RECORD_RULES rules, std::vector<RECORD_REMARK>& found)
{
    const bool may_miss = rules == RECORD_RULES::IMPORTED;
    for (const TEXT_FIELD& field : TEXTS) {
        const std::string& value = row.*field.value;
        std::string error;
        const bool has_default = may_miss && value.empty() && field.property == GFPDB_FLASH_VOLTAGE;
        if (manager.is_property_used(field.property) && !has_default && !check_text(manager, field, row, error))
            found.push_back({field.member, error});
    }
    for (const NUMBER_FIELD& field : NUMBERS) {
        const std::optional<int>& value = row.*field.value;
        std::string error;
        if (manager.is_property_used(field.property) && (value || !may_miss) &&
            !manager.check_int_property(field.property, value.value_or(UNSET_NUMBER), error))
            found.push_back({field.member, error});
    }
}

void warn_of_unusual_values(const GFPDB_MGR& manager, const GFPDB_ROW& row, std::vector<RECORD_REMARK>& found)
{
    for (const TEXT_FIELD& field : TEXTS) {
        const std::string& value = row.*field.value;
        std::string error;
        if (field.options == nullptr || !manager.is_property_used(field.property) || !field.is_possible(value) ||
            gfpdb_check_choice(value, usual_values(field, row), field.label, error))
            continue;
        found.push_back({field.member, std::string("The ") + field.label + ' ' + gfpdb_quoted(value) +
                                           " is not a usual one. Usual: " + gfpdb_joined(usual_values(field, row)) +
                                           '.'});
    }
}

void warn_of_flows(const GFPDB_MGR& manager, const CLI_RECORD& record, std::vector<RECORD_REMARK>& found)
{
    const bool is_quad = manager.get_flow_variant();
    const bool has_single = gfpdb_flows_have_actions(record.row.single_flows);
    const bool has_quad = gfpdb_flows_have_actions(record.row.quad_flows);
    if (!manager.can_edit_flow()) {
        if (!record.is_template && (has_single || has_quad))
            found.push_back({has_single ? RECORD_SINGLE_FLOWS : RECORD_QUAD_FLOWS,
                             "Devices of this configuration mode have no flows: the dialog drops them."});
    } else if (!has_single && !has_quad) {
        found.push_back({is_quad ? RECORD_QUAD_FLOWS : RECORD_SINGLE_FLOWS, "There are no flows."});
    } else if (!record.is_template && !(is_quad ? has_quad : has_single)) {
        found.push_back(
            {is_quad ? RECORD_QUAD_FLOWS : RECORD_SINGLE_FLOWS, "There are no flows for this configuration mode."});
    }
}

} // namespace

std::vector<RECORD_REMARK> record_problems(GFPDB_MGR& manager, const CLI_RECORD& record, RECORD_RULES rules)
{
    std::vector<RECORD_REMARK> found;
    make_current(manager, record.row);
    check_names(manager, record, found);
    if (rules == RECORD_RULES::NAMES)
        return found;
    check_place(manager, record.row, found);
    check_values(manager, record.row, rules, found);
    return found;
}

std::vector<RECORD_REMARK> record_fill_missing(GFPDB_MGR& manager, CLI_RECORD& record)
{
    std::vector<RECORD_REMARK> filled;
    make_current(manager, record.row);
    const auto note = [&filled](const char* member, const std::string& value) {
        filled.push_back({member, "The value is missing: " + value + " is stored."});
    };
    if (record.row.voltage.empty() && manager.is_property_used(GFPDB_FLASH_VOLTAGE)) {
        record.row.voltage = default_voltage(manager);
        note(RECORD_VOLTAGE, record.row.voltage);
    }
    for (const NUMBER_FIELD& field : NUMBERS) {
        std::optional<int>& value = record.row.*field.value;
        if (value || !manager.is_property_used(field.property))
            continue;
        value = field.default_value;
        note(field.member, std::to_string(field.default_value));
    }
    return filled;
}

std::vector<RECORD_REMARK> record_warnings(GFPDB_MGR& manager, const CLI_RECORD& record)
{
    std::vector<RECORD_REMARK> found;
    make_current(manager, record.row);
    const auto note = [&manager, &found](const char* member, GFPDB_FLASH_PROPERTY property, bool is_set) {
        if (is_set && !manager.is_property_used(property))
            found.push_back({member, "Devices of this configuration mode have no such value: the dialog drops it."});
    };
    // A template serves every configuration mode.
    if (!record.is_template) {
        for (const TEXT_FIELD& field : TEXTS)
            note(field.member, field.property, !(record.row.*field.value).empty());
        for (const NUMBER_FIELD& field : NUMBERS)
            note(field.member, field.property, (record.row.*field.value).has_value());
        note(RECORD_FLOW_TEMPLATE, GFPDB_FLASH_FLOW_TEMPLATE, !record.row.flow_template.empty());
    }
    warn_of_unusual_values(manager, record.row, found);
    warn_of_flows(manager, record, found);
    return found;
}
