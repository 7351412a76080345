// SPDX-License-Identifier: MIT

// GFPQ_FLOW_SCENE: the commands that edit the chain, by menu, keys, mouse and drops.
#include "flow/gfpq_flow_scene.h"

#include "flow/gfpq_action_copy.h"
#include "flow/gfpq_flow_items.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QAction>
#include <QCoreApplication>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <iterator>

namespace {

// The action type that a drag with this text inserts; -1 for none.
int type_of_text(const QString& text)
{
    const auto names_text = [&text](const char* name) { return gfpq_from_utf8(name) == text; };
    const auto name = std::find_if(std::begin(GFPQ_ACTION_TYPE_NAMES), std::end(GFPQ_ACTION_TYPE_NAMES), names_text);
    const bool found = name != std::end(GFPQ_ACTION_TYPE_NAMES);
    return found ? static_cast<int>(std::distance(std::begin(GFPQ_ACTION_TYPE_NAMES), name)) : -1;
}

} // namespace

// The index for an action inserted on the arrow at `y` is that of the shape above the arrow; Start is the first shape.
bool GFPQ_FLOW_SCENE::find_index_at(double y, int& index) const
{
    index = 0;
    for (const QGraphicsItem* const shape : m_shape_items) {
        if (shape == nullptr)
            continue;
        const double bottom = shape->y() + shape->boundingRect().height();
        if (bottom <= y && y <= bottom + ARROW_LENGTH)
            return true;
        ++index;
    }
    return false;
}

bool GFPQ_FLOW_SCENE::find_insert_index(int& index) const
{
    return find_index_at(m_menu_pos.y(), index);
}

// In Qt, texts accept drops by default, so accepting drops alone does not make an item an arrow.
bool GFPQ_FLOW_SCENE::is_insertion_point(const QPointF& position) const
{
    QGraphicsItem* const item = itemAt(position, QTransform());
    return item != nullptr && item->acceptDrops() && m_drop_zones.contains(item);
}

// An index past the end (the point can be below End) counts as the end.
bool GFPQ_FLOW_SCENE::insert_new_action(GFPDB_ACT_TYPE type, int index)
{
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    GFPDB_ACTION* const action = manager != nullptr ? manager->create_action(type) : nullptr;
    if (action == nullptr)
        return false;
    m_actions.insert(std::min(index, m_actions.size()), action);
    return true;
}

void GFPQ_FLOW_SCENE::insert_at_menu_pos(GFPDB_ACT_TYPE type)
{
    int index = 0;
    if (find_insert_index(index) && insert_new_action(type, index))
        create_flow_chain();
}

void GFPQ_FLOW_SCENE::on_insert_wr_action()
{
    insert_at_menu_pos(GFPDB_ACT_WRITE_REGISTER);
}

void GFPQ_FLOW_SCENE::on_insert_rr_action()
{
    insert_at_menu_pos(GFPDB_ACT_READ_REGISTER);
}

void GFPQ_FLOW_SCENE::on_insert_wd_action()
{
    insert_at_menu_pos(GFPDB_ACT_WRITE_DATA);
}

void GFPQ_FLOW_SCENE::on_insert_rd_action()
{
    insert_at_menu_pos(GFPDB_ACT_READ_DATA);
}

void GFPQ_FLOW_SCENE::on_insert_e_action()
{
    insert_at_menu_pos(GFPDB_ACT_ERASE);
}

void GFPQ_FLOW_SCENE::on_delete_action()
{
    bool deleted = false;
    const QList<QGraphicsItem*> selected = selectedItems();
    for (const QGraphicsItem* const item : selected) {
        GFPDB_ACTION* const action = item != nullptr ? gfpq_action_of(*item) : nullptr;
        if (action == nullptr || !m_actions.removeOne(action))
            continue;
        m_clipboard.removeOne(action);
        delete action;
        deleted = true;
    }
    if (deleted)
        create_flow_chain();
}

// The clipboard points at the actions; the next rebuild of any kind empties it.
void GFPQ_FLOW_SCENE::on_copy_action()
{
    m_clipboard.clear();
    const QList<QGraphicsItem*> selected = selectedItems();
    for (const QGraphicsItem* const item : selected) {
        GFPDB_ACTION* const action = item != nullptr ? gfpq_action_of(*item) : nullptr;
        if (action != nullptr)
            m_clipboard.append(action);
    }
}

void GFPQ_FLOW_SCENE::on_paste_action()
{
    int index = 0;
    if (!find_insert_index(index))
        return;
    index = std::min(index, m_actions.size());
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    for (const GFPDB_ACTION* const source : qAsConst(m_clipboard)) {
        GFPDB_ACTION* const copy = manager != nullptr ? gfpq_copy_action(*manager, *source) : nullptr;
        if (copy != nullptr)
            m_actions.insert(index++, copy);
    }
    create_flow_chain();
}

void GFPQ_FLOW_SCENE::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    const bool can_insert = is_insertion_point(event->scenePos());
    if (can_insert)
        m_menu_pos = event->scenePos();
    const bool can_paste = can_insert && !m_clipboard.isEmpty();
    const bool has_selection = !selectedItems().isEmpty();

    QMenu menu;
    if (has_selection)
        menu.addAction(m_copy_action);
    if (can_paste)
        menu.addAction(m_paste_action);
    if (has_selection || can_paste)
        menu.addSeparator();
    if (can_insert) {
        QMenu* const insert_menu = menu.addMenu(QCoreApplication::translate("gfpq_dlg", "Insert"));
        // Read Register first on purpose, as in the palette.
        insert_menu->addActions(
            {m_insert_rr_action, m_insert_wr_action, m_insert_wd_action, m_insert_rd_action, m_insert_e_action});
        menu.addSeparator();
    }
    menu.addAction(m_refresh_action);
    if (has_selection)
        menu.addAction(m_delete_action);
    menu.exec(event->screenPos());
}

// Presses of other buttons than the left one are dropped: a right press never changes the selection.
void GFPQ_FLOW_SCENE::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->accept();
        return;
    }
    m_paste_armed = 0;
    if (is_insertion_point(event->scenePos())) {
        m_paste_armed = 1;
        m_menu_pos = event->scenePos();
    }
    if (m_clipboard.isEmpty())
        m_paste_armed = 0;
    QGraphicsScene::mousePressEvent(event);
}

void GFPQ_FLOW_SCENE::keyPressEvent(QKeyEvent* event)
{
    const bool has_selection = !selectedItems().isEmpty();
    const bool has_control = event->modifiers().testFlag(Qt::ControlModifier);
    if (event->key() == Qt::Key_Delete && has_selection)
        on_delete_action();
    if (has_control && event->key() == Qt::Key_C && has_selection)
        on_copy_action();
    if (has_control && event->key() == Qt::Key_V && m_paste_armed != 0)
        on_paste_action();
    if (event->key() == Qt::Key_F5)
        create_flow_chain();
    QGraphicsScene::keyPressEvent(event);
}

void GFPQ_FLOW_SCENE::dropEvent(QGraphicsSceneDragDropEvent* event)
{
    event->acceptProposedAction();
    const QMimeData* const data = event->mimeData();
    const int type = data != nullptr && data->hasText() ? type_of_text(data->text()) : -1;
    int index = 0;
    if (type >= 0 && find_index_at(event->scenePos().y(), index) &&
        insert_new_action(static_cast<GFPDB_ACT_TYPE>(type), index))
        create_flow_chain();
    QGraphicsScene::dropEvent(event);
}
