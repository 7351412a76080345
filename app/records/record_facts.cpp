// SPDX-License-Identifier: MIT
#include "record_facts.h"

#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr std::size_t BYTE_DIGITS = 2;

// What stands between the bytes of an ID.
bool is_separator(char character)
{
    return std::string(" \t,;:.-_").find(character) != std::string::npos;
}

std::vector<std::string> words_of(const std::string& text)
{
    std::vector<std::string> words(1);
    for (const char character : text) {
        if (!is_separator(character))
            words.back() += character;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

// "C2" of "0xC2", "c2" and "C2h"; empty when `word` has other characters than digits.
std::string digits_of(std::string word)
{
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char each) { return each >= 'a' && each <= 'z' ? static_cast<char>(each - 'a' + 'A') : each; });
    if (word.rfind("0X", 0) == 0)
        word.erase(0, 2);
    if (!word.empty() && word.back() == 'H')
        word.pop_back();
    return word.find_first_not_of("0123456789ABCDEF") == std::string::npos ? word : std::string();
}

std::string hex_of(const std::vector<std::uint8_t>& bytes)
{
    const QByteArray raw(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
    return raw.toHex().toUpper().toStdString();
}

// What follows from the text of an ID.
struct KNOWN_ID
{
    std::string digits;
    std::string manufacturer;
};

// Tables ask for it row by row, and most devices share their IDs with others.
const KNOWN_ID& known_id(const std::string& text)
{
    constexpr std::size_t MOST = 65536;
    static std::unordered_map<std::string, KNOWN_ID> known;
    const auto place = known.find(text);
    if (place != known.end())
        return place->second;
    if (known.size() >= MOST)
        known.clear();
    const std::vector<std::uint8_t> bytes = gfpdb_device_id_bytes(text);
    const std::string digits = bytes.empty() ? record_id_digits(text) : hex_of(bytes);
    return known.emplace(text, KNOWN_ID{digits, gfpdb_maker_of_id(bytes)}).first->second;
}

std::string hex_byte(int value)
{
    return hex_of({static_cast<std::uint8_t>(value)});
}

// "4K", "2M", "100".
std::string size_text(std::int64_t bytes)
{
    constexpr std::int64_t KILOBYTE = 1024;
    constexpr std::int64_t MEGABYTE = KILOBYTE * KILOBYTE;
    if (bytes % MEGABYTE == 0)
        return std::to_string(bytes / MEGABYTE) + 'M';
    return bytes % KILOBYTE == 0 ? std::to_string(bytes / KILOBYTE) + 'K' : std::to_string(bytes);
}

// The part of a built-in device, or null; also null for one whose properties are not to be shown.
const GFPDB_PART* part_of(const GFPDB_RECORD& record)
{
    if (record.row.family != 0)
        return nullptr;
    const std::string key = gfpdb_name_key(record.name());
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (gfpdb_name_key(part.name) == key)
            return part.properties_hidden ? nullptr : &part;
    }
    return nullptr;
}

RECORD_FACTS facts_of(const GFPDB_PART& part)
{
    std::vector<std::string> erase;
    erase.reserve(part.sector_erase.size());
    for (const GFPDB_ERASE_COMMAND& command : part.sector_erase)
        erase.push_back(hex_byte(command.opcode) + ':' + size_text(command.size_bytes));
    const auto known = [](int number) { return number > 0 ? std::to_string(number) : std::string(); };
    return {known(part.page_size), known(part.addressing_bytes), gfpdb_joined(erase), part.source};
}

// "D8:64K"; "C7:chip" for what is erased without an address.
std::string erase_text(const GFPDB_ACTION& action)
{
    const std::optional<int> opcode = gfpdb_parse_byte(action.get_property_value(GFPDB_ER_COMMAND));
    const std::string size = action.get_property_value(GFPDB_ER_ERASE_SIZE);
    const std::optional<std::int64_t> bytes = gfpdb_parse_decimal(size);
    const bool has_address = action.get_property_value(GFPDB_ER_ADDRESSING_MODE) != "0";
    if (!opcode)
        return std::string();
    return hex_byte(*opcode) + ':' +
           (has_address && bytes                     ? size_text(*bytes)
            : has_address && size == GFPDB_VALUE_DIE ? size
                                                     : std::string("chip"));
}

void add(std::vector<std::string>& texts, const std::string& text)
{
    if (!text.empty() && std::find(texts.begin(), texts.end(), text) == texts.end())
        texts.push_back(text);
}

RECORD_FACTS facts_of_flows(const GFPDB_RECORD& record)
{
    std::vector<std::string> pages;
    std::vector<std::string> addresses;
    std::vector<std::string> erase;
    for (const bool variant : {false, true}) {
        const auto operations = gfpdb_operations(record, variant);
        if (!operations)
            continue;
        for (const auto& operation : *operations) {
            for (const GFPDB_ACTION* action : *operation->get_actions()) {
                add(pages, action->get_property_value(GFPDB_WD_PAGE_SIZE));
                add(addresses, action->get_property_value(GFPDB_WD_ADDRESSING_MODE));
                if (action->has_property(GFPDB_ER_COMMAND))
                    add(erase, erase_text(*action));
            }
        }
    }
    return {gfpdb_joined(pages), gfpdb_joined(addresses), gfpdb_joined(erase), std::string()};
}

} // namespace

std::string record_id_digits(const std::string& text)
{
    const std::vector<std::string> words = words_of(text);
    std::string all;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string digits = digits_of(words[at]);
        if (digits.empty())
            return std::string();
        // "C2 2 18" has a byte of one digit; at the end it is a byte of which one digit is there.
        const bool is_short = digits.size() < BYTE_DIGITS && at + 1 < words.size();
        all += (is_short ? "0" : "") + digits;
    }
    return all.size() > GFPDB_ID_BYTES_MAX * BYTE_DIGITS ? std::string() : all;
}

std::string record_id(const GFPDB_ROW& row)
{
    return row.device_id.empty() ? std::string() : known_id(row.device_id).digits;
}

std::string record_manufacturer(const GFPDB_ROW& row)
{
    return row.device_id.empty() ? std::string() : known_id(row.device_id).manufacturer;
}

RECORD_FACTS record_facts(const GFPDB_RECORD& record)
{
    const GFPDB_PART* part = part_of(record);
    return part != nullptr ? facts_of(*part) : facts_of_flows(record);
}
