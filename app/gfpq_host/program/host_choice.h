// SPDX-License-Identifier: MIT

// The user's choice of device: what goes into the dialog, comes out of it, and is remembered.
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <QByteArray>

#include <cstdint>
#include <string>

class QSettings;

struct HOST_CHOICE
{
    std::int32_t family = DEV_FAMILY_FIRST;
    std::int32_t config_scheme = PGMIO_ACTIVE_SERIAL;
    // Local 8-bit; empty for no device.
    std::string device_name;
};

// The choice as one line of JSON (UTF-8, without a line break):
// {"family":3,"config_scheme":13,"device_name":"MX25L25645G"}
QByteArray choice_to_json(const HOST_CHOICE& choice);

// The remembered choice; a part that is missing or no family or scheme at all keeps its default.
HOST_CHOICE load_choice(const QSettings& settings);
void store_choice(const HOST_CHOICE& choice, QSettings& settings);
