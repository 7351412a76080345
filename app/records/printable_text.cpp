// SPDX-License-Identifier: MIT
#include "printable_text.h"

#include "gfpdb/gfpdb_text.h"

std::string printable_text(const std::string& text, const QString& kept)
{
    QString shown = gfpdb_from_utf8(text);
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate() && !kept.contains(character))
            character = QLatin1Char('?');
    }
    return gfpdb_to_utf8(shown);
}
