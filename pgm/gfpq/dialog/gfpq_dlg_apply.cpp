// SPDX-License-Identifier: MIT

// Apply, what OK shares with it, and Delete.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_message.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"
#include "words/gfpq_warning.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"
#include "msg/msg.h"

namespace {

void warn_form_error(const QString& tab_name, const QString& error)
{
    gfpq_show_warning(
        QCoreApplication::translate("gfpq_dlg", "Failed to save flash as %1 tab has invalid property value: \n\n%2")
            .arg(tab_name, error));
}

void warn_device_error(const QString& error)
{
    warn_form_error(QCoreApplication::translate("gfpq_dlg", "Configuration Device"), error);
}

int number_of(const QLineEdit* edit)
{
    return gen_atoi(gfpq_to_local(edit->text()));
}

} // namespace

bool GFPQ_DLG::apply()
{
    uncover_shown_row();
    const std::string selected = selected_device_name();
    const std::string entered = gfpq_to_local(ui.m_device_name_edit->text());
    if (m_gfpdb_mgr->is_hidden_flash(selected, false))
        return true;
    if (m_current_flash != nullptr && !m_current_flash->is_user_defined())
        return true;
    for (GPFQ_OPERATION_TAB_WIDGET* const tab : m_op_tabs)
        tab->commit_open_editor();
    if (!check_form(selected))
        return false;

    const GFPDB_FLASH* const previous = m_current_flash;
    m_current_flash = m_gfpdb_mgr->create_flash(entered);
    // A record that the database cannot make is no failure: there is nothing to save.
    if (m_current_flash == nullptr)
        return true;
    const std::string directory = entered_directory();
    fill_record(*m_current_flash, directory, selected, previous);
    // The name may have changed: the device leaves under its former name before it comes back under the entered one.
    if (!m_gfpdb_mgr->delete_flash(selected, directory) || !m_gfpdb_mgr->save_flash(m_current_flash, directory)) {
        show_unsaved_flows();
        gfpq_raise_message(GFPQ_UPDATE_DB_FAILED);
        return false;
    }
    rebuild_device_list(entered);
    uncover_shown_row();
    show_device_page();
    return true;
}

bool GFPQ_DLG::check_form(const std::string& selected) const
{
    // Voltage, density and template were checked when they were chosen.
    return check_form_name(selected) && check_form_text(GFPDB_FLASH_DEVICE_ID, ui.m_device_id_edit) &&
           check_form_number(GFPDB_FLASH_TOTAL_DIE, ui.m_total_die_edit) &&
           check_form_number(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit) &&
           check_form_number(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit_x4) && check_form_actions() &&
           check_form_template_name();
}

bool GFPQ_DLG::check_form_name(const std::string& selected) const
{
    if (!is_used(GFPDB_FLASH_NAME) || gen_strcmp(selected, gfpq_to_local(ui.m_device_name_edit->text())) == 0)
        return true;
    return is_valid_text(GFPDB_FLASH_NAME, ui.m_device_name_edit);
}

bool GFPQ_DLG::check_form_text(GFPDB_FLASH_PROPERTY property, const QLineEdit* edit) const
{
    return !is_used(property) || is_valid_text(property, edit);
}

bool GFPQ_DLG::is_valid_text(GFPDB_FLASH_PROPERTY property, const QLineEdit* edit) const
{
    std::string error;
    const bool valid = m_gfpdb_mgr->check_string_property(property, gfpq_to_local(edit->text()), error);
    if (!valid)
        warn_device_error(gfpq_from_local(error));
    return valid;
}

bool GFPQ_DLG::check_form_number(GFPDB_FLASH_PROPERTY property, const QLineEdit* edit) const
{
    std::string error;
    if (!is_used(property) || m_gfpdb_mgr->check_int_property(property, number_of(edit), error))
        return true;
    warn_device_error(gfpq_from_local(error));
    return false;
}

bool GFPQ_DLG::check_form_actions() const
{
    if (!m_gfpdb_mgr->can_edit_flow())
        return true;
    for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation) {
        const QList<GFPDB_ACTION*> actions = m_op_tabs[operation]->get_flow();
        for (const GFPDB_ACTION* const action : actions) {
            if (!check_form_action(operation, *action))
                return false;
        }
    }
    return true;
}

bool GFPQ_DLG::check_form_action(int operation, const GFPDB_ACTION& action) const
{
    // Loop markers are not the user's to edit.
    if (action.get_action_type() == GFPDB_ACT_CUSTOM)
        return true;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        std::string error;
        if (!action.check_property_value(property, action.get_property_value(property), error)) {
            warn_form_error(gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation]), gfpq_from_local(error));
            return false;
        }
    }
    return true;
}

bool GFPQ_DLG::check_form_template_name() const
{
    if (!is_used(GFPDB_FLASH_FLOW_TEMPLATE) || !ui.m_save_template_check->isChecked())
        return true;
    if (!is_valid_text(GFPDB_FLASH_TEMPLATE_NAME, ui.m_template_name_edit))
        return false;
    const QString template_name = ui.m_template_name_edit->text();
    const QString device_name = ui.m_device_name_edit->text();
    if (template_name != device_name)
        return true;
    // The misspelling is known to the users' scripts; it stays.
    warn_device_error(QCoreApplication::translate("gfpq_dlg", "Tempate name '%1' is conflicts with the device name %2.")
                          .arg(template_name, device_name));
    return false;
}

void GFPQ_DLG::fill_record(GFPDB_FLASH& flash, const std::string& directory, const std::string& selected,
                           const GFPDB_FLASH* previous)
{
    flash.set_user_defined(true);
    store_fields(flash);
    flash.set_db_dir(directory);
    if (m_gfpdb_mgr->can_edit_flow())
        store_flows(flash);
    if (!is_used(GFPDB_FLASH_FLOW_TEMPLATE))
        return;
    store_other_variant(flash, selected, previous);
    if (ui.m_save_template_check->isChecked())
        flash.set_string_property(GFPDB_FLASH_TEMPLATE_NAME, gfpq_to_local(ui.m_template_name_edit->text()));
}

void GFPQ_DLG::store_fields(GFPDB_FLASH& flash) const
{
    if (is_used(GFPDB_FLASH_DEVICE_ID))
        flash.set_string_property(GFPDB_FLASH_DEVICE_ID, gfpq_to_local(ui.m_device_id_edit->text()));
    if (is_used(GFPDB_FLASH_VOLTAGE))
        flash.set_string_property(GFPDB_FLASH_VOLTAGE, gfpq_to_local(ui.m_voltage_cbox->currentText()));
    if (is_used(GFPDB_FLASH_DENSITY))
        flash.set_density(gfpq_to_local(ui.m_density_cbox->currentText()));
    if (is_used(GFPDB_FLASH_TOTAL_DIE))
        flash.set_int_property(GFPDB_FLASH_TOTAL_DIE, number_of(ui.m_total_die_edit));
    if (is_used(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK))
        flash.set_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, number_of(ui.m_clock_cycle_edit));
    if (is_used(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK))
        flash.set_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, number_of(ui.m_clock_cycle_edit_x4));
    if (is_used(GFPDB_FLASH_FLOW_TEMPLATE))
        flash.set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, chosen_template());
}

// Hands the tabs' actions over to `flash`; the tabs are empty afterwards.
void GFPQ_DLG::store_flows(GFPDB_FLASH& flash)
{
    flash.clear_operations();
    const bool variant = m_gfpdb_mgr->get_flow_variant();
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        GFPDB_OPERATION* const operation = create_operation(kind);
        const QList<GFPDB_ACTION*> actions = m_op_tabs[kind]->get_flow();
        for (GFPDB_ACTION* const action : actions)
            operation->add_action(action);
        flash.set_operation(operation, variant);
    }
    for (GPFQ_OPERATION_TAB_WIDGET* const tab : m_op_tabs)
        tab->release_flow(false);
}

// The variant that is not shown comes from where the device came from: its former record, or its template.
void GFPQ_DLG::store_other_variant(GFPDB_FLASH& flash, const std::string& selected, const GFPDB_FLASH* previous)
{
    const bool variant = !m_gfpdb_mgr->get_flow_variant();
    const std::vector<GFPDB_OPERATION*>* operations = nullptr;
    if (gfpq_is_new_device(selected))
        operations = stored_template_operations(variant);
    else if (previous != nullptr)
        operations = previous->get_operations(variant);
    if (operations != nullptr)
        copy_operations(flash, *operations, variant);
}

GFPDB_OPERATION* GFPQ_DLG::create_operation(int kind)
{
    GFPDB_OPERATION* const operation = m_gfpdb_mgr->create_operation(kind);
    if (operation == nullptr)
        MSG_INTERNAL_ERROR::report("op != nullptr", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE, __LINE__);
    return operation;
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
