// SPDX-License-Identifier: MIT
#include "run/gfpe_executor.h"

#include "plan/gfpe_text.h"
#include "run/gfpe_comparison.h"
#include "run/gfpe_work.h"

#include <algorithm>
#include <cstring>

namespace {

// So many bytes from the first wrong one on are reported.
constexpr std::size_t REPORTED_BYTES = 16;

bool passes(const GFPE_READ_REGISTER& step, const std::uint8_t* received)
{
    for (std::size_t place = 0; place < step.expected.size(); ++place) {
        if ((received[place] & step.mask[place]) != step.expected[place])
            return false;
    }
    return true;
}

} // namespace

// The answer to a Read Register, which is short.
class GFPE_EXECUTOR::REGISTER_ANSWER : public GFPE_READER
{
public:
    static constexpr std::size_t LARGEST = 256;

    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        std::memcpy(m_bytes.data() + m_length, bytes, length);
        m_length += length;
        return true;
    }
    void clear() { m_length = 0; }
    const std::uint8_t* bytes() const { return m_bytes.data(); }

private:
    std::array<std::uint8_t, LARGEST> m_bytes;
    std::size_t m_length = 0;
};

// The answer to a Read Data: compared, or handed over, as it comes.
class GFPE_EXECUTOR::DATA_ANSWER : public GFPE_READER
{
public:
    DATA_ANSWER(GFPE_EXECUTOR& executor, const GFPE_READ_DATA& step, const GFPE_RANGE& part)
        : m_executor(executor), m_step(step), m_position(part.start), m_end(part.end()),
          m_is_examined(step.is_of_image() && executor.m_phase == GFPE_PHASE::EXAMINE),
          m_is_blank_check(step.is_of_image() && executor.m_phase == GFPE_PHASE::BLANK_CHECK),
          m_can_be_cancelled(executor.m_phase != GFPE_PHASE::TERMINATION)
    {}

    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        for (std::size_t done = 0; done < length && m_is_right;) {
            const std::size_t piece = std::min<std::size_t>(length - done, GFPE_IMAGE_WINDOW::LARGEST);
            m_is_right = take_piece(bytes + done, piece);
            done += piece;
            m_position += static_cast<std::int64_t>(piece);
            m_executor.m_meter.add(GFPDB_ACT_READ_DATA, static_cast<std::int64_t>(piece));
        }
        m_is_cut = m_can_be_cancelled && m_executor.m_cancelled && m_position < m_end;
        return m_is_right && !m_is_cut;
    }

    bool is_right() const { return m_is_right; }
    // The user has cancelled the run before the last byte came.
    bool is_cut() const { return m_is_cut; }
    // The bytes that are not right; or, without a position, why the image cannot be read or the answer not be kept.
    GFPE_FAILURE m_failure;
    std::string m_problem;

private:
    bool take_piece(const std::uint8_t* bytes, std::size_t length)
    {
        if (m_step.expected == GFPE_READ_DATA::NOTHING)
            return true;
        if (m_is_examined)
            return hand_over(bytes, length);
        if (m_is_blank_check || m_step.expected == GFPE_READ_DATA::BYTE)
            return compare_with(bytes, length, m_is_blank_check ? 0xFF : m_step.byte);
        const std::uint8_t* const expected = m_executor.m_image.bytes({m_position, static_cast<std::int64_t>(length)});
        if (!expected) {
            m_problem = m_executor.m_image.get_problem();
            return false;
        }
        const std::size_t wrong = gfpe_first_wrong(bytes, expected, length, m_step.mask);
        return wrong == length || note(bytes, expected, wrong, length);
    }

    bool hand_over(const std::uint8_t* bytes, std::size_t length)
    {
        GFPE_LISTENER* const listener = m_executor.m_listener;
        if (!listener || listener->examined(m_position, bytes, length))
            return true;
        m_problem = listener->get_problem();
        return false;
    }

    bool compare_with(const std::uint8_t* bytes, std::size_t length, std::uint8_t byte)
    {
        if (m_step.mask == 0xFF && gfpe_is_all(bytes, length, byte))
            return true;
        const std::vector<std::uint8_t> expected(length, byte);
        const std::size_t wrong = gfpe_first_wrong(bytes, expected.data(), length, m_step.mask);
        return wrong == length || note(bytes, expected.data(), wrong, length);
    }

    // False: bytes are wrong from `wrong` on.
    bool note(const std::uint8_t* bytes, const std::uint8_t* expected, std::size_t wrong, std::size_t length)
    {
        const std::size_t end = std::min(length, wrong + REPORTED_BYTES);
        m_failure.position = m_position + static_cast<std::int64_t>(wrong);
        m_failure.expected.assign(expected + wrong, expected + end);
        m_failure.received.assign(bytes + wrong, bytes + end);
        if (m_step.mask != 0xFF)
            m_failure.mask.assign(end - wrong, m_step.mask);
        return false;
    }

    GFPE_EXECUTOR& m_executor;
    const GFPE_READ_DATA& m_step;
    std::int64_t m_position;
    const std::int64_t m_end;
    const bool m_is_examined;
    const bool m_is_blank_check;
    const bool m_can_be_cancelled;
    bool m_is_right = true;
    bool m_is_cut = false;
};

GFPE_OUTCOME GFPE_EXECUTOR::run(int operation, GFPE_PHASE phase)
{
    m_phase = phase;
    m_outcome = GFPE_OUTCOME::PASSED;
    m_failure.reset();
    m_image.forget();
    m_link.set_phase(phase);
    if (phase == GFPE_PHASE::INITIALIZATION)
        m_is_chip_unknown = m_flow.operation(operation).has_id_check;
    // With an Initialization that has passed, the chip counts as known, also when its ID check had no step to be in.
    if (walk(m_flow.operation(operation).steps) && phase == GFPE_PHASE::INITIALIZATION)
        m_is_chip_unknown = false;
    if (m_outcome != GFPE_OUTCOME::LOST && !m_link.settle())
        lose_between_actions();
    m_meter.report();
    return m_outcome;
}

bool GFPE_EXECUTOR::visit(const GFPE_WRITE_REGISTER& step, const GFPE_SCOPE& scope)
{
    if (is_cancelled())
        return false;
    if (step.command.out_length == 0)
        return send(step, step.command) && wait(step);
    GFPE_COMMAND command = step.command;
    const auto die = static_cast<std::uint8_t>(scope.die);
    command.out = step.is_of_die ? &die : step.data.data();
    return send(step, command) && wait(step);
}

bool GFPE_EXECUTOR::visit(const GFPE_READ_REGISTER& step, const GFPE_SCOPE&)
{
    REGISTER_ANSWER answer;
    for (std::int64_t attempt = 0; attempt < step.attempts; ++attempt) {
        if (attempt > 0 && !wait(step))
            return false;
        answer.clear();
        if (!send(step, step.command, &answer))
            return false;
        if (passes(step, answer.bytes())) {
            m_is_chip_unknown = m_is_chip_unknown && !step.is_id_check;
            return true;
        }
    }
    m_is_chip_unknown = m_is_chip_unknown || step.is_id_check;
    return fail_register(step, answer.bytes());
}

bool GFPE_EXECUTOR::visit(const GFPE_WRITE_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where)
{
    if (is_cancelled())
        return false;
    GFPE_COMMAND command = step.command;
    command.out = step.is_of_image() ? m_image.bytes(where) : step.data.data();
    if (!command.out)
        return fail({}, m_image.get_problem());
    const bool is_blank = step.is_of_image() && gfpe_is_all(command.out, command.out_length, 0xFF);
    command.address = static_cast<std::uint32_t>(address_of(step.address, where.start, scope));
    if (!is_blank && !(send(step, command) && wait(step)))
        return false;
    const auto sent = static_cast<std::int64_t>(step.data.size());
    m_meter.add(GFPDB_ACT_WRITE_DATA, step.is_of_image() ? where.common_with(m_image.get_range()).length : sent);
    return true;
}

bool GFPE_EXECUTOR::visit(const GFPE_READ_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where)
{
    const GFPE_RANGE part = read_part(step, where);
    const std::int64_t longest = m_link.get_abilities().longest_read;
    const std::int64_t most = step.is_of_image() && longest > 0 ? longest : part.length;
    for (GFPE_RANGE piece = {part.start, 0}; piece.start < part.end(); piece.start += piece.length) {
        piece.length = std::min(most, part.end() - piece.start);
        if (!read_piece(step, scope, piece))
            return false;
    }
    return true;
}

bool GFPE_EXECUTOR::read_piece(const GFPE_READ_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& part)
{
    if (is_cancelled())
        return false;
    GFPE_COMMAND command = step.command;
    command.address = static_cast<std::uint32_t>(address_of(step.address, part.start, scope));
    command.in_length = part.length;
    DATA_ANSWER answer(*this, step, part);
    if (!send(step, command, &answer) || !wait(step))
        return false;
    if (answer.is_right())
        return !(answer.is_cut() && is_cancelled());
    const GFPE_FAILURE& found = answer.m_failure;
    if (found.position < 0)
        return fail({}, answer.m_problem);
    return fail_at(step, found,
                   "expected " + gfpe_bytes_text({found.expected.front()}) + " at " +
                       gfpe_position_text(found.position) + ", received " + gfpe_bytes_text({found.received.front()}) +
                       (found.mask.empty() ? "." : " with mask " + gfpe_bytes_text({step.mask}) + '.'));
}

bool GFPE_EXECUTOR::visit(const GFPE_ERASE& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where)
{
    if (is_cancelled())
        return false;
    GFPE_COMMAND command = step.command;
    if (command.address_bytes > 0)
        command.address = static_cast<std::uint32_t>(address_of(step.address, where.start, scope));
    if (!send(step, command) || !wait(step))
        return false;
    m_meter.add(GFPDB_ACT_ERASE, where.length);
    return true;
}

std::optional<bool> GFPE_EXECUTOR::is_blank_page(const GFPE_LOOP& loop, const GFPE_RANGE& page)
{
    // Nothing may be sent for many pages, and who cancels must not wait until all of them are read.
    if (is_cancelled() || !(m_link.may_go_on() || lose_between_actions()))
        return std::nullopt;
    const GFPE_RANGE there = page.common_with(m_image.get_range());
    if (there.length == 0)
        return true;
    const std::uint8_t* const bytes = m_image.bytes(page);
    if (!bytes) {
        fail({}, m_image.get_problem());
        return std::nullopt;
    }
    const bool is_blank = gfpe_is_all(bytes, static_cast<std::size_t>(page.length), 0xFF);
    if (is_blank)
        m_meter.skip(GFPDB_ACT_WRITE_DATA, loop.image_writes * there.length);
    return is_blank;
}

bool GFPE_EXECUTOR::is_cancelled()
{
    if (!m_cancelled || m_phase == GFPE_PHASE::TERMINATION)
        return false;
    m_outcome = GFPE_OUTCOME::CANCELLED;
    return true;
}

bool GFPE_EXECUTOR::send(const GFPE_ACTION& step, const GFPE_COMMAND& command, GFPE_READER* reader)
{
    return m_link.send(step, command, reader) || lose(step);
}

bool GFPE_EXECUTOR::wait(const GFPE_ACTION& step)
{
    return step.delay == 0 || m_link.wait(step.delay) || lose(step);
}

bool GFPE_EXECUTOR::fail(GFPE_FAILURE failure, const std::string& what)
{
    m_outcome = GFPE_OUTCOME::FAILED;
    failure.phase = m_phase;
    const std::string phase = gfpe_phase_name(m_phase);
    failure.text =
        (failure.action > 0 ? gfpe_action_title(phase, failure.action, failure.action_name) : phase) + ": " + what;
    m_failure = std::move(failure);
    return false;
}

bool GFPE_EXECUTOR::fail_at(const GFPE_ACTION& step, GFPE_FAILURE failure, const std::string& what)
{
    m_link.mark_failed(failure.expected, failure.mask);
    failure.action = step.number;
    failure.action_name = step.name;
    return fail(std::move(failure), what);
}

bool GFPE_EXECUTOR::fail_register(const GFPE_READ_REGISTER& step, const std::uint8_t* received)
{
    GFPE_FAILURE failure;
    failure.expected = step.expected;
    failure.received.assign(received, received + step.expected.size());
    const bool has_mask = !gfpe_is_all(step.mask.data(), step.mask.size(), 0xFF);
    if (has_mask)
        failure.mask = step.mask;
    std::string what = "expected " + gfpe_bytes_text(failure.expected);
    if (has_mask)
        what += " with mask " + gfpe_bytes_text(failure.mask);
    what += ", received " + gfpe_bytes_text(failure.received);
    if (step.attempts > 1)
        what += " in the last of " + std::to_string(step.attempts) + " attempts";
    return fail_at(step, std::move(failure), what + '.');
}

bool GFPE_EXECUTOR::lose_between_actions()
{
    // The action that failed before is what has to be looked at.
    if (m_failure)
        m_failure->text += ' ' + m_link.get_problem();
    else
        fail({}, m_link.get_problem());
    m_outcome = GFPE_OUTCOME::LOST;
    return false;
}

bool GFPE_EXECUTOR::lose(const GFPE_ACTION& step)
{
    fail_at(step, {}, m_link.get_problem());
    m_outcome = GFPE_OUTCOME::LOST;
    return false;
}
