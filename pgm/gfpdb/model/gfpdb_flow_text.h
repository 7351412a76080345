// SPDX-License-Identifier: MIT

// The flows of a record in one flow variant as text: JSON that people and other programs can read. The database and
// record files hold the same.
//
//   [{"operation":"initialization","actions":[{"action":"write_register","name":"Write Enable","command":"0x06",
//   ...}]}]
//
// An operation occurs once at most; each action has every property of its type. Texts are UTF-8; values come back byte
// for byte. GUI thread only.
#pragma once

#include "base/gfpdb_json.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_operation.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

using GFPDB_OPERATION_LIST = std::vector<std::unique_ptr<GFPDB_OPERATION>>;

// The members of an operation, and the name of a property in an action.
constexpr const char* GFPDB_FLOW_OPERATION = "operation";
constexpr const char* GFPDB_FLOW_ACTIONS = "actions";
const char* gfpdb_property_word(int property);

// The text of `operations`; empty for null and for an empty list. None when a value is not UTF-8: then nothing can be
// stored.
std::optional<std::string> gfpdb_flows_to_text(const std::vector<GFPDB_OPERATION*>* operations);

// True when `text`, one of gfpdb_flows_to_text(), has an action. Cheaper than reading the operations.
bool gfpdb_flows_have_actions(const std::string& text);

// The operations of `text`; none when it is not a text of flows.
std::optional<GFPDB_OPERATION_LIST> gfpdb_flows_from_text(const std::string& text);

// `text` as a value of a file; none when it is not a text of flows.
std::optional<JSON_VALUE> gfpdb_flows_to_json(const std::string& text);

// The operations of a value of a file, which is at `field`. What is wrong is reported and left out.
GFPDB_OPERATION_LIST gfpdb_flows_from_json(const JSON_VALUE& list, const std::string& field, const JSON_REPORT& report);

// The same operations without their owner.
std::vector<GFPDB_OPERATION*> gfpdb_pointers(const GFPDB_OPERATION_LIST& operations);
