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
    const std::string name = gfpq_to_local(item->text());
    const bool new_device = gfpq_is_new_device(name);
    m_shown_row = source_index;
    bool editable = new_device || !item->data(GFPQ_READ_ONLY_ROLE).toBool();

    const GFPQ_DEVICE_FORM form = device_form();
    form.fill_choices();
    if (new_device)
        m_current_flash = nullptr;
    else
        load_record(name);
    if (m_current_flash != nullptr)
        editable = m_current_flash->is_user_defined();
    form.enable(new_device, editable);
    ui.m_delete_button->setEnabled(!new_device && m_current_flash != nullptr && m_current_flash->is_user_defined());
    ui.m_apply_button->setEnabled(editable);
    show_operation_tabs(name, new_device, editable);
}

// The name is the one of the row being loaded: while the keyboard moves the selection, the view's current row is still
// the former one.
void GFPQ_DLG::load_record(const std::string& name)
{
    m_current_flash = m_gfpdb_mgr->find_flash(name, true);
    if (m_gfpdb_mgr->is_hidden_flash(name, false))
        device_form().show_nothing();
    else if (m_current_flash != nullptr)
        device_form().show(*m_current_flash);
}

void GFPQ_DLG::show_operation_tabs(const std::string& name, bool new_device, bool editable)
{
    const bool hidden = !editable && m_gfpdb_mgr->is_hidden_flash(name, true);
    const bool shown = !hidden && m_gfpdb_mgr->can_edit_flow();
    if (shown)
        load_flows(new_device);
    enable_operation_tabs(shown);
}

void GFPQ_DLG::enable_operation_tabs(bool enabled)
{
    // An operation page that is being disabled would hand over to its neighbour, and that to the next.
    if (!enabled)
        show_device_page();
    for (int operation = GFPDB_OPERATION_COUNT - 1; operation >= 0; --operation)
        ui.m_prog_flows_tab_widget->setTabEnabled(GFPQ_FIRST_OPERATION_TAB + operation, enabled);
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
