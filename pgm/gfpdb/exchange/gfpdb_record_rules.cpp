// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "gfpdb/gfpdb_part.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"
#include "rules/gfpdb_checks.h"
#include "rules/gfpdb_options.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>
#include <iterator>

namespace {

bool is_density(const std::string& text)
{
    return gfpdb_density_bytes(text) > 0;
}

// The fields whose value is chosen from a list, and what a value may be that is not in it.
struct CHOICE
{
    GFPDB_FLASH_PROPERTY property;
    std::vector<std::string> (*options)(GFPDB_SCHEME_KIND kind);
    bool (*is_possible)(const std::string& value);
};
constexpr CHOICE CHOICES[] = {
    {GFPDB_FLASH_VOLTAGE, &gfpdb_voltage_options, &gfpdb_is_voltage},
    {GFPDB_FLASH_DENSITY, &gfpdb_density_options, &is_density},
};

// Null for a field that is not chosen from a list.
const CHOICE* choice_of(const GFPDB_FIELD& field)
{
    const auto is_of_field = [&field](const CHOICE& choice) { return choice.property == field.property; };
    const auto choice = std::find_if(std::begin(CHOICES), std::end(CHOICES), is_of_field);
    return choice == std::end(CHOICES) ? nullptr : choice;
}

GFPDB_FLASH_PROPERTY property_of(const GFPDB_FIELD& field)
{
    return static_cast<GFPDB_FLASH_PROPERTY>(field.property);
}

bool is_number(const GFPDB_FIELD& field)
{
    return field.kind == GFPDB_FIELD_KIND::NUMBER;
}

bool has_default(const GFPDB_FIELD& field)
{
    return is_number(field) || field.property == GFPDB_FLASH_VOLTAGE;
}

// A number that a record does not have reads as this.
constexpr int UNSET_NUMBER = 0;

void make_current(GFPDB_MGR& manager, const GFPDB_ROW& row)
{
    manager.set_device_family(row.family);
    manager.set_config_scheme(row.scheme);
}

// What is there already keeps a name that a built-in device has got since.
void check_name(const GFPDB_MGR& manager, bool of_template, const std::string& name, std::vector<GFPDB_FINDING>& found)
{
    const char* const what = of_template ? "template name" : "device name";
    const bool keeps_name = gfpdb_builtin_part(name) != nullptr &&
                            (of_template ? manager.is_template(name) : manager.is_custom_flash(name));
    const char* member = of_template ? GFPDB_KEY_TEMPLATE_NAME : GFPDB_KEY_NAME;
    std::string error;
    if (!gfpdb_check_name(name, what, error))
        found.push_back({0, member, error});
    else if (!keeps_name && !gfpdb_check_record_name(name, what, error))
        found.push_back({0, member, error, GFPDB_SERIOUSNESS::BUILTIN_NAME});
}

// A template goes by its template name; its device name only says what it is a copy of.
void check_names(const GFPDB_MGR& manager, const GFPDB_RECORD& record, std::vector<GFPDB_FINDING>& found)
{
    const GFPDB_ROW& row = record.row;
    if (!record.is_template)
        check_name(manager, false, row.name, found);
    if (record.is_template || !row.template_name.empty())
        check_name(manager, true, row.template_name, found);
    if (found.empty() && gfpdb_name_key(row.name) == gfpdb_name_key(row.template_name))
        found.push_back({0, GFPDB_KEY_TEMPLATE_NAME,
                         GFPDB_WORDS::say("The device and its template need different names: both are called %1.",
                                          {gfpdb_quoted(row.template_name)})});
}

void check_place(const GFPDB_MGR& manager, const GFPDB_ROW& row, std::vector<GFPDB_FINDING>& found)
{
    if (row.family < DEV_FAMILY_FIRST || row.family > DEV_FAMILY_LAST)
        found.push_back({0, GFPDB_KEY_FAMILY,
                         GFPDB_WORDS::say("There is no family %1. Allowed: %2 to %3.",
                                          {std::to_string(row.family), std::to_string(DEV_FAMILY_FIRST),
                                           std::to_string(DEV_FAMILY_LAST)})});
    if (!manager.can_add_flash())
        found.push_back(
            {0, GFPDB_KEY_SCHEME,
             GFPDB_WORDS::say("The configuration mode %1 has no flash devices.", {std::to_string(row.scheme)})});
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
bool is_usual(const CHOICE& choice, const GFPDB_FIELD& field, const GFPDB_ROW& row, std::string& error)
{
    const std::vector<std::string> usual = choice.options(gfpdb_scheme_kind(row.scheme));
    return gfpdb_check_choice(field.text(row), usual, field.noun, error);
}

bool check_text(const GFPDB_MGR& manager, const GFPDB_FIELD& field, const GFPDB_ROW& row, std::string& error)
{
    const std::string value = field.text(row);
    const CHOICE* choice = choice_of(field);
    const bool is_right = choice == nullptr ? manager.check_string_property(property_of(field), value, error)
                                            : choice->is_possible(value) || is_usual(*choice, field, row, error);
    return is_right && manager.verify_string_property(property_of(field), value, error);
}

bool check_number(const GFPDB_MGR& manager, const GFPDB_FIELD& field, const GFPDB_ROW& row, std::string& error)
{
    const std::optional<int>& value = row.*std::get<GFPDB_NUMBER_MEMBER>(field.member);
    return manager.check_int_property(property_of(field), value.value_or(UNSET_NUMBER), error);
}

void check_values(const GFPDB_MGR& manager, const GFPDB_ROW& row, GFPDB_RECORD_RULES rules,
                  std::vector<GFPDB_FINDING>& found)
{
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const bool is_value = is_number(field) || field.kind == GFPDB_FIELD_KIND::TEXT;
        if (!is_value || !manager.is_property_used(property_of(field)))
            continue;
        const bool may_miss = rules == GFPDB_RECORD_RULES::IMPORTED && has_default(field) && field.text(row).empty();
        std::string error;
        if (!may_miss && !(is_number(field) ? check_number : check_text)(manager, field, row, error))
            found.push_back({0, field.key, error});
    }
}

void warn(std::vector<GFPDB_FINDING>& found, const char* field, const std::string& text)
{
    found.push_back({0, field, text, GFPDB_SERIOUSNESS::WARNING});
}

void warn_of_unusual_values(const GFPDB_MGR& manager, const GFPDB_ROW& row, std::vector<GFPDB_FINDING>& found)
{
    for (const CHOICE& choice : CHOICES) {
        const GFPDB_FIELD& field = *gfpdb_field(choice.property);
        const std::string value = field.text(row);
        std::string error;
        if (!manager.is_property_used(choice.property) || !choice.is_possible(value) ||
            is_usual(choice, field, row, error))
            continue;
        warn(found, field.key,
             GFPDB_WORDS::say("The %1 %2 is not a usual one. Usual: %3.",
                              {GFPDB_WORDS::say(field.noun), gfpdb_quoted(value),
                               gfpdb_joined(choice.options(gfpdb_scheme_kind(row.scheme)))}));
    }
}

void warn_of_flows(const GFPDB_MGR& manager, const GFPDB_RECORD& record, std::vector<GFPDB_FINDING>& found)
{
    const bool is_quad = manager.get_flow_variant();
    const bool has_single = gfpdb_flows_have_actions(record.row.single_flows);
    const bool has_quad = gfpdb_flows_have_actions(record.row.quad_flows);
    if (!manager.can_edit_flow()) {
        if (!record.is_template && (has_single || has_quad))
            warn(found, has_single ? GFPDB_KEY_SINGLE_FLOWS : GFPDB_KEY_QUAD_FLOWS,
                 GFPDB_WORDS::say("Devices of this configuration mode have no flows: the dialog drops them."));
    } else if (!has_single && !has_quad) {
        warn(found, is_quad ? GFPDB_KEY_QUAD_FLOWS : GFPDB_KEY_SINGLE_FLOWS, GFPDB_WORDS::say("There are no flows."));
    } else if (!record.is_template && !(is_quad ? has_quad : has_single)) {
        warn(found, is_quad ? GFPDB_KEY_QUAD_FLOWS : GFPDB_KEY_SINGLE_FLOWS,
             GFPDB_WORDS::say("There are no flows for this configuration mode."));
    }
}

} // namespace

std::vector<GFPDB_FINDING> gfpdb_record_problems(GFPDB_MGR& manager, const GFPDB_RECORD& record,
                                                 GFPDB_RECORD_RULES rules)
{
    std::vector<GFPDB_FINDING> found;
    make_current(manager, record.row);
    check_names(manager, record, found);
    if (rules == GFPDB_RECORD_RULES::NAMES)
        return found;
    check_place(manager, record.row, found);
    check_values(manager, record.row, rules, found);
    return found;
}

std::vector<GFPDB_FINDING> gfpdb_fill_missing(GFPDB_MGR& manager, GFPDB_RECORD& record)
{
    std::vector<GFPDB_FINDING> filled;
    make_current(manager, record.row);
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (!has_default(field) || !field.text(record.row).empty() || !manager.is_property_used(property_of(field)))
            continue;
        if (is_number(field))
            record.row.*std::get<GFPDB_NUMBER_MEMBER>(field.member) = field.initial;
        else
            record.row.voltage = default_voltage(manager);
        warn(filled, field.key, GFPDB_WORDS::say("The value is missing: %1 is stored.", {field.text(record.row)}));
    }
    return filled;
}

std::vector<GFPDB_FINDING> gfpdb_record_warnings(GFPDB_MGR& manager, const GFPDB_RECORD& record)
{
    std::vector<GFPDB_FINDING> found;
    make_current(manager, record.row);
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const bool is_kept = field.use == GFPDB_FIELD_USE::NO_ROW || manager.is_property_used(property_of(field));
        // A template serves every configuration mode.
        if (!record.is_template && !is_kept && !field.text(record.row).empty())
            warn(found, field.key,
                 GFPDB_WORDS::say("Devices of this configuration mode have no such value: the dialog drops it."));
    }
    warn_of_unusual_values(manager, record.row, found);
    warn_of_flows(manager, record, found);
    return found;
}
