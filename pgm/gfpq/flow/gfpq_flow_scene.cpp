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
    create_actions();
    connect_signals();
}

GFPQ_FLOW_SCENE::~GFPQ_FLOW_SCENE()
{
    clear_text_items();
    clear_actions(true);
}

void GFPQ_FLOW_SCENE::create_actions()
{
    const auto type_name = [](GFPDB_ACT_TYPE type) { return gfpq_from_utf8(GFPQ_ACTION_TYPE_NAMES[type]); };
    m_refresh_action = new QAction(QStringLiteral("Refresh"), this);
    m_delete_action = new QAction(QStringLiteral("Delete"), this);
    m_copy_action = new QAction(QStringLiteral("Copy"), this);
    m_paste_action = new QAction(QStringLiteral("Paste"), this);
    m_insert_wr_action = new QAction(type_name(GFPDB_ACT_WRITE_REGISTER), this);
    m_insert_rr_action = new QAction(type_name(GFPDB_ACT_READ_REGISTER), this);
    m_insert_wd_action = new QAction(type_name(GFPDB_ACT_WRITE_DATA), this);
    m_insert_rd_action = new QAction(type_name(GFPDB_ACT_READ_DATA), this);
    m_insert_e_action = new QAction(type_name(GFPDB_ACT_ERASE), this);
}

void GFPQ_FLOW_SCENE::connect_signals()
{
    kovq_safe_connect(this, SIGNAL(selectionChanged()), this, SLOT(on_selection()));
    kovq_safe_connect(this, SIGNAL(sceneRectChanged(const QRectF&)), this, SLOT(on_change_scene()));
    kovq_safe_connect(m_refresh_action, SIGNAL(triggered()), this, SLOT(create_flow_chain()));
    kovq_safe_connect(m_delete_action, SIGNAL(triggered()), this, SLOT(on_delete_action()));
    kovq_safe_connect(m_copy_action, SIGNAL(triggered()), this, SLOT(on_copy_action()));
    kovq_safe_connect(m_paste_action, SIGNAL(triggered()), this, SLOT(on_paste_action()));
    kovq_safe_connect(m_insert_wr_action, SIGNAL(triggered()), this, SLOT(on_insert_wr_action()));
    kovq_safe_connect(m_insert_rr_action, SIGNAL(triggered()), this, SLOT(on_insert_rr_action()));
    kovq_safe_connect(m_insert_wd_action, SIGNAL(triggered()), this, SLOT(on_insert_wd_action()));
    kovq_safe_connect(m_insert_rd_action, SIGNAL(triggered()), this, SLOT(on_insert_rd_action()));
    kovq_safe_connect(m_insert_e_action, SIGNAL(triggered()), this, SLOT(on_insert_e_action()));
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
