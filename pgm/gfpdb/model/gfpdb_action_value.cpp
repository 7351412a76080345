// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_action_value.h"

#include <charconv>
#include <system_error>

namespace {

constexpr std::size_t DECIMAL_DIGITS_MAX = 18;
constexpr int BYTE_DIGITS = 2;
constexpr int ADDRESS_DIGITS = 8;
constexpr const char* HEX_PREFIX = "0x";
constexpr std::size_t HEX_PREFIX_LENGTH = 2;

// All of the text from `start` on.
template <typename NUMBER>
std::optional<NUMBER> parse(const std::string& text, std::size_t start, int base)
{
    const char* const end = text.data() + text.size();
    NUMBER value = 0;
    const auto [stop, error] = std::from_chars(text.data() + start, end, value, base);
    return stop == end && error == std::errc() ? std::optional<NUMBER>(value) : std::nullopt;
}

std::optional<std::uint32_t> parse_hex(const std::string& text, int digits)
{
    if (text.size() != HEX_PREFIX_LENGTH + static_cast<std::size_t>(digits) || text.rfind(HEX_PREFIX, 0) != 0)
        return std::nullopt;
    return parse<std::uint32_t>(text, HEX_PREFIX_LENGTH, 16);
}

std::string hex_text(std::uint32_t value, int digits)
{
    constexpr const char* DIGITS = "0123456789ABCDEF";
    std::string text = HEX_PREFIX;
    for (int digit = digits - 1; digit >= 0; --digit)
        text += DIGITS[value >> (4 * digit) & 0xF];
    return text;
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> pieces(1);
    for (const char character : text) {
        if (character == separator)
            pieces.emplace_back();
        else
            pieces.back() += character;
    }
    return pieces;
}

} // namespace

std::optional<int> gfpdb_parse_byte(const std::string& text)
{
    return parse_hex(text, BYTE_DIGITS);
}

std::optional<std::vector<int>> gfpdb_parse_bytes(const std::string& text)
{
    std::vector<int> bytes;
    for (const std::string& piece : split(text, ' ')) {
        const std::optional<int> byte = gfpdb_parse_byte(piece);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

std::optional<std::uint32_t> gfpdb_parse_address(const std::string& text)
{
    return parse_hex(text, ADDRESS_DIGITS);
}

std::optional<std::int64_t> gfpdb_parse_decimal(const std::string& text)
{
    if (text.empty() || text.size() > DECIMAL_DIGITS_MAX || (text.size() > 1 && text[0] == '0'))
        return std::nullopt;
    // Unsigned, so that a sign is none of the digits.
    return parse<std::uint64_t>(text, 0, 10);
}

std::optional<GFPDB_BUS_WIDTH> gfpdb_parse_bus_width(const std::string& text)
{
    GFPDB_BUS_WIDTH widths;
    for (const std::string& piece : split(text, '-')) {
        if (piece != "1" && piece != "2" && piece != "4" && piece != "8")
            return std::nullopt;
        widths.push_back(piece[0] - '0');
    }
    return widths;
}

std::string gfpdb_byte_text(int value)
{
    return hex_text(static_cast<std::uint32_t>(value), BYTE_DIGITS);
}

std::string gfpdb_bytes_text(const std::vector<int>& values)
{
    std::string text;
    for (const int value : values) {
        if (!text.empty())
            text += ' ';
        text += gfpdb_byte_text(value);
    }
    return text;
}

std::string gfpdb_address_text(std::uint32_t value)
{
    return hex_text(value, ADDRESS_DIGITS);
}

std::string gfpdb_decimal_text(std::int64_t value)
{
    return std::to_string(value);
}
