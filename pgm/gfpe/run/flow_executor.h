// SPDX-License-Identifier: MIT

// Executes flows literally, action by action, as docs/flows.md says. Reads value texts by itself, without the library.
#pragma once

#include "spi_bus.h"

#include "gfpdb/gfpdb_operation.h"

#include <string>

// What the execution knows of the device besides its flows.
struct FLOW_DEVICE
{
    std::int64_t bytes = 0;
    int dies = 1;
    FLOW_BYTES id;
};

// Positions of the device: what the user asked for.
struct FLOW_RANGE
{
    std::int64_t start = 0;
    std::int64_t length = 0;

    std::int64_t end() const { return start + length; }
    // The part of both ranges; of length 0 when there is none.
    FLOW_RANGE common_with(const FLOW_RANGE& other) const;
};

// What the operation "Verify/Blank-Check/Examine" is executed for.
enum class FLOW_PURPOSE
{
    VERIFY,
    BLANK_CHECK,
    EXAMINE,
};

class FLOW_EXECUTOR
{
public:
    FLOW_EXECUTOR(SPI_BUS& bus, const FLOW_DEVICE& device, const FLOW_IMAGE& image);

    // What is erased, programmed and read from now on; the whole device before.
    void set_range(const FLOW_RANGE& range) { m_range = range; }
    // True when every read of the operation passed. Throws std::runtime_error for a value that it cannot read: there is
    // none in a flow of the library.
    bool run(const GFPDB_OPERATION& operation, FLOW_PURPOSE purpose = FLOW_PURPOSE::VERIFY);
    // Runs without a bus, and throws what a run would throw. What is read passes.
    void rehearse(const GFPDB_OPERATION& operation);
    // The action at which the last run failed, as "3: Check Protection"; empty when it passed.
    std::string failed_at() const { return m_failed_at; }
    // True when the last initialization failed at an ID check, or at an action before its first ID check had passed.
    bool stopped_at_unknown_chip() const { return m_chip_is_unknown; }
    // The bytes that examines read, by their positions.
    const FLOW_IMAGE& examined() const { return m_examined; }

private:
    using ACTIONS = std::vector<GFPDB_ACTION*>;

    // The loops around an action.
    struct SCOPE
    {
        std::int64_t start = 0;    // of the range that a loop within this one walks over
        std::int64_t length = 0;   // of that range
        std::int64_t position = 0; // of the innermost loop
        int die = -1;
        std::int64_t die_start = 0;
        // Of several erases in a loop, the one for this step.
        const GFPDB_ACTION* chosen_erase = nullptr;
    };
    // An erase in a loop over each sector.
    struct SECTOR_ERASE
    {
        const GFPDB_ACTION* action;
        std::int64_t size;
    };

    // A rehearsal of loops with millions of steps is content with one; reading counts to the last byte.
    bool takes_one_step() const;
    // Throws when a position of the range is in none of the reads.
    void require_whole_range(std::vector<FLOW_RANGE> reads) const;
    void transfer(const SPI_COMMAND& command, const SPI_SINK& sink);
    void wait_us(std::int64_t microseconds);
    bool run_range(const ACTIONS& actions, std::size_t first, std::size_t last, const SCOPE& scope);
    bool run_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_die_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_page_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_sector_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_action(const GFPDB_ACTION& action, const SCOPE& scope);
    bool write_register(const GFPDB_ACTION& action, const SCOPE& scope);
    bool read_register(const GFPDB_ACTION& action);
    bool write_data(const GFPDB_ACTION& action, const SCOPE& scope);
    bool read_data(const GFPDB_ACTION& action, const SCOPE& scope);
    bool erase(const GFPDB_ACTION& action, const SCOPE& scope);
    std::vector<SECTOR_ERASE> erases_of(const ACTIONS& actions, std::size_t start, std::size_t end,
                                        const SCOPE& scope) const;
    std::int64_t size(const std::string& value) const;
    std::int64_t position_of(const std::string& address, const SCOPE& scope) const;
    // Throws when there is no such range in the device or, with an address that counts from its start, in the die.
    void require_image_range(const FLOW_RANGE& range, const std::string& address, const SCOPE& scope) const;
    // The page of the image at `position`: 0xFF where nothing was asked for.
    FLOW_BYTES page_bytes(std::int64_t position, std::int64_t length) const;
    bool compare_data(const GFPDB_ACTION& action, const SPI_COMMAND& command, std::int64_t position);

    SPI_BUS& m_bus;
    FLOW_DEVICE m_device;
    const FLOW_IMAGE& m_image;
    FLOW_RANGE m_range;
    FLOW_IMAGE m_examined;
    bool m_chip_is_unknown = false;
    bool m_is_rehearsing = false;
    std::vector<FLOW_RANGE> m_rehearsed_reads;
    FLOW_PURPOSE m_purpose = FLOW_PURPOSE::VERIFY;
    int m_operation = 0;
    std::string m_failed_at;
};
