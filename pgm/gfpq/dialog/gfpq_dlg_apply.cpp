// SPDX-License-Identifier: MIT

// Apply, what OK shares with it, and Delete.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_device_form.h"
#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_message.h"
#include "words/gfpq_text.h"
#include "words/gfpq_warning.h"

#include "gfpdb/gfpdb_mgr.h"

bool GFPQ_DLG::on_apply_clicked()
{
    uncover_shown_row();
    const std::string selected = selected_device_name();
    if (m_gfpdb_mgr->is_hidden_flash(selected, false))
        return true;
    if (m_current_flash != nullptr && !m_current_flash->is_user_defined())
        return true;
    for (GPFQ_OPERATION_TAB_WIDGET* const tab : m_op_tabs)
        tab->commit_open_editor();

    const GFPQ_DEVICE_DRAFT draft = make_draft(selected);
    const QString fault = draft.find_fault();
    if (fault.isEmpty())
        return save(draft);
    gfpq_show_warning(fault);
    return false;
}

GFPQ_DEVICE_DRAFT GFPQ_DLG::make_draft(const std::string& selected) const
{
    GFPQ_DEVICE_DRAFT draft(*m_gfpdb_mgr);
    draft.selected = selected;
    draft.previous = m_current_flash;
    draft.directory = entered_directory();
    device_form().read(draft);
    for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation)
        draft.flows[operation] = m_op_tabs[operation]->get_flow();
    return draft;
}

bool GFPQ_DLG::save(const GFPQ_DEVICE_DRAFT& draft)
{
    const std::string entered = gfpq_to_local(draft.name());
    m_current_flash = m_gfpdb_mgr->create_flash(entered);
    // A record that the database cannot make is not a failure: there is nothing to save.
    if (m_current_flash == nullptr)
        return true;
    draft.store_fields(*m_current_flash);
    if (draft.store_flows(*m_current_flash)) {
        for (GPFQ_OPERATION_TAB_WIDGET* const tab : m_op_tabs)
            tab->release_flow(false);
    }
    draft.store_template(*m_current_flash);
    // The name may have changed: the device is deleted under its previous name, then saved under the one entered.
    if (!m_gfpdb_mgr->delete_flash(draft.selected, draft.directory) ||
        !m_gfpdb_mgr->save_flash(m_current_flash, draft.directory)) {
        show_unsaved_flows();
        gfpq_raise_message(GFPQ_UPDATE_DB_FAILED);
        return false;
    }
    rebuild_device_list(entered);
    uncover_shown_row();
    show_device_page();
    return true;
}

// After a failed save the tabs edit copies again, so that the next attempt stores the same flows.
void GFPQ_DLG::show_unsaved_flows()
{
    if (m_gfpdb_mgr->can_edit_flow())
        load_flows(false);
}

void GFPQ_DLG::on_delete_clicked()
{
    if (m_current_flash == nullptr || shows_new_device())
        return;
    if (!m_gfpdb_mgr->delete_flash(m_current_flash->get_name(), m_current_flash->get_db_dir())) {
        gfpq_raise_message(GFPQ_DELETE_DB_FAILED);
        return;
    }
    m_current_flash = nullptr;
    rebuild_device_list(GFPQ_NEW_DEVICE);
}
