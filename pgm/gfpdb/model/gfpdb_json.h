// SPDX-License-Identifier: MIT

// Flows of a record as text, for the database: JSON that people and other programs can read.
//
//   {"operations":[{"kind":0,"actions":[{"type":0,"values":{"0":"Write Enable","1":"0x06"}}]}]}
//
// "kind" is a GFPDB_OPERATION_KIND, "type" a GFPDB_ACT_TYPE, the keys of "values" are GFPDB_ACT_PROPERTY numbers, in
// which every property of the action occurs. UTF-8; values come back byte for byte. GUI thread only.
#pragma once

#include "gfpdb/gfpdb_operation.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// The text of `operations`; empty for null and for an empty list. None when a value is not UTF-8: then nothing can be
// stored.
std::optional<std::string> gfpdb_flows_to_json(const std::vector<GFPDB_OPERATION*>* operations);

// True when `json` has an action; it is a text of gfpdb_flows_to_json(). Cheaper than reading the operations.
bool gfpdb_flows_have_actions(const std::string& json);

// The operations of `json`, owned by the caller; none when it is no text of gfpdb_flows_to_json(). Properties that an
// action does not have are left out.
std::optional<std::vector<std::unique_ptr<GFPDB_OPERATION>>> gfpdb_flows_from_json(const std::string& json);
