// SPDX-License-Identifier: MIT

// Showing the selected device: its fields, what may be edited, and its flows.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_device_form.h"
#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_mgr.h"

void GFPQ_DLG::load_device(const QModelIndex& source_index)
{
    const QStandardItem* const item = m_device_model.itemFromIndex(source_index);
    // Of this row: while the keyboard moves the selection, the view's current row is still the previous one.
    const std::string name = gfpq_to_local(item->text());
    const bool new_device = gfpq_is_new_device(name);
    const GFPQ_DEVICE_FORM form = device_form();
    m_shown_row = source_index;

    form.fill_choices();
    m_current_flash = new_device ? nullptr : m_gfpdb_mgr->find_flash(name, true);
    if (!new_device && m_gfpdb_mgr->is_hidden_flash(name, false))
        form.show_nothing();
    else if (m_current_flash != nullptr)
        form.show(*m_current_flash);

    const bool read_only = !new_device && item->data(GFPQ_READ_ONLY_ROLE).toBool();
    const bool editable = m_current_flash != nullptr ? m_current_flash->is_user_defined() : !read_only;
    form.enable(new_device, editable);
    ui.m_delete_button->setEnabled(m_current_flash != nullptr && editable);
    ui.m_apply_button->setEnabled(editable);
    show_operation_tabs(name, new_device, editable);
}

void GFPQ_DLG::show_operation_tabs(const std::string& name, bool new_device, bool editable)
{
    const bool hidden = !editable && m_gfpdb_mgr->is_hidden_flash(name, true);
    const bool shown = !hidden && m_gfpdb_mgr->can_edit_flow();
    if (shown)
        load_flows(new_device);
    else
        // A visible page that is disabled would show its neighbour, which is disabled next, and so on.
        show_device_page();
    for (int operation = GFPDB_OPERATION_COUNT - 1; operation >= 0; --operation)
        ui.m_prog_flows_tab_widget->setTabEnabled(GFPQ_FIRST_OPERATION_TAB + operation, shown);
}

void GFPQ_DLG::load_flows(bool new_device)
{
    for (GPFQ_OPERATION_TAB_WIDGET* const tab : m_op_tabs)
        tab->load_flow(nullptr, true);

    const std::vector<GFPDB_OPERATION*>* operations = nullptr;
    if (new_device)
        operations = device_form().chosen_template().shown_operations(*m_gfpdb_mgr);
    else if (m_current_flash != nullptr)
        operations = m_current_flash->get_operations(m_gfpdb_mgr->get_flow_variant());
    if (operations == nullptr)
        return;

    const bool editable = m_gfpdb_mgr->is_flow_editable(m_current_flash);
    for (const GFPDB_OPERATION* const operation : *operations) {
        if (operation != nullptr && operation->m_kind >= 0 && operation->m_kind < GFPDB_OPERATION_COUNT)
            m_op_tabs[operation->m_kind]->load_flow(operation->get_actions(), editable);
    }
}

void GFPQ_DLG::show_device_page()
{
    ui.m_prog_flows_tab_widget->setCurrentIndex(GFPQ_DEVICE_TAB);
}
