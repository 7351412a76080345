// SPDX-License-Identifier: MIT

// What the host has to do with the flash database itself: its directory, and whether it can be used.
#pragma once

#include <QString>

#include <string>

// Relative database directories are relative to `directory`, an absolute path, from now on: those of the settings and
// those that the user types.
void use_base_directory(const QString& directory);

// `directory` (may be relative to `base_directory`, without one to the current directory) becomes the user's database
// directory of this run; the settings stay as they are.
void use_database_directory(const QString& directory, const QString& base_directory);

struct DATABASE_STATE
{
    QString directory;
    // Why the database there, or the file of families that the user named, cannot be used: a sentence each, on a line
    // of its own; empty when they can.
    QString problem;
};

// The state now, for a window that shows it.
DATABASE_STATE database_state();

// Why the module raises the host message `id` now, in the database's own words (local 8-bit); empty for a message that
// is not about the database, and when the database knows no reason.
std::string reason_of_message(int id);
