// SPDX-License-Identifier: MIT
#include "flow/gfpq_flow_view.h"

#include "flow/gfpq_flow_items.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int NO_BLOCK = -1;

bool is_moving_key(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home || key == Qt::Key_End;
}

bool stands_above(const QGraphicsItem* left, const QGraphicsItem* right)
{
    return left->sceneBoundingRect().top() < right->sceneBoundingRect().top();
}

// What of `block` is to be seen in a view of that width: of one that is wider, its middle, where the chain runs.
QRectF middle_of(const QGraphicsItem& block, int view_width)
{
    QRectF middle = block.sceneBoundingRect();
    const double hidden = middle.width() - view_width / 2.0;
    if (hidden > 0.0)
        middle.adjust(hidden / 2.0, 0.0, -hidden / 2.0, 0.0);
    return middle;
}

// The drop zone of the first arrow that begins below `y`; null when there is none.
const QGraphicsItem* drop_zone_below(const QGraphicsScene& scene, double y)
{
    const QGraphicsItem* found = nullptr;
    const QList<QGraphicsItem*> items = scene.items();
    for (const QGraphicsItem* const item : items) {
        const auto* const arrow = dynamic_cast<const GFPQ_ARROW_POLYGON_ITEM*>(item);
        if (arrow == nullptr || arrow->sceneBoundingRect().center().y() < y)
            continue;
        if (found == nullptr || stands_above(arrow->drop_zone(), found))
            found = arrow->drop_zone();
    }
    return found;
}

} // namespace

GFPQ_FLOW_KEYBOARD::GFPQ_FLOW_KEYBOARD(QGraphicsView& view) : QObject(&view), m_view(view)
{
    view.installEventFilter(this);
}

bool GFPQ_FLOW_KEYBOARD::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && move(*static_cast<QKeyEvent*>(event)))
        return true;
    if (event->type() == QEvent::ContextMenu && open_menu(*static_cast<QContextMenuEvent*>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

QList<QGraphicsItem*> GFPQ_FLOW_KEYBOARD::blocks() const
{
    QList<QGraphicsItem*> found;
    const QList<QGraphicsItem*> items = m_view.scene()->items();
    for (QGraphicsItem* const item : items) {
        if (item->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            found.append(item);
    }
    std::sort(found.begin(), found.end(), stands_above);
    return found;
}

bool GFPQ_FLOW_KEYBOARD::move(const QKeyEvent& event)
{
    const bool extends = event.modifiers() == Qt::ShiftModifier;
    if (!is_moving_key(event.key()) || (!extends && event.modifiers() != Qt::NoModifier))
        return false;
    const QList<QGraphicsItem*> chain = blocks();
    if (chain.isEmpty())
        return false;

    follow_selection(chain);
    m_place = place_after(event.key(), chain.size() - 1);
    if (!extends)
        m_view.scene()->clearSelection();
    if (m_place != NO_BLOCK) {
        chain.at(m_place)->setSelected(true);
        m_view.ensureVisible(middle_of(*chain.at(m_place), m_view.viewport()->width()));
    }
    return true;
}

// A click may have gone elsewhere meanwhile.
void GFPQ_FLOW_KEYBOARD::follow_selection(const QList<QGraphicsItem*>& chain)
{
    if (m_place >= 0 && m_place < chain.size() && chain.at(m_place)->isSelected())
        return;
    for (int i = 0; i < chain.size(); ++i) {
        if (chain.at(i)->isSelected())
            m_place = i;
    }
}

int GFPQ_FLOW_KEYBOARD::place_after(int key, int last) const
{
    switch (key) {
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    case Qt::Key_Down:
        return std::min(m_place + 1, last);
    default:
        return qBound(NO_BLOCK, m_place - 1, last);
    }
}

bool GFPQ_FLOW_KEYBOARD::open_menu(const QContextMenuEvent& event)
{
    if (event.reason() != QContextMenuEvent::Keyboard)
        return false;
    double bottom = m_view.sceneRect().top();
    const QList<QGraphicsItem*> selected = m_view.scene()->selectedItems();
    for (const QGraphicsItem* const item : selected)
        bottom = std::max(bottom, item->sceneBoundingRect().bottom());
    const QGraphicsItem* const zone = drop_zone_below(*m_view.scene(), bottom);
    if (zone == nullptr)
        return false;

    m_view.ensureVisible(zone);
    const QPoint place = m_view.mapFromScene(zone->sceneBoundingRect().center());
    QContextMenuEvent at_arrow(QContextMenuEvent::Other, place, m_view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_view.viewport(), &at_arrow);
    return true;
}
