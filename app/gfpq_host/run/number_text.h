// SPDX-License-Identifier: MIT

// Positions and sizes as people read and write them.
#pragma once

#include "gfpe/gfpe_image.h"

#include <QString>

#include <cstdint>
#include <optional>

// A number that is not negative, decimal or with 0x in front; blanks around it are allowed.
std::optional<std::int64_t> parse_number(const QString& text);

// "0x00010000".
QString position_text(std::int64_t position);
// "0x00010000 - 0x0001FFFF": the first and the last byte.
QString range_text(const GFPE_RANGE& range);
// "1.5 MiB", in the current language.
QString size_text(std::int64_t bytes);
// "0:05", "1:02:03".
QString time_text(int seconds);
