// SPDX-License-Identifier: MIT

// The rules of the forty action properties: label, default value, choices and what a value may be.
//
// docs/flows.md gives the grammar of the values. Pure functions; texts are UTF-8.
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <string>
#include <vector>

constexpr int GFPDB_ACTION_NAME_LENGTH_MAX = 64;
constexpr int GFPDB_REGISTER_BYTES_MAX = 256;
constexpr int GFPDB_PAGE_SIZE_MAX = 4096;
constexpr int GFPDB_ATTEMPT_COUNT_MAX = 1000000;
constexpr int GFPDB_DELAY_US_MAX = 600000000;
constexpr int GFPDB_DUMMY_CLOCK_MAX = 31;
constexpr long long GFPDB_DEVICE_BYTES_MAX = 1LL << 32;

// The properties of an action type, in the order in which they are shown; null for a number that is not a type.
const std::vector<GFPDB_ACT_PROPERTY>* gfpdb_properties_of_type(int type);

// The label of a property in a flow chart, for the loop unit that of a loop's start; empty for a number that is no
// property.
std::string gfpdb_property_label(int property);
// What stands for the loop unit at the end of a loop.
extern const char* const GFPDB_LOOP_END_LABEL;
// The value of a new action; empty for a number that is not a property.
std::string gfpdb_property_default(int property);
// The allowed values of a property with a closed choice, in display order; empty for any other.
const std::vector<std::string>& gfpdb_property_choices(int property);
// True when `value` is written as the property demands; else `error` says what is wrong and what is allowed.
bool gfpdb_check_property(int property, const std::string& value, std::string& error);

// The text for a value that a property does not take: `allowed` completes the sentence "Allowed: ...".
std::string gfpdb_property_error(int property, const std::string& value, const std::string& allowed);
