// SPDX-License-Identifier: MIT

// The device fields: which of them the form has, and the check that each runs when its value is committed.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "words/gfpq_text.h"
#include "words/gfpq_warning.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"

bool GFPQ_DLG::is_used(GFPDB_FLASH_PROPERTY property) const
{
    return m_gfpdb_mgr->is_property_used(property);
}

std::array<GFPQ_DLG::LINE_EDIT, 5> GFPQ_DLG::line_edits() const
{
    return {{{GFPDB_FLASH_NAME, ui.m_device_name_edit},
             {GFPDB_FLASH_DEVICE_ID, ui.m_device_id_edit},
             {GFPDB_FLASH_TOTAL_DIE, ui.m_total_die_edit},
             {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit},
             {GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit_x4}}};
}

std::array<GFPQ_DLG::CHOICE_COMBO, 3> GFPQ_DLG::choice_combos() const
{
    return {{{GFPDB_FLASH_VOLTAGE, ui.m_voltage_cbox},
             {GFPDB_FLASH_DENSITY, ui.m_density_cbox},
             {GFPDB_FLASH_FLOW_TEMPLATE, ui.m_flow_template_cbox}}};
}

void GFPQ_DLG::set_up_device_fields()
{
    set_up_line_edit(GFPDB_FLASH_NAME, ui.m_device_name_label, ui.m_device_name_edit,
                     SLOT(on_device_name_editing_finished()));
    set_up_line_edit(GFPDB_FLASH_DEVICE_ID, ui.m_device_id_label, ui.m_device_id_edit,
                     SLOT(on_device_id_editing_finished()));
    set_up_combo(GFPDB_FLASH_VOLTAGE, ui.m_voltage_label, ui.m_voltage_cbox);
    set_up_combo(GFPDB_FLASH_DENSITY, ui.m_density_lavel, ui.m_density_cbox);
    set_up_line_edit(GFPDB_FLASH_TOTAL_DIE, ui.m_total_die_label, ui.m_total_die_edit,
                     SLOT(on_total_die_edit_editing_finished()));
    set_up_line_edit(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, ui.m_clock_cycle_label, ui.m_clock_cycle_edit,
                     SLOT(on_clock_cycle_editing_finished()));
    set_up_line_edit(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_label_x4, ui.m_clock_cycle_edit_x4,
                     SLOT(on_clock_cycle_x4_editing_finished()));
    if (is_used(GFPDB_FLASH_FLOW_TEMPLATE))
        set_up_template_row();
    else
        take_out_template_row();
}

void GFPQ_DLG::set_up_line_edit(GFPDB_FLASH_PROPERTY property, QWidget* label, QLineEdit* edit, const char* slot)
{
    if (!is_used(property)) {
        take_out({label, edit});
        return;
    }
    if (property == GFPDB_FLASH_DEVICE_ID)
        edit->setPlaceholderText(QCoreApplication::translate("gfpq_dlg", "i.e. 0xC2 0x20 0x19"));
    kovq_safe_connect(edit, SIGNAL(returnPressed()), this, slot, Qt::AutoConnection, "", 0);
}

void GFPQ_DLG::set_up_combo(GFPDB_FLASH_PROPERTY property, QWidget* label, QComboBox* combo)
{
    if (!is_used(property)) {
        take_out({label, combo});
        return;
    }
    fill_choice_combo(combo);
    change_of(combo).make();
}

void GFPQ_DLG::set_up_template_row()
{
    fill_choice_combo(ui.m_flow_template_cbox);
    change_of(ui.m_flow_template_cbox).make();
    kovq_safe_connect(ui.m_prog_flows_tab_widget, SIGNAL(currentChanged(int)), this, SLOT(on_tab_index_changed(int)),
                      Qt::AutoConnection, "", 0);
    kovq_safe_connect(ui.m_save_template_check, SIGNAL(toggled(bool)), this, SLOT(on_save_template_toggled(bool)),
                      Qt::AutoConnection, "", 0);
    kovq_safe_connect(ui.m_edit_template_button, SIGNAL(clicked()), this, SLOT(on_edit_template_clicked()),
                      Qt::AutoConnection, "", 0);
}

void GFPQ_DLG::take_out(std::initializer_list<QWidget*> widgets)
{
    for (QWidget* const widget : widgets) {
        widget->hide();
        ui.formLayout_3->removeWidget(widget);
    }
}

void GFPQ_DLG::take_out_template_row()
{
    for (QWidget* const widget :
         {static_cast<QWidget*>(ui.m_flow_template_cbox), static_cast<QWidget*>(ui.m_edit_template_button)}) {
        widget->hide();
        ui.horizontalLayout->removeWidget(widget);
    }
    // A layout that was taken out of another has no parent any more: without one nothing would delete it.
    ui.formLayout_3->removeItem(ui.horizontalLayout);
    ui.horizontalLayout->setParent(ui.scrollAreaWidgetContents);
    take_out({ui.m_flow_template_label, ui.m_save_template_check, ui.m_template_name_edit});
}

bool GFPQ_DLG::check_text(GFPDB_FLASH_PROPERTY property, const QString& text) const
{
    std::string error;
    const bool valid = m_gfpdb_mgr->check_string_property(property, gfpq_to_local(text), error);
    if (!valid)
        gfpq_show_warning(gfpq_from_local(error));
    return valid;
}

void GFPQ_DLG::check_number(GFPDB_FLASH_PROPERTY property, const QLineEdit* edit) const
{
    std::string error;
    if (!m_gfpdb_mgr->check_int_property(property, gen_atoi(gfpq_to_local(edit->text())), error))
        gfpq_show_warning(gfpq_from_local(error));
}

void GFPQ_DLG::on_device_name_editing_finished()
{
    check_text(GFPDB_FLASH_NAME, ui.m_device_name_edit->text());
}

void GFPQ_DLG::on_device_id_editing_finished()
{
    check_text(GFPDB_FLASH_DEVICE_ID, ui.m_device_id_edit->text());
}

void GFPQ_DLG::on_change_voltage(int /*cursel*/)
{
    const std::string text = gfpq_to_local(ui.m_voltage_cbox->currentText());
    std::string error;
    if (!m_gfpdb_mgr->check_string_property(GFPDB_FLASH_VOLTAGE, text, error) ||
        !m_gfpdb_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, text, error))
        gfpq_show_warning(gfpq_from_local(error));
}

void GFPQ_DLG::on_change_density(int /*cursel*/)
{
    check_text(GFPDB_FLASH_DENSITY, ui.m_density_cbox->currentText());
}

void GFPQ_DLG::on_total_die_edit_editing_finished()
{
    check_number(GFPDB_FLASH_TOTAL_DIE, ui.m_total_die_edit);
}

void GFPQ_DLG::on_clock_cycle_editing_finished()
{
    // Checked against the quad-I/O rule on purpose; the single-I/O rule applies when the record is saved.
    check_number(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit);
}

void GFPQ_DLG::on_clock_cycle_x4_editing_finished()
{
    check_number(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit_x4);
}
