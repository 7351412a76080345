// SPDX-License-Identifier: MIT

// What a flash database library shows to the programs and modules that use it: nothing but what is marked here.
#pragma once

#define GFPDB_EXPORT __attribute__((visibility("default")))
