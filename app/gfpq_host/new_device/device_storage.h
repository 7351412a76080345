// SPDX-License-Identifier: MIT

// New devices on their way into the user's database.
#pragma once

#include "program/host_choice.h"

#include "gfpdb/gfpdb_record.h"

#include <QString>

// Local 8-bit name, family and mode of the stored device, as the window and the dialog take them.
HOST_CHOICE choice_of(const GFPDB_RECORD& device);

// True when a new device of that family and mode may have the name (UTF-8), by the rules of the database. `problem`
// says why not, in its words. GUI thread only.
bool is_free_name(const std::string& name, int family, int scheme, QString& problem);

// Stores a device that is new. False: nothing is stored, `problem` says why. GUI thread only.
bool store_new_device(const GFPDB_RECORD& device, QString& problem);
