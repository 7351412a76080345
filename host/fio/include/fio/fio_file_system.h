// SPDX-License-Identifier: MIT

// Operations on the file system that concern the whole process.
#pragma once

#include "fio/fio_export.h"

#include <string>

class FIO_EXPORT FIO_FILE_SYSTEM
{
public:
    FIO_FILE_SYSTEM() = delete;

    // Makes `directory` (local 8-bit) the process's current directory. False, with a logged warning, when it is not a
    // directory that can be entered; the current directory then stays. Process-wide: call it from the GUI thread only.
    static bool set_current_directory(const std::string& directory);
};
