// SPDX-License-Identifier: MIT

// Connections as users write them: "emulated", "emulated:FILE", "tcp:HOST:PORT", "serial:DEVICE", "serial:DEVICE@BAUD";
// behind the last three ",clock=HERTZ".
#pragma once

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_record.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Texts are local 8-bit.
struct GFPE_CONNECTION
{
    enum KIND
    {
        EMULATED,
        TCP,
        SERIAL,
    };

    KIND kind = EMULATED;
    // The file that keeps the contents of the emulated chip; empty for none.
    std::string file;
    // "::1" without its brackets.
    std::string host;
    int port = 0;
    std::string device;
    int baud = 115200;
    // Of the programmer, in hertz; 0 for its own.
    int clock = 0;

    GFPE_EXPORT std::string to_text() const;
};

// None when the text is not a connection; `problem` says why, a sentence in UTF-8.
GFPE_EXPORT std::optional<GFPE_CONNECTION> gfpe_parse_connection(const std::string& text, std::string& problem);

// Opens a connection. An emulated chip is that of `record`, which may be null for all others. Null when it fails;
// `problem` says why. `chip`, if given, is the emulated chip, or null: the same object as the result. `given_up` as for
// gfpe_serprog_over_tcp().
GFPE_EXPORT std::unique_ptr<GFPE_BUS> gfpe_open_connection(const GFPE_CONNECTION& connection,
                                                           const GFPDB_RECORD* record, std::string& problem,
                                                           GFPE_CHIP** chip = nullptr,
                                                           const std::atomic<bool>* given_up = nullptr);

// The serial lines of this machine, as "/dev/ttyUSB0", with what is known of each, in UTF-8; empty for nothing.
struct GFPE_PORT
{
    std::string device;
    std::string description;
};
GFPE_EXPORT std::vector<GFPE_PORT> gfpe_serial_ports();
