// SPDX-License-Identifier: MIT
#include "slept.h"

#include <utility>

#include <unistd.h>

namespace {
long g_slept_us = 0;
}

long take_slept_us()
{
    return std::exchange(g_slept_us, 0);
}

// In the place of the C library's.
extern "C" int usleep(useconds_t us)
{
    g_slept_us += us;
    return 0;
}
