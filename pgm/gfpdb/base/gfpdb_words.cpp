// SPDX-License-Identifier: MIT
#include "base/gfpdb_words.h"

#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <deque>
#include <mutex>
#include <vector>

namespace {

// What was said in another language, and what it is in English; the latest is the first.
struct SAID
{
    std::string text;
    std::string english;
};
// A problem is logged soon after it was said.
constexpr std::size_t MOST_REMEMBERED = 256;

std::mutex& lock_of_memory()
{
    static std::mutex lock;
    return lock;
}

// Never destroyed: a program may say something until its very end.
std::deque<SAID>& memory()
{
    static auto& remembered = *new std::deque<SAID>;
    return remembered;
}

std::string fill(const std::string& text, const std::vector<std::string>& values)
{
    std::string filled;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char digit = text[at] == '%' && at + 1 < text.size() ? text[at + 1] : '\0';
        const auto place = static_cast<std::size_t>(digit - '1');
        if (digit < '1' || place >= values.size()) {
            filled += text[at];
            continue;
        }
        filled += values[place];
        ++at;
    }
    return filled;
}

// The English of a whole text; the text itself when it is not remembered.
std::string english_of(const std::string& text)
{
    const auto is_text = [&text](const SAID& said) { return said.text == text; };
    const auto found = std::find_if(memory().begin(), memory().end(), is_text);
    return found == memory().end() ? text : found->english;
}

void remember(const std::string& said, const char* english, std::vector<std::string> values)
{
    const std::lock_guard<std::mutex> guard(lock_of_memory());
    std::transform(values.begin(), values.end(), values.begin(), english_of);
    memory().push_front({said, fill(english, values)});
    if (memory().size() > MOST_REMEMBERED)
        memory().pop_back();
}

bool is_sentence(const std::string& english)
{
    return !english.empty() && english.back() == '.';
}

} // namespace

std::string GFPDB_WORDS::say(const char* english, std::initializer_list<std::string> values)
{
    const std::string text = gfpdb_to_utf8(tr(english));
    std::string said = fill(text, values);
    if (text != english)
        remember(said, english, values);
    return said;
}

// The whole was said after its parts, so it is found before them.
std::string GFPDB_WORDS::english(std::string said)
{
    const std::lock_guard<std::mutex> guard(lock_of_memory());
    said = english_of(said);
    for (const SAID& each : memory()) {
        const std::size_t place = is_sentence(each.english) ? said.find(each.text) : std::string::npos;
        if (place != std::string::npos)
            said.replace(place, each.text.size(), each.english);
    }
    return said;
}
