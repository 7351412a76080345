// SPDX-License-Identifier: MIT

// What the flow engine shows to the programs that use it: nothing but what is marked here.
#pragma once

#define GFPE_EXPORT __attribute__((visibility("default")))
