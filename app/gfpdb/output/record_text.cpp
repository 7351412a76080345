// SPDX-License-Identifier: MIT
#include "output/record_text.h"

#include "cli_output.h"

#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_exchange.h"

#include "dstr/dstr.h"

namespace {

constexpr std::size_t TITLE_WIDTH = 22;
constexpr std::size_t ACTION_WIDTH = 16;

std::string padded(const std::string& text, std::size_t width)
{
    return text.size() < width ? text + std::string(width - text.size(), ' ') : text + ' ';
}

std::string line(const char* title, const std::string& value)
{
    return padded(std::string(title) + ':', TITLE_WIDTH) + (value.empty() ? "-" : cli_printable(value)) + '\n';
}

// "  Write Register  Write Enable | Command 0x06 | Data none": labels without their colons.
std::string action_text(const GFPDB_ACTION& action)
{
    std::string text;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        std::string label = action.get_property_label(property);
        if (!label.empty() && label.back() == ':')
            label.pop_back();
        const bool bare = text.empty() || label.empty();
        text += (text.empty() ? "" : " | ") + (bare ? std::string() : label + ' ') +
                cli_printable(action.get_property_value(property));
    }
    return "    " + padded(GFPQ_ACTION_TYPE_NAMES[action.m_action_type], ACTION_WIDTH) + text + '\n';
}

// False when the flows cannot be read.
bool add_flows(std::string& text, const char* title, const GFPDB_RECORD& record, bool flow_variant)
{
    const auto operations = gfpdb_operations(record, flow_variant);
    if (!operations)
        return false;
    text += std::string("\n") + title + (operations->empty() ? ": none\n" : "\n");
    for (const auto& operation : *operations) {
        text += std::string("  ") + GFPQ_OPERATION_NAMES[operation->m_kind] + '\n';
        for (const GFPDB_ACTION* action : *operation->get_actions())
            text += action_text(*action);
    }
    return true;
}

} // namespace

std::string record_to_text(const GFPDB_RECORD& record, bool with_single, bool with_quad)
{
    const GFPDB_ROW& row = record.row;
    const bool is_placed = row.family != 0;
    std::string text = line("Name", record.name());
    text += line("Kind", record.is_template ? "stored template, made from " + row.name
                         : is_placed        ? std::string("device")
                                            : std::string("built-in device"));
    if (is_placed) {
        text += line("Family", std::to_string(row.family) + " (" + dstr_get_user_string(row.family) + ')');
        text += line("Scheme", std::to_string(row.scheme));
    }
    for (const GFPDB_VALUE& value : gfpdb_values(record)) {
        if (value.property != GFPDB_FLASH_NAME && value.property != GFPDB_NO_PROPERTY)
            text += line(value.title, value.text);
    }
    if (!row.saved_at.empty())
        text += line("Saved", row.saved_at + (row.saved_by.empty() ? std::string() : " by " + row.saved_by));
    if (with_single && !add_flows(text, "Single-I/O flow", record, false))
        return std::string();
    if (with_quad && !add_flows(text, "Quad-I/O flow", record, true))
        return std::string();
    return text;
}
