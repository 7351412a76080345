// SPDX-License-Identifier: MIT
#include "plan/gfpe_walker.h"

#include <algorithm>

namespace {

std::int64_t position_of(const GFPE_ADDRESS& address, const GFPE_SCOPE& scope)
{
    return address.kind == GFPE_ADDRESS::FIXED ? address.number : scope.position;
}

// The whole units, counted from the start of what is walked over, that touch `asked`.
GFPE_RANGE rounded_out(const GFPE_RANGE& asked, std::int64_t unit, const GFPE_RANGE& walked)
{
    const std::int64_t first = (asked.start - walked.start) / unit * unit;
    const std::int64_t last = (asked.end() - walked.start + unit - 1) / unit * unit;
    return {walked.start + first, last - first};
}

} // namespace

bool GFPE_WALKER::walk(const GFPE_STEPS& steps)
{
    GFPE_SCOPE whole;
    whole.walked = {0, m_flow.device_bytes};
    return walk(steps, whole);
}

bool GFPE_WALKER::walk(const GFPE_STEPS& steps, const GFPE_SCOPE& scope)
{
    return std::all_of(steps.begin(), steps.end(), [&](const GFPE_STEP& step) { return walk_step(step, scope); });
}

// One after the other is what the compiler makes the fastest code of; the types of loops over each page come first.
inline bool GFPE_WALKER::walk_step(const GFPE_STEP& each, const GFPE_SCOPE& scope)
{
    if (const auto* step = std::get_if<GFPE_WRITE_REGISTER>(&each.is))
        return visit(*step, scope);
    if (const auto* step = std::get_if<GFPE_READ_REGISTER>(&each.is))
        return visit(*step, scope);
    if (const auto* step = std::get_if<GFPE_WRITE_DATA>(&each.is))
        return visit(*step, scope, {position_of(step->address, scope), step->page_bytes});
    if (const auto* step = std::get_if<GFPE_READ_DATA>(&each.is))
        return visit(*step, scope, {position_of(step->address, scope), step->length});
    if (const auto* step = std::get_if<GFPE_ERASE>(&each.is))
        return walk_erase(*step, scope);
    return walk_loop(*std::get_if<GFPE_LOOP>(&each.is), scope);
}

bool GFPE_WALKER::walk_loop(const GFPE_LOOP& loop, const GFPE_SCOPE& scope)
{
    if (loop.unit == GFPE_LOOP::DIES)
        return walk_dies(loop);
    const GFPE_RANGE asked = m_range.common_with(scope.walked);
    if (asked.length == 0)
        return true;
    if (loop.unit == GFPE_LOOP::SECTORS)
        return walk_sectors(loop, scope);
    return walk_pages(loop, scope, rounded_out(asked, loop.page_bytes, scope.walked));
}

bool GFPE_WALKER::walk_dies(const GFPE_LOOP& loop)
{
    GFPE_SCOPE scope;
    for (scope.die = 0; scope.die < m_flow.dies; ++scope.die) {
        scope.walked = {scope.die * m_flow.die_bytes(), m_flow.die_bytes()};
        scope.position = scope.walked.start;
        if (!walk(loop.body, scope))
            return false;
    }
    return true;
}

bool GFPE_WALKER::walk_pages(const GFPE_LOOP& loop, const GFPE_SCOPE& outer, const GFPE_RANGE& pages)
{
    GFPE_SCOPE scope = outer;
    for (scope.position = pages.start; scope.position < pages.end(); scope.position += loop.page_bytes) {
        const std::optional<bool> is_blank =
            loop.is_only_of_image ? is_blank_page(loop, {scope.position, loop.page_bytes}) : false;
        if (!is_blank || (!*is_blank && !walk(loop.body, scope)))
            return false;
    }
    return true;
}

// Whole sectors of the smallest size that cover what was asked for, erased by the largest commands that fit.
bool GFPE_WALKER::walk_sectors(const GFPE_LOOP& loop, const GFPE_SCOPE& outer)
{
    const GFPE_RANGE asked = m_range.common_with(outer.walked);
    const GFPE_RANGE erased = rounded_out(asked, loop.erase(loop.erases.back()).bytes, outer.walked);
    GFPE_SCOPE scope = outer;
    for (scope.position = erased.start; scope.position < erased.end();) {
        const auto fits = [&](std::size_t place) {
            const std::int64_t bytes = loop.erase(place).bytes;
            return (scope.position - outer.walked.start) % bytes == 0 && scope.position + bytes <= erased.end();
        };
        // The smallest one always fits.
        scope.chosen_erase = &loop.erase(*std::find_if(loop.erases.begin(), loop.erases.end(), fits));
        if (!walk(loop.body, scope))
            return false;
        scope.position += scope.chosen_erase->bytes;
    }
    return true;
}

bool GFPE_WALKER::walk_erase(const GFPE_ERASE& step, const GFPE_SCOPE& scope)
{
    const GFPE_RANGE where = step.address.kind == GFPE_ADDRESS::EVERYTHING
                                 ? scope.walked
                                 : GFPE_RANGE{position_of(step.address, scope), step.bytes};
    const bool is_executed = scope.chosen_erase ? &step == scope.chosen_erase : where.common_with(m_range).length > 0;
    return !is_executed || visit(step, scope, where);
}
