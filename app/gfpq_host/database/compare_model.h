// SPDX-License-Identifier: MIT

// Two records side by side as a table: what differs has a sign.
#pragma once

#include "database/record_comparison.h"

#include <QAbstractTableModel>

#include <vector>

class COMPARE_MODEL : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum COLUMN
    {
        MARK,
        TITLE,
        LEFT,
        RIGHT,
        COLUMNS,
    };

    COMPARE_MODEL(const COMPARED& left, const COMPARED& right);

    // For those who do not see the sign, and as its tool tip.
    static QString sign_words(COMPARED_ROW::SIGN sign);

    // Hides the rows that are the same on both sides, and headings without others.
    void show_only_differences(bool is_only);
    // How many rows differ.
    int difference_count() const;
    // The first row of the next block of rows that differ after `row`, or before it; -1 when there is none. Each value
    // is a block; lines of an operation that follow each other are one.
    int next_difference(int row) const;
    int previous_difference(int row) const;
    const COMPARED_ROW& row(int row) const { return m_all[m_shown[static_cast<std::size_t>(row)]]; }
    // Where `other` is shown now, or what follows it.
    int row_of(const COMPARED_ROW& other) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool begins_difference(int row) const;
    bool is_shown(std::size_t index, bool is_only) const;

    const std::vector<COMPARED_ROW> m_all;
    const QString m_titles[2];
    std::vector<std::size_t> m_shown;
};
