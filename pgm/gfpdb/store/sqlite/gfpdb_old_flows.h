// SPDX-License-Identifier: MIT

// The flows of a record as databases of schema 1 and 2 keep them:
//
//   {"operations":[{"kind":0,"actions":[{"type":0,"values":{"0":"Write Enable","1":"0x06"}}]}]}
//
// "kind" is a GFPDB_OPERATION_KIND, "type" a GFPDB_ACT_TYPE, the keys of "values" are GFPDB_ACT_PROPERTY numbers.
#pragma once

#include <string>

// The text of gfpdb_flow_text.h that says the same. A value that is missing gets its default. A text that cannot be
// read stays as it is: then it cannot be read as one of gfpdb_flow_text.h either.
std::string gfpdb_flows_of_schema_2(const std::string& text);
