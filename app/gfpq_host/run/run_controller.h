// SPDX-License-Identifier: MIT

// Runs and readings of a chip in the background, one at a time. Knows no widget.
#pragma once

#include "run/run_request.h"

#include "gfpe/gfpe_rate.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class QThread;
class RUN_WORKER;

// GUI thread only. However fast a run is, its signals come at most NEWS_A_SECOND times a second.
class RUN_CONTROLLER : public QObject
{
    Q_OBJECT

public:
    static constexpr int NEWS_A_SECOND = 30;

    explicit RUN_CONTROLLER(QObject* parent = nullptr);
    // Stops what is under way, and waits for its end.
    ~RUN_CONTROLLER() override;

    bool is_busy() const { return m_thread != nullptr; }
    // True from cancel() or stop() to the end.
    bool is_ending() const { return m_is_ending; }

    // Nothing may be under way.
    void start(RUN_REQUEST request);
    void read_chip(RUN_TARGET target, bool with_sfdp);
    // Ends a run at its next good place, or at once; a reading at once; nothing when none is under way.
    void cancel();
    void stop();

signals:
    // A run or reading was started, or ended.
    void busy_changed();
    void phase_started(GFPE_PHASE phase);
    // `rate` in bytes a second and `seconds_left`, both -1 while they are unknown.
    void progressed(const GFPE_PROGRESS& progress, double rate, int seconds_left);
    void finished(const RUN_OUTCOME& outcome);
    void chip_read(const CHIP_READING& reading);

private:
    void begin(std::function<void()> work);
    void end();
    void tell_news();

    std::unique_ptr<RUN_WORKER> m_worker;
    std::unique_ptr<QThread> m_thread;
    // What the thread leaves behind.
    std::optional<RUN_OUTCOME> m_outcome;
    std::optional<CHIP_READING> m_reading;
    QTimer m_news_timer;
    // Tells the end. A timer, because windows hold those back while they are in the middle of a change (LIVE_WINDOW).
    QTimer m_end_timer;
    QElapsedTimer m_clock;
    GFPE_RATE m_rate;
    bool m_is_ending = false;
};
