// SPDX-License-Identifier: MIT

// The choices that the flash database offers for the I/O voltage and the density of a device.
//
// GUI thread only (the catalogue of built-in parts is read at the first call).
#pragma once

#include "rules/gfpdb_scheme_kind.h"

#include <string>
#include <vector>

// The voltage and density texts of a kind of scheme, in display order: the usual ones first, then, for serial flash,
// what else occurs in the catalogue of built-in parts. NONE has the texts of SERIAL.
std::vector<std::string> gfpdb_voltage_options(GFPDB_SCHEME_KIND kind);
std::vector<std::string> gfpdb_density_options(GFPDB_SCHEME_KIND kind);

// True for a voltage or a range of voltages, as "3.3V" or "1.65-3.6V".
bool gfpdb_is_voltage(const std::string& text);

// True when a flash with the I/O voltage `voltage` can be connected to a device of `family`
// that is configured by `scheme`. Families from GFPDB_FIRST_LOW_VOLTAGE_FAMILY on drive the pins of their serial flash
// with 1.8 V: for them a serial flash must work at 1.8 V. Everything else fits. A text that is not a voltage does not
// fit.
bool gfpdb_voltage_fits(const std::string& voltage, int family, int scheme);

constexpr int GFPDB_FIRST_LOW_VOLTAGE_FAMILY = 49;
