// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_builtin_records.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "model/gfpdb_field.h"
#include "rules/gfpdb_checks.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <unordered_map>

namespace {

// "0xC2 0x20 0x19"
std::string id_text(const std::vector<int>& bytes)
{
    std::string text;
    for (const int byte : bytes) {
        char digits[8] = {};
        std::snprintf(digits, sizeof digits, "0x%02X", static_cast<unsigned>(byte) & 0xFFU);
        text += (text.empty() ? "" : " ") + std::string(digits);
    }
    return text;
}

void set_known(GFPDB_FLASH& record, GFPDB_FLASH_PROPERTY property, int value)
{
    if (value > 0)
        record.set_int_property(property, value);
}

std::unique_ptr<GFPDB_EMBEDDED_FLASH> make_record(const GFPDB_PART& part)
{
    auto record = std::make_unique<GFPDB_EMBEDDED_FLASH>(part.name);
    record->set_string_property(GFPDB_FLASH_DEVICE_ID, id_text(part.jedec_id));
    record->set_string_property(GFPDB_FLASH_VOLTAGE, part.voltage);
    record->set_density(part.density);
    record->set_int_property(GFPDB_FLASH_TOTAL_DIE,
                             std::max(part.total_die, gfpdb_field(GFPDB_FLASH_TOTAL_DIE)->lowest));
    set_known(*record, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, part.dummy_single);
    set_known(*record, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, part.dummy_quad);
    record->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, gfpdb_part_template_name(part));
    gfpdb_fill_part_flows(part, *record);
    return record;
}

const std::unordered_map<std::string, const GFPDB_PART*>& parts_by_key()
{
    static const std::unordered_map<std::string, const GFPDB_PART*> PARTS = [] {
        std::unordered_map<std::string, const GFPDB_PART*> parts;
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            parts.emplace(gfpdb_name_key(part.name), &part);
        return parts;
    }();
    return PARTS;
}

} // namespace

const std::vector<std::string>& gfpdb_builtin_names()
{
    static const std::vector<std::string> NAMES = [] {
        std::vector<std::string> names;
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            names.push_back(part.name);
        return names;
    }();
    return NAMES;
}

const std::vector<std::string>& gfpdb_builtin_keys()
{
    static const std::vector<std::string> KEYS = [] {
        std::vector<std::string> keys;
        for (const std::string& name : gfpdb_builtin_names())
            keys.push_back(gfpdb_name_key(name));
        return keys;
    }();
    return KEYS;
}

const GFPDB_PART* gfpdb_builtin_part(const std::string& name)
{
    const auto place = parts_by_key().find(gfpdb_name_key(name));
    return place == parts_by_key().end() ? nullptr : place->second;
}

// The records are never destroyed: a program may look at them until its very end.
GFPDB_EMBEDDED_FLASH* gfpdb_builtin_record(const std::string& name)
{
    static auto& records = *new std::unordered_map<const GFPDB_PART*, std::unique_ptr<GFPDB_EMBEDDED_FLASH>>();
    const GFPDB_PART* part = gfpdb_builtin_part(name);
    if (part == nullptr)
        return nullptr;
    std::unique_ptr<GFPDB_EMBEDDED_FLASH>& record = records[part];
    if (!record)
        record = make_record(*part);
    return record.get();
}

int gfpdb_builtin_template(const std::string& name)
{
    const std::vector<std::string>& names = gfpdb_builtin_template_names();
    const std::string key = gfpdb_name_key(name);
    const auto has_key = [&key](const std::string& other) { return gfpdb_name_key(other) == key; };
    const auto place = std::find_if(names.begin(), names.end(), has_key);
    return place == names.end() ? -1 : static_cast<int>(place - names.begin());
}

bool gfpdb_check_record_name(const std::string& name, const char* what, std::string& error)
{
    if (!gfpdb_check_name(name, what, error))
        return false;
    const GFPDB_PART* part = gfpdb_builtin_part(name);
    const int template_index = gfpdb_builtin_template(name);
    if (part == nullptr && template_index < 0)
        return true;
    const std::string& stored =
        part != nullptr ? part->name : gfpdb_builtin_template_names()[static_cast<std::size_t>(template_index)];
    const std::string in_the_way =
        part != nullptr
            ? GFPDB_WORDS::say("There is a built-in device called %1: choose another name.", {gfpdb_quoted(stored)})
            : GFPDB_WORDS::say("There is a built-in template called %1: choose another name.", {gfpdb_quoted(stored)});
    error = in_the_way + gfpdb_case_note(stored, name);
    return false;
}
