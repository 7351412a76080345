// SPDX-License-Identifier: MIT

// What this library shows to the programs and modules that use it: nothing but what is marked here.
#pragma once

#define GEN_EXPORT __attribute__((visibility("default")))
