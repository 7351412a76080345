// What the host has to do with the flash database itself: its directory, and whether it can be used.
#pragma once

#include <QString>

// `directory` (may be relative to the current directory) becomes the user's database directory of this run; the
// settings stay as they are.
void use_database_directory(const QString& directory);

struct DATABASE_STATE
{
    QString directory;
    // Why the database there cannot be used, a sentence; empty when it can.
    QString problem;
};

// The state now, for a window that shows it.
DATABASE_STATE database_state();
