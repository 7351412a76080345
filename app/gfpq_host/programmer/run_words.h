// SPDX-License-Identifier: MIT

// What the window says about a run.
#pragma once

#include "programmer/run_bar.h"
#include "run/run_request.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class RUN_WORDS
{
    Q_DECLARE_TR_FUNCTIONS(RUN_WORDS)

public:
    struct VERDICT
    {
        QString text;
        RUN_BAR::MOOD mood;
    };

    // The plain verdict.
    static VERDICT verdict(const RUN_OUTCOME& outcome);
    // What the log says at the start of a run and at its end, line by line. The engine's sentences are not translated.
    static QStringList start_lines(const RUN_REQUEST& request, bool is_trial);
    static QStringList end_lines(const RUN_OUTCOME& outcome);
    // The question about bytes that are erased beside the range.
    static QString erase_question(const std::vector<GFPE_RANGE>& erased_beside);
};
