// SPDX-License-Identifier: MIT
#include "gfpc_chart.h"

#include "flow/gfpq_flow_items.h"
#include "gfpc_font.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_action.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

// From the middle of an arrow to the words beside it.
constexpr double MARK_DISTANCE = 24.0;
// From the words to the block below.
constexpr double MARK_GAP = 2.0;
// The middle of an arrow, from the shape that it points at: below the words of the shape above, above those of this.
constexpr double HALF_ARROW = 32.5;

// A chart has room for its name with a number of two digits.
constexpr int WIDEST_NUMBER = 88;

constexpr double MARK_SIZE = 0.85;
constexpr double NAME_SIZE = 1.25;

QFont mark_font()
{
    return gfpc_font(MARK_SIZE);
}

QFont name_font()
{
    return gfpc_font(NAME_SIZE, QFont::Bold);
}

// The text of a shape of the chain; null for arrows, connectors and loose labels.
const GFPQ_GRAPHICS_TEXT_ITEM* text_of(const QGraphicsItem& item)
{
    const QList<QGraphicsItem*> children = item.childItems();
    return children.isEmpty() ? nullptr : dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(children.constFirst());
}

} // namespace

GFPC_CHART::GFPC_CHART(int operation, const std::vector<GFPDB_ACTION*>& actions)
    : m_scene(nullptr, operation), m_name(gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation]))
{
    m_scene.set_editable(false);
    m_scene.append_copies(actions);
    m_scene.create_flow_chain();
    measure();
}

// Nobody drops anything on paper: the zones for that do not count.
void GFPC_CHART::measure()
{
    std::vector<double> tops;
    const QList<QGraphicsItem*> items = m_scene.items(Qt::AscendingOrder);
    for (QGraphicsItem* const item : items) {
        if (item->parentItem())
            continue;
        if (auto* arrow = dynamic_cast<GFPQ_ARROW_POLYGON_ITEM*>(item))
            arrow->drop_zone()->hide();
        const QRectF place = item->sceneBoundingRect();
        m_extent |= place;
        const GFPQ_GRAPHICS_TEXT_ITEM* text = text_of(*item);
        if (!text)
            continue;
        tops.push_back(place.top());
        if (text->action())
            add_mark(place, *text->action());
    }
    for (const MARK& mark : m_marks)
        m_extent |= mark.place;
    std::sort(tops.begin(), tops.end());
    for (std::size_t at = 1; at < tops.size(); ++at)
        m_column.breaks.push_back(tops[at] - HALF_ARROW - m_extent.top());
    m_column.height = m_extent.height();
    m_column.width = std::max(m_extent.width(), QFontMetricsF(name_font()).horizontalAdvance(name_of(WIDEST_NUMBER)));
}

void GFPC_CHART::add_mark(const QRectF& shape, const GFPDB_ACTION& action)
{
    const QList<GFPDB_ACTION*>& actions = m_scene.get_actions();
    const auto number = std::find(actions.cbegin(), actions.cend(), &action) - actions.cbegin() + 1;
    MARK mark;
    mark.text =
        QStringLiteral("%1 %2").arg(number).arg(gfpq_from_utf8(GFPQ_ACTION_TYPE_NAMES[action.get_action_type()]));
    const QFontMetricsF metrics(mark_font());
    mark.place.setSize(QSizeF(metrics.horizontalAdvance(mark.text), metrics.height()));
    mark.place.moveBottomRight(QPointF(shape.center().x() - MARK_DISTANCE, shape.top() - MARK_GAP));
    m_marks.push_back(mark);
}

// "Program", "Program (2)" where it goes on.
QString GFPC_CHART::name_of(int piece) const
{
    return piece > 1 ? QStringLiteral("%1 (%2)").arg(m_name).arg(piece) : m_name;
}

void GFPC_CHART::draw(QPainter& painter, const GFPC_PIECE& piece)
{
    painter.save();
    painter.setPen(Qt::black);
    painter.setFont(name_font());
    painter.drawText(QPointF(0.0, QFontMetricsF(painter.font()).ascent()), name_of(piece.number));
    const QRectF source(m_extent.left(), m_extent.top() + piece.top, m_extent.width(), piece.bottom - piece.top);
    m_scene.render(&painter, QRectF(QPointF(0.0, GFPC_TITLE_HEIGHT), source.size()), source);
    painter.translate(-source.left(), GFPC_TITLE_HEIGHT - source.top());
    painter.setFont(mark_font());
    const double ascent = QFontMetricsF(painter.font()).ascent();
    for (const MARK& mark : m_marks) {
        if (source.contains(mark.place.center()))
            painter.drawText(mark.place.topLeft() + QPointF(0.0, ascent), mark.text);
    }
    painter.restore();
}
