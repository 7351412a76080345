// SPDX-License-Identifier: MIT

// Showing the selected device: its fields, what may be edited, and its flows.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_text.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"

namespace {

// With fewer voltages there is nothing to choose.
constexpr int MIN_VOLTAGE_CHOICES = 2;

// The item of that text: letter for letter, so that a stored value is saved as it was, else without regard to case; -1
// when there is none.
int find_choice(const QComboBox& combo, const QString& text)
{
    const int exact = combo.findText(text, Qt::MatchExactly);
    return exact >= 0 ? exact : combo.findText(text, Qt::MatchFixedString);
}

} // namespace

void GFPQ_DLG::load_device(const QModelIndex& source_index)
{
    const QStandardItem* const item = m_device_model.itemFromIndex(source_index);
    const std::string name = gfpq_to_local(item->text());
    const bool new_device = gfpq_is_new_device(name);
    m_shown_row = source_index;
    bool editable = new_device || !item->data(GFPQ_READ_ONLY_ROLE).toBool();

    if (is_used(GFPDB_FLASH_VOLTAGE))
        refill_choice_combo(ui.m_voltage_cbox);
    if (is_used(GFPDB_FLASH_DENSITY))
        refill_choice_combo(ui.m_density_cbox);
    if (is_used(GFPDB_FLASH_FLOW_TEMPLATE))
        refill_choice_combo(ui.m_flow_template_cbox);
    if (new_device)
        m_current_flash = nullptr;
    else
        load_record(name);
    if (m_current_flash != nullptr)
        editable = m_current_flash->is_user_defined();
    enable_fields(new_device, editable);
    show_operation_tabs(name, new_device, editable);
}

// The name is the one of the row being loaded: while the keyboard moves the selection, the view's current row is still
// the former one.
void GFPQ_DLG::load_record(const std::string& name)
{
    m_current_flash = m_gfpdb_mgr->find_flash(name, true);
    if (m_gfpdb_mgr->is_hidden_flash(name, false))
        show_nothing();
    else if (m_current_flash != nullptr)
        show_record(*m_current_flash);
}

void GFPQ_DLG::show_nothing()
{
    clear_used_edits();
    for (const auto& [property, combo] : choice_combos()) {
        if (is_used(property))
            show_choice(combo, QString(), true);
    }
}

void GFPQ_DLG::show_record(const GFPDB_FLASH& flash)
{
    if (is_used(GFPDB_FLASH_NAME))
        ui.m_device_name_edit->setText(gfpq_from_local(flash.get_name()));
    if (is_used(GFPDB_FLASH_DEVICE_ID))
        ui.m_device_id_edit->setText(gfpq_from_local(flash.get_string_property(GFPDB_FLASH_DEVICE_ID)));
    // A built-in device does not say at what voltage and in what density it comes.
    const bool builtin = !flash.is_user_defined();
    if (is_used(GFPDB_FLASH_VOLTAGE))
        show_choice(ui.m_voltage_cbox, gfpq_from_local(flash.get_string_property(GFPDB_FLASH_VOLTAGE)), builtin);
    if (is_used(GFPDB_FLASH_DENSITY))
        show_choice(ui.m_density_cbox, gfpq_from_local(flash.get_density()), builtin);
    show_number(flash, GFPDB_FLASH_TOTAL_DIE, ui.m_total_die_edit);
    show_number(flash, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit);
    show_number(flash, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, ui.m_clock_cycle_edit_x4);
    if (is_used(GFPDB_FLASH_FLOW_TEMPLATE))
        show_template(gfpq_from_local(flash.get_string_property(GFPDB_FLASH_FLOW_TEMPLATE)));
}

void GFPQ_DLG::show_number(const GFPDB_FLASH& flash, GFPDB_FLASH_PROPERTY property, QLineEdit* edit)
{
    if (is_used(property))
        edit->setText(gfpq_from_local(gen_itoa(flash.get_int_property(property, 0))));
}

void GFPQ_DLG::show_choice(QComboBox* combo, const QString& text, bool cleared)
{
    const GFPQ_CONNECTION_CUT cut{change_of(combo)};
    if (cleared)
        combo->clear();
    else
        combo->setCurrentIndex(qMax(0, find_choice(*combo, text)));
}

// A template that is no longer there is listed all the same while a device that was made from it is shown.
void GFPQ_DLG::show_template(const QString& name)
{
    const GFPQ_CONNECTION_CUT cut{change_of(ui.m_flow_template_cbox)};
    if (find_choice(*ui.m_flow_template_cbox, name) < 0)
        ui.m_flow_template_cbox->addItem(name);
    ui.m_flow_template_cbox->setCurrentIndex(qMax(0, find_choice(*ui.m_flow_template_cbox, name)));
}

void GFPQ_DLG::refill_choice_combo(QComboBox* combo)
{
    const GFPQ_CONNECTION_CUT cut{change_of(combo)};
    fill_choice_combo(combo);
}

void GFPQ_DLG::fill_choice_combo(QComboBox* combo)
{
    std::vector<std::string> choices;
    if (combo == ui.m_voltage_cbox)
        m_gfpdb_mgr->get_voltage_list(choices);
    else if (combo == ui.m_density_cbox)
        m_gfpdb_mgr->get_density_list(choices);
    else if (combo == ui.m_flow_template_cbox)
        m_gfpdb_mgr->get_template_list(choices);

    QStringList texts;
    for (const std::string& choice : choices)
        texts.append(gfpq_from_local(choice));
    combo->clear();
    combo->addItems(texts);
    if (combo == ui.m_voltage_cbox)
        select_fitting_voltage(choices);
}

void GFPQ_DLG::select_fitting_voltage(const std::vector<std::string>& voltages)
{
    for (std::size_t index = 0; index < voltages.size(); ++index) {
        std::string error;
        if (m_gfpdb_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, voltages[index], error)) {
            ui.m_voltage_cbox->setCurrentIndex(static_cast<int>(index));
            break;
        }
    }
    ui.m_voltage_cbox->setEnabled(ui.m_voltage_cbox->count() >= MIN_VOLTAGE_CHOICES);
}

void GFPQ_DLG::enable_fields(bool new_device, bool editable)
{
    if (new_device)
        clear_used_edits();
    for (const auto& [property, edit] : line_edits()) {
        if (is_used(property))
            edit->setEnabled(editable);
    }
    if (is_used(GFPDB_FLASH_VOLTAGE))
        ui.m_voltage_cbox->setEnabled(editable && ui.m_voltage_cbox->count() >= MIN_VOLTAGE_CHOICES);
    if (is_used(GFPDB_FLASH_DENSITY))
        ui.m_density_cbox->setEnabled(editable);
    if (is_used(GFPDB_FLASH_FLOW_TEMPLATE)) {
        // A stored device keeps the flows it has; only a new one starts from a template.
        ui.m_flow_template_cbox->setEnabled(new_device);
        ui.m_edit_template_button->setEnabled(new_device);
        ui.m_save_template_check->setEnabled(editable);
        ui.m_save_template_check->setChecked(false);
        ui.m_template_name_edit->setEnabled(false);
        ui.m_template_name_edit->clear();
    }
    ui.m_delete_button->setEnabled(!new_device && m_current_flash != nullptr && m_current_flash->is_user_defined());
    ui.m_apply_button->setEnabled(editable);
}

void GFPQ_DLG::clear_used_edits()
{
    for (const auto& [property, edit] : line_edits()) {
        if (is_used(property))
            edit->clear();
    }
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
        operations = shown_template_operations();
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
