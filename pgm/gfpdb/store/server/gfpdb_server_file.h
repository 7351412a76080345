// SPDX-License-Identifier: MIT

// The file gfpdb-server.ini, beside what gfpdb/gfpdb_server.h says of it.
#pragma once

#include "gfpdb/gfpdb_server.h"

bool gfpdb_is_same_server(const GFPDB_SERVER& left, const GFPDB_SERVER& right);
