// SPDX-License-Identifier: MIT

// A device that a command makes: from what a chip says of itself, or from another device. It is shown, checked and
// stored.
#pragma once

#include "cli_command.h"
#include "cli_json.h"

#include "gfpdb/gfpdb_new_device.h"

constexpr const char* CLI_OPTION_NAME = "name";
constexpr const char* CLI_OPTION_VOLTAGE = "voltage";
constexpr const char* CLI_OPTION_SET = "set";
constexpr const char* CLI_OPTION_REPLACE = "replace";
constexpr const char* CLI_OPTION_DRY_RUN = "dry-run";

// --name, --voltage and --set.
void cli_add_value_options(CLI_OPTIONS& options);
// --replace and --dry-run.
void cli_add_store_options(CLI_OPTIONS& options);

// What is known of a new device.
struct CLI_CHIP
{
    // The file or the connection, for messages.
    std::string origin;
    // What command 9F gave, or the user; empty when it is not known.
    std::vector<std::uint8_t> id;
    // None when the chip has no tables that can be read.
    std::optional<GFPDB_SFDP> sfdp;
};

// Prints the values that a new device gets, with those of the options, their sources and warnings, and the listed parts
// when `shows_parts`; then stores the device when `is_stored`. The exit code.
int cli_propose_device(const CLI_CALL& call, const CLI_CHIP& chip, bool shows_parts, bool is_stored);

// The family and scheme of the options; without them those that `record` has, and for one that has none the first
// family and Active Serial.
int cli_new_family(const CLI_CALL& call, const GFPDB_RECORD* record = nullptr);
int cli_new_scheme(const CLI_CALL& call, const GFPDB_RECORD* record = nullptr);

// Stores a new device, unless the options say --dry-run; one that exists with other content only when it `may_replace`
// it. What came of it: "new", "replaced" or "unchanged". Null: a message was printed, and `exit_code` says what went
// wrong.
const char* cli_store_device(const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& origin,
                             bool may_replace, int& exit_code);
// The same as a sentence, and as a member "device" of an object.
std::string cli_stored_text(const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& action);
void cli_add_stored(CLI_JSON& json, const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& action);
