// SPDX-License-Identifier: MIT

// The bytes that were read, with the differences to the file marked.
#pragma once

#include "run/read_out.h"

#include <QAbstractScrollArea>

#include <memory>

// Reads and draws the rows in sight alone, so a device of any size is shown at once.
class HEX_VIEW : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr int BYTES_A_ROW = 16;

    HEX_VIEW();

    // Shows what was read; null for nothing.
    void show_read_out(std::shared_ptr<READ_OUT> read_out);
    // The byte with the cursor; -1 when there are no bytes.
    std::int64_t position() const { return m_position; }
    // Moves the cursor to a byte and shows it; the nearest byte when it is not among those that were read.
    void go_to(std::int64_t position);

signals:
    void position_changed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct ROW;

    void measure();
    int rows_in_sight() const;
    // The position of the row at the top, which is a multiple of BYTES_A_ROW.
    std::int64_t first_row_position() const;
    std::int64_t top_position() const;
    void draw_row(QPainter& painter, const ROW& row, int y) const;
    void draw_byte(QPainter& painter, const QRect& place, const QString& text, const ROW& row, int column) const;
    QRect hex_place(int column, int y) const;
    QRect text_place(int column, int y) const;

    std::shared_ptr<READ_OUT> m_read_out;
    std::int64_t m_position = -1;
    int m_character_width = 1;
    int m_row_height = 1;
};
