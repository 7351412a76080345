// SPDX-License-Identifier: MIT

// The value texts of action properties: how they are written, and the numbers that they stand for.
//
// docs/flows.md gives the grammar. Pure functions, safe from every thread; texts are UTF-8.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

// Words that stand for a value which only the execution knows.
constexpr const char* GFPDB_VALUE_NONE = "none";     // no data, no comparison, no address
constexpr const char* GFPDB_VALUE_IMAGE = "image";   // the bytes of the image at the position of the action
constexpr const char* GFPDB_VALUE_LOOP = "loop";     // the position of the innermost loop
constexpr const char* GFPDB_VALUE_DIE = "die";       // the current die: its number, its size, or a position within it
constexpr const char* GFPDB_VALUE_ID = "id";         // the ID bytes of the device record
constexpr const char* GFPDB_VALUE_DEVICE = "device"; // the size of the device record's density

// What a loop walks over, and the two markers of a loop.
constexpr const char* GFPDB_LOOP_PAGE = "page";
constexpr const char* GFPDB_LOOP_SECTOR = "sector";
constexpr const char* GFPDB_LOOP_DIE = "die";
constexpr const char* GFPDB_LOOP_START = "start";
constexpr const char* GFPDB_LOOP_END = "end";

// The lines on which each phase of a command travels; a command without address or data has fewer phases.
using GFPDB_BUS_WIDTH = std::vector<int>;

// "0x9F": "0x" and exactly two hexadecimal digits.
GFPDB_EXPORT std::optional<int> gfpdb_parse_byte(const std::string& text);
// "0x00 0x02": at least one byte, one blank between two of them.
GFPDB_EXPORT std::optional<std::vector<int>> gfpdb_parse_bytes(const std::string& text);
// "0x00012000": "0x" and exactly eight hexadecimal digits.
GFPDB_EXPORT std::optional<std::uint32_t> gfpdb_parse_address(const std::string& text);
// "4096": decimal digits without sign and without a leading zero, up to 18 of them.
GFPDB_EXPORT std::optional<std::int64_t> gfpdb_parse_decimal(const std::string& text);
// "1-4-4": one number per phase, joined by "-"; each is 1, 2, 4 or 8.
GFPDB_EXPORT std::optional<GFPDB_BUS_WIDTH> gfpdb_parse_bus_width(const std::string& text);

// The texts of numbers, each as the parser of its kind reads it.
GFPDB_EXPORT std::string gfpdb_byte_text(int value);
GFPDB_EXPORT std::string gfpdb_bytes_text(const std::vector<int>& values);
GFPDB_EXPORT std::string gfpdb_address_text(std::uint32_t value);
GFPDB_EXPORT std::string gfpdb_decimal_text(std::int64_t value);
