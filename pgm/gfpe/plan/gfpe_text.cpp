// SPDX-License-Identifier: MIT
#include "plan/gfpe_text.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_text.h"

#include <array>
#include <cstdio>

namespace {

std::string formatted(const char* format, unsigned long long value)
{
    std::array<char, 32> text = {};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

} // namespace

std::string gfpe_operation_name(int kind)
{
    constexpr std::array<const char*, GFPDB_OPERATION_COUNT> NAMES = {"Initialization", "Program", "Erase",
                                                                      "Verify/Blank-Check/Examine", "Termination"};
    return NAMES[static_cast<std::size_t>(kind)];
}

std::string gfpe_action_title(const std::string& operation, int action, const std::string& name)
{
    return operation + ", action " + std::to_string(action) + (name.empty() ? "" : ' ' + gfpdb_quoted(name));
}

std::string gfpe_position_text(std::int64_t position)
{
    return formatted("0x%08llX", static_cast<unsigned long long>(position));
}

std::string gfpe_bytes_text(const std::vector<std::uint8_t>& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes)
        text += (text.empty() ? "" : " ") + formatted("%02llX", byte);
    return text;
}
