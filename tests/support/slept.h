// SPDX-License-Identifier: MIT

// How long a program would have waited for a lock: SQLite's pauses are counted in the place of being made.
//
// The program needs the property ENABLE_EXPORTS, so that SQLite finds the function of that name in it.
#pragma once

// The microseconds since the last call.
long take_slept_us();
