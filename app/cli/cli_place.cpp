// SPDX-License-Identifier: MIT
#include "cli_place.h"

#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_text.h"

#include "dstr/dstr.h"

#include <QString>

#include <numeric>

namespace {

// The number from `lowest` to `highest` that `text` is, or whose name it is.
template <typename NAME_OF>
std::optional<int> find(const std::string& text, int lowest, int highest, const NAME_OF& name_of)
{
    bool is_number = false;
    const int number = gfpdb_from_utf8(text).toInt(&is_number);
    if (is_number)
        return number >= lowest && number <= highest ? std::optional<int>(number) : std::nullopt;
    const std::string key = gfpdb_name_key(text);
    for (int each = lowest; each <= highest; ++each) {
        if (gfpdb_name_key(name_of(each)) == key)
            return each;
    }
    return std::nullopt;
}

constexpr int LAST_SCHEME = PGMIO_ILLEGAL_SCHEME - 1;

std::string rule(const char* option, int lowest, int highest, const char* what, const char* command)
{
    return std::string("--") + option + " needs a whole number from " + std::to_string(lowest) + " to " +
           std::to_string(highest) + ", or the name of a " + what + ": \"gfpdb " + command + "\" lists them.";
}

} // namespace

std::optional<int> cli_family(const std::string& text)
{
    return find(text, DEV_FAMILY_FIRST, DEV_FAMILY_LAST, dstr_get_user_string);
}

std::optional<int> cli_scheme(const std::string& text)
{
    return find(text, 0, LAST_SCHEME, cli_scheme_name);
}

std::string cli_scheme_name(int scheme)
{
    return PGMIO_CONFIG_SCHEME_NAMES[scheme];
}

std::vector<int> cli_schemes()
{
    std::vector<int> schemes(LAST_SCHEME + 1);
    std::iota(schemes.begin(), schemes.end(), 0);
    return schemes;
}

std::string cli_family_rule(const char* option)
{
    return rule(option, DEV_FAMILY_FIRST, DEV_FAMILY_LAST, "device family", "families");
}

std::string cli_scheme_rule(const char* option)
{
    return rule(option, 0, LAST_SCHEME, "configuration scheme", "schemes");
}
