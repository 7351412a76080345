// SPDX-License-Identifier: MIT

// The text form of the map that restricts what the dialog offers.
#pragma once

#include <QString>

#include <map>
#include <optional>
#include <vector>

// Families and, for each, the schemes to offer; no schemes means all of them.
using RESTRICTION = std::map<int, std::vector<int>>;

// Reads "family:scheme,scheme;family:": "3:7,13;5:" offers family 3 with the schemes 7 and 13 and family 5 with all its
// schemes. Families are 1 to 72 and occur once, schemes are 0 to 25. Null when `text` is something else; `problem` then
// says what is wrong with it.
std::optional<RESTRICTION> parse_restriction(const QString& text, QString& problem);
