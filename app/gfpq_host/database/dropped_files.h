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

// The local files of a drag; none when something else is dragged along.
DROPPED_FILES dropped_files(const QMimeData* data);
