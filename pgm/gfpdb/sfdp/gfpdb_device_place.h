// SPDX-License-Identifier: MIT

// Where a device that is made can be, and what a record of it can have. Pure functions.
#pragma once

#include <string>

// Why a device of (family, scheme) cannot have flows; empty when it can.
std::string gfpdb_problem_of_place(int family, int scheme);
// The most single-I/O dummy clocks of a record. A flow may have more.
int gfpdb_single_dummy_max();
