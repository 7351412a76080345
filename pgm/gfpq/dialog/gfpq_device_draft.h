// SPDX-License-Identifier: MIT

// What Apply checks and saves: the values of one device, free of the widgets that they were entered in.
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <QList>
#include <QString>

#include <array>
#include <optional>
#include <string>
#include <vector>

class GFPDB_ACTION;
class GFPDB_FLASH;
class GFPDB_MGR;
class GFPDB_OPERATION;

// How a field is entered. A text or a number is checked again before it is saved; a choice was checked when it was
// made.
enum class GFPQ_FIELD_KIND
{
    TEXT,
    NUMBER,
    CHOICE,
};

// A field of the device and its text as the widget shows it.
struct GFPQ_FIELD_VALUE
{
    GFPDB_FLASH_PROPERTY property;
    GFPQ_FIELD_KIND kind;
    QString text;
};

// The entry of the template combo that is chosen.
struct GFPQ_TEMPLATE_CHOICE
{
    // Its place in the combo; -1 when nothing is chosen. Built-in templates come first.
    int index = -1;
    std::string name;

    // Its operations in the variant that the pages show; null when there are none.
    const std::vector<GFPDB_OPERATION*>* shown_operations(GFPDB_MGR& manager) const;
    // Its operations in a variant that is saved without being shown; null when there are none.
    const std::vector<GFPDB_OPERATION*>* saved_operations(GFPDB_MGR& manager, bool flow_variant) const;

private:
    bool is_stored() const;
    const std::vector<GFPDB_OPERATION*>* builtin_operations(GFPDB_MGR& manager, bool flow_variant) const;
};

// Filled by the dialog, then checked, then stored into a new record in the order of the functions below. `std::string`
// texts are local 8-bit. Owns nothing. GUI thread only.
class GFPQ_DEVICE_DRAFT
{
public:
    // `manager` must outlive the draft.
    explicit GFPQ_DEVICE_DRAFT(GFPDB_MGR& manager) : m_manager(manager) {}

    // The row that is replaced: the name of a device, or the text of the new-device row.
    std::string selected;
    // The record shown before; null for none.
    const GFPDB_FLASH* previous = nullptr;
    // Every field that the form can have, in its order; those that the manager does not use are skipped.
    std::vector<GFPQ_FIELD_VALUE> values;
    GFPQ_TEMPLATE_CHOICE flow_template;
    // The name under which the device is saved as a template, too.
    std::optional<QString> template_name;
    // With a trailing "/".
    std::string directory;
    // The actions of each operation, in chain order.
    std::array<QList<GFPDB_ACTION*>, GFPDB_OPERATION_COUNT> flows;

    // The name that was entered.
    QString name() const;
    // The warning about the first value that the library refuses; empty if it accepts all.
    QString find_fault() const;

    void store_fields(GFPDB_FLASH& flash) const;
    // Hands the actions over to `flash`; false when the manager takes no flows, and the actions stay where they are.
    bool store_flows(GFPDB_FLASH& flash) const;
    // The flows of the variant that is not shown, and the name as a template.
    void store_template(GFPDB_FLASH& flash) const;

private:
    QString find_field_fault() const;
    QString find_action_fault() const;
    QString find_template_fault() const;
    bool is_accepted(const GFPQ_FIELD_VALUE& value, std::string& error) const;
    GFPDB_OPERATION* create_operation(int kind) const;
    void copy_operations(GFPDB_FLASH& target, const std::vector<GFPDB_OPERATION*>& operations, bool flow_variant) const;

    GFPDB_MGR& m_manager;
};

// The text of a field in `flash`, as the form shows it.
QString gfpq_field_text(const GFPDB_FLASH& flash, GFPDB_FLASH_PROPERTY property, GFPQ_FIELD_KIND kind);
