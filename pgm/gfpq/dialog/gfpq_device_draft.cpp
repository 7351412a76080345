// SPDX-License-Identifier: MIT
#include "dialog/gfpq_device_draft.h"

#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_action_copy.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"
#include "msg/msg.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString fault_on(const QString& tab_name, const QString& error)
{
    return QCoreApplication::translate("gfpq_dlg", "Failed to save flash as %1 tab has invalid property value: \n\n%2")
        .arg(tab_name, error);
}

QString fault_of_device(const QString& error)
{
    return fault_on(QCoreApplication::translate("gfpq_dlg", "Configuration Device"), error);
}

// Whether `action` accepts its own values; `error` is what it says of the first that it does not.
bool accepts_values(const GFPDB_ACTION& action, std::string& error)
{
    // Loop markers are not the user's to edit.
    if (action.get_action_type() == GFPDB_ACT_CUSTOM)
        return true;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        if (!action.check_property_value(property, action.get_property_value(property), error))
            return false;
    }
    return true;
}

void store_field(GFPDB_FLASH& flash, const GFPQ_FIELD_VALUE& value)
{
    const std::string text = gfpq_to_local(value.text);
    if (value.property == GFPDB_FLASH_DENSITY)
        flash.set_density(text);
    else if (value.kind == GFPQ_FIELD_KIND::NUMBER)
        flash.set_int_property(value.property, gen_atoi(text));
    else
        flash.set_string_property(value.property, text);
}

} // namespace

bool GFPQ_TEMPLATE_CHOICE::is_stored() const
{
    return index >= GFPQ_BUILTIN_TEMPLATE_COUNT;
}

const std::vector<GFPDB_OPERATION*>* GFPQ_TEMPLATE_CHOICE::builtin_operations(GFPDB_MGR& manager,
                                                                              bool flow_variant) const
{
    return index < 0 ? nullptr : manager.get_builtin_template_operations(index, flow_variant);
}

const std::vector<GFPDB_OPERATION*>* GFPQ_TEMPLATE_CHOICE::shown_operations(GFPDB_MGR& manager) const
{
    const bool variant = manager.get_flow_variant();
    return is_stored() ? manager.get_template_operations(name, variant) : builtin_operations(manager, variant);
}

// A stored template is found as the record that it is.
const std::vector<GFPDB_OPERATION*>* GFPQ_TEMPLATE_CHOICE::saved_operations(GFPDB_MGR& manager, bool flow_variant) const
{
    if (!is_stored())
        return builtin_operations(manager, flow_variant);
    const GFPDB_FLASH* const flash = manager.find_flash(name, true);
    return flash == nullptr ? nullptr : flash->get_operations(flow_variant);
}

QString GFPQ_DEVICE_DRAFT::name() const
{
    const auto is_name = [](const GFPQ_FIELD_VALUE& value) { return value.property == GFPDB_FLASH_NAME; };
    return std::find_if(values.begin(), values.end(), is_name)->text;
}

QString GFPQ_DEVICE_DRAFT::find_fault() const
{
    QString fault = find_field_fault();
    if (fault.isEmpty())
        fault = find_action_fault();
    return fault.isEmpty() ? find_template_fault() : fault;
}

QString GFPQ_DEVICE_DRAFT::find_field_fault() const
{
    for (const GFPQ_FIELD_VALUE& value : values) {
        std::string error;
        if (value.kind != GFPQ_FIELD_KIND::CHOICE && m_manager.is_property_used(value.property) &&
            !is_accepted(value, error))
            return fault_of_device(gfpq_from_local(error));
    }
    return QString();
}

bool GFPQ_DEVICE_DRAFT::is_accepted(const GFPQ_FIELD_VALUE& value, std::string& error) const
{
    const std::string text = gfpq_to_local(value.text);
    if (value.kind == GFPQ_FIELD_KIND::NUMBER)
        return m_manager.check_int_property(value.property, gen_atoi(text), error);
    const bool is_unchanged_name = value.property == GFPDB_FLASH_NAME && gen_strcmp(selected, text) == 0;
    return is_unchanged_name || m_manager.check_string_property(value.property, text, error);
}

QString GFPQ_DEVICE_DRAFT::find_action_fault() const
{
    if (!m_manager.can_edit_flow())
        return QString();
    for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation) {
        for (const GFPDB_ACTION* const action : flows[operation]) {
            std::string error;
            if (!accepts_values(*action, error))
                return fault_on(gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation]), gfpq_from_local(error));
        }
    }
    return QString();
}

QString GFPQ_DEVICE_DRAFT::find_template_fault() const
{
    if (!m_manager.is_property_used(GFPDB_FLASH_FLOW_TEMPLATE) || !template_name)
        return QString();
    std::string error;
    if (!m_manager.check_string_property(GFPDB_FLASH_TEMPLATE_NAME, gfpq_to_local(*template_name), error))
        return fault_of_device(gfpq_from_local(error));
    if (*template_name != name())
        return QString();
    // The misspelling is known to the users' scripts; it stays.
    return fault_of_device(
        QCoreApplication::translate("gfpq_dlg", "Tempate name '%1' is conflicts with the device name %2.")
            .arg(*template_name, name()));
}

void GFPQ_DEVICE_DRAFT::store_fields(GFPDB_FLASH& flash) const
{
    flash.set_user_defined(true);
    for (const GFPQ_FIELD_VALUE& value : values) {
        // The record was made with its name.
        if (value.property != GFPDB_FLASH_NAME && m_manager.is_property_used(value.property))
            store_field(flash, value);
    }
    flash.set_db_dir(directory);
}

bool GFPQ_DEVICE_DRAFT::store_flows(GFPDB_FLASH& flash) const
{
    if (!m_manager.can_edit_flow())
        return false;
    flash.clear_operations();
    const bool variant = m_manager.get_flow_variant();
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        GFPDB_OPERATION* const operation = create_operation(kind);
        for (GFPDB_ACTION* const action : flows[kind])
            operation->add_action(action);
        flash.set_operation(operation, variant);
    }
    return true;
}

// The variant that is not shown has the same source as the device: its previous record, or its template.
void GFPQ_DEVICE_DRAFT::store_template(GFPDB_FLASH& flash) const
{
    if (!m_manager.is_property_used(GFPDB_FLASH_FLOW_TEMPLATE))
        return;
    const bool variant = !m_manager.get_flow_variant();
    const std::vector<GFPDB_OPERATION*>* operations = nullptr;
    if (gfpq_is_new_device(selected))
        operations = flow_template.saved_operations(m_manager, variant);
    else if (previous != nullptr)
        operations = previous->get_operations(variant);
    if (operations != nullptr)
        copy_operations(flash, *operations, variant);
    if (template_name)
        flash.set_string_property(GFPDB_FLASH_TEMPLATE_NAME, gfpq_to_local(*template_name));
}

GFPDB_OPERATION* GFPQ_DEVICE_DRAFT::create_operation(int kind) const
{
    GFPDB_OPERATION* const operation = m_manager.create_operation(kind);
    if (operation == nullptr)
        MSG_INTERNAL_ERROR::report("op != nullptr", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE, __LINE__);
    return operation;
}

void GFPQ_DEVICE_DRAFT::copy_operations(GFPDB_FLASH& target, const std::vector<GFPDB_OPERATION*>& operations,
                                        bool flow_variant) const
{
    for (const GFPDB_OPERATION* const source : operations) {
        if (source == nullptr)
            continue;
        GFPDB_OPERATION* const copy = create_operation(source->m_kind);
        if (const std::vector<GFPDB_ACTION*>* const actions = source->get_actions()) {
            for (const GFPDB_ACTION* const action : *actions) {
                GFPDB_ACTION* const own = action != nullptr ? gfpq_copy_action(m_manager, *action) : nullptr;
                if (own != nullptr)
                    copy->add_action(own);
            }
        }
        target.set_operation(copy, flow_variant);
    }
}

QString gfpq_field_text(const GFPDB_FLASH& flash, GFPDB_FLASH_PROPERTY property, GFPQ_FIELD_KIND kind)
{
    if (property == GFPDB_FLASH_NAME)
        return gfpq_from_local(flash.get_name());
    if (property == GFPDB_FLASH_DENSITY)
        return gfpq_from_local(flash.get_density());
    if (kind == GFPQ_FIELD_KIND::NUMBER)
        return gfpq_from_local(gen_itoa(flash.get_int_property(property, 0)));
    return gfpq_from_local(flash.get_string_property(property));
}
