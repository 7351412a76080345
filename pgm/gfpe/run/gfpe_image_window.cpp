// SPDX-License-Identifier: MIT
#include "run/gfpe_image_window.h"

#include <cstring>

GFPE_IMAGE_WINDOW::GFPE_IMAGE_WINDOW(GFPE_IMAGE* image, const GFPE_RANGE& range)
    : m_image(image), m_range(image ? image->get_range().common_with(range) : GFPE_RANGE()), m_bytes(LARGEST)
{}

bool GFPE_IMAGE_WINDOW::hold(const GFPE_RANGE& range)
{
    m_held = range;
    const GFPE_RANGE there = range.common_with(m_range);
    if (there.length < range.length)
        std::memset(m_bytes.data(), 0xFF, static_cast<std::size_t>(range.length));
    if (there.length == 0 || m_image->read(there.start, m_bytes.data() + (there.start - range.start),
                                           static_cast<std::size_t>(there.length), m_problem))
        return true;
    forget();
    return false;
}
