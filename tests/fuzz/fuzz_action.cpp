// SPDX-License-Identifier: MIT

// The checks and setters of action properties, and the way of an action's values through the database's JSON.
//
// Input: a byte for the type of the action; then, again and again, a byte for a property and a text.
#include "fuzz_target.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_flow_text.h"
#include "model/gfpdb_operation.h"
#include "rules/gfpdb_action_rules.h"

#include <algorithm>
#include <memory>

namespace {

// The longest text that an error has a reason to have: what was typed is cut, the rest is ours.
constexpr std::size_t LONGEST_ERROR = 1000;
const std::string UNTOUCHED = "untouched";

GFPDB_ACT_PROPERTY property_of(int byte)
{
    return static_cast<GFPDB_ACT_PROPERTY>(byte % (GFPDB_ACT_PROPERTY_COUNT + 2) - 1);
}

// True when `action` takes the value; says in every case what must hold of the answer.
bool check_value(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property, const std::string& value)
{
    std::string error = UNTOUCHED;
    const bool is_valid = action.check_property_value(property, value, error);
    FUZZ_CHECK(is_valid == (error == UNTOUCHED));
    if (!is_valid)
        FUZZ_CHECK(!error.empty() && error.size() <= LONGEST_ERROR && gfpdb_is_utf8(error));
    return is_valid;
}

void set_value(GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property, const std::string& value)
{
    action.set_property_value(property, value);
    FUZZ_CHECK(action.get_property_value(property) == (action.has_property(property) ? value : std::string()));
    action.is_property_enabled(property);
    action.get_property_label(property);
}

// What is chosen from a closed list is valid, and nothing else is.
void check_choices(const GFPDB_ACTION& checker, GFPDB_ACT_PROPERTY property, const std::string& value, bool is_valid)
{
    const std::vector<std::string> choices = checker.get_property_choices(property);
    if (!choices.empty())
        FUZZ_CHECK(is_valid == (std::find(choices.begin(), choices.end(), value) != choices.end()));
}

bool is_storable(const GFPDB_ACTION& action)
{
    const std::vector<GFPDB_ACT_PROPERTY> properties = action.get_property_enum_list();
    return std::all_of(properties.begin(), properties.end(),
                       [&](GFPDB_ACT_PROPERTY property) { return gfpdb_is_utf8(action.get_property_value(property)); });
}

// Takes the action over.
void check_storage(std::unique_ptr<GFPDB_ACTION> action)
{
    const bool can_be_stored = is_storable(*action);
    std::unique_ptr<GFPDB_OPERATION> operation(gfpdb_make_operation(GFPDB_OPERATION_PROGRAM));
    GFPDB_ACTION* stored = action.get();
    operation->add_action(action.release());
    std::vector<GFPDB_OPERATION*> operations = {operation.get()};

    const std::optional<std::string> json = gfpdb_flows_to_text(&operations);
    FUZZ_CHECK(json.has_value() == can_be_stored);
    if (!json)
        return;
    const auto read = gfpdb_flows_from_text(*json);
    FUZZ_CHECK(read && read->size() == 1 && read->front()->get_action_count() == 1);
    const GFPDB_ACTION* copy = read->front()->get_actions()->front();
    FUZZ_CHECK(copy->get_action_type() == stored->get_action_type());
    for (const GFPDB_ACT_PROPERTY property : stored->get_property_enum_list())
        FUZZ_CHECK(copy->get_property_value(property) == stored->get_property_value(property));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    const int type = input.take_byte() % (GFPDB_ACT_TYPE_COUNT + 2) - 1;
    std::unique_ptr<GFPDB_ACTION> action(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
    FUZZ_CHECK((action != nullptr) == (type >= 0 && type < GFPDB_ACT_TYPE_COUNT));
    if (!action)
        return 0;
    const std::unique_ptr<GFPDB_ACTION> checker(gfpdb_make_action(GFPDB_ACT_CUSTOM));
    while (!input.at_end()) {
        const GFPDB_ACT_PROPERTY property = property_of(input.take_byte());
        const std::string value = input.take_text();
        const bool is_well_written = check_value(*checker, property, value);
        check_choices(*checker, property, value, is_well_written);
        // What the action itself takes is well written: the checker of the dialog lets it pass as well.
        if (check_value(*action, property, value))
            FUZZ_CHECK(is_well_written);
        set_value(*action, property, value);
    }
    check_storage(std::move(action));
    return 0;
}
