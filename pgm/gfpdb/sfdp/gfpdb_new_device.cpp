// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

#include "sfdp/gfpdb_proposal.h"

GFPDB_NEW_DEVICE::GFPDB_NEW_DEVICE(const std::vector<std::uint8_t>& id, const GFPDB_SFDP* sfdp)
    : m_proposal(std::make_unique<GFPDB_PROPOSAL>(id, sfdp))
{}

GFPDB_NEW_DEVICE::~GFPDB_NEW_DEVICE() = default;
GFPDB_NEW_DEVICE::GFPDB_NEW_DEVICE(GFPDB_NEW_DEVICE&&) noexcept = default;
GFPDB_NEW_DEVICE& GFPDB_NEW_DEVICE::operator=(GFPDB_NEW_DEVICE&&) noexcept = default;

std::vector<GFPDB_PROPOSED_VALUE> GFPDB_NEW_DEVICE::get_values() const
{
    return m_proposal->get_values();
}

bool GFPDB_NEW_DEVICE::set_value(const std::string& key, const std::string& text, std::string& problem)
{
    return m_proposal->set_value(key, text, problem);
}

std::vector<std::string> GFPDB_NEW_DEVICE::get_warnings() const
{
    return m_proposal->get_warnings();
}

std::optional<GFPDB_RECORD> GFPDB_NEW_DEVICE::make_record(int family, int scheme, std::string& problem) const
{
    return m_proposal->make_record(family, scheme, problem);
}
