// SPDX-License-Identifier: MIT
#include "flow/gfpq_flow_view.h"

#include "flow/gfpq_flow_items.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int NO_BLOCK = -1;

bool is_moving_key(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home || key == Qt::Key_End;
}

bool is_above(const QGraphicsItem* left, const QGraphicsItem* right)
{
    return left->sceneBoundingRect().top() < right->sceneBoundingRect().top();
}

// The part of `block` to show in a view of that width: of a wider one its middle, where the chain is.
QRectF middle_of(const QGraphicsItem& block, int view_width)
{
    QRectF middle = block.sceneBoundingRect();
    const double hidden = middle.width() - view_width / 2.0;
    if (hidden > 0.0)
        middle.adjust(hidden / 2.0, 0.0, -hidden / 2.0, 0.0);
    return middle;
}

// The drop zone of the first arrow that begins below `y`; null for none.
const QGraphicsItem* drop_zone_below(const QGraphicsScene& scene, double y)
{
    const QGraphicsItem* found = nullptr;
    const QList<QGraphicsItem*> items = scene.items();
    for (const QGraphicsItem* const item : items) {
        const auto* const arrow = dynamic_cast<const GFPQ_ARROW_POLYGON_ITEM*>(item);
        if (arrow == nullptr || arrow->sceneBoundingRect().center().y() < y)
            continue;
        if (found == nullptr || is_above(arrow->drop_zone(), found))
            found = arrow->drop_zone();
    }
    return found;
}

} // namespace

GFPQ_FLOW_VIEW::GFPQ_FLOW_VIEW(QGraphicsScene& scene, QWidget* parent, const QString& title, const QString& description)
    : QGraphicsView(&scene, parent)
{
    setBackgroundBrush(GFPQ_PAPER_COLOR);
    setAlignment(Qt::AlignCenter);
    setAccessibleName(QCoreApplication::translate("gfpq_dlg", "%1: flow chart").arg(title));
    setAccessibleDescription(description);
}

// Not by the scroll bars: a hidden view scrolls to its centre point when it is shown.
void GFPQ_FLOW_VIEW::show_top()
{
    centerOn(sceneRect().center().x(), 0.0);
}

void GFPQ_FLOW_VIEW::center_horizontally()
{
    QScrollBar& bar = *horizontalScrollBar();
    bar.setValue((bar.minimum() + bar.maximum()) / 2);
}

void GFPQ_FLOW_VIEW::keyPressEvent(QKeyEvent* event)
{
    if (!move(*event))
        QGraphicsView::keyPressEvent(event);
}

void GFPQ_FLOW_VIEW::contextMenuEvent(QContextMenuEvent* event)
{
    if (!open_menu(*event))
        QGraphicsView::contextMenuEvent(event);
}

QList<QGraphicsItem*> GFPQ_FLOW_VIEW::blocks() const
{
    QList<QGraphicsItem*> found;
    const QList<QGraphicsItem*> items = scene()->items();
    for (QGraphicsItem* const item : items) {
        if (item->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            found.append(item);
    }
    std::sort(found.begin(), found.end(), is_above);
    return found;
}

bool GFPQ_FLOW_VIEW::move(const QKeyEvent& event)
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
        scene()->clearSelection();
    if (m_place != NO_BLOCK) {
        chain.at(m_place)->setSelected(true);
        ensureVisible(middle_of(*chain.at(m_place), viewport()->width()));
    }
    return true;
}

// The user may have clicked another block since.
void GFPQ_FLOW_VIEW::follow_selection(const QList<QGraphicsItem*>& chain)
{
    if (m_place >= 0 && m_place < chain.size() && chain.at(m_place)->isSelected())
        return;
    for (int i = 0; i < chain.size(); ++i) {
        if (chain.at(i)->isSelected())
            m_place = i;
    }
}

int GFPQ_FLOW_VIEW::place_after(int key, int last) const
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

bool GFPQ_FLOW_VIEW::open_menu(const QContextMenuEvent& event)
{
    if (event.reason() != QContextMenuEvent::Keyboard)
        return false;
    double bottom = sceneRect().top();
    const QList<QGraphicsItem*> selected = scene()->selectedItems();
    for (const QGraphicsItem* const item : selected)
        bottom = std::max(bottom, item->sceneBoundingRect().bottom());
    const QGraphicsItem* const zone = drop_zone_below(*scene(), bottom);
    if (zone == nullptr)
        return false;

    ensureVisible(zone);
    const QPoint place = mapFromScene(zone->sceneBoundingRect().center());
    QContextMenuEvent at_arrow(QContextMenuEvent::Other, place, viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport(), &at_arrow);
    return true;
}
