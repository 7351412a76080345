// SPDX-License-Identifier: MIT

// What the ID of a chip tells, by the parts of the catalogue: which listed parts have it, its usual density. Its maker
// is in gfpdb/gfpdb_catalogue.h.
//
// GUI thread only (the catalogue).
#pragma once

#include "gfpdb/gfpdb_part.h"

#include <cstdint>
#include <string>
#include <vector>

// `id` without what a chip sends behind it when more is read than it has: the ID again, or bytes of which nothing is
// known. An ID of six bytes or fewer is what it is.
std::vector<std::uint8_t> gfpdb_trimmed_id(const std::vector<std::uint8_t>& id);

// The listed parts that have `id`; those with the longer ID first. Of the longer of two IDs only as much is compared as
// the shorter has, which is three bytes at least.
std::vector<const GFPDB_PART*> gfpdb_parts_with_id(const std::vector<std::uint8_t>& id);

// The size in bytes that the third byte of an ID usually stands for; 0 when it stands for none.
std::int64_t gfpdb_usual_bytes_of_id(const std::vector<std::uint8_t>& id);

// "128Mb", for whole Mb, else "512Kb".
std::string gfpdb_density_text(std::int64_t bits);
