// SPDX-License-Identifier: MIT

// The words that the dialog shows for the flash database's numbers.
//
// Constant tables of UTF-8 texts, indexed by their enumeration value. They are not searched by text and not translated.
#pragma once

#include "gfpdb/gfpdb_enums.h"

// Titles of the operation tabs, by operation index.
constexpr const char* GFPQ_OPERATION_NAMES[GFPDB_OPERATION_COUNT] = {
    "Initialization", "Program", "Erase", "Verify/Blank-Check/Examine", "Termination",
};

// Shown at the top of each operation tab. The Erase text has typographic quotes and a question mark on purpose.
// clang-format off
constexpr const char* GFPQ_OPERATION_DESCRIPTIONS[GFPDB_OPERATION_COUNT] = {
    "The Programmer engine performs the Initialization operation at the beginning of the Program, Erase, "
    "Verify, Blank-Check, or Examine operation during .jic file programming.",
    "The Programmer engine performs the Program operation when the Program option is enabled in the "
    "Programmer tool for .jic file programming.",
    "The Programmer engine performs the Erase operation when the Erase option is enabled in the "
    "Programmer tool for .jic file programming. The Programmer engine uses all erase actions specified "
    "between “Erase data” and “End of data?” to decide the optimal way of erasing the data.",
    "The Programmer engine performs the Verify/Blank-Check/Examine operation when the Verify/Blank-"
    "Check/Examine option is enabled in the Programmer tool for .jic file programming.",
    "The Programmer engine performs the Termination operation at the end of the Program, Erase, Verify, "
    "Blank-Check, or Examine operation during .jic file programming.",
};
// clang-format on

// Names of the action types, by GFPDB_ACT_TYPE; also the text that a drag from the palette carries.
constexpr const char* GFPQ_ACTION_TYPE_NAMES[GFPDB_ACT_TYPE_COUNT] = {
    "Write Register", "Read Register", "Write Data", "Read Data", "Erase", "Custom",
};

// Labels of the property table, by GFPDB_ACT_PROPERTY. Several properties have the same label.
constexpr const char* GFPQ_PROPERTY_LABELS[GFPDB_ACT_PROPERTY_COUNT] = {
    // Write Register
    "Name:",
    "Command:",
    "Data:",
    "Delay(us):",
    "Command-Data(bus width):",
    // Read Register
    "Name:",
    "Command:",
    "Data length(byte):",
    "Expected data:",
    "Expected data mask:",
    "Attempt count:",
    "Delay(us):",
    "Command-Data(bus width):",
    // Write Data
    "Name:",
    "Command:",
    "Address:",
    "Data:",
    "Page size(byte):",
    "Addressing mode(byte):",
    "Delay(us):",
    "Command-Address-Data(bus width):",
    // Read Data
    "Name:",
    "Command:",
    "Address:",
    "Data length(byte):",
    "Expected data:",
    "Expected data mask:",
    "Addressing mode(byte):",
    "Dummy clock cycle:",
    "Delay(us):",
    "Command-Address-Data(bus width):",
    // Erase
    "Name:",
    "Command:",
    "Address:",
    "Erase size(byte):",
    "Addressing mode(byte):",
    "Delay(us):",
    "Command-Address(bus width):",
    // Custom: the loop unit and the loop marker have no label
    "",
    "",
};

// Names of the configuration schemes, by PGMIO_CONFIG_SCHEME. "With ERAM" and "with ERAM" differ on purpose.
constexpr const char* PGMIO_CONFIG_SCHEME_NAMES[PGMIO_CONFIG_SCHEME_COUNT] = {
    "1-bit Passive Serial",
    "2-bit Passive Serial",
    "4-bit Passive Serial",
    "8-bit Passive Serial",
    "Passive Parallel Asynchronous",
    "Passive Parallel Synchronous",
    "Fast Passive Parallel",
    "Active Serial",
    "Active Parallel",
    "Active Parallel Cascade",
    "Passive Parallel x8",
    "Passive Parallel x16",
    "Passive Parallel x32",
    "Active Serial x4",
    "Internal Configuration",
    "Single Internal Image",
    "Single Internal Image With ERAM",
    "Single Internal Compressed Image",
    "Single Internal Compressed Image with ERAM",
    "Dual Compressed Internal Images",
    "AVST x8",
    "AVST x16",
    "AVST x32",
    "SDMMC x4",
    "SDMMC x8",
    "Illegal Configuration Scheme",
};
