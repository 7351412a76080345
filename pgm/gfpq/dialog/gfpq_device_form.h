// SPDX-License-Identifier: MIT

// The fields of one device on the dialog's form.
#pragma once

#include "dialog/gfpq_connection_cut.h"
#include "dialog/gfpq_device_draft.h"

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QString;
class QWidget;

namespace Ui {
class gfpq_dlg;
}

// Which fields the form has, and how each is set up, shown, enabled, checked and read. Keeps nothing: the values are in
// the widgets. Only fields that the manager uses are touched, and filling a combo box runs no slot. A new field of the
// record is one row in the constructor, besides its widgets. Texts of the manager are local 8-bit. GUI thread only.
class GFPQ_DEVICE_FORM
{
public:
    // The fields are connected to slots of `dialog`. All three must outlive the form object.
    GFPQ_DEVICE_FORM(const Ui::gfpq_dlg& ui, const GFPDB_MGR& manager, const QObject& dialog);

    // Once: fills and connects the used fields and takes the others out of the form.
    void set_up() const;
    // Lists again what the combo boxes offer. The chosen template stays if it is still there.
    void fill_choices() const;
    void fill_templates() const;

    void show(const GFPDB_FLASH& flash) const;
    // As for a device whose fields are hidden: no values and no choices.
    void show_nothing() const;
    // To be called after the choices were filled: a choice of one is none.
    void enable(bool new_device, bool editable) const;

    // What a field runs when the user commits its value: false after a warning.
    bool check(GFPDB_FLASH_PROPERTY property) const;
    GFPQ_TEMPLATE_CHOICE chosen_template() const;
    // Sets every value of the form in `draft`.
    void read(GFPQ_DEVICE_DRAFT& draft) const;

private:
    struct FIELD
    {
        GFPDB_FLASH_PROPERTY property;
        GFPQ_FIELD_KIND kind;
        QLabel* label;
        // The line edit of a text or a number, or the combo box of a choice; the other is null.
        QLineEdit* edit;
        QComboBox* combo;
        // Runs when the user commits the value.
        const char* slot;
        // What a combo box offers.
        std::vector<std::string>& (GFPDB_MGR::*choices)(std::vector<std::string>&) const = nullptr;
        // The property whose rule a committed value must meet.
        GFPDB_FLASH_PROPERTY rule = property;
    };

    template <typename WORK>
    void for_each_used(const WORK& work) const;
    static QWidget* editor_of(const FIELD& field);
    const FIELD& field_of(GFPDB_FLASH_PROPERTY property) const;
    GFPQ_CONNECTION commit_of(const FIELD& field) const;
    void set_up_template_row() const;
    void take_out(std::initializer_list<QWidget*> widgets) const;
    void take_out_template_row() const;
    static QString text_of(const FIELD& field);
    void fill(const FIELD& field) const;
    void select_fitting_voltage(const std::vector<std::string>& voltages) const;
    void show_choice(const FIELD& field, const QString& text) const;
    void clear(const FIELD& field) const;
    void enable_template_row(bool new_device, bool editable) const;

    const Ui::gfpq_dlg& m_ui;
    const GFPDB_MGR& m_manager;
    const QObject& m_dialog;
    const std::array<FIELD, 8> m_fields;
};
