// SPDX-License-Identifier: MIT

// Texts of the flash database: UTF-8 in byte strings, names, and how messages show them.
//
// Pure functions, safe from every thread.
#pragma once

#include "gfpdb/gfpdb_export.h"

#include <QString>

#include <string>

// `text` as Qt's text, with nothing dropped: a byte order mark at the start is kept. Bytes that are not UTF-8 become
// replacement characters.
GFPDB_EXPORT QString gfpdb_from_utf8(const std::string& text);
GFPDB_EXPORT std::string gfpdb_to_utf8(const QString& text);

// What two names have in common when they are the same name: names that differ only in case, or only in how an accent
// is encoded, have the same key.
GFPDB_EXPORT std::string gfpdb_name_key(const std::string& name);

// `text` in double quotes for a message to the user: line breaks and other control characters are shown as "?", and a
// text of more than 64 characters is cut.
GFPDB_EXPORT std::string gfpdb_quoted(const std::string& text);

// The texts joined with ", ".
template <typename TEXTS>
std::string gfpdb_joined(const TEXTS& texts)
{
    std::string joined;
    for (const auto& text : texts) {
        if (!joined.empty())
            joined += ", ";
        joined += text;
    }
    return joined;
}
