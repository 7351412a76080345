// SPDX-License-Identifier: MIT
#include "run/test_pattern.h"

namespace {

constexpr int WORD_BYTES = 8;

// Mixes the bits of a number.
std::uint64_t mixed(std::uint64_t number)
{
    number = (number + 1) * 0x9E3779B97F4A7C15;
    number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9;
    return number ^ (number >> 27);
}

class TEST_PATTERN : public GFPE_IMAGE
{
public:
    explicit TEST_PATTERN(const GFPE_RANGE& range) : m_range(range) {}

    GFPE_RANGE get_range() const override { return m_range; }
    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string&) override
    {
        auto place = static_cast<std::uint64_t>(position);
        std::uint64_t word = mixed(place / WORD_BYTES);
        for (std::size_t i = 0; i < length; ++i, ++place) {
            if (place % WORD_BYTES == 0)
                word = mixed(place / WORD_BYTES);
            bytes[i] = static_cast<std::uint8_t>(word >> (8 * (place % WORD_BYTES)));
        }
        return true;
    }

private:
    const GFPE_RANGE m_range;
};

} // namespace

std::unique_ptr<GFPE_IMAGE> make_test_pattern(const GFPE_RANGE& range)
{
    return std::make_unique<TEST_PATTERN>(range);
}
