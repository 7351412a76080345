// SPDX-License-Identifier: MIT

// Why stores refuse changes, in words that are the same for all stores.
#pragma once

#include "model/gfpdb_row.h"

#include <cstdint>
#include <string>

// `stored` is the name of the record that `name` cannot be used beside.
std::string gfpdb_in_the_way(bool is_template, const std::string& stored, const std::string& name);
std::string gfpdb_same_names(const GFPDB_ROW& row);
std::string gfpdb_no_state(std::int64_t id);
std::string gfpdb_import_cancelled();
std::string gfpdb_another_database(const std::string& directory);
// What is added to the reason why `taken` was not put back.
std::string gfpdb_kept_in_history(const GFPDB_TAKEN& taken);
constexpr char GFPDB_NOT_IN_HISTORY[] = "It is not in the history any more.";
