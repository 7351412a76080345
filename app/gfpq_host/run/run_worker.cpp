// SPDX-License-Identifier: MIT
#include "run/run_worker.h"

#include "run/test_pattern.h"

#include "gfpe/gfpe_detect.h"

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <new>
#include <utility>

namespace {

constexpr double MS_A_SECOND = 1000;

QString text_of(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

// Does the work of a thread, which no exception may leave: the program would end.
template <typename WORK>
void do_with_memory(QString& problem, const WORK& work)
{
    try {
        work();
    } catch (const std::bad_alloc&) {
        problem = qt_error_string(ENOMEM);
    }
}

// The chip as a board has it after it was switched on.
bool prepare_chip(const RUN_TARGET& target, std::string& problem)
{
    GFPE_CHIP& chip = *target.chip;
    if (!target.connection.file.empty() && !chip.use_file(target.connection.file, problem))
        return false;
    if (target.is_used_chip)
        chip.fill_memory(0x00);
    chip.cycle_power();
    chip.clear_notes();
    return true;
}

void finish_chip(GFPE_CHIP& chip, RUN_OUTCOME& outcome)
{
    for (const std::string& note : chip.get_notes())
        outcome.notes.append(text_of(note));
    std::string problem;
    if (!chip.save(problem) && outcome.problem.isEmpty())
        outcome.problem = text_of(problem);
}

// Null for none, and when it cannot be used: `problem` says why.
std::unique_ptr<GFPE_IMAGE> open_image(const RUN_REQUEST& request, QString& problem)
{
    const std::int64_t device_bytes = request.plan->get_device().bytes;
    if (request.has_pattern)
        return make_test_pattern(request.order.range.value_or(GFPE_RANGE{0, device_bytes}));
    if (request.file.isEmpty())
        return nullptr;
    std::string text;
    std::unique_ptr<GFPE_IMAGE> image =
        gfpe_file_image(QFile::encodeName(request.file).toStdString(), request.file_position, device_bytes, text);
    problem = text_of(text);
    return image;
}

} // namespace

// Keeps what is new for the other thread, and what was read.
class RUN_WORKER::LISTENER : public GFPE_LISTENER
{
public:
    LISTENER(RUN_WORKER& worker, READ_OUT& read_out) : m_worker(worker), m_read_out(read_out) {}

    void phase_started(GFPE_PHASE phase) override
    {
        const std::lock_guard<std::mutex> lock(m_worker.m_mutex);
        m_worker.m_news.started.push_back(phase);
    }

    void progressed(const GFPE_PROGRESS& progress) override
    {
        m_last = progress;
        if (m_worker.m_is_progress_wanted)
            publish();
    }

    // The last word on the progress.
    void publish()
    {
        const std::lock_guard<std::mutex> lock(m_worker.m_mutex);
        m_worker.m_news.progress = m_last;
        m_worker.m_is_progress_wanted = false;
    }

    bool examined(std::int64_t position, const std::uint8_t* bytes, std::size_t length) override
    {
        return m_read_out.add(position, bytes, length);
    }

    std::string get_problem() const override { return m_read_out.problem().toStdString(); }

private:
    RUN_WORKER& m_worker;
    READ_OUT& m_read_out;
    GFPE_PROGRESS m_last;
};

class RUN_WORKER::ANNOUNCED_RUN
{
public:
    ANNOUNCED_RUN(RUN_WORKER& worker, GFPE_RUN& run) : m_worker(worker)
    {
        const std::lock_guard<std::mutex> lock(worker.m_mutex);
        worker.m_run = &run;
        if (worker.m_cancelled)
            run.cancel();
        if (worker.m_stopped)
            run.stop();
    }
    ~ANNOUNCED_RUN()
    {
        const std::lock_guard<std::mutex> lock(m_worker.m_mutex);
        m_worker.m_run = nullptr;
    }
    ANNOUNCED_RUN(const ANNOUNCED_RUN&) = delete;
    ANNOUNCED_RUN& operator=(const ANNOUNCED_RUN&) = delete;

private:
    RUN_WORKER& m_worker;
};

// The connection to work on: an emulated chip, or one that is opened here and held by `opened`. Null: `problem` says
// why.
GFPE_BUS* RUN_WORKER::open_bus(const RUN_TARGET& target, std::unique_ptr<GFPE_BUS>& opened, QString& problem)
{
    std::string text;
    GFPE_BUS* bus = nullptr;
    if (target.chip) {
        bus = prepare_chip(target, text) ? target.chip.get() : nullptr;
    } else {
        opened = gfpe_open_connection(target.connection, nullptr, text, nullptr, &m_is_given_up);
        bus = opened.get();
    }
    if (bus == nullptr)
        problem = text_of(text);
    return bus;
}

void RUN_WORKER::run_on(GFPE_BUS& bus, const RUN_REQUEST& request, RUN_OUTCOME& outcome)
{
    const std::unique_ptr<GFPE_IMAGE> image = open_image(request, outcome.problem);
    if (!outcome.problem.isEmpty())
        return;
    auto trace = std::make_shared<RUN_TRACE>();
    auto read_out = std::make_shared<READ_OUT>();
    read_out->compare_with(image.get());
    LISTENER listener(*this, *read_out);

    GFPE_RUN run(request.plan, bus);
    run.set_image(image.get());
    run.set_listener(&listener);
    run.set_trace(trace.get());
    {
        const ANNOUNCED_RUN announced(*this, run);
        // Of a run that has no memory to end in order.
        outcome.result.verdict = GFPE_VERDICT::LOST;
        outcome.result = run.run(request.order);
    }
    listener.publish();
    read_out->finish();
    outcome.trace = std::move(trace);
    if (read_out->range().length > 0)
        outcome.read_out = std::move(read_out);
}

RUN_OUTCOME RUN_WORKER::work(const RUN_REQUEST& request)
{
    QElapsedTimer clock;
    clock.start();
    RUN_OUTCOME outcome;
    std::unique_ptr<GFPE_BUS> opened;
    do_with_memory(outcome.problem, [&] {
        GFPE_BUS* bus = open_bus(request.target, opened, outcome.problem);
        if (bus) {
            run_on(*bus, request, outcome);
        } else if (m_is_given_up) {
            outcome.result.verdict = GFPE_VERDICT::CANCELLED;
            outcome.problem.clear();
        }
    });
    if (request.target.chip)
        do_with_memory(outcome.problem, [&] { finish_chip(*request.target.chip, outcome); });
    const std::lock_guard<std::mutex> lock(m_mutex);
    outcome.was_stopped = m_stopped;
    outcome.seconds = static_cast<double>(clock.elapsed()) / MS_A_SECOND;
    return outcome;
}

CHIP_READING RUN_WORKER::read_chip(const RUN_TARGET& target, bool with_sfdp)
{
    CHIP_READING reading;
    std::unique_ptr<GFPE_BUS> opened;
    std::string problem;
    do_with_memory(reading.problem, [&] {
        if (GFPE_BUS* bus = open_bus(target, opened, reading.problem)) {
            const bool is_read =
                gfpe_read_id(*bus, reading.id, problem) && (!with_sfdp || gfpe_read_sfdp(*bus, reading.sfdp, problem));
            if (!is_read)
                reading.problem = text_of(problem);
        }
    });
    reading.was_cancelled = m_is_given_up;
    return reading;
}

void RUN_WORKER::cancel()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_cancelled = true;
    if (m_run)
        m_run->cancel();
    else
        m_is_given_up = true;
}

void RUN_WORKER::stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stopped = true;
    m_is_given_up = true;
    if (m_run)
        m_run->stop();
}

RUN_NEWS RUN_WORKER::take_news()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_is_progress_wanted = true;
    return std::exchange(m_news, RUN_NEWS());
}
