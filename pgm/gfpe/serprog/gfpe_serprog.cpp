// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_serprog.h"

namespace {

constexpr const char* MISSING = "Programmers cannot be used yet.";

} // namespace

class GFPE_SERPROG_SERVER::SOCKET
{};

std::unique_ptr<GFPE_BUS> gfpe_serprog_over_tcp(const std::string&, int, std::string& problem)
{
    problem = MISSING;
    return nullptr;
}

std::unique_ptr<GFPE_BUS> gfpe_serprog_over_line(const std::string&, int, std::string& problem)
{
    problem = MISSING;
    return nullptr;
}

GFPE_SERPROG_SERVER::GFPE_SERPROG_SERVER(GFPE_BUS& bus) : m_bus(bus) {}
GFPE_SERPROG_SERVER::~GFPE_SERPROG_SERVER() = default;

bool GFPE_SERPROG_SERVER::listen(bool, int, std::string& problem)
{
    problem = MISSING;
    return false;
}

int GFPE_SERPROG_SERVER::get_port() const
{
    return 0;
}

void GFPE_SERPROG_SERVER::run(const std::function<bool()>&) {}
