// SPDX-License-Identifier: MIT

// The families file.
//
// Input: the content of the file.
#include "fuzz_target.h"

#include "family_file.h"

#include "dstr/dev_family.h"

#include <algorithm>
#include <set>

namespace {

constexpr int LAST_SCHEME = 25;

bool is_good(const FAMILY_ROW& row)
{
    const bool is_in_range = row.value >= DEV_FAMILY_FIRST && row.value <= DEV_FAMILY_LAST;
    const bool has_schemes = std::all_of(row.schemes.begin(), row.schemes.end(),
                                         [](int scheme) { return scheme >= 0 && scheme <= LAST_SCHEME; });
    const std::set<int> schemes(row.schemes.begin(), row.schemes.end());
    return is_in_range && has_schemes && schemes.size() == row.schemes.size() && !row.name.empty() &&
           row.name.find('\n') == std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const std::vector<FAMILY_ROW> rows = parse_families(content, QStringLiteral("families.csv"));
    std::set<int> values;
    std::set<std::string> names;
    for (const FAMILY_ROW& row : rows) {
        FUZZ_CHECK(is_good(row));
        FUZZ_CHECK(values.insert(row.value).second);
        FUZZ_CHECK(names.insert(row.name).second);
    }
    return 0;
}
