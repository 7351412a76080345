// SPDX-License-Identifier: MIT

// Who could put another file in the place of one.
#pragma once

#include <QString>

// Where a path leads, and who can change that.
struct TRUSTED_PATH
{
    // The file itself, without links, "." and ".."; empty when the path leads nowhere.
    QString real_path;
    // The first place on the way that everyone may change: the file, a directory that has one of its names, or
    // an entry of a shared directory (one with the sticky bit, as /tmp) that belongs to neither root nor this user.
    // Empty when there is none.
    QString open_place;
};

// Follows the absolute path `file` name by name, through every link on the way. Owners and groups of directories are
// trusted; "everyone" is all others.
TRUSTED_PATH follow_path(const QString& file);
