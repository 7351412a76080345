// SPDX-License-Identifier: MIT

// The devices that a database directory and the catalogue have. Knows no widget.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <optional>
#include <string>
#include <vector>

class GFPDB_DATABASE;

struct LISTED_DEVICE
{
    // Without flows. A built-in device has the scheme -1; what is not to be shown of it is empty.
    GFPDB_RECORD device;
    // How many bytes addresses have, as "3, 4" when they differ; empty where nothing says it. Of an own device it
    // follows from its flows, which are not read for a list: none until they were.
    std::optional<std::string> address_bytes;

    bool is_builtin() const { return device.row.scheme < 0; }
};

// The built-in devices in the order of the catalogue, then the stored ones of `database`. GUI thread only.
std::vector<LISTED_DEVICE> list_devices(GFPDB_DATABASE& database);

// True when both are the same device: names are compared as the database compares them.
bool is_same_device(const GFPDB_RECORD& left, const GFPDB_RECORD& right);

// The device with its flows, built in or stored; none when it is gone, or cannot be read: `database` says why.
std::optional<GFPDB_RECORD> load_device(GFPDB_DATABASE& database, const GFPDB_RECORD& device);
