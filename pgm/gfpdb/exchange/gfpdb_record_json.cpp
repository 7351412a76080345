// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_json.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_json.h"
#include "model/gfpdb_operation.h"
#include "rules/gfpdb_flow_check.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

namespace {

using OPERATIONS = std::vector<std::unique_ptr<GFPDB_OPERATION>>;

constexpr const char* OPERATION = "operation";
constexpr const char* ACTIONS = "actions";
constexpr const char* ACTION = "action";
constexpr const char* FORMAT = "format";
constexpr const char* VERSION = "version";
constexpr const char* DEVICES = "devices";
constexpr const char* TEMPLATES = "templates";

const std::vector<std::string> OPERATION_WORDS = {"initialization", "program", "erase", "verify", "termination"};
const std::vector<std::string> ACTION_WORDS = {"write_register", "read_register", "write_data",
                                               "read_data",      "erase",         "custom"};

// Names of the properties of an action, by GFPDB_ACT_PROPERTY.
constexpr std::array<const char*, GFPDB_ACT_PROPERTY_COUNT> PROPERTY_WORDS = {
    // Write Register
    "name", "command", "data", "delay_us", "bus_width",
    // Read Register
    "name", "command", "data_length", "expected_data", "expected_data_mask", "attempt_count", "delay_us", "bus_width",
    // Write Data
    "name", "command", "address", "data", "page_size", "addressing_mode", "delay_us", "bus_width",
    // Read Data
    "name", "command", "address", "data_length", "expected_data", "expected_data_mask", "addressing_mode",
    "dummy_clock_cycle", "delay_us", "bus_width",
    // Erase
    "name", "command", "address", "erase_size", "addressing_mode", "delay_us", "bus_width",
    // Custom
    "loop_over", "marker"};

JSON_VALUE action_to_json(const GFPDB_ACTION& action)
{
    JSON_VALUE object = json_object();
    object.add(ACTION, json_string(ACTION_WORDS[static_cast<std::size_t>(action.m_action_type)]));
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list())
        object.add(PROPERTY_WORDS[static_cast<std::size_t>(property)],
                   json_string(action.get_property_value(property)));
    return object;
}

JSON_VALUE flows_to_json(const OPERATIONS& operations)
{
    JSON_VALUE list = json_list();
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : operations) {
        JSON_VALUE object = json_object();
        object.add(OPERATION, json_string(OPERATION_WORDS[static_cast<std::size_t>(operation->m_kind)]));
        JSON_VALUE actions = json_list();
        for (const GFPDB_ACTION* action : *operation->get_actions())
            actions.items.push_back(action_to_json(*action));
        object.add(ACTIONS, std::move(actions));
        list.items.push_back(std::move(object));
    }
    return list;
}

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

// What a value is called where another kind was expected.
std::string kind_text(JSON_VALUE::KIND kind)
{
    static const char* const TEXTS[] = {"null", "true or false", "a number", "a text", "a list", "an object"};
    return TEXTS[kind];
}

// The place of `word` in `words`, or -1.
int index_of(const std::vector<std::string>& words, const std::string& word)
{
    const auto place = std::find(words.begin(), words.end(), word);
    return place == words.end() ? -1 : static_cast<int>(place - words.begin());
}

std::string indexed(const std::string& field, const char* name, std::size_t index)
{
    return (field.empty() ? "" : field + '.') + name + '[' + std::to_string(index) + ']';
}

std::string item_field(const std::string& field, std::size_t index)
{
    return field + '[' + std::to_string(index) + ']';
}

// The member if it is there, else the object itself: where a problem with it is shown.
const JSON_VALUE& place_of(const JSON_VALUE& object, const char* name)
{
    const JSON_VALUE* member = object.member(name);
    return member ? *member : object;
}

} // namespace

JSON_VALUE field_to_json(const GFPDB_FIELD& field, const GFPDB_ROW& row)
{
    return field.in(row, [](const auto& value) { return json_of(value); });
}

std::optional<JSON_VALUE> record_to_json(const CLI_RECORD& record)
{
    JSON_VALUE object = json_object();
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (field.kind != GFPDB_FIELD_KIND::FLOWS) {
            object.add(field.key, field_to_json(field, record.row));
            continue;
        }
        const auto flows = gfpdb_flows_from_json(field.text(record.row));
        if (!flows)
            return std::nullopt;
        object.add(field.key, flows_to_json(*flows));
    }
    return object;
}

JSON_VALUE records_to_json(const std::vector<CLI_RECORD>& records, std::vector<CLI_RECORD>& unreadable)
{
    JSON_VALUE file = json_object();
    file.add(FORMAT, json_string(RECORD_FORMAT));
    file.add(VERSION, json_number(RECORD_FORMAT_VERSION));
    for (const bool templates : {false, true}) {
        JSON_VALUE list = json_list();
        for (const CLI_RECORD& record : records) {
            if (record.is_template != templates)
                continue;
            std::optional<JSON_VALUE> object = record_to_json(record);
            if (object)
                list.items.push_back(std::move(*object));
            else
                unreadable.push_back(record);
        }
        file.add(templates ? TEMPLATES : DEVICES, std::move(list));
    }
    return file;
}

RECORD_READER::RECORD_READER(GFPDB_MGR& manager, RECORD_RULES rules, std::optional<int> family,
                             std::optional<int> scheme)
    : m_manager(manager), m_rules(rules), m_family(family), m_scheme(scheme)
{}

void RECORD_READER::add(const JSON_VALUE& value, const std::string& field, const std::string& text,
                        CLI_SERIOUSNESS seriousness)
{
    m_problems.push_back({value.line, field, text, seriousness});
}

// Every member is known and the first `required` of the known ones are there.
bool RECORD_READER::check_members(const JSON_VALUE& object, const std::string& field,
                                  const std::vector<std::string>& known, std::size_t required)
{
    if (object.kind != JSON_VALUE::OBJECT) {
        add(object, field, "An object was expected, but this is " + kind_text(object.kind) + ".");
        return false;
    }
    bool complete = true;
    for (const auto& [name, value] : object.members) {
        if (index_of(known, name) < 0)
            add(value, field, gfpdb_quoted(name) + " is not known here. Allowed: " + gfpdb_joined(known) + ".");
    }
    for (std::size_t at = 0; at < required; ++at) {
        if (!object.member(known[at])) {
            add(object, field, gfpdb_quoted(known[at]) + " is missing.");
            complete = false;
        }
    }
    return complete;
}

std::vector<CLI_RECORD> RECORD_READER::read_file(const JSON_VALUE& file)
{
    std::vector<CLI_RECORD> records;
    const JSON_VALUE* format = file.member(FORMAT);
    const JSON_VALUE* version = file.member(VERSION);
    if (!check_members(file, "", {FORMAT, VERSION, DEVICES, TEMPLATES}, 2))
        return records;
    if (format->kind != JSON_VALUE::TEXT || format->text != RECORD_FORMAT)
        add(*format, FORMAT, std::string("This is not a file of records. Allowed: ") + RECORD_FORMAT + ".");
    else if (version->kind != JSON_VALUE::NUMBER || version->text != std::to_string(RECORD_FORMAT_VERSION))
        add(*version, VERSION,
            "This version of the format is not known. Allowed: " + std::to_string(RECORD_FORMAT_VERSION) + ".");
    else {
        read_records(file, DEVICES, false, records);
        read_records(file, TEMPLATES, true, records);
    }
    return records;
}

void RECORD_READER::read_records(const JSON_VALUE& file, const char* name, bool are_templates,
                                 std::vector<CLI_RECORD>& records)
{
    const JSON_VALUE* list = file.member(name);
    if (!list)
        return;
    if (list->kind != JSON_VALUE::LIST) {
        add(*list, name, "A list was expected, but this is " + kind_text(list->kind) + ".");
        return;
    }
    for (std::size_t at = 0; at < list->items.size(); ++at)
        records.push_back(read_record(list->items[at], are_templates, indexed("", name, at)));
}

CLI_RECORD RECORD_READER::read_record(const JSON_VALUE& value, bool is_template, const std::string& field)
{
    CLI_RECORD record;
    record.is_template = is_template;
    record.line = value.line;
    if (!check_members(value, field, gfpdb_field_keys(true), GFPDB_REQUIRED_FIELDS))
        return record;
    const std::size_t problems_before = m_problems.size();
    for (const GFPDB_FIELD& each : gfpdb_fields())
        read_field(value, each, field, record.row);
    for (const RECORD_REMARK& remark : record_problems(m_manager, record, m_rules)) {
        const std::string place = field + '.' + remark.member;
        // What could not be read is not missing.
        if (std::none_of(m_problems.begin() + static_cast<std::ptrdiff_t>(problems_before), m_problems.end(),
                         [&place](const CLI_PROBLEM& problem) { return problem.field == place; }))
            add(place_of(value, remark.member), place, remark.text, remark.seriousness);
    }
    return record;
}

void RECORD_READER::read_field(const JSON_VALUE& object, const GFPDB_FIELD& which, const std::string& field,
                               GFPDB_ROW& row)
{
    if (which.kind == GFPDB_FIELD_KIND::PLACE) {
        int& place = row.*std::get<GFPDB_PLACE_MEMBER>(which.member);
        const std::optional<int>& given = &place == &row.family ? m_family : m_scheme;
        place = (given ? given : read_number(object, which.key, field)).value_or(place);
    } else if (which.kind == GFPDB_FIELD_KIND::NUMBER) {
        row.*std::get<GFPDB_NUMBER_MEMBER>(which.member) = read_number(object, which.key, field);
    } else {
        const bool are_flows = which.kind == GFPDB_FIELD_KIND::FLOWS;
        row.*std::get<GFPDB_TEXT_MEMBER>(which.member) =
            are_flows ? read_flows(object, which.key, field) : read_text(object, which.key, field);
    }
}

std::string RECORD_READER::read_text(const JSON_VALUE& object, const char* name, const std::string& field)
{
    const JSON_VALUE* value = object.member(name);
    if (!value)
        return std::string();
    if (value->kind != JSON_VALUE::TEXT)
        add(*value, field + '.' + name, "A text was expected, but this is " + kind_text(value->kind) + ".");
    // Can only be of a list: a text of JSON always is.
    else if (!gfpdb_is_utf8(value->text))
        add(*value, field + '.' + name, "The text is not UTF-8.");
    return value->kind == JSON_VALUE::TEXT ? value->text : std::string();
}

std::optional<int> RECORD_READER::read_number(const JSON_VALUE& object, const char* name, const std::string& field)
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
    const std::string what = value->kind == JSON_VALUE::NUMBER ? value->text : kind_text(value->kind);
    add(*value, field + '.' + name, "A whole number or null was expected, but this is " + what + ".");
    return std::nullopt;
}

std::string RECORD_READER::read_flows(const JSON_VALUE& object, const char* name, const std::string& field)
{
    const JSON_VALUE* list = object.member(name);
    const std::string list_field = field + '.' + name;
    if (!list)
        return std::string();
    if (list->kind != JSON_VALUE::LIST) {
        add(*list, list_field, "A list was expected, but this is " + kind_text(list->kind) + ".");
        return std::string();
    }
    const std::size_t problems_before = m_problems.size();
    OPERATIONS operations;
    std::vector<GFPDB_OPERATION*> pointers;
    for (std::size_t at = 0; at < list->items.size(); ++at) {
        const JSON_VALUE& item = list->items[at];
        const std::string operation_field = item_field(list_field, at);
        if (!check_members(item, operation_field, {OPERATION, ACTIONS}, 2))
            continue;
        const JSON_VALUE& word = *item.member(OPERATION);
        const int kind = word.kind == JSON_VALUE::TEXT ? index_of(OPERATION_WORDS, word.text) : -1;
        const bool twice = std::any_of(pointers.begin(), pointers.end(),
                                       [kind](const GFPDB_OPERATION* other) { return other->m_kind == kind; });
        if (kind < 0 || twice) {
            add(word, operation_field + '.' + OPERATION,
                twice ? "This operation occurs twice."
                      : "There is no such operation. Allowed: " + gfpdb_joined(OPERATION_WORDS) + ".");
            continue;
        }
        operations.emplace_back(gfpdb_make_operation(kind));
        pointers.push_back(operations.back().get());
        read_operation(item, operation_field, *pointers.back());
    }
    if (m_rules != RECORD_RULES::NAMES && m_problems.size() == problems_before)
        check_flow(*list, list_field, pointers);
    return gfpdb_flows_to_json(&pointers).value_or(std::string());
}

void RECORD_READER::read_operation(const JSON_VALUE& value, const std::string& field, GFPDB_OPERATION& operation)
{
    const JSON_VALUE& actions = *value.member(ACTIONS);
    const std::string list_field = field + '.' + ACTIONS;
    if (actions.kind != JSON_VALUE::LIST)
        add(actions, list_field, "A list was expected, but this is " + kind_text(actions.kind) + ".");
    for (std::size_t at = 0; at < actions.items.size(); ++at)
        read_action(actions.items[at], item_field(list_field, at), operation);
}

void RECORD_READER::read_action(const JSON_VALUE& value, const std::string& field, GFPDB_OPERATION& operation)
{
    const JSON_VALUE* word = value.member(ACTION);
    const int type = word && word->kind == JSON_VALUE::TEXT ? index_of(ACTION_WORDS, word->text) : -1;
    if (type < 0) {
        add(word ? *word : value, field + '.' + ACTION,
            "There is no such action. Allowed: " + gfpdb_joined(ACTION_WORDS) + ".");
        return;
    }
    std::unique_ptr<GFPDB_ACTION> action(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
    const std::vector<GFPDB_ACT_PROPERTY> properties = action->get_property_enum_list();
    std::vector<std::string> known = {ACTION};
    for (const GFPDB_ACT_PROPERTY property : properties)
        known.emplace_back(PROPERTY_WORDS[static_cast<std::size_t>(property)]);
    if (!check_members(value, field, known, known.size()))
        return;
    for (const GFPDB_ACT_PROPERTY property : properties)
        action->set_property_value(property,
                                   read_text(value, PROPERTY_WORDS[static_cast<std::size_t>(property)], field));
    operation.add_action(action.release());
}

// The list was read without a problem, so its items are the operations, in their order.
void RECORD_READER::check_flow(const JSON_VALUE& list, const std::string& field,
                               const std::vector<GFPDB_OPERATION*>& operations)
{
    for (const GFPDB_FLOW_PROBLEM& problem : gfpdb_check_flow(operations)) {
        std::size_t at = 0;
        while (operations[at]->m_kind != problem.operation)
            ++at;
        const JSON_VALUE& actions = *list.items[at].member(ACTIONS);
        const auto action = static_cast<std::size_t>(problem.action);
        std::string place = item_field(field, at) + '.' + ACTIONS;
        const JSON_VALUE* value = &actions;
        if (action < actions.items.size()) {
            place = item_field(place, action);
            value = &actions.items[action];
        }
        if (problem.property >= 0) {
            const char* name = PROPERTY_WORDS[static_cast<std::size_t>(problem.property)];
            place += std::string(".") + name;
            value = &place_of(*value, name);
        }
        add(*value, place, problem.text);
    }
}
