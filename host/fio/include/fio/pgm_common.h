// SPDX-License-Identifier: MIT

// Path rules that all parts of the programmer share.
#pragma once

#include "fio/fio_export.h"

#include <string>

class FIO_EXPORT PGM_COMMON
{
public:
    PGM_COMMON() = delete;

    // Normalises the separators of a folder text: every back slash becomes "/", and runs of "/" become one. Nothing
    // else is changed: no "." or ".." is resolved, no trailing "/" is added or removed.
    static std::string change_folder_slash(const std::string& folder);
};
