// SPDX-License-Identifier: MIT

// What is chosen, which database it comes from, and the way to the dialog.
#pragma once

#include "dialog/host_offer.h"
#include "program/host_arguments.h"
#include "program/host_choice.h"

#include <QWidget>

class MODULE_LOADER;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// The family and the mode are chosen here, because one opening of the dialog offers modes of one kind only.
class DEVICE_PANEL : public QWidget
{
    Q_OBJECT

public:
    // Opens the dialog of `module` (not owned, must outlive the panel) with `options`, first with what comes nearest
    // to `choice`.
    DEVICE_PANEL(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice);
    ~DEVICE_PANEL() override;

    const HOST_CHOICE& choice() const { return m_choice; }
    // HOST_OFFER::choice_for() with the choice here.
    HOST_CHOICE choice_for(const GFPDB_RECORD& device) const { return m_offer.choice_for(device, m_choice); }
    // Makes what comes nearest to `wanted` the choice, as if the user had chosen it.
    void choose(const HOST_CHOICE& wanted);
    // Another directory is the database's.
    void read_again();
    // As open_dialog(), over another window.
    void open_dialog_over(QWidget* parent);

public slots:
    // Opens the dialog and returns when it was closed. A module that cannot be used is reported in a box.
    void open_dialog();

signals:
    // The user has chosen, here or in the dialog, which was closed; `choice()` is what it returned.
    void choice_changed();

private slots:
    void choose_family();
    void choose_mode();

private:
    QComboBox* add_combo(QFormLayout* rows, const QString& title, const QString& object_name);
    QLineEdit* add_field(QFormLayout* rows, const QString& title, const QString& object_name);
    QWidget* create_problem_row();
    void create_contents();
    void show_state();
    void show_choice();

    MODULE_LOADER& m_module;
    const DIALOG_OPTIONS m_options;
    const HOST_OFFER m_offer;
    // What the user last asked for, and what of it there is: a device that the family on the way does not have is there
    // again on the way back.
    HOST_CHOICE m_wanted;
    HOST_CHOICE m_choice;
    QComboBox* m_family_combo = nullptr;
    QComboBox* m_mode_combo = nullptr;
    QLineEdit* m_device_field = nullptr;
    QLineEdit* m_directory_field = nullptr;
    QWidget* m_problem_row = nullptr;
    QLabel* m_problem_label = nullptr;
};
