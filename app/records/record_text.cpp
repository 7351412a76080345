// SPDX-License-Identifier: MIT
#include "record_text.h"

#include "printable_text.h"
#include "record_facts.h"

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
    return padded(std::string(title) + ':', TITLE_WIDTH) + (value.empty() ? "-" : printable_text(value)) + '\n';
}

// A record of another program may have a number that is not a scheme.
std::string scheme_text(int scheme)
{
    const bool is_known = scheme >= 0 && scheme < PGMIO_ILLEGAL_SCHEME;
    return std::to_string(scheme) + (is_known ? " (" + std::string(PGMIO_CONFIG_SCHEME_NAMES[scheme]) + ')' : "");
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
            text += "    " + action_to_text(*action) + '\n';
    }
    return true;
}

} // namespace

std::string action_to_text(const GFPDB_ACTION& action)
{
    std::string text;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        std::string label = action.get_property_label(property);
        if (!label.empty() && label.back() == ':')
            label.pop_back();
        const bool bare = text.empty() || label.empty();
        text += (text.empty() ? "" : " | ") + (bare ? std::string() : label + ' ') +
                printable_text(action.get_property_value(property));
    }
    return padded(GFPQ_ACTION_TYPE_NAMES[action.m_action_type], ACTION_WIDTH) + text;
}

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
        text += line("Scheme", scheme_text(row.scheme));
    }
    for (const GFPDB_VALUE& value : gfpdb_values(record)) {
        if (value.property != GFPDB_FLASH_NAME && value.property != GFPDB_NO_PROPERTY)
            text += line(value.title, value.text);
    }
    const RECORD_FACTS facts = record_facts(record);
    text += line("Maker", record_manufacturer(row));
    text += line("Page size", facts.page_size);
    text += line("Address bytes", facts.address_bytes);
    text += line("Erase commands", facts.erase_commands);
    if (!is_placed)
        text += line("Source", facts.source);
    if (!row.saved_at.empty())
        text += line("Saved", row.saved_at + (row.saved_by.empty() ? std::string() : " by " + row.saved_by));
    if (with_single && !add_flows(text, "Single-I/O flow", record, false))
        return std::string();
    if (with_quad && !add_flows(text, "Quad-I/O flow", record, true))
        return std::string();
    return text;
}
