// SPDX-License-Identifier: MIT

// The one warning box of the dialog.
#pragma once

#include <QString>

// Shows `text`, never as markup, in a modal box with the warning icon and the default OK button, without parent or
// title, and waits until it is closed.
void gfpq_show_warning(const QString& text);
