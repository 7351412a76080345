// SPDX-License-Identifier: MIT

// Texts of the flash database: UTF-8 in byte strings, and what is said about them.
//
// Pure functions, safe from every thread.
#pragma once

#include <QString>

#include <string>

// `text` as Qt's text, with nothing dropped: a byte order mark at the start is kept. Bytes that are no UTF-8 become
// replacement characters; gfpdb_is_utf8() tells.
QString gfpdb_from_utf8(const std::string& text);
std::string gfpdb_to_utf8(const QString& text);
// True when `text` comes back unchanged from gfpdb_from_utf8().
bool gfpdb_is_utf8(const std::string& text);

// What two names have in common when they are the same name: names that differ only in case, or only in how an accent
// is encoded, have the same key.
std::string gfpdb_name_key(const std::string& name);

// What is to be added to the refusal of the name `asked` that is `stored` already: that case does not count, where the
// two are spelled differently; else nothing.
std::string gfpdb_case_note(const std::string& stored, const std::string& asked);

// `text` in double quotes for a message to the user: line breaks and other control characters are shown as "?", and a
// text of more than 64 characters is cut.
std::string gfpdb_quoted(const std::string& text);

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
