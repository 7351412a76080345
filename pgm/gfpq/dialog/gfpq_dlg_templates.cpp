// SPDX-License-Identifier: MIT

// Flow templates: what the template combo stands for, "Save as template", and the template editor.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "dialog/gfpq_edit_template_dlg.h"
#include "flow/gfpq_action_copy.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_mgr.h"

void GFPQ_DLG::on_change_flow_template(int /*cursel*/)
{
    if (check_text(GFPDB_FLASH_FLOW_TEMPLATE, ui.m_flow_template_cbox->currentText()))
        load_flows(shows_new_device());
}

void GFPQ_DLG::on_save_template_toggled(bool checked)
{
    ui.m_template_name_edit->setEnabled(checked);
}

void GFPQ_DLG::on_edit_template_clicked()
{
    // Left to its parent, which is this dialog.
    auto* const editor = new GFPQ_EDIT_TEMPLATE_DLG(this, m_gfpdb_mgr);
    editor->exec();
    if (!editor->changed())
        return;
    const GFPQ_CONNECTION_CUT cut{change_of(ui.m_flow_template_cbox)};
    const QString chosen = ui.m_flow_template_cbox->currentText();
    fill_choice_combo(ui.m_flow_template_cbox);
    ui.m_flow_template_cbox->setCurrentIndex(qMax(0, ui.m_flow_template_cbox->findText(chosen)));
}

std::string GFPQ_DLG::chosen_template() const
{
    return gfpq_to_local(ui.m_flow_template_cbox->currentText());
}

bool GFPQ_DLG::is_stored_template_chosen() const
{
    return ui.m_flow_template_cbox->currentIndex() >= GFPQ_BUILTIN_TEMPLATE_COUNT;
}

// Null when nothing is chosen.
const std::vector<GFPDB_OPERATION*>* GFPQ_DLG::builtin_template_operations(bool flow_variant) const
{
    const int index = ui.m_flow_template_cbox->currentIndex();
    return index < 0 ? nullptr : m_gfpdb_mgr->get_builtin_template_operations(index, flow_variant);
}

// The chosen template's operations in the variant that the tabs show.
const std::vector<GFPDB_OPERATION*>* GFPQ_DLG::shown_template_operations() const
{
    const bool variant = m_gfpdb_mgr->get_flow_variant();
    return is_stored_template_chosen() ? m_gfpdb_mgr->get_template_operations(chosen_template(), variant)
                                       : builtin_template_operations(variant);
}

// The chosen template's operations in the variant that is stored without being shown. A stored template is found as the
// record that it is.
const std::vector<GFPDB_OPERATION*>* GFPQ_DLG::stored_template_operations(bool flow_variant) const
{
    if (!is_stored_template_chosen())
        return builtin_template_operations(flow_variant);
    const GFPDB_FLASH* const flash = m_gfpdb_mgr->find_flash(chosen_template(), true);
    return flash == nullptr ? nullptr : flash->get_operations(flow_variant);
}

void GFPQ_DLG::copy_operations(GFPDB_FLASH& target, const std::vector<GFPDB_OPERATION*>& operations, bool flow_variant)
{
    for (const GFPDB_OPERATION* const source : operations) {
        if (source == nullptr)
            continue;
        GFPDB_OPERATION* const copy = create_operation(source->m_kind);
        if (const std::vector<GFPDB_ACTION*>* const actions = source->get_actions()) {
            for (const GFPDB_ACTION* const action : *actions) {
                GFPDB_ACTION* const own = action != nullptr ? gfpq_copy_action(*m_gfpdb_mgr, *action) : nullptr;
                if (own != nullptr)
                    copy->add_action(own);
            }
        }
        target.set_operation(copy, flow_variant);
    }
}
