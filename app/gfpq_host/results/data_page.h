// SPDX-License-Identifier: MIT

// The page with the bytes that the last examine read.
#pragma once

#include "run/read_out.h"

#include <QWidget>

#include <functional>
#include <memory>

class HEX_VIEW;
class QLabel;
class QLineEdit;
class QPushButton;

class DATA_PAGE : public QWidget
{
    Q_OBJECT

public:
    DATA_PAGE();

    // Shows what was read; null for nothing.
    void show_read_out(const std::shared_ptr<READ_OUT>& read_out);
    // Who says which file keeps the emulated chip, so that nothing else is saved into it; empty for none.
    void set_chip_file_source(std::function<QString()> source) { m_chip_file = std::move(source); }

signals:
    // Something went wrong, in a sentence.
    void failed(const QString& problem);

private:
    QWidget* create_bar();
    void go_to_entered();
    // To the next place with differences, forwards or backwards.
    void go_to_difference(bool is_forwards);
    void save();
    QString save_into(const QString& file);
    void show_place();

    std::shared_ptr<READ_OUT> m_read_out;
    std::function<QString()> m_chip_file;
    HEX_VIEW* m_view;
    QLabel* m_summary_label;
    QLabel* m_place_label;
    QLineEdit* m_address_edit = nullptr;
    QPushButton* m_previous_button = nullptr;
    QPushButton* m_next_button = nullptr;
    QPushButton* m_save_button = nullptr;
};
