// SPDX-License-Identifier: MIT

// What happened, line by line.
#pragma once

#include <QPlainTextEdit>

class RUN_LOG : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int MOST_LINES = 10000;

    RUN_LOG();

    // Adds a line, with the time of day. A line with line breaks is several lines.
    void add(const QString& text);
};
