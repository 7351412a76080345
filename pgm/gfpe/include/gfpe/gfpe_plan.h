// SPDX-License-Identifier: MIT

// The flow of a device, compiled once: what a run executes.
#pragma once

#include "gfpe/gfpe_bus.h"
#include "gfpe/gfpe_image.h"

#include "gfpdb/gfpdb_operation.h"
#include "gfpdb/gfpdb_record.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// What a run knows of a device besides its flow.
struct GFPE_DEVICE
{
    // UTF-8.
    std::string name;
    // Its density.
    std::int64_t bytes = 0;
    int dies = 1;
    // Empty when the record has no ID.
    std::vector<std::uint8_t> id;
};

// What the user asked for. Initialization and Termination are executed in any case.
struct GFPE_ORDER
{
    bool erase = false;
    bool blank_check = false;
    bool program = false;
    bool verify = false;
    bool examine = false;
    // Where; none for the whole device.
    std::optional<GFPE_RANGE> range;
};

// What keeps a flow from being run. Texts are UTF-8.
struct GFPE_PROBLEM
{
    // The kind of the operation (GFPDB_OPERATION_KIND); -1 for the device, the order or the connection.
    int operation = -1;
    // The number of the action in its operation, from 1, and its name; 0 when it is not about one action.
    int action = 0;
    std::string action_name;
    // The property's label and its value; empty when it is not about one value.
    std::string property;
    std::string value;
    // A sentence for the user.
    std::string text;

    // "Erase, action 2 "Sector Erase", Erase size(byte) "100": ..." with what there is.
    GFPE_EXPORT std::string to_text() const;
};

struct GFPE_FLOW; // the typed steps, in pgm/gfpe/plan

// Immutable, and safe from every thread, once it is made; it keeps nothing of the operations that it was made from.
class GFPE_EXPORT GFPE_PLAN
{
public:
    // Compiles the operations of a flow variant. What is wrong with the flow or the device is in get_problems(); then
    // every check() fails. GUI thread only, as the flash database.
    GFPE_PLAN(GFPE_DEVICE device, const std::vector<GFPDB_OPERATION*>& operations);
    // The same of a record: its size, dies and ID, and the operations of a flow variant.
    GFPE_PLAN(const GFPDB_RECORD& record, bool flow_variant);
    ~GFPE_PLAN();

    const GFPE_DEVICE& get_device() const { return m_device; }
    const std::vector<GFPE_PROBLEM>& get_problems() const { return m_problems; }
    // What keeps an order from being run on a connection; empty when it can be. An order without a range is for the
    // whole device.
    std::vector<GFPE_PROBLEM> check(const GFPE_ORDER& order, const GFPE_ABILITIES& abilities) const;
    // What an order erases: whole sectors, sorted, without gaps or overlaps that could be joined. Empty when it erases
    // nothing, or when check() finds something.
    std::vector<GFPE_RANGE> get_erased(const GFPE_ORDER& order) const;
    // True when an operation, by its kind, has actions; of a flow that has problems none has.
    bool has_actions(int operation) const;

    // For the run alone.
    const GFPE_FLOW& get_flow() const { return *m_flow; }

private:
    void compile(const std::vector<GFPDB_OPERATION*>& operations);

    GFPE_DEVICE m_device;
    std::vector<GFPE_PROBLEM> m_problems;
    std::unique_ptr<GFPE_FLOW> m_flow;
};
