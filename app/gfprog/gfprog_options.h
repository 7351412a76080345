// SPDX-License-Identifier: MIT

// The options and exit codes of gfprog that several of its commands have.
#pragma once

#include "cli_command.h"

#include <cstdint>
#include <optional>
#include <string>

// What the tool ends with besides CLI_EXIT, as in the man page.
enum GFPROG_EXIT : int
{
    GFPROG_EXIT_FAILED = 1,     // an action of the flow failed, e.g. a verify
    GFPROG_EXIT_REFUSED = 6,    // the flow, the order or the connection does not allow the run: nothing was sent
    GFPROG_EXIT_CONNECTION = 7, // no connection, or it was lost: the state of the chip is unknown
    GFPROG_EXIT_CANCELLED = 8,  // by the user
    GFPROG_EXIT_NOTED = 9,      // passed, but a real chip would not have taken every command of the flow
};

constexpr const char* GFPROG_OPTION_ON = "on";
constexpr const char* GFPROG_OPTION_DEVICE = "device";
constexpr const char* GFPROG_OPTION_OFFSET = "offset";
constexpr const char* GFPROG_OPTION_LENGTH = "length";
constexpr const char* GFPROG_OPTION_TRACE = "trace";
constexpr const char* GFPROG_OPTION_FILE = "file";
constexpr const char* GFPROG_OPTION_FORCE = "force";

// The words for values that several commands have.
std::vector<std::string> gfprog_choices(const std::string& value);

// --on and --device.
void gfprog_add_chip_options(CLI_OPTIONS& options);
// --on, --device, --family, --scheme and --json: all that have to do with a chip.
void gfprog_add_target_options(CLI_OPTIONS& options);
// --offset, --length and --trace: all that run a flow.
void gfprog_add_run_options(CLI_OPTIONS& options);
void gfprog_add_force_option(CLI_OPTIONS& options);

// True when both paths, in local 8-bit, are of one file; false for an empty path.
bool gfprog_is_one_file(const std::string& one, const std::string& other);

// A number of bytes, as "65536" or "0x10000"; none when `text` is not one.
std::optional<std::int64_t> gfprog_bytes(const std::string& text);

// "0x00010000": a position in a device, as messages have it.
std::string gfprog_position(std::int64_t position);
// "0xC2 0x20 0x19".
std::string gfprog_hex(const std::vector<std::uint8_t>& bytes);
