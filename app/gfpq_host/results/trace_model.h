// SPDX-License-Identifier: MIT

// The trace of a run as a table.
#pragma once

#include "run/run_trace.h"

#include <QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

class TRACE_MODEL : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum COLUMN
    {
        NUMBER,
        TIME,
        OPERATION,
        ACTION,
        COMMAND,
        LINES,
        SENT,
        RECEIVED,
        EXPECTED,
        COLUMNS,
    };

    // Shows the commands of a run; null for none.
    void show_trace(std::shared_ptr<const RUN_TRACE> trace);
    // Shows those of one phase, or all.
    void show_phase(std::optional<GFPE_PHASE> phase);
    // The row of the command at which an action failed; -1 when there is none among those that are shown.
    int failed_row() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void fill();

    std::shared_ptr<const RUN_TRACE> m_trace;
    std::optional<GFPE_PHASE> m_phase;
    std::vector<const GFPE_TRACE_ENTRY*> m_rows;
};
