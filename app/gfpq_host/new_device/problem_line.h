// SPDX-License-Identifier: MIT

// A sentence that says what is wrong, with its sign; nothing while nothing is.
#pragma once

#include <QWidget>

class QLabel;

class PROBLEM_LINE : public QWidget
{
    Q_OBJECT

public:
    // The label gets the object name.
    explicit PROBLEM_LINE(const QString& object_name);

    // Shows `problem`; empty for nothing. A screen reader says it if it is new.
    void show_problem(const QString& problem);

private:
    QLabel* m_label;
};
