// SPDX-License-Identifier: MIT

// The rules for the values of a device that follow from the value alone.
//
// Each check returns false and puts a text for the user into `error` that says what is wrong and what is allowed; it
// leaves `error` alone when it returns true. Texts are UTF-8. Pure functions.
#pragma once

#include <string>
#include <vector>

constexpr int GFPDB_NAME_LENGTH_MAX = 64;

// The name of a device or template: 1 to 64 characters of UTF-8, no control characters, no space at either end, and not
// the text that stands for a new device. `what` says in the error whose name it is: an English noun of the catalogues.
bool gfpdb_check_name(const std::string& name, const char* what, std::string& error);

// The ID bytes of a device, as "0xC2 0x20 0x19": 1 to 16 bytes in hexadecimal, one or two digits each, with or without
// "0x", separated by blanks or commas.
bool gfpdb_check_device_id(const std::string& id, std::string& error);

// `value` lies from `lowest` to `highest`; `what` names it in the error.
bool gfpdb_check_range(int value, int lowest, int highest, const char* what, std::string& error);

// `value` is one of `allowed`, letter for letter; `what` names it in the error.
bool gfpdb_check_choice(const std::string& value, const std::vector<std::string>& allowed, const char* what,
                        std::string& error);
