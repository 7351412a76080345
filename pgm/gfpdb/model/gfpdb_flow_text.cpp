// SPDX-License-Identifier: MIT
#include "model/gfpdb_flow_text.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_operation.h"

#include <algorithm>

namespace {

constexpr const char* ACTION = "action";

const std::vector<std::string> OPERATION_MEMBERS = {GFPDB_FLOW_OPERATION, GFPDB_FLOW_ACTIONS};
const std::vector<std::string> OPERATION_WORDS = {"initialization", "program", "erase", "verify", "termination"};
const std::vector<std::string> ACTION_WORDS = {"write_register", "read_register", "write_data",
                                               "read_data",      "erase",         "custom"};

// By GFPDB_ACT_PROPERTY.
constexpr const char* PROPERTY_WORDS[GFPDB_ACT_PROPERTY_COUNT] = {
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

// False when a value is not UTF-8.
bool append_action(std::string& text, const GFPDB_ACTION& action)
{
    text += "{\"action\":";
    json_append_text(text, ACTION_WORDS[static_cast<std::size_t>(action.m_action_type)]);
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        const std::string value = action.get_property_value(property);
        if (!gfpdb_is_utf8(value))
            return false;
        text += ',';
        json_append_text(text, gfpdb_property_word(property));
        text += ':';
        json_append_text(text, value);
    }
    text += '}';
    return true;
}

bool append_operation(std::string& text, const GFPDB_OPERATION& operation)
{
    text += "{\"operation\":";
    json_append_text(text, OPERATION_WORDS[static_cast<std::size_t>(operation.m_kind)]);
    text += ",\"actions\":[";
    const char* separator = "";
    if (const std::vector<GFPDB_ACTION*>* actions = operation.get_actions()) {
        for (const GFPDB_ACTION* action : *actions) {
            text += separator;
            separator = ",";
            if (!append_action(text, *action))
                return false;
        }
    }
    text += "]}";
    return true;
}

// The place of the text `value` in `words`, or -1.
int index_of(const std::vector<std::string>& words, const JSON_VALUE* value)
{
    if (value == nullptr || value->kind != JSON_VALUE::TEXT)
        return -1;
    const auto place = std::find(words.begin(), words.end(), value->text);
    return place == words.end() ? -1 : static_cast<int>(place - words.begin());
}

// Reads the operations of one list.
class FLOW_READER
{
public:
    explicit FLOW_READER(const JSON_REPORT& report) : m_report(report) {}

    GFPDB_OPERATION_LIST read(const JSON_VALUE& list, const std::string& field)
    {
        if (json_is(list, JSON_VALUE::LIST, field, m_report)) {
            for (std::size_t at = 0; at < list.items.size(); ++at)
                read_operation(list.items[at], json_item_field(field, at));
        }
        return std::move(m_operations);
    }

private:
    void read_operation(const JSON_VALUE& value, const std::string& field)
    {
        if (!json_has_members(value, OPERATION_MEMBERS, OPERATION_MEMBERS.size(), field, m_report))
            return;
        const JSON_VALUE& word = *value.member(GFPDB_FLOW_OPERATION);
        const int kind = index_of(OPERATION_WORDS, &word);
        const bool is_twice = std::any_of(m_operations.begin(), m_operations.end(),
                                          [kind](const auto& other) { return other->m_kind == kind; });
        if (kind < 0 || is_twice) {
            m_report(word, field + '.' + GFPDB_FLOW_OPERATION,
                     is_twice ? GFPDB_WORDS::say("This operation occurs twice.")
                              : GFPDB_WORDS::say("There is no such operation. Allowed: %1.",
                                                 {gfpdb_joined(OPERATION_WORDS)}));
            return;
        }
        m_operations.emplace_back(gfpdb_make_operation(kind));
        const JSON_VALUE& actions = *value.member(GFPDB_FLOW_ACTIONS);
        const std::string list_field = field + '.' + GFPDB_FLOW_ACTIONS;
        json_is(actions, JSON_VALUE::LIST, list_field, m_report);
        for (std::size_t at = 0; at < actions.items.size(); ++at)
            read_action(actions.items[at], json_item_field(list_field, at), *m_operations.back());
    }

    void read_action(const JSON_VALUE& value, const std::string& field, GFPDB_OPERATION& operation)
    {
        const JSON_VALUE* word = value.member(ACTION);
        const int type = index_of(ACTION_WORDS, word);
        if (type < 0) {
            m_report(word != nullptr ? *word : value, field + '.' + ACTION,
                     GFPDB_WORDS::say("There is no such action. Allowed: %1.", {gfpdb_joined(ACTION_WORDS)}));
            return;
        }
        std::unique_ptr<GFPDB_ACTION> action(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
        const std::vector<GFPDB_ACT_PROPERTY> properties = action->get_property_enum_list();
        if (!has_members(value, properties, field))
            return;
        for (const GFPDB_ACT_PROPERTY property : properties) {
            const char* const name = gfpdb_property_word(property);
            const JSON_VALUE& text = *value.member(name);
            const bool is_text = text.kind == JSON_VALUE::TEXT;
            if (!is_text)
                report_no_text(text, field, name);
            action->set_property_value(property, is_text ? text.text : std::string());
        }
        operation.add_action(action.release());
    }

    void report_no_text(const JSON_VALUE& value, std::string field, const char* name)
    {
        field += '.';
        field += name;
        json_is(value, JSON_VALUE::TEXT, field, m_report);
    }

    bool has_members(const JSON_VALUE& action, const std::vector<GFPDB_ACT_PROPERTY>& properties,
                     const std::string& field)
    {
        std::vector<std::string> known = {ACTION};
        for (const GFPDB_ACT_PROPERTY property : properties)
            known.emplace_back(gfpdb_property_word(property));
        return json_has_members(action, known, known.size(), field, m_report);
    }

    const JSON_REPORT& m_report;
    GFPDB_OPERATION_LIST m_operations;
};

// Both at once: the value that stands for the operations, and the operations.
bool read_text(const std::string& text, JSON_VALUE& list, GFPDB_OPERATION_LIST& operations)
{
    JSON_ERROR error;
    if (!json_parse(text, list, error))
        return false;
    bool is_right = true;
    const JSON_REPORT report = [&is_right](const auto&...) { is_right = false; };
    operations = FLOW_READER(report).read(list, std::string());
    return is_right;
}

} // namespace

const char* gfpdb_property_word(int property)
{
    return PROPERTY_WORDS[static_cast<std::size_t>(property)];
}

std::optional<std::string> gfpdb_flows_to_text(const std::vector<GFPDB_OPERATION*>* operations)
{
    std::string text;
    if (operations == nullptr || operations->empty())
        return text;
    for (const GFPDB_OPERATION* operation : *operations) {
        text += text.empty() ? '[' : ',';
        if (!append_operation(text, *operation))
            return std::nullopt;
    }
    return text + ']';
}

// A quote within a text is escaped, so this can only be the key of an action.
bool gfpdb_flows_have_actions(const std::string& text)
{
    return text.find("\"action\":") != std::string::npos;
}

std::optional<GFPDB_OPERATION_LIST> gfpdb_flows_from_text(const std::string& text)
{
    JSON_VALUE list;
    GFPDB_OPERATION_LIST operations;
    if (!text.empty() && !read_text(text, list, operations))
        return std::nullopt;
    return operations;
}

std::optional<JSON_VALUE> gfpdb_flows_to_json(const std::string& text)
{
    JSON_VALUE list = json_list();
    GFPDB_OPERATION_LIST operations;
    if (!text.empty() && !read_text(text, list, operations))
        return std::nullopt;
    return list;
}

GFPDB_OPERATION_LIST gfpdb_flows_from_json(const JSON_VALUE& list, const std::string& field, const JSON_REPORT& report)
{
    return FLOW_READER(report).read(list, field);
}

std::vector<GFPDB_OPERATION*> gfpdb_pointers(const GFPDB_OPERATION_LIST& operations)
{
    std::vector<GFPDB_OPERATION*> pointers;
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : operations)
        pointers.push_back(operation.get());
    return pointers;
}
