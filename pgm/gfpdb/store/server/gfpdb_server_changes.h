// SPDX-License-Identifier: MIT

// How many changes of databases on servers this process has made: what was read before a change is not remembered.
#pragma once

int& gfpdb_server_changes();
