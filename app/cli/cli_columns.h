// SPDX-License-Identifier: MIT

// Columns of a terminal.
#pragma once

#include <QString>

// How many columns a terminal takes for `text`: two for a wide character (Chinese, Japanese, Korean, pictures), none
// for an accent that is set on the character before it.
int cli_width(const QString& text);
// `text` with blanks behind it, up to `width` columns.
QString cli_padded(const QString& text, int width);
