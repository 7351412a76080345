// SPDX-License-Identifier: MIT

// Device families and configuration schemes as users write them: by number or by name. Texts are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <vector>

// None when `text` is neither a number in the range nor a name; names are compared without regard to case.
std::optional<int> cli_family(const std::string& text);
std::optional<int> cli_scheme(const std::string& text);

std::string cli_scheme_name(int scheme);
// The numbers of all schemes, in ascending order.
std::vector<int> cli_schemes();

// What --family and --scheme need, a sentence.
std::string cli_family_rule(const char* option);
std::string cli_scheme_rule(const char* option);
