// SPDX-License-Identifier: MIT

// The lines of an import's preview as a table.
#pragma once

#include "database/import_preview.h"

#include <QAbstractTableModel>

class IMPORT_MODEL : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum COLUMN
    {
        STATE,
        RECORD, // its name, or the place that is wrong
        FAMILY,
        MODE,
        FILE_NAME,
        LINE,
        REMARK,
        COLUMN_COUNT,
    };
    // What the rows are sorted by.
    static constexpr int SORT_ROLE = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // `rows` must outlive the model, or be replaced. Null for none.
    void show_rows(const std::vector<IMPORT_ROW>* rows);
    const IMPORT_ROW& row(int index) const { return (*m_rows)[static_cast<std::size_t>(index)]; }
    // "New", "Will be replaced", ...
    static QString state_text(IMPORT_ROW::STATE state);
    // All that is to be said of a row, line by line.
    static QString details(const IMPORT_ROW& row);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const IMPORT_ROW& row, int column);
    static QVariant icon(IMPORT_ROW::STATE state);

    const std::vector<IMPORT_ROW>* m_rows = nullptr;
};
