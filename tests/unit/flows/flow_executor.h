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

    // True when every read of the operation passed. Throws std::runtime_error for a value that it cannot read: there is
    // none in a flow of the library.
    bool run(const GFPDB_OPERATION& operation, FLOW_PURPOSE purpose = FLOW_PURPOSE::VERIFY);
    // The action at which the last run failed, as "3: Check Protection"; empty when it passed.
    std::string failed_at() const { return m_failed_at; }

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
    };

    bool run_range(const ACTIONS& actions, std::size_t first, std::size_t last, const SCOPE& scope);
    bool run_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_die_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope);
    bool run_action(const GFPDB_ACTION& action, const SCOPE& scope);
    bool write_register(const GFPDB_ACTION& action, const SCOPE& scope);
    bool read_register(const GFPDB_ACTION& action);
    bool write_data(const GFPDB_ACTION& action, const SCOPE& scope);
    bool read_data(const GFPDB_ACTION& action, const SCOPE& scope);
    bool erase(const GFPDB_ACTION& action, const SCOPE& scope);
    std::int64_t step_of(const ACTIONS& actions, std::size_t start, std::size_t end, const std::string& unit) const;
    std::int64_t size(const std::string& value) const;

    SPI_BUS& m_bus;
    FLOW_DEVICE m_device;
    const FLOW_IMAGE& m_image;
    FLOW_PURPOSE m_purpose = FLOW_PURPOSE::VERIFY;
    int m_operation = 0;
    std::string m_failed_at;
};
