// SPDX-License-Identifier: MIT

// The table of an action's properties: one row each, the label on the left and the value on the right.
#pragma once

#include <QTableView>

class GFPDB_ACTION;
class QStandardItemModel;

// An open editor is named after the label of its row. Tab leaves the table, the arrow keys move in it. GUI thread only.
class GFPQ_PROPERTY_TABLE : public QTableView
{
    Q_OBJECT

public:
    static constexpr int LABEL_COLUMN = 0;
    static constexpr int VALUE_COLUMN = 1;

    // Assistive technology reads `title`. The table is so wide that it shows every label and the beginning of a value.
    GFPQ_PROPERTY_TABLE(QWidget* parent, const QString& title);

    // Once: shows `model`, which gets its two columns; `delegate` edits the values. Neither is owned.
    void set_up(QStandardItemModel& model, QAbstractItemDelegate* delegate);
    // Appends the properties of `action` to `model`, in the order of its list. The table need not be set up.
    void append_rows(QStandardItemModel& model, const GFPDB_ACTION& action);
    // Stores what an open editor holds, and closes it.
    void commit_open_editor();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void greet_editor(QWidget* editor);
    QString tool_tip_of(const QModelIndex& cell) const;
    void show_tool_tip(const QHelpEvent& event);
};
