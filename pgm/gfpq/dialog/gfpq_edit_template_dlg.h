// SPDX-License-Identifier: MIT

// The template editor: lists the stored flow templates and removes them.
#pragma once

#include "kovq/kovq_dialog.h"

#include "ui_gfpq_edit_template_dlg.h"

#include <QStandardItemModel>

class GFPDB_MGR;

// A modal dialog. Removing takes effect at once, without a question.
class GFPQ_EDIT_TEMPLATE_DLG : public KOVQ_DIALOG
{
    Q_OBJECT

public:
    // `manager` is not owned and must outlive the dialog; null is an internal error.
    GFPQ_EDIT_TEMPLATE_DLG(QWidget* parent, GFPDB_MGR* manager);

    // True once a template was removed.
    bool changed() const { return m_changed; }

private slots:
    void on_close_clicked();
    void on_remove_clicked();

private:
    void set_up_table();
    void fill_list();

    Ui::gfpq_edit_template_dlg ui;
    QStandardItemModel m_template_model;
    GFPDB_MGR* m_gfpdb_mgr;
    bool m_changed = false;
};
