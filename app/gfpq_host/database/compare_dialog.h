// SPDX-License-Identifier: MIT

// Two records, or states of records, side by side: their fields and their flows, what differs marked.
#pragma once

#include "database/compare_model.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableView;

class COMPARE_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // The records must have their flows.
    COMPARE_DIALOG(const COMPARED& left, const COMPARED& right, QWidget* parent);

private:
    void create_table();
    QPushButton* add_step(const QString& text, int key, const char* object_name, int (COMPARE_MODEL::*step)(int) const);
    void show_only_differences(bool is_only);
    void go_to(int row);
    static QString place_text(const COMPARED_ROW& row);
    void show_place();
    void copy_diff();

    const COMPARED m_left;
    const COMPARED m_right;
    COMPARE_MODEL m_model;
    QTableView* m_table;
    // What is different in the current row.
    QLabel* m_place_label;
    QPushButton* m_previous = nullptr;
    QPushButton* m_next = nullptr;
};
