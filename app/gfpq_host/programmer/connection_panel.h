// SPDX-License-Identifier: MIT

// Where the chip is: emulated, behind a network, or on a serial line.
#pragma once

#include "gfpe/gfpe_connection.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLineEdit;
class QSettings;
class QSpinBox;

class CONNECTION_PANEL : public QWidget
{
    Q_OBJECT

public:
    CONNECTION_PANEL();

    // What is entered; none when something is missing or wrong: `problem` says what.
    std::optional<GFPE_CONNECTION> connection(QString& problem) const;

    // The file that keeps the contents of the emulated chip; empty when there is none.
    QString chip_file() const;

    void load(const QSettings& settings);
    void store(QSettings& settings) const;

signals:
    // The user wants to know which device is there.
    void detect_asked();

private:
    QWidget* create_emulated_page();
    QWidget* create_network_page();
    QWidget* create_serial_page();
    QWidget* create_clock_page();
    std::optional<int> clock() const;
    void show_kind();
    void list_ports();
    void browse();

    QComboBox* m_kind_combo;
    QLineEdit* m_contents_edit = nullptr;
    QLineEdit* m_host_edit = nullptr;
    QSpinBox* m_port_spin = nullptr;
    QComboBox* m_line_combo = nullptr;
    QComboBox* m_baud_combo = nullptr;
    QLineEdit* m_clock_edit = nullptr;
    // By kind, and what all programmers have; made last.
    QWidget* m_pages[3];
    QWidget* m_clock_page;
};
