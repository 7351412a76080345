// SPDX-License-Identifier: MIT

// What runs when the user commits a device field, and the templates.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_device_form.h"
#include "dialog/gfpq_edit_template_dlg.h"

GFPQ_DEVICE_FORM GFPQ_DLG::device_form() const
{
    return {ui, *m_gfpdb_mgr, *this};
}

void GFPQ_DLG::on_device_name_editing_finished()
{
    device_form().check(GFPDB_FLASH_NAME);
}

void GFPQ_DLG::on_device_id_editing_finished()
{
    device_form().check(GFPDB_FLASH_DEVICE_ID);
}

void GFPQ_DLG::on_change_voltage(int /*cursel*/)
{
    device_form().check(GFPDB_FLASH_VOLTAGE);
}

void GFPQ_DLG::on_change_density(int /*cursel*/)
{
    device_form().check(GFPDB_FLASH_DENSITY);
}

void GFPQ_DLG::on_total_die_edit_editing_finished()
{
    device_form().check(GFPDB_FLASH_TOTAL_DIE);
}

void GFPQ_DLG::on_clock_cycle_editing_finished()
{
    device_form().check(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK);
}

void GFPQ_DLG::on_clock_cycle_x4_editing_finished()
{
    device_form().check(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK);
}

void GFPQ_DLG::on_change_flow_template(int /*cursel*/)
{
    if (device_form().check(GFPDB_FLASH_FLOW_TEMPLATE))
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
    if (editor->changed())
        device_form().fill_templates();
}
