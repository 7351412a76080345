// SPDX-License-Identifier: MIT

// Texts of the database where people read them.
#pragma once

#include <QString>

#include <string>

// `text` with "?" for every control character that is not one of `kept`: with one a value could move a terminal's
// cursor. Texts are UTF-8.
std::string printable_text(const std::string& text, const QString& kept = QString());
