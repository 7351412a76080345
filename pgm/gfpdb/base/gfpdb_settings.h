// SPDX-License-Identifier: MIT

// The library's settings file.
//
// Not QSettings: that drops comments when it writes, and takes backslashes, commas and quotes in a value for its own.
//
// An INI file: lines "key=value" under "[database]". It is the file named by the environment variable GFPDB_SETTINGS if
// that is set, else gfpdb/gfpdb.ini in the user's configuration directory. A relative name is relative to where the
// program was started: the current directory may become one that others can write. Values are bytes as they are,
// without blanks at their ends. A file that cannot be read is logged and counts as empty. GUI thread only.
#pragma once

#include <QString>

#include <string>

// `path`, relative to the directory that was the current one when the library was loaded, as an absolute path.
QString gfpdb_from_start(const QString& path);

// The value of `key`; empty when the file does not have it. The last of several lines counts.
std::string gfpdb_read_setting(const std::string& key);

// Replaces the value of `key` and leaves every other line as it is. The file is replaced as a whole or not at all; its
// directory is created. False, and logged, when it cannot be read or written, or when `value` has a line break.
bool gfpdb_write_setting(const std::string& key, const std::string& value);

constexpr char GFPDB_SETTING_CUSTOM_DIR[] = "custom_dir";
// How long a program waits, in milliseconds, for another one that has the database locked.
constexpr char GFPDB_SETTING_BUSY_TIMEOUT[] = "busy_timeout";
