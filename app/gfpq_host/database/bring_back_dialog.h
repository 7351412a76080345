// SPDX-License-Identifier: MIT

// A state of the history becomes the current record again: in place of the one that has its name now, or under another
// name.
#pragma once

#include "gfpdb/gfpdb_database.h"

#include <QDialog>

class PROBLEM_LINE;
class QLabel;
class QLineEdit;
class QRadioButton;

class BRING_BACK_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // `database` must outlive the dialog.
    BRING_BACK_DIALOG(GFPDB_DATABASE& database, const GFPDB_HISTORY_ENTRY& state, QWidget* parent);

    // Brings the state back and closes, or says why not: then what has the name now is shown as it is by then.
    void accept() override;

private:
    void create_form();
    void look();
    void show_name_in_use(const GFPDB_RECORD& current);
    void show_name_of_other_kind();
    void use_new_name();
    bool bring_back(const QString& new_name);

    GFPDB_DATABASE& m_database;
    const GFPDB_HISTORY_ENTRY m_state;
    // The revision of the record that has the name, as the user was shown it; empty for none.
    std::string m_seen;
    QLabel* m_use_label;
    QRadioButton* m_old_name_button;
    QRadioButton* m_new_name_button;
    QLineEdit* m_new_name_edit;
    PROBLEM_LINE* m_problem;
};
