// SPDX-License-Identifier: MIT

// Which device is at the other end of a connection, and what it says of itself.
#pragma once

#include "gfpe/gfpe_bus.h"

#include "gfpdb/gfpdb_database.h"

#include <cstdint>
#include <string>
#include <vector>

// Reads the ID by command 9F, as many bytes as IDs have at most. False: the connection is lost, or nothing answers (all
// bytes are the same, 00 or FF); `problem` says which, a sentence in UTF-8.
GFPE_EXPORT bool gfpe_read_id(GFPE_BUS& bus, std::vector<std::uint8_t>& id, std::string& problem);

// Reads the SFDP tables by command 5A: the header, the headers that it counts, and what they name, at most
// GFPDB_SFDP_BYTES_MAX bytes from position 0 (gfpdb_read_sfdp() says what they mean). `bytes` is empty when the chip
// has no such tables, which is no error. False: the connection is lost; `problem` says why, a sentence in UTF-8.
GFPE_EXPORT bool gfpe_read_sfdp(GFPE_BUS& bus, std::vector<std::uint8_t>& bytes, std::string& problem);

// The built-in devices, then those of the directory, whose ID is what was read: as many bytes as the device has. Those
// with the longer ID first. Without their flows. GUI thread only.
GFPE_EXPORT std::vector<GFPDB_RECORD> gfpe_find_devices(GFPDB_DATABASE& database, const std::vector<std::uint8_t>& id);
