// SPDX-License-Identifier: MIT

// The catalogue of built-in parts.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_part.h"

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

// The parts in the order of the catalogue: the file that the environment variable GFPDB_CATALOGUE names, else the
// catalogue that is compiled in. Read at the first call; rows with errors are logged and left out. When the file of the
// environment variable cannot be read, that is logged and the compiled-in catalogue serves. GUI thread only.
GFPDB_EXPORT const std::vector<GFPDB_PART>& gfpdb_catalogue_parts();

// Why the file that GFPDB_CATALOGUE names is not the catalogue, as a sentence for the user; empty when it is, or when
// the variable is not set.
GFPDB_EXPORT const std::string& gfpdb_catalogue_problem();

// The parts of the catalogue in `path`; `problem` says why it could not be read and is empty otherwise. Only regular
// files of at most 16 MiB are read, and what is compiled in (":/...").
GFPDB_EXPORT std::vector<GFPDB_PART> gfpdb_read_catalogue(const QString& path, QString& problem);

// The maker of the parts whose IDs begin as `id`, two bytes of it or one; empty when there are none, or several makers.
GFPDB_EXPORT std::string gfpdb_maker_of_id(const std::vector<std::uint8_t>& id);
// The makers of the parts, each once, in the order of the catalogue.
GFPDB_EXPORT std::vector<std::string> gfpdb_makers();
