// SPDX-License-Identifier: MIT

// The one warning box of the dialog.
#pragma once

#include <QString>

// Shows `text` as it stands (plain text, never markup) in a modal box with the warning icon, without parent or title,
// with the default OK button, and waits until it is closed.
void gfpq_show_warning(const QString& text);
