// SPDX-License-Identifier: MIT

// One built-in part of the catalogue, as its data row says.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include <cstdint>
#include <string>
#include <vector>

// An erase command and how much it erases.
struct GFPDB_ERASE_COMMAND
{
    int opcode = 0;
    int size_bytes = 0;
};

// Where a part keeps its quad-enable bit.
enum class GFPDB_QUAD_ENABLE
{
    UNKNOWN, // no source found: the part's flows are marked unverified
    NONE,    // the part has no such bit
    SR1_BIT6,
    SR2_BIT1,
};

// What is known of a part; a value for which no source was found is empty or 0. Texts are UTF-8.
struct GFPDB_PART
{
    std::string name;
    std::string manufacturer;
    std::vector<int> jedec_id;
    std::string voltage;
    std::string density;
    int total_die = 0;
    int page_size = 0;
    // In the order of the row. A command that occurs twice erases different sizes at different addresses.
    std::vector<GFPDB_ERASE_COMMAND> sector_erase;
    int addressing_bytes = 0;
    int dummy_single = 0;
    int dummy_quad = 0;
    // How the clocks of dummy_quad are counted, as the row says it.
    std::string dummy_quad_note;
    GFPDB_QUAD_ENABLE quad_enable = GFPDB_QUAD_ENABLE::UNKNOWN;
    // Where the row's values come from.
    std::string source;
    // What is not to be shown of the part: its properties, its flows.
    bool properties_hidden = false;
    bool flows_hidden = false;
};

// The bytes of a density such as "128Mb" or "1GB": a whole number and Kb, Mb, Gb (bits) or KB, MB, GB (bytes); 0 for
// any other text.
GFPDB_EXPORT std::int64_t gfpdb_density_bytes(const std::string& density);

// The most bytes of a device ID.
constexpr int GFPDB_ID_BYTES_MAX = 16;
// The bytes of a record's device ID; empty for a text that is not one.
GFPDB_EXPORT std::vector<std::uint8_t> gfpdb_device_id_bytes(const std::string& id);
