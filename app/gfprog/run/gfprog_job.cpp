// SPDX-License-Identifier: MIT
#include "run/gfprog_job.h"

#include "gfprog_target.h"
#include "run/examined_file.h"
#include "run/interrupt.h"
#include "run/progress_line.h"
#include "run/result_text.h"

#include "gfpe/gfpe_trace_file.h"

#include "gfpdb/gfpdb_text.h"

#include <iterator>

namespace {

constexpr const char* STANDARD_OUTPUT = "-";

// What a run tells on its way.
class LISTENER final : public GFPE_LISTENER
{
public:
    LISTENER(CLI_OUTPUT& output, EXAMINED_FILE* file) : m_progress(output), m_file(file) {}

    void phase_started(GFPE_PHASE phase) override
    {
        m_last.phase = phase;
        m_progress.show(m_last);
    }
    void progressed(const GFPE_PROGRESS& progress) override
    {
        m_last = progress;
        m_progress.show(progress);
    }
    bool examined(std::int64_t position, const std::uint8_t* bytes, std::size_t length) override
    {
        return m_file == nullptr || m_file->write(position, bytes, length);
    }
    std::string get_problem() const override { return m_file == nullptr ? std::string() : m_file->get_problem(); }

private:
    PROGRESS_LINE m_progress;
    GFPE_PROGRESS m_last;
    EXAMINED_FILE* m_file;
};

// Each step is called once, in this order, while the ones before it were true; m_exit_code says what went wrong.
class SESSION
{
public:
    SESSION(const CLI_CALL& call, const GFPROG_JOB& job) : m_call(call), m_job(job) {}

    bool read_options();
    bool make_plan();
    bool keeps_files_apart();
    bool choose_range();
    bool check();
    bool open_files();
    int run();

    int m_exit_code = CLI_EXIT_OK;

private:
    bool fail(int exit_code, const std::string& text);
    bool refuse(std::vector<GFPE_PROBLEM> problems);
    void run_order();
    bool finish_files();
    void take_notes();
    int report();
    int exit_code_of_result() const;
    bool prints_trace() const { return m_job.trace_file == STANDARD_OUTPUT; }

    const CLI_CALL& m_call;
    const GFPROG_JOB& m_job;
    std::int64_t m_offset = 0;
    std::optional<std::int64_t> m_length;
    std::optional<GFPROG_TARGET> m_target;
    std::shared_ptr<const GFPE_PLAN> m_plan;
    GFPE_ORDER m_order;
    std::unique_ptr<GFPE_IMAGE> m_image;
    std::unique_ptr<EXAMINED_FILE> m_examined;
    std::unique_ptr<GFPE_TRACE_FILE> m_trace;
    GFPROG_OUTCOME m_outcome;
};

bool SESSION::fail(int exit_code, const std::string& text)
{
    m_call.output.error(text);
    m_exit_code = exit_code;
    return false;
}

bool SESSION::read_options()
{
    const auto read = [this](const char* option, std::int64_t lowest, std::optional<std::int64_t>& number) {
        if (!m_call.has(option))
            return true;
        number = gfprog_bytes(m_call.value(option));
        return (number && *number >= lowest) ||
               fail(CLI_EXIT_USAGE, gfpdb_quoted(m_call.value(option)) + " is not allowed for --" + option +
                                        ": a number of bytes, e.g. 65536 or 0x10000.");
    };
    std::optional<std::int64_t> offset;
    if (!read(GFPROG_OPTION_OFFSET, 0, offset) || !read(GFPROG_OPTION_LENGTH, 1, m_length))
        return false;
    m_offset = offset.value_or(0);
    if (!m_job.trace_file.empty() && !prints_trace() && gfpe_make_trace_file(m_job.trace_file, 0) == nullptr)
        return fail(CLI_EXIT_USAGE, "--trace needs a file name that ends in .csv or .vcd.");
    if (prints_trace() && m_call.has(CLI_OPTION_JSON))
        return fail(CLI_EXIT_USAGE, "--json needs --trace with a file: standard output has the trace.");
    return true;
}

bool SESSION::make_plan()
{
    m_target = gfprog_open_target(m_call, m_exit_code);
    if (!m_target)
        return false;
    m_outcome.is_quad = m_target->is_quad(m_call);
    m_outcome.device = m_target->record.name();
    m_outcome.connection = m_target->connection;
    m_plan = std::make_shared<const GFPE_PLAN>(m_target->record, m_outcome.is_quad);
    return m_plan->get_problems().empty() || refuse(m_plan->get_problems());
}

bool SESSION::choose_range()
{
    const std::int64_t bytes = m_plan->get_device().bytes;
    const std::string size = m_outcome.device + " has " + std::to_string(bytes) + " bytes: ";
    if (m_offset >= bytes)
        return fail(CLI_EXIT_USAGE, size + "--offset is beyond its end.");
    if (m_length && *m_length > bytes - m_offset)
        return fail(CLI_EXIT_USAGE, size + "--length reaches beyond its end.");
    std::int64_t length = m_length.value_or(bytes - m_offset);
    if (!m_job.image_file.empty()) {
        std::string problem;
        m_image = gfpe_file_image(m_job.image_file, m_offset, bytes, problem);
        if (m_image == nullptr)
            return fail(CLI_EXIT_BAD_FILE, problem);
        length = m_length.value_or(m_image->get_range().length);
    }
    m_order = m_job.order;
    m_order.range = GFPE_RANGE{m_offset, length};
    m_outcome.range = *m_order.range;
    return true;
}

bool SESSION::check()
{
    const std::vector<GFPE_PROBLEM> problems = m_plan->check(m_order, m_target->bus->get_abilities());
    if (!problems.empty())
        return refuse(problems);
    m_outcome.erased = m_plan->get_erased(m_order);
    for (const GFPE_RANGE& beside : ranges_beside(m_outcome.erased, *m_order.range))
        m_call.output.error("Also erased, as only whole sectors can be: " + range_text(beside) + '.');
    return true;
}

bool SESSION::refuse(std::vector<GFPE_PROBLEM> problems)
{
    m_outcome.result.verdict = GFPE_VERDICT::REFUSED;
    m_outcome.result.problems = std::move(problems);
    m_exit_code = report();
    return false;
}

// A file that is read must not be lost to what is written.
bool SESSION::keeps_files_apart()
{
    std::string problem;
    const auto connection = gfpe_parse_connection(m_call.value(GFPROG_OPTION_ON), problem);
    const std::string files[] = {m_job.image_file, m_job.output_file, m_job.trace_file,
                                 connection ? connection->file : std::string()};
    for (std::size_t at = 0; at < std::size(files); ++at) {
        for (std::size_t other = at + 1; other < std::size(files); ++other) {
            if (gfprog_is_one_file(files[at], files[other]))
                return fail(CLI_EXIT_USAGE, gfpdb_quoted(files[at]) + " cannot be read and written, or written twice.");
        }
    }
    return true;
}

bool SESSION::open_files()
{
    if (!m_job.output_file.empty()) {
        m_examined = std::make_unique<EXAMINED_FILE>(m_job.output_file, m_order.range->start);
        if (!m_examined->open(m_call.has(GFPROG_OPTION_FORCE)))
            return fail(CLI_EXIT_BAD_FILE, m_examined->get_problem());
    }
    if (m_job.trace_file.empty())
        return true;
    m_trace = prints_trace() ? std::make_unique<GFPE_CSV_TRACE>()
                             : gfpe_make_trace_file(m_job.trace_file, m_target->bus->get_abilities().clock);
    return m_trace->open(m_job.trace_file) || fail(CLI_EXIT_BAD_FILE, m_trace->get_problem());
}

void SESSION::run_order()
{
    // On a chip that was never used, an erase that leaves something out would pass.
    if (m_target->is_new_chip && m_order.erase)
        m_target->chip->fill_memory(0x00);
    LISTENER listener(m_call.output, m_examined.get());
    GFPE_RUN run(m_plan, *m_target->bus);
    run.set_image(m_image.get());
    run.set_listener(&listener);
    run.set_trace(m_trace.get());
    const INTERRUPT interrupt(
        [&run] {
            run.cancel();
            interrupt_say("\nCancelling. Press Ctrl+C again to stop at once, with the chip in an unknown state.\n");
        },
        [&run] { run.stop(); });
    m_outcome.result = run.run(m_order);
    m_outcome.was_stopped = interrupt.count() > 1;
    m_outcome.connection_error = m_target->bus->get_last_error();
    m_call.output.finish_progress();
}

// What was read is kept when all of it was.
bool SESSION::finish_files()
{
    bool good = true;
    std::string problem;
    if (m_examined != nullptr && m_outcome.result.verdict == GFPE_VERDICT::PASSED && !m_examined->commit())
        good = fail(CLI_EXIT_BAD_FILE, m_examined->get_problem());
    if (m_trace != nullptr && !m_trace->finish())
        good = fail(CLI_EXIT_BAD_FILE, m_trace->get_problem());
    if (m_target->chip != nullptr && !m_target->chip->save(problem))
        good = fail(CLI_EXIT_BAD_FILE, problem);
    return good;
}

int SESSION::run()
{
    run_order();
    const bool good = finish_files();
    take_notes();
    const int exit_code = report();
    const bool has_passed = exit_code == CLI_EXIT_OK || exit_code == GFPROG_EXIT_NOTED;
    return good || !has_passed ? exit_code : m_exit_code;
}

void SESSION::take_notes()
{
    if (m_target->chip == nullptr)
        return;
    m_outcome.notes = m_target->chip->get_notes();
    if (m_outcome.result.verdict == GFPE_VERDICT::PASSED && !m_target->chip->is_at_rest())
        m_outcome.notes.emplace_back(
            "Termination leaves it busy, write enabled or in another mode than after power-up");
}

int SESSION::exit_code_of_result() const
{
    switch (m_outcome.result.verdict) {
    case GFPE_VERDICT::PASSED:
        return m_outcome.notes.empty() ? int(CLI_EXIT_OK) : int(GFPROG_EXIT_NOTED);
    case GFPE_VERDICT::FAILED:
        return GFPROG_EXIT_FAILED;
    case GFPE_VERDICT::CANCELLED:
        return GFPROG_EXIT_CANCELLED;
    case GFPE_VERDICT::LOST:
        return m_outcome.was_stopped ? GFPROG_EXIT_CANCELLED : GFPROG_EXIT_CONNECTION;
    case GFPE_VERDICT::REFUSED:
        break;
    }
    return GFPROG_EXIT_REFUSED;
}

int SESSION::report()
{
    if (m_call.has(CLI_OPTION_JSON))
        m_call.output.print(outcome_json(m_outcome));
    for (const std::string& text : problem_texts(m_outcome))
        m_call.output.error(text);
    gfprog_print_notes(m_call, m_outcome.notes);
    const bool has_passed = m_outcome.result.verdict == GFPE_VERDICT::PASSED;
    if (has_passed && prints_trace())
        m_call.output.error(passed_text(m_outcome));
    else if (has_passed && !m_call.has(CLI_OPTION_JSON))
        m_call.output.print(cli_printable(passed_text(m_outcome)) + '\n');
    return exit_code_of_result();
}

} // namespace

int gfprog_run(const CLI_CALL& call, const GFPROG_JOB& job)
{
    SESSION session(call, job);
    if (session.read_options() && session.keeps_files_apart() && session.make_plan() && session.choose_range() &&
        session.check() && session.open_files())
        return session.run();
    return session.m_exit_code;
}
