// SPDX-License-Identifier: MIT

// Starting, progress and verdict of a run.
#pragma once

#include "run/run_request.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

class RUN_BAR : public QWidget
{
    Q_OBJECT

public:
    RUN_BAR();

    // What the buttons can do: nothing is under way, something is, or it is being ended.
    void show_idle();
    void show_busy();
    void show_ending();

    void show_phase(GFPE_PHASE phase);
    // As RUN_CONTROLLER::progressed().
    void show_progress(const GFPE_PROGRESS& progress, double rate, int seconds_left);

    enum MOOD
    {
        GOOD,
        DOUBTFUL,
        BAD,
    };
    // The last word on a run; it stays until the next one. `detail`, if there is one, is its tool tip.
    void show_verdict(const QString& text, MOOD mood, const QString& detail = QString());
    void clear_verdict();

signals:
    void start_asked();
    void trial_asked();
    void cancel_asked();

private:
    QPushButton* make_button(const QString& text, const char* object_name);
    QWidget* create_buttons();
    QWidget* create_verdict();
    void show_state(const QString& text);

    QProgressBar* m_progress_bar;
    QLabel* m_progress_label;
    QWidget* m_verdict_row = nullptr;
    QLabel* m_verdict_icon = nullptr;
    QLabel* m_verdict_label = nullptr;
    QPushButton* m_trial_button = nullptr;
    QPushButton* m_start_button = nullptr;
    QPushButton* m_cancel_button = nullptr;
};
