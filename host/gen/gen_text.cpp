// SPDX-License-Identifier: MIT
#include "gen/gen_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace {

bool is_blank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Bytes are compared as unsigned values, so that a byte outside ASCII comes after every ASCII letter.
unsigned char byte_as_it_is(char c)
{
    return static_cast<unsigned char>(c);
}

unsigned char byte_in_lower_case(char c)
{
    return byte_as_it_is(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
}

template <typename BYTE_OF>
int compare(const std::string& left, const std::string& right, BYTE_OF byte_of)
{
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = byte_of(left[i]) - byte_of(right[i]);
        if (difference != 0)
            return difference;
    }
    if (left.size() == right.size())
        return 0;
    return left.size() < right.size() ? -1 : 1;
}

} // namespace

int gen_atoi(const std::string& text)
{
    const char* const end = text.data() + text.size();
    const char* start = std::find_if_not(text.data(), end, is_blank);
    // from_chars() knows no "+".
    if (start != end && *start == '+' && ++start != end && *start == '-')
        return 0;
    int value = 0;
    if (std::from_chars(start, end, value).ec != std::errc::result_out_of_range)
        return value;
    return *start == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

std::string gen_itoa(int value)
{
    return std::to_string(value);
}

int gen_strcmp(const std::string& left, const std::string& right)
{
    return compare(left, right, byte_as_it_is);
}

int gen_stricmp(const std::string& left, const std::string& right)
{
    return compare(left, right, byte_in_lower_case);
}
