// SPDX-License-Identifier: MIT

// What an emulated chip says of itself by command 5A.
#pragma once

#include "chip/gfpe_chip_facts.h"

#include <cstdint>
#include <vector>

// The bytes that a real part of this name answers, where somebody has read one; else as gfpe_write_sfdp().
std::vector<std::uint8_t> gfpe_sfdp_of(const GFPE_CHIP_FACTS& facts);

// Tables that describe the chip, in the revision of JESD216B (1.6): the header, the basic table of 16 double words, and
// for chips with commands that always take four address bytes the table of these. Times are those of gfpe_chip_times.h.
std::vector<std::uint8_t> gfpe_write_sfdp(const GFPE_CHIP_FACTS& facts);
