// SPDX-License-Identifier: MIT
#include "rules/gfpdb_action_rules.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_action_value.h"

#include <QString>

#include <algorithm>
#include <array>

const char* const GFPDB_LOOP_END_LABEL = "End of data? Next:";

namespace {

using TEXTS = std::vector<std::string>;

// How the value of a property is written.
enum class VALUE_KIND
{
    NAME,
    COMMAND,
    REGISTER_DATA,
    REGISTER_EXPECTED,
    REGISTER_MASK,
    PAGE_DATA,
    READ_EXPECTED,
    READ_MASK,
    ADDRESS,
    ERASE_ADDRESS,
    SIZE,
    PAGE_SIZE,
    NUMBER,
    CHOICE,
};

struct PROPERTY_RULE
{
    const char* label;
    VALUE_KIND kind;
    const char* default_value;
    // The range of a NUMBER.
    int lowest;
    int highest;
    // The values of a CHOICE.
    const TEXTS* choices;
};

const TEXTS NO_CHOICES;
const TEXTS TWO_PHASE_WIDTHS = {"1-1", "1-2", "1-4", "2-2", "4-4"};
const TEXTS THREE_PHASE_WIDTHS = {"1-1-1", "1-1-2", "1-2-2", "1-1-4", "1-4-4", "2-2-2", "4-4-4"};
const TEXTS DATA_ADDRESSING_MODES = {"3", "4"};
const TEXTS ERASE_ADDRESSING_MODES = {"0", "3", "4"};
const TEXTS LOOP_UNITS = {GFPDB_LOOP_PAGE, GFPDB_LOOP_SECTOR, GFPDB_LOOP_DIE};
const TEXTS LOOP_MARKERS = {GFPDB_LOOP_START, GFPDB_LOOP_END};

constexpr PROPERTY_RULE text_rule(const char* label, VALUE_KIND kind, const char* default_value)
{
    return {label, kind, default_value, 0, 0, &NO_CHOICES};
}

constexpr PROPERTY_RULE number_rule(const char* label, const char* default_value, int lowest, int highest)
{
    return {label, VALUE_KIND::NUMBER, default_value, lowest, highest, &NO_CHOICES};
}

constexpr PROPERTY_RULE choice_rule(const char* label, const char* default_value, const TEXTS* choices)
{
    return {label, VALUE_KIND::CHOICE, default_value, 0, 0, choices};
}

// By GFPDB_ACT_PROPERTY.
const std::array<PROPERTY_RULE, GFPDB_ACT_PROPERTY_COUNT> RULES = {{
    // Write Register
    text_rule("Name:", VALUE_KIND::NAME, "Write Register"),
    text_rule("Command:", VALUE_KIND::COMMAND, "0x06"),
    text_rule("Data:", VALUE_KIND::REGISTER_DATA, GFPDB_VALUE_NONE),
    number_rule("Delay(us):", "0", 0, GFPDB_DELAY_US_MAX),
    choice_rule("Command-Data(bus width):", "1-1", &TWO_PHASE_WIDTHS),
    // Read Register
    text_rule("Name:", VALUE_KIND::NAME, "Read Register"),
    text_rule("Command:", VALUE_KIND::COMMAND, "0x05"),
    number_rule("Data length(byte):", "1", 1, GFPDB_REGISTER_BYTES_MAX),
    text_rule("Expected data:", VALUE_KIND::REGISTER_EXPECTED, "0x00"),
    text_rule("Expected data mask:", VALUE_KIND::REGISTER_MASK, "0x01"),
    number_rule("Attempt count:", "1", 1, GFPDB_ATTEMPT_COUNT_MAX),
    number_rule("Delay(us):", "0", 0, GFPDB_DELAY_US_MAX),
    choice_rule("Command-Data(bus width):", "1-1", &TWO_PHASE_WIDTHS),
    // Write Data
    text_rule("Name:", VALUE_KIND::NAME, "Write Data"),
    text_rule("Command:", VALUE_KIND::COMMAND, "0x02"),
    text_rule("Address:", VALUE_KIND::ADDRESS, GFPDB_VALUE_LOOP),
    text_rule("Data:", VALUE_KIND::PAGE_DATA, GFPDB_VALUE_IMAGE),
    text_rule("Page size(byte):", VALUE_KIND::PAGE_SIZE, "256"),
    choice_rule("Addressing mode(byte):", "3", &DATA_ADDRESSING_MODES),
    number_rule("Delay(us):", "0", 0, GFPDB_DELAY_US_MAX),
    choice_rule("Command-Address-Data(bus width):", "1-1-1", &THREE_PHASE_WIDTHS),
    // Read Data
    text_rule("Name:", VALUE_KIND::NAME, "Read Data"),
    text_rule("Command:", VALUE_KIND::COMMAND, "0x0B"),
    text_rule("Address:", VALUE_KIND::ADDRESS, "0x00000000"),
    text_rule("Data length(byte):", VALUE_KIND::SIZE, GFPDB_VALUE_DEVICE),
    text_rule("Expected data:", VALUE_KIND::READ_EXPECTED, GFPDB_VALUE_IMAGE),
    text_rule("Expected data mask:", VALUE_KIND::READ_MASK, "0xFF"),
    choice_rule("Addressing mode(byte):", "3", &DATA_ADDRESSING_MODES),
    number_rule("Dummy clock cycle:", "8", 0, GFPDB_DUMMY_CLOCK_MAX),
    number_rule("Delay(us):", "0", 0, GFPDB_DELAY_US_MAX),
    choice_rule("Command-Address-Data(bus width):", "1-1-1", &THREE_PHASE_WIDTHS),
    // Erase
    text_rule("Name:", VALUE_KIND::NAME, "Erase"),
    text_rule("Command:", VALUE_KIND::COMMAND, "0xD8"),
    text_rule("Address:", VALUE_KIND::ERASE_ADDRESS, GFPDB_VALUE_LOOP),
    text_rule("Erase size(byte):", VALUE_KIND::SIZE, "65536"),
    choice_rule("Addressing mode(byte):", "3", &ERASE_ADDRESSING_MODES),
    number_rule("Delay(us):", "0", 0, GFPDB_DELAY_US_MAX),
    choice_rule("Command-Address(bus width):", "1-1", &TWO_PHASE_WIDTHS),
    // Custom
    choice_rule("Loop over each:", GFPDB_LOOP_PAGE, &LOOP_UNITS),
    choice_rule("", GFPDB_LOOP_START, &LOOP_MARKERS),
}};

bool is_property(int property)
{
    return property >= 0 && property < GFPDB_ACT_PROPERTY_COUNT;
}

bool is_one_of(const std::string& value, const TEXTS& allowed)
{
    return std::find(allowed.begin(), allowed.end(), value) != allowed.end();
}

bool is_name(const std::string& value)
{
    if (!gfpdb_is_utf8(value))
        return false;
    const QString text = gfpdb_from_utf8(value);
    const bool printable = std::all_of(text.begin(), text.end(),
                                       [](QChar character) { return character.isPrint() || character.isSurrogate(); });
    return printable && !text.trimmed().isEmpty() && text.size() <= GFPDB_ACTION_NAME_LENGTH_MAX;
}

bool is_byte_list(const std::string& value)
{
    const std::optional<std::vector<int>> bytes = gfpdb_parse_bytes(value);
    return bytes && bytes->size() <= static_cast<std::size_t>(GFPDB_REGISTER_BYTES_MAX);
}

bool is_page_data(const std::string& value)
{
    const std::optional<std::vector<int>> bytes = gfpdb_parse_bytes(value);
    return value == GFPDB_VALUE_IMAGE || (bytes && bytes->size() <= static_cast<std::size_t>(GFPDB_PAGE_SIZE_MAX));
}

bool is_number(const std::string& value, std::int64_t lowest, std::int64_t highest)
{
    const std::optional<std::int64_t> number = gfpdb_parse_decimal(value);
    return number && *number >= lowest && *number <= highest;
}

bool is_page_size(const std::string& value)
{
    const std::optional<std::int64_t> number = gfpdb_parse_decimal(value);
    return number && *number >= 1 && *number <= GFPDB_PAGE_SIZE_MAX && (*number & (*number - 1)) == 0;
}

bool is_allowed(const PROPERTY_RULE& rule, const std::string& value)
{
    switch (rule.kind) {
    case VALUE_KIND::NAME:
        return is_name(value);
    case VALUE_KIND::COMMAND:
    case VALUE_KIND::READ_MASK:
        return gfpdb_parse_byte(value).has_value();
    case VALUE_KIND::REGISTER_DATA:
        return is_one_of(value, {GFPDB_VALUE_NONE, GFPDB_VALUE_DIE}) || is_byte_list(value);
    case VALUE_KIND::REGISTER_EXPECTED:
        return is_one_of(value, {GFPDB_VALUE_NONE, GFPDB_VALUE_ID}) || is_byte_list(value);
    case VALUE_KIND::REGISTER_MASK:
        return is_byte_list(value);
    case VALUE_KIND::PAGE_DATA:
        return is_page_data(value);
    case VALUE_KIND::READ_EXPECTED:
        return is_one_of(value, {GFPDB_VALUE_IMAGE, GFPDB_VALUE_NONE}) || gfpdb_parse_byte(value);
    case VALUE_KIND::ADDRESS:
        return is_one_of(value, {GFPDB_VALUE_LOOP, GFPDB_VALUE_DIE}) || gfpdb_parse_address(value);
    case VALUE_KIND::ERASE_ADDRESS:
        return is_one_of(value, {GFPDB_VALUE_LOOP, GFPDB_VALUE_DIE, GFPDB_VALUE_NONE}) || gfpdb_parse_address(value);
    case VALUE_KIND::SIZE:
        return is_one_of(value, {GFPDB_VALUE_DEVICE, GFPDB_VALUE_DIE}) || is_number(value, 1, GFPDB_DEVICE_BYTES_MAX);
    case VALUE_KIND::PAGE_SIZE:
        return is_page_size(value);
    case VALUE_KIND::NUMBER:
        return is_number(value, rule.lowest, rule.highest);
    case VALUE_KIND::CHOICE:
        return is_one_of(value, *rule.choices);
    }
    return false;
}

std::string range_text(std::int64_t lowest, std::int64_t highest)
{
    return GFPDB_WORDS::say("a whole number from %1 to %2", {std::to_string(lowest), std::to_string(highest)});
}

std::string byte_text()
{
    return GFPDB_WORDS::say("one byte in hexadecimal, such as 0x9F");
}

std::string bytes_text(int most)
{
    return GFPDB_WORDS::say("1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02",
                            {std::to_string(most)});
}

std::string address_text()
{
    return GFPDB_WORDS::say("an address of eight hexadecimal digits, such as 0x00010000");
}

// Words that stand for a value, which are never translated, before what else is allowed.
std::string words_or(const TEXTS& words, const std::string& other)
{
    return GFPDB_WORDS::say("%1, or %2", {gfpdb_joined(words), other});
}

std::string allowed_text(const PROPERTY_RULE& rule)
{
    switch (rule.kind) {
    case VALUE_KIND::NAME:
        return GFPDB_WORDS::say("text of 1 to %1 characters on one line",
                                {std::to_string(GFPDB_ACTION_NAME_LENGTH_MAX)});
    case VALUE_KIND::COMMAND:
    case VALUE_KIND::READ_MASK:
        return byte_text();
    case VALUE_KIND::REGISTER_DATA:
        return words_or({GFPDB_VALUE_NONE, GFPDB_VALUE_DIE}, bytes_text(GFPDB_REGISTER_BYTES_MAX));
    case VALUE_KIND::REGISTER_EXPECTED:
        return words_or({GFPDB_VALUE_NONE, GFPDB_VALUE_ID}, bytes_text(GFPDB_REGISTER_BYTES_MAX));
    case VALUE_KIND::REGISTER_MASK:
        return bytes_text(GFPDB_REGISTER_BYTES_MAX);
    case VALUE_KIND::PAGE_DATA:
        return words_or({GFPDB_VALUE_IMAGE}, bytes_text(GFPDB_PAGE_SIZE_MAX));
    case VALUE_KIND::READ_EXPECTED:
        return words_or({GFPDB_VALUE_IMAGE, GFPDB_VALUE_NONE}, byte_text());
    case VALUE_KIND::ADDRESS:
        return words_or({GFPDB_VALUE_LOOP, GFPDB_VALUE_DIE}, address_text());
    case VALUE_KIND::ERASE_ADDRESS:
        return words_or({GFPDB_VALUE_LOOP, GFPDB_VALUE_DIE, GFPDB_VALUE_NONE}, address_text());
    case VALUE_KIND::SIZE:
        return words_or({GFPDB_VALUE_DEVICE, GFPDB_VALUE_DIE}, range_text(1, GFPDB_DEVICE_BYTES_MAX));
    case VALUE_KIND::PAGE_SIZE:
        return GFPDB_WORDS::say("a power of two from 1 to %1", {std::to_string(GFPDB_PAGE_SIZE_MAX)});
    case VALUE_KIND::NUMBER:
        return range_text(rule.lowest, rule.highest);
    case VALUE_KIND::CHOICE:
        return gfpdb_joined(*rule.choices);
    }
    return std::string();
}

// What an error text calls a property: its label without the colon, as the property table has it.
std::string shown_name(int property)
{
    if (property == GFPDB_CUSTOM_LOOP_MARKER)
        return GFPDB_WORDS::say("Loop marker");
    const std::string label = RULES[static_cast<std::size_t>(property)].label;
    return label.substr(0, label.size() - 1);
}

// The first property of each action type, and what follows the last one.
constexpr int FIRST_PROPERTY[GFPDB_ACT_TYPE_COUNT + 1] = {
    GFPDB_WR_NAME, GFPDB_RR_NAME,          GFPDB_WD_NAME,           GFPDB_RD_NAME,
    GFPDB_ER_NAME, GFPDB_CUSTOM_LOOP_UNIT, GFPDB_ACT_PROPERTY_COUNT};

using PROPERTY_LISTS = std::array<std::vector<GFPDB_ACT_PROPERTY>, GFPDB_ACT_TYPE_COUNT>;

PROPERTY_LISTS make_property_lists()
{
    PROPERTY_LISTS lists;
    for (std::size_t type = 0; type < lists.size(); ++type) {
        for (int property = FIRST_PROPERTY[type]; property < FIRST_PROPERTY[type + 1]; ++property)
            lists[type].push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
    }
    return lists;
}

} // namespace

const std::vector<GFPDB_ACT_PROPERTY>* gfpdb_properties_of_type(int type)
{
    static const PROPERTY_LISTS LISTS = make_property_lists();
    if (type < 0 || type >= GFPDB_ACT_TYPE_COUNT)
        return nullptr;
    return &LISTS[static_cast<std::size_t>(type)];
}

std::string gfpdb_property_label(int property)
{
    return is_property(property) ? RULES[static_cast<std::size_t>(property)].label : std::string();
}

std::string gfpdb_property_default(int property)
{
    return is_property(property) ? RULES[static_cast<std::size_t>(property)].default_value : std::string();
}

const std::vector<std::string>& gfpdb_property_choices(int property)
{
    return is_property(property) ? *RULES[static_cast<std::size_t>(property)].choices : NO_CHOICES;
}

bool gfpdb_check_property(int property, const std::string& value, std::string& error)
{
    if (!is_property(property)) {
        error = GFPDB_WORDS::say("There is no action property with the number %1. Allowed: 0 to %2.",
                                 {std::to_string(property), std::to_string(GFPDB_ACT_PROPERTY_COUNT - 1)});
        return false;
    }
    const PROPERTY_RULE& rule = RULES[static_cast<std::size_t>(property)];
    if (is_allowed(rule, value))
        return true;
    error = gfpdb_property_error(property, value, allowed_text(rule));
    return false;
}

std::string gfpdb_property_error(int property, const std::string& value, const std::string& allowed)
{
    const std::string what = value.empty() ? GFPDB_WORDS::say("An empty value") : gfpdb_quoted(value);
    return GFPDB_WORDS::say("%1 is not allowed for \"%2\". Allowed: %3.", {what, shown_name(property), allowed});
}
