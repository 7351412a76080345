// SPDX-License-Identifier: MIT
#include "dialog/gfpq_device_form.h"

#include "words/gfpq_accessible_name.h"
#include "words/gfpq_text.h"
#include "words/gfpq_warning.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"

#include "ui_gfpq_dlg.h"

#include <algorithm>

namespace {

// With fewer voltages there is nothing to choose.
constexpr int MIN_VOLTAGE_CHOICES = 2;

// The item of that text: in the same case, so that a stored value is saved as it was, else in any case; -1 for none.
int find_choice(const QComboBox& combo, const QString& text)
{
    const int exact = combo.findText(text, Qt::MatchExactly);
    return exact >= 0 ? exact : combo.findText(text, Qt::MatchFixedString);
}

} // namespace

// clang-format off
GFPQ_DEVICE_FORM::GFPQ_DEVICE_FORM(const Ui::gfpq_dlg& ui, const GFPDB_MGR& manager, const QObject& dialog)
    : m_ui(ui), m_manager(manager), m_dialog(dialog), m_fields{{
    {GFPDB_FLASH_NAME, GFPQ_FIELD_KIND::TEXT, ui.m_device_name_label, ui.m_device_name_edit, nullptr,
     SLOT(on_device_name_editing_finished())},
    {GFPDB_FLASH_DEVICE_ID, GFPQ_FIELD_KIND::TEXT, ui.m_device_id_label, ui.m_device_id_edit, nullptr,
     SLOT(on_device_id_editing_finished())},
    {GFPDB_FLASH_VOLTAGE, GFPQ_FIELD_KIND::CHOICE, ui.m_voltage_label, nullptr, ui.m_voltage_cbox,
     SLOT(on_change_voltage(int)), &GFPDB_MGR::get_voltage_list},
    {GFPDB_FLASH_DENSITY, GFPQ_FIELD_KIND::CHOICE, ui.m_density_lavel, nullptr, ui.m_density_cbox,
     SLOT(on_change_density(int)), &GFPDB_MGR::get_density_list},
    {GFPDB_FLASH_TOTAL_DIE, GFPQ_FIELD_KIND::NUMBER, ui.m_total_die_label, ui.m_total_die_edit, nullptr,
     SLOT(on_total_die_edit_editing_finished())},
    // Checked against the quad-I/O rule on purpose; the single-I/O rule applies when the record is saved.
    {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPQ_FIELD_KIND::NUMBER, ui.m_clock_cycle_label, ui.m_clock_cycle_edit, nullptr,
     SLOT(on_clock_cycle_editing_finished()), nullptr, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK},
    {GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, GFPQ_FIELD_KIND::NUMBER, ui.m_clock_cycle_label_x4, ui.m_clock_cycle_edit_x4,
     nullptr, SLOT(on_clock_cycle_x4_editing_finished())},
    {GFPDB_FLASH_FLOW_TEMPLATE, GFPQ_FIELD_KIND::CHOICE, ui.m_flow_template_label, nullptr, ui.m_flow_template_cbox,
     SLOT(on_change_flow_template(int)), &GFPDB_MGR::get_template_list}}}
{}
// clang-format on

template <typename WORK>
void GFPQ_DEVICE_FORM::for_each_used(const WORK& work) const
{
    for (const FIELD& field : m_fields) {
        if (m_manager.is_property_used(field.property))
            work(field);
    }
}

const GFPQ_DEVICE_FORM::FIELD& GFPQ_DEVICE_FORM::field_of(GFPDB_FLASH_PROPERTY property) const
{
    return *std::find_if(m_fields.begin(), m_fields.end(),
                         [property](const FIELD& field) { return field.property == property; });
}

QWidget* GFPQ_DEVICE_FORM::editor_of(const FIELD& field)
{
    return field.edit != nullptr ? static_cast<QWidget*>(field.edit) : field.combo;
}

GFPQ_CONNECTION GFPQ_DEVICE_FORM::commit_of(const FIELD& field) const
{
    if (field.combo != nullptr)
        return {field.combo, SIGNAL(currentIndexChanged(int)), &m_dialog, field.slot};
    return {field.edit, SIGNAL(returnPressed()), &m_dialog, field.slot};
}

void GFPQ_DEVICE_FORM::set_up() const
{
    for (const FIELD& field : m_fields) {
        const bool is_template = field.property == GFPDB_FLASH_FLOW_TEMPLATE;
        if (!m_manager.is_property_used(field.property)) {
            if (is_template)
                take_out_template_row();
            else
                take_out({field.label, editor_of(field)});
            continue;
        }
        gfpq_name_after(*editor_of(field), field.label->text());
        if (field.combo != nullptr)
            fill(field);
        if (field.property == GFPDB_FLASH_DEVICE_ID)
            field.edit->setPlaceholderText(QCoreApplication::translate("gfpq_dlg", "i.e. 0xC2 0x20 0x19"));
        commit_of(field).make();
        if (is_template)
            set_up_template_row();
    }
}

void GFPQ_DEVICE_FORM::set_up_template_row() const
{
    gfpq_name_after(*m_ui.m_template_name_edit, m_ui.m_save_template_check->text());
    const GFPQ_CONNECTION connections[] = {
        {m_ui.m_prog_flows_tab_widget, SIGNAL(currentChanged(int)), &m_dialog, SLOT(on_tab_index_changed(int))},
        {m_ui.m_save_template_check, SIGNAL(toggled(bool)), &m_dialog, SLOT(on_save_template_toggled(bool))},
        {m_ui.m_edit_template_button, SIGNAL(clicked()), &m_dialog, SLOT(on_edit_template_clicked())}};
    for (const GFPQ_CONNECTION& connection : connections)
        connection.make();
}

void GFPQ_DEVICE_FORM::take_out(std::initializer_list<QWidget*> widgets) const
{
    for (QWidget* const widget : widgets) {
        widget->hide();
        m_ui.formLayout_3->removeWidget(widget);
    }
}

void GFPQ_DEVICE_FORM::take_out_template_row() const
{
    m_ui.horizontalLayout->removeWidget(m_ui.m_flow_template_cbox);
    m_ui.horizontalLayout->removeWidget(m_ui.m_edit_template_button);
    // A layout that is taken out of another loses its parent; without a parent nothing would delete it.
    m_ui.formLayout_3->removeItem(m_ui.horizontalLayout);
    m_ui.horizontalLayout->setParent(m_ui.scrollAreaWidgetContents);
    take_out({m_ui.m_flow_template_label, m_ui.m_flow_template_cbox, m_ui.m_edit_template_button,
              m_ui.m_save_template_check, m_ui.m_template_name_edit});
}

void GFPQ_DEVICE_FORM::fill_choices() const
{
    for_each_used([this](const FIELD& field) {
        if (field.combo == nullptr)
            return;
        const GFPQ_CONNECTION_CUT cut{commit_of(field)};
        fill(field);
    });
}

void GFPQ_DEVICE_FORM::fill_templates() const
{
    const FIELD& field = field_of(GFPDB_FLASH_FLOW_TEMPLATE);
    const GFPQ_CONNECTION_CUT cut{commit_of(field)};
    const QString chosen = field.combo->currentText();
    fill(field);
    field.combo->setCurrentIndex(qMax(0, field.combo->findText(chosen)));
}

void GFPQ_DEVICE_FORM::fill(const FIELD& field) const
{
    std::vector<std::string> choices;
    (m_manager.*field.choices)(choices);
    QStringList texts;
    for (const std::string& choice : choices)
        texts.append(gfpq_from_local(choice));
    field.combo->clear();
    field.combo->addItems(texts);
    if (field.property == GFPDB_FLASH_VOLTAGE)
        select_fitting_voltage(choices);
}

void GFPQ_DEVICE_FORM::select_fitting_voltage(const std::vector<std::string>& voltages) const
{
    QComboBox& combo = *m_ui.m_voltage_cbox;
    for (std::size_t index = 0; index < voltages.size(); ++index) {
        std::string error;
        if (m_manager.verify_string_property(GFPDB_FLASH_VOLTAGE, voltages[index], error)) {
            combo.setCurrentIndex(static_cast<int>(index));
            break;
        }
    }
    combo.setEnabled(combo.count() >= MIN_VOLTAGE_CHOICES);
}

void GFPQ_DEVICE_FORM::show(const GFPDB_FLASH& flash) const
{
    for_each_used([&](const FIELD& field) {
        const QString text = gfpq_field_text(flash, field.property, field.kind);
        if (field.edit != nullptr)
            field.edit->setText(text);
        else if (field.property != GFPDB_FLASH_FLOW_TEMPLATE && !flash.is_user_defined())
            // The voltage and density of a built-in device are not shown.
            clear(field);
        else
            show_choice(field, text);
    });
}

void GFPQ_DEVICE_FORM::show_choice(const FIELD& field, const QString& text) const
{
    const GFPQ_CONNECTION_CUT cut{commit_of(field)};
    // A template that is no longer there is listed all the same while a device that was made from it is shown.
    if (field.property == GFPDB_FLASH_FLOW_TEMPLATE && find_choice(*field.combo, text) < 0)
        field.combo->addItem(text);
    field.combo->setCurrentIndex(qMax(0, find_choice(*field.combo, text)));
}

void GFPQ_DEVICE_FORM::show_nothing() const
{
    for_each_used([this](const FIELD& field) { clear(field); });
}

void GFPQ_DEVICE_FORM::clear(const FIELD& field) const
{
    if (field.edit != nullptr) {
        field.edit->clear();
        return;
    }
    const GFPQ_CONNECTION_CUT cut{commit_of(field)};
    field.combo->clear();
}

void GFPQ_DEVICE_FORM::enable(bool new_device, bool editable) const
{
    for_each_used([&](const FIELD& field) {
        if (field.property == GFPDB_FLASH_FLOW_TEMPLATE) {
            enable_template_row(new_device, editable);
        } else if (field.combo != nullptr) {
            const int needed = field.property == GFPDB_FLASH_VOLTAGE ? MIN_VOLTAGE_CHOICES : 0;
            field.combo->setEnabled(editable && field.combo->count() >= needed);
        } else {
            if (new_device)
                field.edit->clear();
            field.edit->setEnabled(editable);
        }
    });
}

// A stored device keeps the flows it has; only a new one starts from a template.
void GFPQ_DEVICE_FORM::enable_template_row(bool new_device, bool editable) const
{
    m_ui.m_flow_template_cbox->setEnabled(new_device);
    m_ui.m_edit_template_button->setEnabled(new_device);
    m_ui.m_save_template_check->setEnabled(editable);
    m_ui.m_save_template_check->setChecked(false);
    m_ui.m_template_name_edit->setEnabled(false);
    m_ui.m_template_name_edit->clear();
}

bool GFPQ_DEVICE_FORM::check(GFPDB_FLASH_PROPERTY property) const
{
    const FIELD& field = field_of(property);
    const std::string text = gfpq_to_local(text_of(field));
    std::string error;
    bool valid = field.kind == GFPQ_FIELD_KIND::NUMBER ? m_manager.check_int_property(field.rule, gen_atoi(text), error)
                                                       : m_manager.check_string_property(field.rule, text, error);
    if (valid && property == GFPDB_FLASH_VOLTAGE)
        valid = m_manager.verify_string_property(property, text, error);
    if (!valid)
        gfpq_show_warning(gfpq_from_local(error));
    return valid;
}

GFPQ_TEMPLATE_CHOICE GFPQ_DEVICE_FORM::chosen_template() const
{
    return {m_ui.m_flow_template_cbox->currentIndex(), gfpq_to_local(m_ui.m_flow_template_cbox->currentText())};
}

void GFPQ_DEVICE_FORM::read(GFPQ_DEVICE_DRAFT& draft) const
{
    for (const FIELD& field : m_fields)
        draft.values.push_back({field.property, field.kind, text_of(field)});
    draft.flow_template = chosen_template();
    if (m_ui.m_save_template_check->isChecked())
        draft.template_name = m_ui.m_template_name_edit->text();
}

QString GFPQ_DEVICE_FORM::text_of(const FIELD& field)
{
    return field.edit != nullptr ? field.edit->text() : field.combo->currentText();
}
