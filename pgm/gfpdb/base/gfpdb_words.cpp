// SPDX-License-Identifier: MIT
#include "base/gfpdb_words.h"

#include "gfpdb/gfpdb_text.h"

std::string GFPDB_WORDS::say(const char* english, std::initializer_list<std::string> values)
{
    const std::string text = gfpdb_to_utf8(tr(english));
    std::string said;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char digit = text[at] == '%' && at + 1 < text.size() ? text[at + 1] : '\0';
        const auto place = static_cast<std::size_t>(digit - '1');
        if (digit < '1' || place >= values.size()) {
            said += text[at];
            continue;
        }
        said += values.begin()[place];
        ++at;
    }
    return said;
}
