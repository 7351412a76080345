// SPDX-License-Identifier: MIT

// Records as files of a directory.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <string>

// Writes `text` to `path` (local 8-bit). A regular file is replaced as a whole; a device or pipe is written to, as it
// must not be replaced by a file. Not even a careless mask, or the former file's rights, let everyone write what is
// made. False: `problem` says why, in the words of the system, and a file that was there is as it was.
bool write_record_file(const std::string& path, const std::string& text, std::string& problem);

// The file name for a record that gets a file of its own, UTF-8: "MYFLASH-3-7.json" with the family and scheme of a
// device, "NAME-template.json", "NAME-builtin.json". It depends on nothing else, and no two records have the same one,
// also where case does not count. Characters that some file systems refuse are written as "%2F".
std::string record_file_name(const GFPDB_RECORD& record, const std::string& ending = ".json");
