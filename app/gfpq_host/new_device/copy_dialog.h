// SPDX-License-Identifier: MIT

// A new device as the copy of another one.
#pragma once

#include "dialog/host_offer.h"
#include "new_device/device_sources.h"
#include "program/host_arguments.h"

#include <QDialog>

class PLACE_FIELDS;
class PROBLEM_LINE;
class QComboBox;
class QLineEdit;

class COPY_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // Begins with the device, family and mode of `choice`. `offer` must outlive the dialog.
    COPY_DIALOG(QWidget* parent, const HOST_OFFER& offer, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice);

    // The device that was stored when the dialog was accepted.
    const GFPDB_RECORD& device() const { return m_device; }

    // Stores the copy and closes, or says why it cannot be stored.
    void accept() override;

private:
    void check_name();
    // The name, family and mode that are entered.
    GFPDB_ROW place() const;
    std::optional<GFPDB_RECORD> make_copy(int source, QString& problem);

    const DEVICE_SOURCES m_sources;
    // What the problem that is shown is about.
    GFPDB_ROW m_checked;
    GFPDB_RECORD m_device;
    QComboBox* m_source_combo;
    QLineEdit* m_name_edit;
    PLACE_FIELDS* m_place = nullptr;
    PROBLEM_LINE* m_problem;
};
