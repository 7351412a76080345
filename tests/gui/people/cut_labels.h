// SPDX-License-Identifier: MIT

// Texts that do not fit where they are shown.
#pragma once

#include <QStringList>

class QWidget;

// The labels, buttons, check boxes, page titles and header texts in `window`, which is shown, that are wider or higher
// than the room they have, or that reach out of what is visible of them sideways; each as "class objectName: text".
QStringList cut_labels(QWidget& window);

// How many texts cut_labels() looks at in `window` as it is now.
int label_count(QWidget& window);
