// SPDX-License-Identifier: MIT

// The history of the database directory: who changed what and when, what is different, and the way back.
#pragma once

#include "database/history_model.h"
#include "database/record_comparison.h"

#include <QWidget>

#include <optional>

class PROBLEM_LINE;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

class HISTORY_PAGE : public QWidget
{
    Q_OBJECT

public:
    // `database` must outlive the page. Nothing is read before the page is shown.
    HISTORY_PAGE(GFPDB_DATABASE& database, QWidget* parent = nullptr);

    // False: nothing can be brought back.
    void allow_changes(bool is_allowed);
    // Goes to the filter of names.
    void find();

public slots:
    // Something was changed, or the directory is another one: reads the history again, now or when the page is shown.
    void refresh();

signals:
    // A state was brought back: the devices or templates are others now.
    void restored();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // What is selected, current and the first in sight, by the numbers of the states; 0 for none. `rows` reach over it.
    struct PLACE
    {
        std::vector<std::int64_t> selected;
        std::int64_t current = 0;
        std::int64_t top = 0;
        int rows = 0;
    };

    void create_filter();
    void create_table();
    void create_actions();
    QAction* add_action(const QString& text, const char* object_name, void (HISTORY_PAGE::*asked)());
    void lay_out();
    void filter();
    void show_count();
    void show_choice();
    PLACE place() const;
    void return_to(const PLACE& place);
    // The selected rows, from the newest state to the oldest.
    std::vector<int> selected_rows() const;
    const GFPDB_HISTORY_ENTRY& selected() const { return m_model.entry(selected_rows().front()); }
    void compare(const std::optional<COMPARED>& left, const std::optional<COMPARED>& right, const QString& missing);
    void compare_before();
    void compare_after();
    void compare_current();
    void compare_selected();
    void bring_back();

    GFPDB_DATABASE& m_database;
    HISTORY_MODEL m_model;
    bool m_was_read = false;
    std::int64_t m_total = 0;
    QLineEdit* m_name_edit;
    QLineEdit* m_user_edit;
    QComboBox* m_kind_combo;
    QLabel* m_count_label;
    QTableView* m_table;
    PROBLEM_LINE* m_problem;
    QPushButton* m_compare_button;
    QPushButton* m_bring_back_button;
    QAction* m_bring_back_action = nullptr;
    // Of one selected state.
    QList<QAction*> m_state_actions;
    QAction* m_compare_selected_action = nullptr;
};
