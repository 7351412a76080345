// SPDX-License-Identifier: MIT

// The page with the trace of the last run.
#pragma once

#include "results/trace_model.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QTableView;

class TRACE_PAGE : public QWidget
{
    Q_OBJECT

public:
    TRACE_PAGE();

    // Shows the trace of a run, and where it failed; null for none. `failure` says what was expected there.
    void show_trace(const std::shared_ptr<const RUN_TRACE>& trace, const QString& failure = QString());

private:
    void choose_phase();
    void show_place();
    void show_command();

    TRACE_MODEL m_model;
    QString m_failure;
    QComboBox* m_phase_combo;
    QLabel* m_count_label;
    QTableView* m_table;
    QLabel* m_command_label;
};
