// SPDX-License-Identifier: MIT

// What a command works on: a connection, and the device at its other end.
#pragma once

#include "gfprog_options.h"

#include "cli_find.h"

#include "gfpe/gfpe_connection.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct GFPROG_TARGET
{
    // With its flows. Without a name while no device was chosen.
    GFPDB_RECORD record;
    // The connection as the user wrote it, and open.
    std::string connection;
    std::unique_ptr<GFPE_BUS> bus;
    // The emulated chip; null for a real one.
    GFPE_CHIP* chip = nullptr;
    // An emulated chip that keeps its contents in no file.
    bool is_new_chip = false;

    // True for the flow on four lines: that of the scheme in the options, else of the device.
    bool is_quad(const CLI_CALL& call) const;
};

// Opens the connection of the options and finds their device, or detects it. None: a message was printed, and
// `exit_code` says what went wrong.
std::optional<GFPROG_TARGET> gfprog_open_target(const CLI_CALL& call, int& exit_code);
// The same without a device, unless the chip is emulated: then `options` select among devices of one name.
std::optional<GFPROG_TARGET> gfprog_open_connection(const CLI_CALL& call, int& exit_code,
                                                    const CLI_PLACE_OPTIONS& options = {});

// The devices that match an ID, without their flows.
struct GFPROG_DETECTED
{
    std::vector<std::uint8_t> id;
    std::vector<GFPDB_RECORD> devices;
};
std::optional<GFPROG_DETECTED> gfprog_detect(const CLI_CALL& call, GFPROG_TARGET& target, int& exit_code);
// True for a built-in device, which has no family and scheme.
bool gfprog_is_builtin(const GFPDB_RECORD& record);

// Prints the notes of an emulated chip. True when there are some.
bool gfprog_print_notes(const CLI_CALL& call, const std::vector<std::string>& notes);
