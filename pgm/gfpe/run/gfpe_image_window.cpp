// SPDX-License-Identifier: MIT
#include "run/gfpe_image_window.h"

#include <cstring>

GFPE_IMAGE_WINDOW::GFPE_IMAGE_WINDOW(GFPE_IMAGE* image, const GFPE_RANGE& range)
    : m_image(image), m_range(image ? image->get_range().common_with(range) : GFPE_RANGE()), m_bytes(LARGEST)
{}

const std::uint8_t* GFPE_IMAGE_WINDOW::bytes(const GFPE_RANGE& range)
{
    if (range.start < m_held.start || range.end() > m_held.end()) {
        m_held = {range.start, LARGEST};
        const GFPE_RANGE there = m_held.common_with(m_range);
        if (there.length < LARGEST)
            std::memset(m_bytes.data(), 0xFF, m_bytes.size());
        if (there.length > 0 && !m_image->read(there.start, m_bytes.data() + (there.start - range.start),
                                               static_cast<std::size_t>(there.length), m_problem)) {
            forget();
            return nullptr;
        }
    }
    return m_bytes.data() + (range.start - m_held.start);
}
