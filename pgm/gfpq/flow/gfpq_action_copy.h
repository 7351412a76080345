// SPDX-License-Identifier: MIT

// The one deep copy of an action.
#pragma once

class GFPDB_ACTION;
class GFPDB_MGR;

// A new action of the same type with the same value texts, made by `manager`. Copies every property of the source's
// list in list order. Owned by the caller; null if the manager makes none.
GFPDB_ACTION* gfpq_copy_action(GFPDB_MGR& manager, const GFPDB_ACTION& source);
