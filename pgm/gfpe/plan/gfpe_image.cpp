// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_image.h"

#include <algorithm>

namespace {

class MEMORY_IMAGE : public GFPE_IMAGE
{
public:
    MEMORY_IMAGE(std::vector<std::uint8_t> bytes, std::int64_t position)
        : m_bytes(std::move(bytes)), m_range{position, static_cast<std::int64_t>(m_bytes.size())}
    {}

    GFPE_RANGE get_range() const override { return m_range; }
    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string&) override
    {
        std::copy_n(m_bytes.begin() + (position - m_range.start), length, bytes);
        return true;
    }

private:
    const std::vector<std::uint8_t> m_bytes;
    const GFPE_RANGE m_range;
};

} // namespace

GFPE_IMAGE::~GFPE_IMAGE() = default;

std::unique_ptr<GFPE_IMAGE> gfpe_memory_image(std::vector<std::uint8_t> bytes, std::int64_t position)
{
    return std::make_unique<MEMORY_IMAGE>(std::move(bytes), position);
}
