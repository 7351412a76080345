// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_json.h"

#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_flow_check.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"
#include "model/gfpdb_operation.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr const char* FORMAT_NAME = "gfpdb-records";
constexpr int FORMAT_VERSION = 1;

constexpr const char* FORMAT = "format";
constexpr const char* VERSION = "version";
constexpr const char* DEVICES = "devices";
constexpr const char* TEMPLATES = "templates";

JSON_VALUE json_of(int number)
{
    return json_number(number);
}

JSON_VALUE json_of(const std::optional<int>& number)
{
    return number ? json_number(*number) : json_null();
}

JSON_VALUE json_of(const std::string& text)
{
    return json_string(text);
}

std::string indexed(const std::string& field, const char* name, std::size_t index)
{
    return (field.empty() ? "" : field + '.') + name + '[' + std::to_string(index) + ']';
}

// The member if it is there, else the object itself: where a problem with it is shown.
const JSON_VALUE& place_of(const JSON_VALUE& object, const char* name)
{
    const JSON_VALUE* member = object.member(name);
    return member ? *member : object;
}

// All keys, those that are required before the others.
std::vector<std::string> ordered_keys(const GFPDB_READ_OPTIONS& options)
{
    const std::vector<std::string> required = gfpdb_required_keys(options);
    std::vector<std::string> keys = gfpdb_field_keys(true);
    std::stable_partition(keys.begin(), keys.end(), [&required](const std::string& key) {
        return std::find(required.begin(), required.end(), key) != required.end();
    });
    return keys;
}

} // namespace

std::vector<std::string> gfpdb_required_keys(const GFPDB_READ_OPTIONS& options)
{
    std::vector<std::string> keys;
    for (std::size_t at = 0; at < GFPDB_REQUIRED_FIELDS; ++at) {
        const std::string key = gfpdb_fields()[at].key;
        const bool is_given =
            (key == GFPDB_KEY_FAMILY && options.family) || (key == GFPDB_KEY_SCHEME && options.scheme);
        if (!is_given)
            keys.push_back(key);
    }
    return keys;
}

std::optional<JSON_VALUE> gfpdb_record_to_json(const GFPDB_RECORD& record)
{
    JSON_VALUE object = json_object();
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (field.kind != GFPDB_FIELD_KIND::FLOWS) {
            object.add(field.key, field.in(record.row, [](const auto& value) { return json_of(value); }));
            continue;
        }
        std::optional<JSON_VALUE> flows = gfpdb_flows_to_json(field.text(record.row));
        if (!flows)
            return std::nullopt;
        object.add(field.key, std::move(*flows));
    }
    return object;
}

std::optional<std::string> gfpdb_write_record(const GFPDB_RECORD& record)
{
    const std::optional<JSON_VALUE> json = gfpdb_record_to_json(record);
    return json ? std::optional<std::string>(json_write(*json)) : std::nullopt;
}

std::string gfpdb_write_records(const std::vector<GFPDB_RECORD>& records, std::vector<GFPDB_RECORD>& unreadable)
{
    JSON_VALUE file = json_object();
    file.add(FORMAT, json_string(FORMAT_NAME));
    file.add(VERSION, json_number(FORMAT_VERSION));
    for (const bool templates : {false, true}) {
        JSON_VALUE list = json_list();
        for (const GFPDB_RECORD& record : records) {
            if (record.is_template != templates)
                continue;
            std::optional<JSON_VALUE> object = gfpdb_record_to_json(record);
            if (object)
                list.items.push_back(std::move(*object));
            else
                unreadable.push_back(record);
        }
        file.add(templates ? TEMPLATES : DEVICES, std::move(list));
    }
    return json_write(file);
}

GFPDB_RECORD_READER::GFPDB_RECORD_READER(GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options)
    : m_manager(manager), m_options(options), m_keys(ordered_keys(options)),
      m_required(gfpdb_required_keys(options).size()),
      m_report([this](const JSON_VALUE& value, const std::string& field, const std::string& text) {
          add(value, field, text);
      })
{}

void GFPDB_RECORD_READER::add(const JSON_VALUE& value, const std::string& field, const std::string& text,
                              GFPDB_SERIOUSNESS seriousness)
{
    m_problems.push_back({value.line, field, text, seriousness});
}

int GFPDB_RECORD_READER::begin_file(JSON_VALUE& file)
{
    const JSON_VALUE* format = file.member(FORMAT);
    const JSON_VALUE* version = file.member(VERSION);
    if (!json_has_members(file, {FORMAT, VERSION, DEVICES, TEMPLATES}, 2, "", m_report))
        return 0;
    if (format->kind != JSON_VALUE::TEXT || format->text != FORMAT_NAME)
        add(*format, FORMAT, GFPDB_WORDS::say("This is not a file of records. Allowed: %1.", {FORMAT_NAME}));
    else if (version->kind != JSON_VALUE::NUMBER || version->text != std::to_string(FORMAT_VERSION))
        add(*version, VERSION,
            GFPDB_WORDS::say("This version of the format is not known. Allowed: %1.",
                             {std::to_string(FORMAT_VERSION)}));
    else {
        find_records(file, DEVICES, false);
        find_records(file, TEMPLATES, true);
    }
    return static_cast<int>(m_items.size());
}

void GFPDB_RECORD_READER::find_records(JSON_VALUE& file, const char* name, bool are_templates)
{
    JSON_VALUE* list = file.member(name);
    if (!list || !json_is(*list, JSON_VALUE::LIST, name, m_report))
        return;
    for (std::size_t at = 0; at < list->items.size(); ++at)
        m_items.push_back({&list->items[at], are_templates, indexed("", name, at)});
}

GFPDB_RECORD GFPDB_RECORD_READER::read_item(int at)
{
    const ITEM& item = m_items[static_cast<std::size_t>(at)];
    const JSON_VALUE value = std::exchange(*item.value, JSON_VALUE());
    return read_record(value, item.is_template, item.field);
}

GFPDB_RECORD GFPDB_RECORD_READER::read_record(const JSON_VALUE& value, bool is_template, const std::string& field)
{
    GFPDB_RECORD record;
    record.is_template = is_template;
    record.line = value.line;
    if (!json_has_members(value, m_keys, m_required, field, m_report))
        return record;
    const std::size_t problems_before = m_problems.size();
    for (const GFPDB_FIELD& each : gfpdb_fields())
        read_field(value, each, field, record.row);
    for (const GFPDB_FINDING& remark : gfpdb_record_problems(m_manager, record, m_options.rules)) {
        const std::string place = field + '.' + remark.field;
        // What could not be read is not missing.
        if (std::none_of(m_problems.begin() + static_cast<std::ptrdiff_t>(problems_before), m_problems.end(),
                         [&place](const GFPDB_FINDING& problem) { return problem.field == place; }))
            add(place_of(value, remark.field.c_str()), place, remark.text, remark.seriousness);
    }
    return record;
}

void GFPDB_RECORD_READER::read_field(const JSON_VALUE& object, const GFPDB_FIELD& which, const std::string& field,
                                     GFPDB_ROW& row)
{
    if (which.kind == GFPDB_FIELD_KIND::PLACE) {
        int& place = row.*std::get<GFPDB_PLACE_MEMBER>(which.member);
        const std::optional<int>& given = &place == &row.family ? m_options.family : m_options.scheme;
        place = (given ? given : read_number(object, which.key, field)).value_or(place);
    } else if (which.kind == GFPDB_FIELD_KIND::NUMBER) {
        row.*std::get<GFPDB_NUMBER_MEMBER>(which.member) = read_number(object, which.key, field);
    } else {
        const bool are_flows = which.kind == GFPDB_FIELD_KIND::FLOWS;
        row.*std::get<GFPDB_TEXT_MEMBER>(which.member) =
            are_flows ? read_flows(object, which.key, field) : read_text(object, which.key, field);
    }
}

std::string GFPDB_RECORD_READER::read_text(const JSON_VALUE& object, const char* name, const std::string& field)
{
    const JSON_VALUE* value = object.member(name);
    if (!value || !json_is(*value, JSON_VALUE::TEXT, field + '.' + name, m_report))
        return std::string();
    // Can only be of a list: a text of JSON always is.
    if (!gfpdb_is_utf8(value->text))
        add(*value, field + '.' + name, GFPDB_WORDS::say("The text is not UTF-8."));
    return value->text;
}

std::optional<int> GFPDB_RECORD_READER::read_number(const JSON_VALUE& object, const char* name,
                                                    const std::string& field)
{
    const JSON_VALUE* value = object.member(name);
    if (!value || value->kind == JSON_VALUE::NOTHING)
        return std::nullopt;
    constexpr std::size_t DIGITS_MAX = 11;
    const bool whole = value->kind == JSON_VALUE::NUMBER && value->text.size() <= DIGITS_MAX &&
                       value->text.find_first_of(".eE") == std::string::npos;
    const long long number = whole ? std::stoll(value->text) : std::numeric_limits<long long>::max();
    if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
        return static_cast<int>(number);
    const std::string what = value->kind == JSON_VALUE::NUMBER ? value->text : json_kind_text(*value);
    add(*value, field + '.' + name, GFPDB_WORDS::say("A whole number or null was expected, but this is %1.", {what}));
    return std::nullopt;
}

std::string GFPDB_RECORD_READER::read_flows(const JSON_VALUE& object, const char* name, const std::string& field)
{
    const JSON_VALUE* list = object.member(name);
    if (!list)
        return std::string();
    const std::size_t problems_before = m_problems.size();
    const GFPDB_OPERATION_LIST operations = gfpdb_flows_from_json(*list, field + '.' + name, m_report);
    const std::vector<GFPDB_OPERATION*> pointers = gfpdb_pointers(operations);
    if (m_options.rules != GFPDB_RECORD_RULES::NAMES && m_problems.size() == problems_before)
        check_flow(*list, field + '.' + name, pointers);
    return gfpdb_flows_to_text(&pointers).value_or(std::string());
}

// The list was read without a problem, so its items are the operations, in their order.
void GFPDB_RECORD_READER::check_flow(const JSON_VALUE& list, const std::string& field,
                                     const std::vector<GFPDB_OPERATION*>& operations)
{
    for (const GFPDB_FLOW_PROBLEM& problem : gfpdb_check_flow(operations)) {
        std::size_t at = 0;
        while (operations[at]->m_kind != problem.operation)
            ++at;
        const JSON_VALUE& actions = *list.items[at].member(GFPDB_FLOW_ACTIONS);
        const auto action = static_cast<std::size_t>(problem.action);
        std::string place = json_item_field(field, at) + '.' + GFPDB_FLOW_ACTIONS;
        const JSON_VALUE* value = &actions;
        if (action < actions.items.size()) {
            place = json_item_field(place, action);
            value = &actions.items[action];
        }
        if (problem.property >= 0) {
            const char* name = gfpdb_property_word(problem.property);
            place += std::string(".") + name;
            value = &place_of(*value, name);
        }
        add(*value, place, problem.text);
    }
}
