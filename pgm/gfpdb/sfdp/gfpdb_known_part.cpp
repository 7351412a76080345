// SPDX-License-Identifier: MIT
#include "sfdp/gfpdb_known_part.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <algorithm>

namespace {

using ID = std::vector<std::uint8_t>;

constexpr std::size_t SHORT_ID_BYTES = 3;
constexpr std::size_t LONG_ID_BYTES = 6;
constexpr std::size_t DENSITY_BYTE = 2;

ID id_of(const GFPDB_PART& part)
{
    return ID(part.jedec_id.begin(), part.jedec_id.end());
}

bool begins_alike(const ID& one, const ID& other, std::size_t bytes)
{
    return one.size() >= bytes && other.size() >= bytes &&
           std::equal(one.begin(), one.begin() + static_cast<std::ptrdiff_t>(bytes), other.begin());
}

// True when every byte of `id` is that `period` bytes before it.
bool repeats(const ID& id, std::size_t period)
{
    return std::equal(id.begin() + static_cast<std::ptrdiff_t>(period), id.end(), id.begin());
}

// The makers of the listed parts whose IDs begin with the first `bytes` bytes of `id`.
std::vector<std::string> makers_of(const ID& id, std::size_t bytes)
{
    std::vector<std::string> makers;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        const bool is_known = std::find(makers.begin(), makers.end(), part.manufacturer) != makers.end();
        if (!part.manufacturer.empty() && !is_known && begins_alike(id, id_of(part), bytes))
            makers.push_back(part.manufacturer);
    }
    return makers;
}

} // namespace

std::vector<std::uint8_t> gfpdb_trimmed_id(const std::vector<std::uint8_t>& id)
{
    if (id.size() <= LONG_ID_BYTES)
        return id;
    const std::vector<const GFPDB_PART*> listed = gfpdb_parts_with_id(id);
    std::size_t length = repeats(id, SHORT_ID_BYTES) ? SHORT_ID_BYTES : 0;
    if (!listed.empty())
        length = listed.front()->jedec_id.size();
    // What follows three bytes is part of the ID where the maker's listed parts have it.
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        const bool is_of_maker = begins_alike(id, id_of(part), 2);
        length = length == 0 && is_of_maker ? part.jedec_id.size() : length;
    }
    length = length == 0 ? SHORT_ID_BYTES : length;
    return ID(id.begin(), id.begin() + static_cast<std::ptrdiff_t>(std::min(length, id.size())));
}

std::vector<const GFPDB_PART*> gfpdb_parts_with_id(const std::vector<std::uint8_t>& id)
{
    std::vector<const GFPDB_PART*> parts;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        const ID listed = id_of(part);
        const std::size_t common = std::min(id.size(), listed.size());
        if (common >= SHORT_ID_BYTES && begins_alike(id, listed, common))
            parts.push_back(&part);
    }
    std::stable_sort(parts.begin(), parts.end(), [](const GFPDB_PART* one, const GFPDB_PART* other) {
        return one->jedec_id.size() > other->jedec_id.size();
    });
    return parts;
}

std::string gfpdb_maker_of_id(const std::vector<std::uint8_t>& id)
{
    for (const std::size_t bytes : {std::size_t(2), std::size_t(1)}) {
        const std::vector<std::string> makers = makers_of(id, bytes);
        if (makers.size() == 1)
            return makers.front();
    }
    return {};
}

std::vector<std::string> gfpdb_makers()
{
    return makers_of({}, 0);
}

std::int64_t gfpdb_usual_bytes_of_id(const std::vector<std::uint8_t>& id)
{
    // Most makers write the exponent; from 512 Mb on, some count on from 20, others from 1A. Parts for 1.8 V of one
    // maker have 20 more.
    struct RANGE
    {
        int first;
        int last;
        int exponent_of_first;
    };
    constexpr RANGE RANGES[] = {{0x10, 0x1F, 0x10}, {0x20, 0x23, 0x1A}, {0x30, 0x3F, 0x10}};
    if (id.size() < SHORT_ID_BYTES)
        return 0;
    const int value = id[DENSITY_BYTE];
    for (const RANGE& range : RANGES) {
        if (value >= range.first && value <= range.last)
            return std::int64_t(1) << (range.exponent_of_first + value - range.first);
    }
    return 0;
}

std::string gfpdb_density_text(std::int64_t bits)
{
    constexpr std::int64_t KILOBIT = 1 << 10;
    constexpr std::int64_t MEGABIT = 1 << 20;
    return bits % MEGABIT == 0 ? std::to_string(bits / MEGABIT) + "Mb" : std::to_string(bits / KILOBIT) + "Kb";
}
