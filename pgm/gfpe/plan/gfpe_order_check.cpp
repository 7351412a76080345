// SPDX-License-Identifier: MIT
#include "plan/gfpe_order_check.h"

#include "plan/gfpe_phases.h"
#include "plan/gfpe_ranges.h"
#include "plan/gfpe_text.h"
#include "plan/gfpe_walker.h"

#include "gfpdb/gfpdb_action_value.h"

#include <algorithm>

namespace {

const char* number_word(int lines)
{
    if (lines == 4)
        return "four";
    return lines == 2 ? "two" : "one";
}

// Goes through the commands that an operation would send.
class OPERATION_CHECK : public GFPE_WALKER
{
public:
    OPERATION_CHECK(const GFPE_FLOW& flow, const GFPE_RANGE& range, int kind, const GFPE_ABILITIES& abilities)
        : GFPE_WALKER(flow, range), m_kind(kind), m_abilities(abilities)
    {}

    // The most lines of a command; the connection may have fewer.
    int m_lines = 1;
    // What the reads of the image read.
    GFPE_RANGES m_read;
    std::vector<GFPE_PROBLEM> m_problems;

protected:
    bool visit(const GFPE_WRITE_REGISTER& step, const GFPE_SCOPE&) override
    {
        check_transfer(step, static_cast<std::int64_t>(step.command.out_length), 0);
        return true;
    }

    bool visit(const GFPE_READ_REGISTER& step, const GFPE_SCOPE&) override
    {
        check_transfer(step, 0, step.command.in_length);
        return true;
    }

    bool visit(const GFPE_WRITE_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override
    {
        if (step.is_of_image())
            check_reach(step, step.address, scope, where);
        check_address(step, step.address, scope, {where.start, 1});
        check_transfer(step, static_cast<std::int64_t>(step.command.out_length), 0);
        return true;
    }

    bool visit(const GFPE_READ_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override
    {
        const GFPE_RANGE part = read_part(step, where);
        if (step.is_of_image())
            check_reach(step, step.address, scope, where);
        if (part.length > 0)
            check_address(step, step.address, scope, part);
        // A read of the image is sent in as many commands as it takes.
        check_transfer(step, 0, step.is_of_image() ? 1 : part.length);
        if (step.is_of_image())
            m_read.add(part);
        return true;
    }

    bool visit(const GFPE_ERASE& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override
    {
        if (step.command.address_bytes > 0)
            check_address(step, step.address, scope, {where.start, 1});
        check_transfer(step, 0, 0);
        return true;
    }

    // What can go wrong without a chip goes wrong in the last page; only what is read counts to the last byte.
    bool walk_pages(const GFPE_LOOP& loop, const GFPE_SCOPE& scope, const GFPE_RANGE& pages) override
    {
        const bool is_read = std::any_of(loop.body.begin(), loop.body.end(), [](const GFPE_STEP& step) {
            return std::holds_alternative<GFPE_READ_DATA>(step.is);
        });
        const GFPE_RANGE last = {pages.end() - loop.page_bytes, loop.page_bytes};
        return GFPE_WALKER::walk_pages(loop, scope, is_read ? pages : last);
    }

private:
    // The image has no bytes behind the end of the device or, with addresses that count from its start, of the die.
    void check_reach(const GFPE_ACTION& step, const GFPE_ADDRESS& address, const GFPE_SCOPE& scope,
                     const GFPE_RANGE& where)
    {
        const bool is_of_die = address.kind == GFPE_ADDRESS::DIE;
        const std::int64_t limit = is_of_die ? scope.walked.end() : m_flow.device_bytes;
        if (limit < where.end())
            add(step, address.label, address.text,
                std::string("Reaches beyond the end of the ") + (is_of_die ? "die" : "device") + ": " +
                    std::to_string(where.length) + " bytes from position " + gfpe_position_text(where.start) + " on.");
    }

    void check_address(const GFPE_ACTION& step, const GFPE_ADDRESS& address, const GFPE_SCOPE& scope,
                       const GFPE_RANGE& where)
    {
        const std::int64_t last = address_of(address, where.start, scope) + where.length - 1;
        if (last >> (8 * step.command.address_bytes) != 0)
            add(step, address.label, address.text,
                "The address " + gfpe_position_text(last) + " does not fit " +
                    std::to_string(step.command.address_bytes) + " address bytes.");
    }

    void check_transfer(const GFPE_ACTION& step, std::int64_t written, std::int64_t read)
    {
        m_lines = std::max({m_lines, step.command.opcode_lines, step.command.address_lines, step.command.data_lines});
        if (m_abilities.longest_write > 0 && written > m_abilities.longest_write)
            add(step, {}, {},
                "This connection sends at most " + std::to_string(m_abilities.longest_write) +
                    " bytes in one command; the action needs " + std::to_string(written) + '.');
        if (m_abilities.longest_read > 0 && read > m_abilities.longest_read)
            add(step, {}, {},
                "This connection receives at most " + std::to_string(m_abilities.longest_read) +
                    " bytes in one command; the action needs " + std::to_string(read) + '.');
    }

    // The same problem in every step of a loop is one.
    void add(const GFPE_ACTION& step, const std::string& property, const std::string& value, const std::string& text)
    {
        const bool is_known = std::any_of(m_problems.begin(), m_problems.end(), [&step](const GFPE_PROBLEM& problem) {
            return problem.action == step.number;
        });
        if (!is_known)
            m_problems.push_back({m_kind, step.number, step.name, property, value, text});
    }

    const int m_kind;
    const GFPE_ABILITIES m_abilities;
};

class ERASE_LIST : public GFPE_WALKER
{
public:
    using GFPE_WALKER::GFPE_WALKER;

    GFPE_RANGES m_erased;

protected:
    using GFPE_WALKER::visit;
    bool visit(const GFPE_ERASE&, const GFPE_SCOPE&, const GFPE_RANGE& where) override
    {
        m_erased.add(where.common_with({0, m_flow.device_bytes}));
        return true;
    }
};

// Once each.
std::vector<int> operations_of(const GFPE_ORDER& order)
{
    std::vector<int> kinds;
    for (const GFPE_PHASE_RULE& rule : GFPE_PHASE_RULES) {
        if (rule.is_in(order) && std::find(kinds.begin(), kinds.end(), rule.operation) == kinds.end())
            kinds.push_back(rule.operation);
    }
    return kinds;
}

bool is_always_executed(int kind)
{
    return kind == GFPDB_OPERATION_INITIALIZATION || kind == GFPDB_OPERATION_TERMINATION;
}

void append(std::vector<GFPE_PROBLEM>& problems, const std::vector<GFPE_PROBLEM>& more)
{
    problems.insert(problems.end(), more.begin(), more.end());
}

// The lines that the operation needs.
int check_operation(const GFPE_FLOW& flow, int kind, const GFPE_RANGE& range, const GFPE_ABILITIES& abilities,
                    std::vector<GFPE_PROBLEM>& problems)
{
    const GFPE_OPERATION& operation = flow.operation(kind);
    append(problems, operation.problems);
    if (operation.steps.empty() && !is_always_executed(kind))
        problems.push_back({kind, 0, {}, {}, {}, "The operation has no actions."});
    if (operation.steps.empty() || !operation.problems.empty())
        return 1;
    OPERATION_CHECK check(flow, range, kind, abilities);
    check.walk(operation.steps);
    append(problems, check.m_problems);
    const std::int64_t missing = check.m_read.first_missing(range);
    if (kind == GFPDB_OPERATION_VERIFY && missing < range.end())
        problems.push_back({kind,
                            0,
                            {},
                            {},
                            {},
                            "The operation does not compare all that was asked for: position " +
                                gfpe_position_text(missing) + " is not read."});
    return check.m_lines;
}

} // namespace

GFPE_RANGE gfpe_range_of(const GFPE_ORDER& order, const GFPE_FLOW& flow)
{
    return order.range.value_or(GFPE_RANGE{0, flow.device_bytes});
}

std::vector<GFPE_PROBLEM> gfpe_check_order(const GFPE_FLOW& flow, const GFPE_ORDER& order,
                                           const GFPE_ABILITIES& abilities)
{
    const GFPE_RANGE range = gfpe_range_of(order, flow);
    std::vector<GFPE_PROBLEM> problems;
    if (!range.is_within(flow.device_bytes)) {
        problems.push_back({-1,
                            0,
                            {},
                            {},
                            {},
                            "The range of " + std::to_string(range.length) + " bytes from position " +
                                std::to_string(range.start) + " on is not within the device, which has " +
                                std::to_string(flow.device_bytes) + " bytes."});
        return problems;
    }
    int lines = 1;
    for (const int kind : operations_of(order))
        lines = std::max(lines, check_operation(flow, kind, range, abilities, problems));
    if (lines > abilities.lines)
        problems.push_back({-1,
                            0,
                            {},
                            {},
                            {},
                            std::string("This connection has ") + number_word(abilities.lines) +
                                (abilities.lines == 1 ? " data line" : " data lines") + "; the flow needs " +
                                number_word(lines) + '.' + (lines == 4 ? " Choose Active Serial." : "")});
    return problems;
}

std::vector<GFPE_RANGE> gfpe_erased(const GFPE_FLOW& flow, const GFPE_ORDER& order)
{
    ERASE_LIST list(flow, gfpe_range_of(order, flow));
    for (const int kind : operations_of(order))
        list.walk(flow.operation(kind).steps);
    return list.m_erased.get();
}
