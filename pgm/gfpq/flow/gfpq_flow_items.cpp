// SPDX-License-Identifier: MIT
#include "flow/gfpq_flow_items.h"

#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include <QApplication>
#include <QBrush>
#include <QCursor>
#include <QDrag>
#include <QGraphicsSceneMouseEvent>
#include <QLineF>
#include <QMimeData>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QWidget>

namespace {

// How far a drop zone reaches beyond the head of its arrow, on either side.
constexpr double DROP_ZONE_MARGIN = 18.0;

constexpr const char* PALETTE_LABELS[GFPQ_COLORED_TYPE_COUNT] = {"WR", "RR", "WD", "RD", "E"};
constexpr double PALETTE_ENTRY_WIDTH = 60.0;
constexpr double PALETTE_ENTRY_HEIGHT = 40.0;

constexpr int DRAG_PIXMAP_WIDTH = 120;
constexpr int DRAG_PIXMAP_HEIGHT = 20;
// Runs past the right edge of the pixmap on purpose; the rest is clipped.
constexpr QRectF DRAG_TEXT_RECT(10.0, 0.0, 115.0, 20.0);

bool has_color(int type)
{
    return type >= 0 && type < GFPQ_COLORED_TYPE_COUNT;
}

} // namespace

GFPQ_GRAPHICS_TEXT_ITEM::GFPQ_GRAPHICS_TEXT_ITEM(const QString& text, GFPDB_ACTION* action)
    : QGraphicsTextItem(text), m_action(action)
{
    setDefaultTextColor(Qt::black);
}

GFPQ_GRAPHICS_TEXT_ITEM::~GFPQ_GRAPHICS_TEXT_ITEM() = default;

GFPDB_ACTION* gfpq_action_of(const QGraphicsItem& block)
{
    return static_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(block.childItems().constFirst())->action();
}

GFPQ_ARROW_POLYGON_ITEM::GFPQ_ARROW_POLYGON_ITEM(const QPolygonF& polygon, bool accept_drops)
    : QGraphicsPolygonItem(polygon)
{
    QRectF zone = polygon.boundingRect();
    zone.setLeft(zone.left() - DROP_ZONE_MARGIN);
    zone.setRight(zone.right() + DROP_ZONE_MARGIN);
    m_drop_zone = new QGraphicsRectItem(zone);
    m_drop_zone->setAcceptDrops(accept_drops);
    m_drop_zone->setBrush(QBrush(Qt::transparent, Qt::SolidPattern));
    m_drop_zone->setPen(QPen(Qt::transparent));
    m_drop_zone->setParentItem(this);
}

GFPQ_ARROW_POLYGON_ITEM::~GFPQ_ARROW_POLYGON_ITEM() = default;

GFPQ_ACTION_MENU_ITEM::GFPQ_ACTION_MENU_ITEM(int type) : m_type(type)
{
    QString label;
    if (has_color(type)) {
        m_color = ACTION_TYPE_COLORS[type];
        label = gfpq_from_utf8(PALETTE_LABELS[type]);
        // An entry without a colour is not filled: a solid brush of an invalid colour would paint black.
        setBrush(QBrush(m_color, Qt::SolidPattern));
    }
    auto* const text = new QGraphicsTextItem(label);
    text->setDefaultTextColor(Qt::black);
    const QRectF extent = text->boundingRect();
    text->setPos(PALETTE_ENTRY_WIDTH * 0.5 - extent.width() * 0.5, PALETTE_ENTRY_HEIGHT * 0.5 - extent.height() * 0.5);
    text->setParentItem(this);
    setRect(0.0, 0.0, PALETTE_ENTRY_WIDTH, PALETTE_ENTRY_HEIGHT);
    setToolTip(type_name());
    setCursor(Qt::OpenHandCursor);
    setAcceptedMouseButtons(Qt::LeftButton);
}

GFPQ_ACTION_MENU_ITEM::~GFPQ_ACTION_MENU_ITEM() = default;

QString GFPQ_ACTION_MENU_ITEM::type_name() const
{
    const bool is_type = m_type >= 0 && m_type < GFPDB_ACT_TYPE_COUNT;
    return is_type ? gfpq_from_utf8(GFPQ_ACTION_TYPE_NAMES[m_type]) : QString();
}

// Not passed to the base class: the press stays accepted, so that the item gets the moves that follow.
void GFPQ_ACTION_MENU_ITEM::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    Q_UNUSED(event)
    setCursor(Qt::ClosedHandCursor);
}

void GFPQ_ACTION_MENU_ITEM::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    const QLineF way(event->buttonDownScreenPos(Qt::LeftButton), event->screenPos());
    if (way.length() < QApplication::startDragDistance())
        return;

    // Qt deletes the drag when it is over, and the mime data with it.
    auto* const drag = new QDrag(event->widget());
    auto* const data = new QMimeData;
    data->setColorData(m_color);
    data->setText(type_name());
    drag->setMimeData(data);
    drag->setPixmap(drag_pixmap());
    drag->exec(Qt::MoveAction);
    setCursor(Qt::OpenHandCursor);
}

void GFPQ_ACTION_MENU_ITEM::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    Q_UNUSED(event)
    setCursor(Qt::OpenHandCursor);
}

QPixmap GFPQ_ACTION_MENU_ITEM::drag_pixmap() const
{
    QPixmap pixmap(DRAG_PIXMAP_WIDTH, DRAG_PIXMAP_HEIGHT);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, DRAG_PIXMAP_WIDTH, DRAG_PIXMAP_HEIGHT, QBrush(m_color, Qt::SolidPattern));
    painter.drawText(DRAG_TEXT_RECT, type_name());
    painter.end();
    return pixmap;
}
