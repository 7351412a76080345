// SPDX-License-Identifier: MIT
#include "flow/gfpq_flow_scene.h"

#include "flow/gfpq_action_copy.h"
#include "flow/gfpq_flow_items.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"

#include <QAction>
#include <QPen>

namespace {

constexpr double SELECTED_PEN_WIDTH = 2.0;
constexpr double BOTTOM_MARGIN = 15.0;

} // namespace

GFPQ_FLOW_SCENE::GFPQ_FLOW_SCENE(QObject* parent, int operation) : QGraphicsScene(parent)
{
    Q_UNUSED(operation)
    clear_actions(true);
    kovq_safe_connect(this, SIGNAL(selectionChanged()), this, SLOT(on_selection()));
    kovq_safe_connect(this, SIGNAL(sceneRectChanged(const QRectF&)), this, SLOT(on_change_scene()));
    create_actions();
}

GFPQ_FLOW_SCENE::~GFPQ_FLOW_SCENE()
{
    clear_text_items();
    clear_actions(true);
}

QAction* GFPQ_FLOW_SCENE::add_action(const char* text, const char* slot)
{
    auto* const action = new QAction(gfpq_from_utf8(text), this);
    kovq_safe_connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void GFPQ_FLOW_SCENE::create_actions()
{
    const auto& names = GFPQ_ACTION_TYPE_NAMES;
    m_refresh_action = add_action("Refresh", SLOT(create_flow_chain()));
    m_delete_action = add_action("Delete", SLOT(on_delete_action()));
    m_copy_action = add_action("Copy", SLOT(on_copy_action()));
    m_paste_action = add_action("Paste", SLOT(on_paste_action()));
    m_insert_wr_action = add_action(names[GFPDB_ACT_WRITE_REGISTER], SLOT(on_insert_wr_action()));
    m_insert_rr_action = add_action(names[GFPDB_ACT_READ_REGISTER], SLOT(on_insert_rr_action()));
    m_insert_wd_action = add_action(names[GFPDB_ACT_WRITE_DATA], SLOT(on_insert_wd_action()));
    m_insert_rd_action = add_action(names[GFPDB_ACT_READ_DATA], SLOT(on_insert_rd_action()));
    m_insert_e_action = add_action(names[GFPDB_ACT_ERASE], SLOT(on_insert_e_action()));
}

void GFPQ_FLOW_SCENE::clear_actions(bool delete_actions)
{
    if (delete_actions)
        qDeleteAll(m_actions);
    m_actions.clear();
    m_clipboard.clear();
    m_refresh_pending = false;
}

void GFPQ_FLOW_SCENE::append_copies(const std::vector<GFPDB_ACTION*>& actions)
{
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    if (manager == nullptr)
        return;
    for (const GFPDB_ACTION* const source : actions) {
        GFPDB_ACTION* const copy = source != nullptr ? gfpq_copy_action(*manager, *source) : nullptr;
        if (copy != nullptr)
            m_actions.append(copy);
    }
}

bool GFPQ_FLOW_SCENE::take_pending_refresh()
{
    const bool pending = m_refresh_pending;
    m_refresh_pending = false;
    return pending;
}

void GFPQ_FLOW_SCENE::on_selection()
{
    if (m_clearing)
        return;
    for (QGraphicsItem* const item : qAsConst(m_shape_items))
        static_cast<QAbstractGraphicsShapeItem*>(item)->setPen(QPen(Qt::black));

    const QList<QGraphicsItem*> selected = selectedItems();
    if (selected.isEmpty())
        return;
    for (QGraphicsItem* const item : selected)
        static_cast<QAbstractGraphicsShapeItem*>(item)->setPen(QPen(Qt::red, SELECTED_PEN_WIDTH));
    emit emit_action_selection_changed(gfpq_action_of(*selected.last()));
}

void GFPQ_FLOW_SCENE::refresh_flow_chain()
{
    m_refresh_pending = true;
}

// Not handed to the base class: the chart has no item that takes the focus.
void GFPQ_FLOW_SCENE::focusInEvent(QFocusEvent* event)
{
    Q_UNUSED(event)
    if (m_refresh_pending)
        create_flow_chain();
    m_refresh_pending = false;
}

// Whatever the items grow to, the views scroll over the chain only.
void GFPQ_FLOW_SCENE::on_change_scene()
{
    setSceneRect(chain_rect());
}

QRectF GFPQ_FLOW_SCENE::chain_rect() const
{
    return QRectF(m_min_x, 0.0, m_max_width, m_chain_bottom + BOTTOM_MARGIN);
}
