// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_old_flows.h"

#include "model/gfpdb_action_model.h"
#include "model/gfpdb_flow_text.h"
#include "model/gfpdb_operation.h"

namespace {

constexpr int NO_NUMBER = -1;

// The list called `name`; null when there is none.
const JSON_VALUE* list_of(const JSON_VALUE& object, const char* name)
{
    const JSON_VALUE* list = object.member(name);
    return list != nullptr && list->kind == JSON_VALUE::LIST ? list : nullptr;
}

int number_of(const JSON_VALUE& object, const char* name)
{
    const JSON_VALUE* number = object.member(name);
    constexpr std::size_t ONE_DIGIT = 1;
    return number != nullptr && number->kind == JSON_VALUE::NUMBER && number->text.size() == ONE_DIGIT
               ? number->text.front() - '0'
               : NO_NUMBER;
}

// False when `object` is not an action.
bool read_action(const JSON_VALUE& object, GFPDB_OPERATION& operation)
{
    const int type = number_of(object, "type");
    std::unique_ptr<GFPDB_ACTION> action(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
    if (!action)
        return false;
    if (const JSON_VALUE* values = object.member("values")) {
        for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list()) {
            const JSON_VALUE* value = values->member(std::to_string(property));
            if (value != nullptr && value->kind == JSON_VALUE::TEXT)
                action->set_property_value(property, value->text);
        }
    }
    operation.add_action(action.release());
    return true;
}

// False when `object` is not an operation. Of two operations of a kind, the last counts.
bool read_operation(const JSON_VALUE& object, GFPDB_OPERATION_LIST& operations)
{
    std::unique_ptr<GFPDB_OPERATION> operation(gfpdb_make_operation(number_of(object, "kind")));
    const JSON_VALUE* actions = list_of(object, "actions");
    if (!operation || actions == nullptr)
        return false;
    for (const JSON_VALUE& action : actions->items) {
        if (!read_action(action, *operation))
            return false;
    }
    for (std::unique_ptr<GFPDB_OPERATION>& other : operations) {
        if (other->m_kind == operation->m_kind) {
            other = std::move(operation);
            return true;
        }
    }
    operations.push_back(std::move(operation));
    return true;
}

} // namespace

std::string gfpdb_flows_of_schema_2(const std::string& text)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (text.empty() || !json_parse(text, value, error))
        return text;
    const JSON_VALUE* list = list_of(value, "operations");
    if (list == nullptr)
        return text;
    GFPDB_OPERATION_LIST operations;
    for (const JSON_VALUE& operation : list->items) {
        if (!read_operation(operation, operations))
            return text;
    }
    const std::vector<GFPDB_OPERATION*> pointers = gfpdb_pointers(operations);
    return gfpdb_flows_to_text(&pointers).value_or(text);
}
