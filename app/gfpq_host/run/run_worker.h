// SPDX-License-Identifier: MIT

// What a run does on its thread.
#pragma once

#include "run/run_request.h"

#include <atomic>
#include <mutex>

// work() or read_chip() is called on the thread of the run, everything else on another one, at any time.
class RUN_WORKER
{
public:
    // Runs the request to its end.
    RUN_OUTCOME work(const RUN_REQUEST& request);
    // Reads the ID of the chip, and its SFDP tables if they are wanted.
    CHIP_READING read_chip(const RUN_TARGET& target, bool with_sfdp);

    // GFPE_RUN::cancel() and stop(); before the run has begun it does not begin. What is no run ends at once.
    void cancel();
    void stop();
    // What is new since the last call.
    RUN_NEWS take_news();

private:
    class LISTENER;
    // Announces the run that cancel() and stop() are for, while it lives.
    class ANNOUNCED_RUN;

    GFPE_BUS* open_bus(const RUN_TARGET& target, std::unique_ptr<GFPE_BUS>& opened, QString& problem);
    void run_on(GFPE_BUS& bus, const RUN_REQUEST& request, RUN_OUTCOME& outcome);

    std::mutex m_mutex;
    RUN_NEWS m_news;
    // Set by who reads the news, so that the run does not stop for each of its commands.
    std::atomic<bool> m_is_progress_wanted{true};
    // The connection is not wanted any more.
    std::atomic<bool> m_is_given_up{false};
    GFPE_RUN* m_run = nullptr;
    bool m_cancelled = false;
    bool m_stopped = false;
};
