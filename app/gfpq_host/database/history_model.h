// SPDX-License-Identifier: MIT

// The history of a database as a table: the newest states first, a page at a time, so that a million cost nothing.
#pragma once

#include "gfpdb/gfpdb_database.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <optional>
#include <vector>

class HISTORY_MODEL : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum COLUMN
    {
        NUMBER,
        WHEN,
        USER,
        CHANGE,
        KIND,
        NAME,
        FAMILY,
        MODE,
        COLUMNS,
    };

    // `database` must outlive the model. Nothing is read yet.
    explicit HISTORY_MODEL(GFPDB_DATABASE& database);

    // Begins again with the newest states, of which it reads `count`, or a page: at once as far as one look at the
    // history finds them.
    void reload(int count = 0);
    void set_filter(const GFPDB_HISTORY_FILTER& filter);
    const GFPDB_HISTORY_ENTRY& entry(int row) const { return m_entries[static_cast<std::size_t>(row)]; }
    // The row of the state; -1 when it is not among those that were read.
    int row_of(std::int64_t id) const;
    // True while a page is searched for in a large history; it is done in parts, between the window's events.
    bool is_searching() const { return m_search.isActive(); }
    // True when all states that match are there.
    bool is_complete() const { return !m_has_more; }
    // Why the history cannot be read; empty when it can.
    const QString& problem() const { return m_problem; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

signals:
    // Something was read, or could not be.
    void went_on();

private:
    void read_part();

    GFPDB_DATABASE& m_database;
    GFPDB_HISTORY_FILTER m_filter;
    std::vector<GFPDB_HISTORY_ENTRY> m_entries;
    // Where the next page begins; none for the newest state.
    std::optional<std::int64_t> m_next;
    bool m_has_more = false;
    // How many states are missing of the page that is searched for.
    int m_missing = 0;
    QTimer m_search;
    QString m_problem;
};
