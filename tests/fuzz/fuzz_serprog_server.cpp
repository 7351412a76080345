// SPDX-License-Identifier: MIT

// The server of serprog, with an emulated chip, against a client that sends anything.
//
// Input: how many bytes come at a time, then the bytes.
#include "fuzz_target.h"

#include "serprog/gfpe_serprog_talk.h"

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <algorithm>

namespace {

constexpr std::size_t LONGEST_ANSWER = 1 + 131072;

GFPE_CHIP& chip()
{
    static const std::unique_ptr<GFPE_CHIP> made = [] {
        std::string problem;
        return GFPE_CHIP::make(gfpdb_catalogue_parts().front(), problem);
    }();
    return *made;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    const auto piece = static_cast<std::size_t>(1 + input.take_byte());
    const std::string sent = input.take_rest();
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(sent.data());
    chip().cycle_power();
    GFPE_SERPROG_TALK talk(chip());
    for (std::size_t at = 0; at < sent.size();) {
        const std::size_t length = std::min(piece, sent.size() - at);
        const std::size_t taken = talk.take(bytes + at, length);
        FUZZ_CHECK(taken > 0 && taken <= length);
        FUZZ_CHECK(talk.get_answer().size() <= LONGEST_ANSWER);
        at += taken;
    }
    return 0;
}
