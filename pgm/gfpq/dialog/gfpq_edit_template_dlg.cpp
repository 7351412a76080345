// SPDX-License-Identifier: MIT
#include "dialog/gfpq_edit_template_dlg.h"

#include "dialog/gfpq_form.h"
#include "flow/gfpq_focus_ring.h"
#include "words/gfpq_accessible_name.h"
#include "words/gfpq_message.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"
#include "msg/msg.h"

#include <QHeaderView>

#include <string>
#include <vector>

GFPQ_EDIT_TEMPLATE_DLG::GFPQ_EDIT_TEMPLATE_DLG(QWidget* parent, GFPDB_MGR* manager)
    : KOVQ_DIALOG(parent, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_gfpdb_mgr(manager)
{
    if (m_gfpdb_mgr == nullptr)
        MSG_INTERNAL_ERROR::report("m_gfpdb_mgr != NULL", "GFPQ", "pgm/gfpq/gfpq_edit_template_dlg", __LINE__);
    gfpq_build_form(ui, this);
    set_up_table();
    fill_list();
    kovq_safe_connect(ui.m_close_button, SIGNAL(clicked()), this, SLOT(on_close_clicked()), Qt::AutoConnection, "", 0);
    kovq_safe_connect(ui.m_remove_button, SIGNAL(clicked()), this, SLOT(on_remove_clicked()), Qt::AutoConnection, "",
                      0);
}

void GFPQ_EDIT_TEMPLATE_DLG::set_up_table()
{
    QTableView& table = *ui.m_template_table_view;
    m_template_model.setColumnCount(1);
    table.setModel(&m_template_model);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
    table.setTabKeyNavigation(false);
    gfpq_name_after(table, ui.m_templates_label->text());
    new GFPQ_FOCUS_RING(table);
}

void GFPQ_EDIT_TEMPLATE_DLG::fill_list()
{
    std::vector<std::string> names;
    m_template_model.removeRows(0, m_template_model.rowCount());
    QList<QStandardItem*> items;
    for (const std::string& name : m_gfpdb_mgr->get_user_template_list(names)) {
        auto* const item = new QStandardItem(gfpq_from_local(name));
        item->setEditable(false);
        items.append(item);
    }
    if (!items.isEmpty())
        m_template_model.invisibleRootItem()->appendRows(items);
}

void GFPQ_EDIT_TEMPLATE_DLG::on_close_clicked()
{
    accept();
}

void GFPQ_EDIT_TEMPLATE_DLG::on_remove_clicked()
{
    const QModelIndexList selected = ui.m_template_table_view->selectionModel()->selectedRows();
    if (selected.isEmpty())
        return;
    const std::string name = gfpq_to_local(selected.first().data(Qt::DisplayRole).toString());
    if (!m_gfpdb_mgr->remove_template(name)) {
        gfpq_raise_message(GFPQ_DELETE_DB_FAILED);
        return;
    }
    fill_list();
    m_changed = true;
}
