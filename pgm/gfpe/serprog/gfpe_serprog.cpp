// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_serprog.h"

#include "serprog/gfpe_serprog_client.h"

#include <algorithm>

namespace {

// A byte has a start and a stop bit on a line.
constexpr int LINE_BITS = 10;
constexpr int PAGE_BYTES = 256;

std::unique_ptr<GFPE_BUS> start(std::unique_ptr<GFPE_LINE> line, const GFPE_SERPROG_LIMITS& limits, std::int64_t clock,
                                std::string& problem)
{
    if (!line)
        return nullptr;
    auto client = std::make_unique<GFPE_SERPROG_CLIENT>(std::move(line), limits);
    if (client->start(clock))
        return client;
    problem = client->get_last_error();
    return nullptr;
}

} // namespace

GFPE_SERPROG_LIMITS gfpe_line_limits(int baud)
{
    GFPE_SERPROG_LIMITS limits;
    const int bytes_per_second = std::max(1, baud / LINE_BITS);
    limits.bytes_per_second = std::min(limits.bytes_per_second, std::max(1, bytes_per_second / 2));
    limits.longest_read = std::clamp<std::int64_t>(bytes_per_second, PAGE_BYTES, limits.longest_read);
    return limits;
}

std::unique_ptr<GFPE_BUS> gfpe_serprog_over_tcp(const std::string& host, int port, std::int64_t clock,
                                                std::string& problem, const std::atomic<bool>* given_up)
{
    const GFPE_SERPROG_LIMITS limits;
    return start(gfpe_tcp_line(host, port, limits.connect_ms, given_up, problem), limits, clock, problem);
}

std::unique_ptr<GFPE_BUS> gfpe_serprog_over_line(const std::string& device, int baud, std::int64_t clock,
                                                 std::string& problem, const std::atomic<bool>* given_up)
{
    return start(gfpe_serial_line(device, baud, given_up, problem), gfpe_line_limits(baud), clock, problem);
}
