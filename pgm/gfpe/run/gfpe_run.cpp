// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_run.h"

#include "plan/gfpe_order_check.h"
#include "plan/gfpe_phases.h"
#include "run/gfpe_executor.h"
#include "run/gfpe_work.h"

namespace {

GFPE_PROBLEM problem(const char* text)
{
    GFPE_PROBLEM found;
    found.text = text;
    return found;
}

// What is wrong with the image of an order; empty when nothing is.
std::vector<GFPE_PROBLEM> check_image(const GFPE_ORDER& order, const GFPE_IMAGE* image, std::int64_t device_bytes)
{
    if (!image && (order.program || order.verify))
        return {problem("There is no image to program or to compare with.")};
    if (image && !image->get_range().is_within(device_bytes))
        return {problem("The image reaches beyond the end of the device.")};
    return {};
}

GFPE_VERDICT verdict_of(GFPE_OUTCOME outcome)
{
    switch (outcome) {
    case GFPE_OUTCOME::PASSED:
        return GFPE_VERDICT::PASSED;
    case GFPE_OUTCOME::CANCELLED:
        return GFPE_VERDICT::CANCELLED;
    case GFPE_OUTCOME::LOST:
        return GFPE_VERDICT::LOST;
    default:
        return GFPE_VERDICT::FAILED;
    }
}

// The phases of an order that nothing keeps from being run.
class SESSION
{
public:
    SESSION(const GFPE_FLOW& flow, const GFPE_ORDER& order, GFPE_IMAGE_WINDOW& image, GFPE_EXECUTOR& executor,
            GFPE_METER& meter)
        : m_flow(flow), m_order(order), m_image(image), m_executor(executor), m_meter(meter)
    {}

    GFPE_RESULT run()
    {
        m_result.verdict = GFPE_VERDICT::PASSED;
        for (const GFPE_PHASE_RULE& rule : GFPE_PHASE_RULES) {
            if (rule.phase == GFPE_PHASE::TERMINATION ? may_terminate() : is_next(rule))
                execute(rule);
        }
        m_result.chip_is_unknown = m_executor.is_chip_unknown();
        return m_result;
    }

    static std::int64_t work(const GFPE_FLOW& flow, const GFPE_ORDER& order, const GFPE_RANGE& image)
    {
        std::int64_t bytes = 0;
        for (const GFPE_PHASE_RULE& rule : GFPE_PHASE_RULES)
            bytes += rule.is_in(order) ? gfpe_work(flow, rule.operation, gfpe_range_of(order, flow), image) : 0;
        return bytes;
    }

private:
    bool is_next(const GFPE_PHASE_RULE& rule) const
    {
        return rule.is_in(m_order) && m_result.verdict == GFPE_VERDICT::PASSED;
    }

    // Nothing more goes to a chip that is not the one of the record, or over a connection that is lost.
    bool may_terminate() const { return m_result.verdict != GFPE_VERDICT::LOST && !m_executor.is_chip_unknown(); }

    void execute(const GFPE_PHASE_RULE& rule)
    {
        m_result.phases.push_back(rule.phase);
        m_meter.start(rule.phase, gfpe_counted_action(rule.operation),
                      gfpe_work(m_flow, rule.operation, gfpe_range_of(m_order, m_flow), m_image.get_range()));
        const GFPE_VERDICT verdict = verdict_of(m_executor.run(rule.operation, rule.phase));
        // What failed first counts; but a chip of which nothing is known any more counts most.
        if (m_result.verdict == GFPE_VERDICT::PASSED || verdict == GFPE_VERDICT::LOST)
            m_result.verdict = verdict;
        if (!m_result.failure)
            m_result.failure = m_executor.get_failure();
    }

    const GFPE_FLOW& m_flow;
    const GFPE_ORDER& m_order;
    GFPE_IMAGE_WINDOW& m_image;
    GFPE_EXECUTOR& m_executor;
    GFPE_METER& m_meter;
    GFPE_RESULT m_result;
};

} // namespace

GFPE_LISTENER::~GFPE_LISTENER() = default;

bool GFPE_LISTENER::examined(std::int64_t, const std::uint8_t*, std::size_t)
{
    return true;
}

GFPE_RUN::GFPE_RUN(std::shared_ptr<const GFPE_PLAN> plan, GFPE_BUS& bus) : m_plan(std::move(plan)), m_bus(bus) {}

GFPE_RUN::~GFPE_RUN() = default;

GFPE_RESULT GFPE_RUN::run(const GFPE_ORDER& order)
{
    GFPE_RESULT refused;
    refused.problems = m_plan->check(order, m_bus.get_abilities());
    const std::vector<GFPE_PROBLEM> of_image = check_image(order, m_image, m_plan->get_device().bytes);
    refused.problems.insert(refused.problems.end(), of_image.begin(), of_image.end());
    if (!refused.problems.empty())
        return refused;

    const GFPE_FLOW& flow = m_plan->get_flow();
    const GFPE_RANGE range = gfpe_range_of(order, flow);
    GFPE_LINK link(m_bus, m_trace, m_stopped);
    GFPE_IMAGE_WINDOW image(m_image, range);
    GFPE_METER meter(link, m_listener, SESSION::work(flow, order, image.get_range()));
    GFPE_EXECUTOR executor(flow, range, link, image, meter, m_listener, m_cancelled);
    GFPE_RESULT result = SESSION(flow, order, image, executor, meter).run();
    result.commands = link.get_commands();
    return result;
}
