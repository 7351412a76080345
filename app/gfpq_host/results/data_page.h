// SPDX-License-Identifier: MIT

// The page with the bytes that the last examine read.
#pragma once

#include "run/read_out.h"

#include <QWidget>

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

signals:
    // Something went wrong, in a sentence.
    void failed(const QString& problem);

private:
    QWidget* create_bar();
    void go_to_entered();
    // To the next place with differences, forwards or backwards.
    void go_to_difference(bool is_forwards);
    void save();
    void show_place();

    std::shared_ptr<READ_OUT> m_read_out;
    HEX_VIEW* m_view;
    QLabel* m_summary_label;
    QLabel* m_place_label;
    QLineEdit* m_address_edit = nullptr;
    QPushButton* m_previous_button = nullptr;
    QPushButton* m_next_button = nullptr;
    QPushButton* m_save_button = nullptr;
};
