// SPDX-License-Identifier: MIT

// What is done to the chip, and to which part of it.
#pragma once

#include "run/run_preparation.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSettings;

class ORDER_PANEL : public QWidget
{
    Q_OBJECT

public:
    ORDER_PANEL();

    // Fills order, extent and range of `wish`. False: address and length are not numbers.
    bool read(RUN_WISH& wish) const;

    void load(const QSettings& settings);
    void store(QSettings& settings) const;

private:
    QWidget* create_checks();
    QWidget* create_range_fields();
    void show_extent();
    RUN_EXTENT extent() const;

    QCheckBox* m_erase_check = nullptr;
    QCheckBox* m_blank_check = nullptr;
    QCheckBox* m_program_check = nullptr;
    QCheckBox* m_verify_check = nullptr;
    QCheckBox* m_examine_check = nullptr;
    QComboBox* m_extent_combo;
    QLineEdit* m_start_edit = nullptr;
    QLineEdit* m_length_edit = nullptr;
};
