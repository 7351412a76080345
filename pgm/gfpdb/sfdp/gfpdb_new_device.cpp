// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

class GFPDB_PROPOSAL
{};

GFPDB_NEW_DEVICE::GFPDB_NEW_DEVICE(const std::vector<std::uint8_t>& /*id*/, const GFPDB_SFDP* /*sfdp*/)
    : m_proposal(std::make_unique<GFPDB_PROPOSAL>())
{}

GFPDB_NEW_DEVICE::~GFPDB_NEW_DEVICE() = default;
GFPDB_NEW_DEVICE::GFPDB_NEW_DEVICE(GFPDB_NEW_DEVICE&&) noexcept = default;
GFPDB_NEW_DEVICE& GFPDB_NEW_DEVICE::operator=(GFPDB_NEW_DEVICE&&) noexcept = default;

std::vector<GFPDB_PROPOSED_VALUE> GFPDB_NEW_DEVICE::get_values() const
{
    return {};
}

bool GFPDB_NEW_DEVICE::set_value(const std::string& key, const std::string& /*text*/, std::string& problem)
{
    problem = "There is no value \"" + key + "\".";
    return false;
}

std::vector<std::string> GFPDB_NEW_DEVICE::get_warnings() const
{
    return {};
}

std::optional<GFPDB_RECORD> GFPDB_NEW_DEVICE::make_record(int /*family*/, int /*scheme*/, std::string& problem) const
{
    problem = "A new device cannot be made yet.";
    return std::nullopt;
}
