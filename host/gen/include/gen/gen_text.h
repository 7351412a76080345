// SPDX-License-Identifier: MIT

// Small text helpers of the host, free of Qt.
//
// All functions are pure, take texts as byte strings in any 8-bit encoding that contains ASCII, and are safe to call
// from every thread.
#pragma once

#include "gen/gen_export.h"

#include <string>

// The number at the start of `text`: blanks, one optional sign, then decimal digits; what follows is ignored. A text
// without a leading number gives 0. A number outside the range of int gives the nearest int.
GEN_EXPORT int gen_atoi(const std::string& text);

// `value` in decimal, with a leading "-" when negative.
GEN_EXPORT std::string gen_itoa(int value);

// Byte by byte comparison: below 0, 0 or above 0 as `left` is before, equal to or after `right`.
GEN_EXPORT int gen_strcmp(const std::string& left, const std::string& right);

// As gen_strcmp, but "A" to "Z" count as "a" to "z". Bytes outside ASCII are compared as they are, so the result does
// not depend on the locale.
GEN_EXPORT int gen_stricmp(const std::string& left, const std::string& right);
