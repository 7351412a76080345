// SPDX-License-Identifier: MIT

// How far a run is, on a terminal.
#pragma once

#include "cli_output.h"

#include "gfpe/gfpe_rate.h"
#include "gfpe/gfpe_run.h"

#include <QElapsedTimer>

#include <optional>
#include <string>

// "Program 45 %, 1.2 MiB/s, 0:15 left": the percentage is that of the whole run; without what is not known.
std::string progress_text(const GFPE_PROGRESS& progress, std::optional<double> rate, std::optional<int> seconds_left);

// Shows the progress of a run while standard error is a terminal.
class PROGRESS_LINE
{
public:
    explicit PROGRESS_LINE(CLI_OUTPUT& output);

    void show(const GFPE_PROGRESS& progress);

private:
    CLI_OUTPUT& m_output;
    const bool m_is_shown;
    GFPE_RATE m_rate;
    QElapsedTimer m_clock;
    // Of the last line.
    GFPE_PHASE m_phase = GFPE_PHASE::INITIALIZATION;
    qint64 m_shown_at = -1;
};
