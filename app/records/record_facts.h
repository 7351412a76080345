// SPDX-License-Identifier: MIT

// What people want to know of a record besides its fields. Texts are UTF-8. GUI thread only (the catalogue).
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <string>

// The digits of a device ID in any spelling, "C22018" for "C2 20 18", "0xC2 0x20 0x18", "c2:20:18" or "C22018h"; also
// those of the beginning of one, as "C2 2". Empty for a text that is not one, and for more than GFPDB_ID_BYTES_MAX
// bytes.
std::string record_id_digits(const std::string& text);
// The digits of the ID that the record has; empty when it has none.
std::string record_id(const GFPDB_ROW& row);
// Who makes the parts whose IDs begin as that of the record, by the catalogue; empty when it does not know.
std::string record_manufacturer(const GFPDB_ROW& row);

// Facts of a built-in device are those of the catalogue, of any other record those of its flows. Empty where they do
// not say it.
struct RECORD_FACTS
{
    // In bytes.
    std::string page_size;
    std::string address_bytes;
    // Commands and what they erase: "20:4K, 52:32K, D8:64K, C7:chip".
    std::string erase_commands;
    // Where the catalogue has the values of a built-in device from.
    std::string source;
};
// `record` with its flows.
RECORD_FACTS record_facts(const GFPDB_RECORD& record);
