// SPDX-License-Identifier: MIT
#include "run/run_controller.h"

#include "run/run_worker.h"

#include <QThread>

#include <utility>

namespace {

constexpr int MS_A_SECOND = 1000;

} // namespace

RUN_CONTROLLER::RUN_CONTROLLER(QObject* parent) : QObject(parent)
{
    m_news_timer.setInterval(MS_A_SECOND / NEWS_A_SECOND);
    connect(&m_news_timer, &QTimer::timeout, this, &RUN_CONTROLLER::tell_news);
    m_end_timer.setSingleShot(true);
    connect(&m_end_timer, &QTimer::timeout, this, &RUN_CONTROLLER::end);
}

RUN_CONTROLLER::~RUN_CONTROLLER()
{
    if (!m_thread)
        return;
    m_worker->stop();
    m_thread->disconnect(&m_end_timer);
    m_thread->wait();
}

void RUN_CONTROLLER::begin(std::function<void()> work)
{
    Q_ASSERT(!is_busy());
    m_is_ending = false;
    m_outcome.reset();
    m_reading.reset();
    m_rate = GFPE_RATE();
    m_clock.start();
    m_thread.reset(QThread::create(std::move(work)));
    connect(m_thread.get(), &QThread::finished, &m_end_timer, QOverload<>::of(&QTimer::start));
    m_thread->start();
    m_news_timer.start();
    emit busy_changed();
}

// The chip ends with the thread's part of it, so that its file is free when the end is told.
void RUN_CONTROLLER::start(RUN_REQUEST request)
{
    m_worker = std::make_unique<RUN_WORKER>();
    begin([this, request = std::move(request)]() mutable {
        m_outcome = m_worker->work(request);
        request = RUN_REQUEST();
    });
}

void RUN_CONTROLLER::read_chip(RUN_TARGET target, bool with_sfdp)
{
    m_worker = std::make_unique<RUN_WORKER>();
    begin([this, target = std::move(target), with_sfdp]() mutable {
        m_reading = m_worker->read_chip(target, with_sfdp);
        target = RUN_TARGET();
    });
}

void RUN_CONTROLLER::cancel()
{
    if (!is_busy())
        return;
    m_is_ending = true;
    m_worker->cancel();
}

void RUN_CONTROLLER::stop()
{
    if (!is_busy())
        return;
    m_is_ending = true;
    m_worker->stop();
}

void RUN_CONTROLLER::tell_news()
{
    const RUN_NEWS news = m_worker->take_news();
    for (const GFPE_PHASE phase : news.started)
        emit phase_started(phase);
    if (!news.progress)
        return;
    m_rate.add(m_clock.elapsed(), news.progress->all_done);
    emit progressed(*news.progress, m_rate.get_rate().value_or(-1),
                    m_rate.get_seconds_left(news.progress->all_total).value_or(-1));
}

void RUN_CONTROLLER::end()
{
    m_thread->wait();
    m_news_timer.stop();
    tell_news();
    m_thread.release()->deleteLater();
    m_worker.reset();
    m_is_ending = false;
    const std::optional<RUN_OUTCOME> outcome = std::exchange(m_outcome, std::nullopt);
    const std::optional<CHIP_READING> reading = std::exchange(m_reading, std::nullopt);
    emit busy_changed();
    if (outcome)
        emit finished(*outcome);
    else if (reading)
        emit chip_read(*reading);
}
