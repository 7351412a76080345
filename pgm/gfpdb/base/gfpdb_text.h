// SPDX-License-Identifier: MIT

// Texts of the flash database: what tools need of them (gfpdb/gfpdb_text.h), and what only the library does.
//
// Pure functions, safe from every thread.
#pragma once

#include "gfpdb/gfpdb_text.h"

#include <string>

// True when `text` comes back unchanged from gfpdb_from_utf8().
bool gfpdb_is_utf8(const std::string& text);

// What is to be added to the refusal of the name `asked` that is `stored` already: that case does not count, where the
// two are spelled differently; else nothing.
std::string gfpdb_case_note(const std::string& stored, const std::string& asked);
