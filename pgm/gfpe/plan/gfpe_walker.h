// SPDX-License-Identifier: MIT

// Walks over the steps of an operation in the order in which they are executed: the loops, and what is left out of
// them.
#pragma once

#include "plan/gfpe_flow.h"

#include "gfpe/gfpe_image.h"

#include <cstdint>
#include <optional>

// Where the loops around a step stand.
struct GFPE_SCOPE
{
    // What a loop walks over here: the device, or the current die.
    GFPE_RANGE walked;
    // Of the innermost loop.
    std::int64_t position = 0;
    // -1 outside of a loop over each die.
    int die = -1;
    // In a loop over each sector, the erase for this step.
    const GFPE_ERASE* chosen_erase = nullptr;
};

// What is done with a step is up to the derived class. Nothing is allocated on the way.
class GFPE_WALKER
{
public:
    // Walks as a session does that is asked for `range`; `flow` outlives the walker.
    GFPE_WALKER(const GFPE_FLOW& flow, const GFPE_RANGE& range) : m_flow(flow), m_range(range) {}
    virtual ~GFPE_WALKER() = default;

    // False when a step ended the walk.
    bool walk(const GFPE_STEPS& steps);

protected:
    GFPE_WALKER(const GFPE_WALKER&) = delete;
    GFPE_WALKER& operator=(const GFPE_WALKER&) = delete;

    // A step is executed, at the positions `where`. False ends the walk.
    virtual bool visit(const GFPE_WRITE_REGISTER&, const GFPE_SCOPE&) { return true; }
    virtual bool visit(const GFPE_READ_REGISTER&, const GFPE_SCOPE&) { return true; }
    virtual bool visit(const GFPE_WRITE_DATA&, const GFPE_SCOPE&, const GFPE_RANGE&) { return true; }
    virtual bool visit(const GFPE_READ_DATA&, const GFPE_SCOPE&, const GFPE_RANGE&) { return true; }
    virtual bool visit(const GFPE_ERASE&, const GFPE_SCOPE&, const GFPE_RANGE&) { return true; }
    // Walks over the pages in `pages`, which begins and ends with a page.
    virtual bool walk_pages(const GFPE_LOOP& loop, const GFPE_SCOPE& scope, const GFPE_RANGE& pages);
    // Whether a page of a loop in which only the image is written has nothing to write; none ends the walk.
    virtual std::optional<bool> is_blank_page(const GFPE_LOOP&, const GFPE_RANGE&) { return false; }

    // The part of a read that is executed.
    GFPE_RANGE read_part(const GFPE_READ_DATA& step, const GFPE_RANGE& where) const
    {
        return step.is_of_image() ? where.common_with(m_range) : where;
    }
    // The address that is sent for a position; check() has seen that it fits the address bytes.
    static std::int64_t address_of(const GFPE_ADDRESS& address, std::int64_t position, const GFPE_SCOPE& scope)
    {
        return address.kind == GFPE_ADDRESS::DIE ? position - scope.walked.start : position;
    }

    bool walk(const GFPE_STEPS& steps, const GFPE_SCOPE& scope);

    const GFPE_FLOW& m_flow;
    const GFPE_RANGE m_range;

private:
    bool walk_step(const GFPE_STEP& each, const GFPE_SCOPE& scope);
    bool walk_loop(const GFPE_LOOP& loop, const GFPE_SCOPE& scope);
    bool walk_sectors(const GFPE_LOOP& loop, const GFPE_SCOPE& scope);
    bool walk_dies(const GFPE_LOOP& loop);
    bool walk_erase(const GFPE_ERASE& step, const GFPE_SCOPE& scope);
};
