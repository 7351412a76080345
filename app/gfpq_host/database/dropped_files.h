// SPDX-License-Identifier: MIT

// Files that are dragged from a file manager onto a window.
#pragma once

#include <QStringList>

class QMimeData;

struct DROPPED_FILES
{
    // Records of devices: JSON and CSV, by their names.
    QStringList records;
    // What else there is: files to program.
    QStringList others;
};

// The local files of a drag; none when something else is dragged along, and none while a dialog is open: windows that
// wait for it take drops all the same, and it would not know of what they bring.
DROPPED_FILES dropped_files(const QMimeData* data);
