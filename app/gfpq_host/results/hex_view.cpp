// SPDX-License-Identifier: MIT
#include "results/hex_view.h"

#include "run/number_text.h"

#include <QColor>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

// In characters.
constexpr int ADDRESS_WIDTH = 12;
constexpr int BYTE_WIDTH = 3;
constexpr int GAP_WIDTH = 2;
constexpr int HALF_ROW = HEX_VIEW::BYTES_A_ROW / 2;
constexpr int TEXT_START = ADDRESS_WIDTH + HEX_VIEW::BYTES_A_ROW * BYTE_WIDTH + 2 * GAP_WIDTH;
constexpr int ROW_WIDTH = TEXT_START + HEX_VIEW::BYTES_A_ROW + 1;
constexpr int MARGIN = 4;
constexpr int HEXADECIMAL = 16;
constexpr int LOWEST_PRINTABLE = 0x20;
constexpr int HIGHEST_PRINTABLE = 0x7E;
const QColor DIFFERENT_BACKGROUND(255, 214, 214);
const QColor DIFFERENT_TEXT(110, 0, 0);

QString byte_text(std::uint8_t byte)
{
    return QString::number(byte, HEXADECIMAL).toUpper().rightJustified(2, QLatin1Char('0'));
}

QString character_text(std::uint8_t byte)
{
    return byte >= LOWEST_PRINTABLE && byte <= HIGHEST_PRINTABLE ? QString(QLatin1Char(static_cast<char>(byte)))
                                                                 : QStringLiteral(".");
}

} // namespace

struct HEX_VIEW::ROW
{
    // Of the first byte in the row; bytes that were not read have no text.
    std::int64_t position;
    int first_column;
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint8_t> expected;

    bool has(int column) const
    {
        return column >= first_column && column - first_column < static_cast<int>(bytes.size());
    }
    std::uint8_t byte(int column) const { return bytes[static_cast<std::size_t>(column - first_column)]; }
    bool is_different(int column) const
    {
        const auto place = static_cast<std::size_t>(column - first_column);
        return place < expected.size() && expected[place] != bytes[place];
    }
};

HEX_VIEW::HEX_VIEW()
{
    setFocusPolicy(Qt::StrongFocus);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    measure();
}

void HEX_VIEW::show_read_out(std::shared_ptr<READ_OUT> read_out)
{
    m_read_out = std::move(read_out);
    m_position = m_read_out ? m_read_out->range().start : -1;
    verticalScrollBar()->setValue(0);
    measure();
    viewport()->update();
    emit position_changed();
}

std::int64_t HEX_VIEW::first_row_position() const
{
    const std::int64_t start = m_read_out ? m_read_out->range().start : 0;
    return start / BYTES_A_ROW * BYTES_A_ROW;
}

std::int64_t HEX_VIEW::top_position() const
{
    return first_row_position() + std::int64_t{verticalScrollBar()->value()} * BYTES_A_ROW;
}

int HEX_VIEW::rows_in_sight() const
{
    return std::max(1, viewport()->height() / m_row_height);
}

// The rows of 4 GiB are as many as a scroll bar can count.
void HEX_VIEW::measure()
{
    m_character_width = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    m_row_height = fontMetrics().height() + 2;
    std::int64_t rows = 0;
    if (m_read_out)
        rows = (m_read_out->range().end() - first_row_position() + BYTES_A_ROW - 1) / BYTES_A_ROW;
    verticalScrollBar()->setPageStep(rows_in_sight());
    verticalScrollBar()->setRange(0, static_cast<int>(std::max<std::int64_t>(0, rows - rows_in_sight())));
    const int width = ROW_WIDTH * m_character_width + 2 * MARGIN;
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
}

void HEX_VIEW::go_to(std::int64_t position)
{
    if (!m_read_out)
        return;
    const GFPE_RANGE range = m_read_out->range();
    m_position = std::clamp(position, range.start, range.end() - 1);
    const std::int64_t row = (m_position - first_row_position()) / BYTES_A_ROW;
    const std::int64_t top = verticalScrollBar()->value();
    if (row < top || row >= top + rows_in_sight())
        verticalScrollBar()->setValue(static_cast<int>(row < top ? row : row - rows_in_sight() + 1));
    viewport()->update();
    emit position_changed();
}

QRect HEX_VIEW::hex_place(int column, int y) const
{
    const int characters = ADDRESS_WIDTH + column * BYTE_WIDTH + (column >= HALF_ROW ? 1 : 0);
    return {MARGIN - horizontalScrollBar()->value() + characters * m_character_width, y, 2 * m_character_width,
            m_row_height};
}

QRect HEX_VIEW::text_place(int column, int y) const
{
    return {MARGIN - horizontalScrollBar()->value() + (TEXT_START + column) * m_character_width, y, m_character_width,
            m_row_height};
}

// What differs is marked by colour and by bold letters.
void HEX_VIEW::draw_byte(QPainter& painter, const QRect& place, const QString& text, const ROW& row, int column) const
{
    const bool is_current = row.position + column == m_position;
    const bool is_different = row.is_different(column);
    QFont font = painter.font();
    font.setBold(is_different);
    painter.setFont(font);
    if (is_different)
        painter.fillRect(place, DIFFERENT_BACKGROUND);
    else if (is_current)
        painter.fillRect(place, palette().highlight());
    painter.setPen(is_different ? DIFFERENT_TEXT
                                : palette().color(is_current ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(place, Qt::AlignCenter, text);
    if (is_current && is_different) {
        painter.setPen(DIFFERENT_TEXT);
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
}

void HEX_VIEW::draw_row(QPainter& painter, const ROW& row, int y) const
{
    QFont plain = painter.font();
    plain.setBold(false);
    painter.setFont(plain);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(MARGIN - horizontalScrollBar()->value(), y, ADDRESS_WIDTH * m_character_width, m_row_height),
                     Qt::AlignLeft | Qt::AlignVCenter, position_text(row.position));
    for (int column = 0; column < BYTES_A_ROW; ++column) {
        if (!row.has(column))
            continue;
        draw_byte(painter, hex_place(column, y), byte_text(row.byte(column)), row, column);
        draw_byte(painter, text_place(column, y), character_text(row.byte(column)), row, column);
    }
}

void HEX_VIEW::paintEvent(QPaintEvent*)
{
    if (!m_read_out)
        return;
    QPainter painter(viewport());
    painter.setFont(font());
    const GFPE_RANGE range = m_read_out->range();
    std::int64_t position = top_position();
    for (int y = 0; y < viewport()->height() && position < range.end(); y += m_row_height, position += BYTES_A_ROW) {
        const std::int64_t start = std::max(position, range.start);
        const auto length = static_cast<std::size_t>(std::min(position + BYTES_A_ROW, range.end()) - start);
        draw_row(painter,
                 {position, static_cast<int>(start - position), m_read_out->read(start, length),
                  m_read_out->read_expected(start, length)},
                 y);
    }
}

void HEX_VIEW::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    measure();
}

void HEX_VIEW::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void HEX_VIEW::keyPressEvent(QKeyEvent* event)
{
    const std::int64_t page = std::int64_t{rows_in_sight()} * BYTES_A_ROW;
    if (event->matches(QKeySequence::MoveToNextChar))
        go_to(m_position + 1);
    else if (event->matches(QKeySequence::MoveToPreviousChar))
        go_to(m_position - 1);
    else if (event->matches(QKeySequence::MoveToNextLine))
        go_to(m_position + BYTES_A_ROW);
    else if (event->matches(QKeySequence::MoveToPreviousLine))
        go_to(m_position - BYTES_A_ROW);
    else if (event->matches(QKeySequence::MoveToNextPage))
        go_to(m_position + page);
    else if (event->matches(QKeySequence::MoveToPreviousPage))
        go_to(m_position - page);
    else if (event->matches(QKeySequence::MoveToStartOfLine) || event->matches(QKeySequence::MoveToStartOfDocument))
        go_to(0);
    else if (event->matches(QKeySequence::MoveToEndOfLine) || event->matches(QKeySequence::MoveToEndOfDocument))
        go_to(m_read_out ? m_read_out->range().end() : 0);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void HEX_VIEW::mousePressEvent(QMouseEvent* event)
{
    if (!m_read_out || event->y() < 0)
        return;
    const int row = event->y() / m_row_height;
    for (int column = 0; column < BYTES_A_ROW; ++column) {
        const int y = row * m_row_height;
        if (hex_place(column, y).contains(event->pos()) || text_place(column, y).contains(event->pos()))
            go_to(top_position() + std::int64_t{row} * BYTES_A_ROW + column);
    }
}
