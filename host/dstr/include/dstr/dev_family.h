// SPDX-License-Identifier: MIT

// The device families that a programmer can configure.
//
// The values are fixed, 1 to 72; what they are called and what they support is data (dstr.h), so the enumeration names
// only the ends of its range.
#pragma once

enum DEV_FAMILY_ENUM : int
{
    DEV_FAMILY_UNKNOWN = 0,
    DEV_FAMILY_FIRST = 1,
    DEV_FAMILY_LAST = 72,
};
