// SPDX-License-Identifier: MIT

// A new device record, proposed from what a chip says of itself: its ID and its SFDP tables.
//
// Each value carries where it comes from and can be changed; nothing is stored. The record and the flows of both
// variants follow from the values by the rules that make those of the built-in parts (docs/flows.md). Texts are UTF-8.
// GUI thread only.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_part.h"
#include "gfpdb/gfpdb_record.h"
#include "gfpdb/gfpdb_sfdp.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// A value of the new device.
struct GFPDB_PROPOSED_VALUE
{
    // What it is called in options ("page-size"), and the heading for people.
    std::string key;
    std::string title;
    // As people write it; empty for one that has to be filled in.
    std::string text;
    // "SFDP DW11", "from the ID", "assumed", "entered"; empty while the text is.
    std::string source;
    // The texts to choose from; empty for a free text.
    std::vector<std::string> choices = {};
};

class GFPDB_PROPOSAL; // in pgm/gfpdb/sfdp

class GFPDB_EXPORT GFPDB_NEW_DEVICE
{
public:
    // `id` is what command 9F gave, with or without what a chip sends behind its ID, or empty when it is not known;
    // `sfdp` may be null, and is copied.
    GFPDB_NEW_DEVICE(const std::vector<std::uint8_t>& id, const GFPDB_SFDP* sfdp);
    ~GFPDB_NEW_DEVICE();
    GFPDB_NEW_DEVICE(GFPDB_NEW_DEVICE&&) noexcept;
    GFPDB_NEW_DEVICE& operator=(GFPDB_NEW_DEVICE&&) noexcept;

    // Name, ID, voltage, density, ... in the order in which people read them.
    std::vector<GFPDB_PROPOSED_VALUE> get_values() const;
    // Changes a value; its source becomes "entered". An empty text puts back what is proposed. False, with a sentence
    // in `problem`, for an unknown key or a text that is not allowed. What follows from the value changes with it,
    // unless it was entered.
    bool set_value(const std::string& key, const std::string& text, std::string& problem);
    // What a user should know, of the values as they are now: the warnings of the tables, sources that disagree, what
    // nobody says.
    std::vector<std::string> get_warnings() const;

    // The device with its flows in both variants. None, with a sentence in `problem`, while a value is missing that a
    // record or its flows need.
    std::optional<GFPDB_RECORD> make_record(int family, int scheme, std::string& problem) const;

private:
    std::unique_ptr<GFPDB_PROPOSAL> m_proposal;
};

// A difference between a listed part and what a chip says: "page size: 256 in the list, 512 by SFDP DW11".
struct GFPDB_PART_COMPARISON
{
    const GFPDB_PART* part = nullptr;
    std::vector<std::string> differences;
};

// The built-in parts that have this ID (those with the longer ID first), each with where it differs from the tables;
// without tables (GFPDB_SFDP()) nowhere. `id` as GFPDB_NEW_DEVICE takes it.
GFPDB_EXPORT std::vector<GFPDB_PART_COMPARISON> gfpdb_compare_with_catalogue(const std::vector<std::uint8_t>& id,
                                                                             const GFPDB_SFDP& sfdp);

// A copy of `source`, a built-in or stored device with its flows in both variants, as the device `name` of (family,
// scheme). What the copy could not keep as it is, is added to `warnings`. None, with a sentence in `problem`, when its
// name is not allowed, its flows cannot be read or a device there cannot have them.
GFPDB_EXPORT std::optional<GFPDB_RECORD> gfpdb_copy_of(const GFPDB_RECORD& source, const std::string& name, int family,
                                                       int scheme, std::vector<std::string>& warnings,
                                                       std::string& problem);
