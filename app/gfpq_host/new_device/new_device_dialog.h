// SPDX-License-Identifier: MIT

// The page of a new device: its values with their sources, warnings, and the listed parts with its ID.
#pragma once

#include "dialog/host_offer.h"
#include "new_device/new_device_draft.h"
#include "program/host_arguments.h"

#include <QDialog>

class PLACE_FIELDS;
class PROBLEM_LINE;
class QPlainTextEdit;
class VALUE_FIELDS;

class NEW_DEVICE_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // `draft` and `offer` must outlive the dialog.
    NEW_DEVICE_DIALOG(QWidget* parent, NEW_DEVICE_DRAFT& draft, const HOST_OFFER& offer, const DIALOG_OPTIONS& options);

    // The device that was stored when the dialog was accepted.
    const GFPDB_RECORD& device() const { return m_device; }

    // Stores the device and closes, or says why it cannot be stored. What follows from a text that was entered at last
    // is shown first.
    void accept() override;

private:
    QWidget* create_values(const HOST_OFFER& offer, const DIALOG_OPTIONS& options);
    QWidget* create_remarks();
    QWidget* create_buttons();
    void show_remarks();
    void take_place();
    void save_read_out();

    NEW_DEVICE_DRAFT& m_draft;
    GFPDB_RECORD m_device;
    VALUE_FIELDS* m_values = nullptr;
    PLACE_FIELDS* m_place = nullptr;
    PROBLEM_LINE* m_problem = nullptr;
    QPlainTextEdit* m_warnings = nullptr;
    QPlainTextEdit* m_parts = nullptr;
};
