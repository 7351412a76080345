// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_chip.h"

#include "chip/gfpe_chip_core.h"
#include "chip/gfpe_chip_device.h"

#include <algorithm>
#include <cstring>

GFPE_CHIP::GFPE_CHIP(const GFPE_CHIP_FACTS& facts) : m_core(std::make_unique<GFPE_CHIP_CORE>(facts)) {}

GFPE_CHIP::~GFPE_CHIP()
{
    std::string problem;
    m_core->memory().save(problem);
}

std::unique_ptr<GFPE_CHIP> GFPE_CHIP::make(const GFPDB_PART& part, std::string& problem)
{
    GFPE_CHIP_FACTS facts;
    if (!gfpe_chip_facts(part, facts, problem))
        return nullptr;
    return std::unique_ptr<GFPE_CHIP>(new GFPE_CHIP(facts));
}

std::unique_ptr<GFPE_CHIP> GFPE_CHIP::make(const GFPDB_RECORD& record, std::string& problem)
{
    GFPDB_PART part;
    return gfpe_part_of_record(record, part, problem) ? make(part, problem) : nullptr;
}

bool GFPE_CHIP::use_file(const std::string& path, std::string& problem)
{
    return m_core->memory().use_file(path, problem);
}

bool GFPE_CHIP::save(std::string& problem)
{
    return m_core->memory().save(problem);
}

GFPE_ABILITIES GFPE_CHIP::get_abilities() const
{
    GFPE_ABILITIES abilities;
    abilities.lines = 4;
    abilities.clock = GFPE_CHIP_CORE::CLOCK;
    return abilities;
}

bool GFPE_CHIP::transfer(const GFPE_COMMAND& command, GFPE_READER* reader)
{
    m_core->transfer(command, reader);
    return true;
}

bool GFPE_CHIP::wait(std::int64_t microseconds)
{
    m_core->wait(microseconds);
    return true;
}

std::int64_t GFPE_CHIP::get_time() const
{
    return m_core->get_time();
}

std::string GFPE_CHIP::get_last_error() const
{
    return {};
}

void GFPE_CHIP::set_faults(const GFPE_CHIP_FAULTS& faults)
{
    m_core->set_faults(faults);
}

void GFPE_CHIP::cycle_power()
{
    m_core->power_up();
}

std::vector<std::string> GFPE_CHIP::get_notes() const
{
    return m_core->notes().get_texts();
}

void GFPE_CHIP::clear_notes()
{
    m_core->clear_notes();
}

std::int64_t GFPE_CHIP::get_size() const
{
    return m_core->facts().bytes;
}

void GFPE_CHIP::read_memory(std::int64_t position, std::uint8_t* bytes, std::size_t length) const
{
    for (std::size_t done = 0; done < length;) {
        std::int64_t here = 0;
        const std::uint8_t* cells = m_core->memory().view(position + static_cast<std::int64_t>(done), here);
        const std::size_t count = std::min(static_cast<std::size_t>(here), length - done);
        std::memcpy(bytes + done, cells, count);
        done += count;
    }
}

void GFPE_CHIP::write_memory(std::int64_t position, const std::uint8_t* bytes, std::size_t length)
{
    for (std::size_t done = 0; done < length;) {
        std::int64_t here = 0;
        std::uint8_t* cells = m_core->memory().change(position + static_cast<std::int64_t>(done), here);
        const std::size_t count = std::min(static_cast<std::size_t>(here), length - done);
        std::memcpy(cells, bytes + done, count);
        done += count;
    }
}

void GFPE_CHIP::fill_memory(std::uint8_t value)
{
    m_core->memory().fill(value);
}

bool GFPE_CHIP::is_at_rest() const
{
    return m_core->is_at_rest();
}
