// SPDX-License-Identifier: MIT
#include "flow/gfpq_operation_tab_widget.h"

#include "flow/gfpq_flow_items.h"
#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_flow_view.h"
#include "flow/gfpq_focus_ring.h"
#include "flow/gfpq_property_delegate.h"
#include "flow/gfpq_property_table.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"
#include "words/gfpq_warning.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"

#include <QCoreApplication>
#include <QGraphicsTextItem>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int PALETTE_MAX_WIDTH = 100;
constexpr double PALETTE_X = 20.0;
constexpr double PALETTE_TITLE_Y = 10.0;
constexpr double READ_REGISTER_Y = 50.0;
constexpr double WRITE_REGISTER_Y = 130.0;
constexpr double OWN_ACTION_Y = 210.0;

} // namespace

GPFQ_OPERATION_TAB_WIDGET::GPFQ_OPERATION_TAB_WIDGET(QWidget* parent, int operation) : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(create_description(operation), 0);
    layout->addLayout(create_editor(operation), 0);

    kovq_safe_connect(m_flow_scene, SIGNAL(emit_action_selection_changed(GFPDB_ACTION*)), this,
                      SLOT(update_property_table(GFPDB_ACTION*)));
    kovq_safe_connect(m_flow_scene, SIGNAL(emit_clear_table()), this, SLOT(clear_property_table()));
    kovq_safe_connect(this, SIGNAL(emit_update_flow_scene()), m_flow_scene, SLOT(refresh_flow_chain()));
}

GPFQ_OPERATION_TAB_WIDGET::~GPFQ_OPERATION_TAB_WIDGET()
{
    delete m_value_checker;
}

QBoxLayout* GPFQ_OPERATION_TAB_WIDGET::create_description(int operation)
{
    auto* const layout = new QVBoxLayout;
    layout->setObjectName(QStringLiteral("label_vlayout"));

    m_description_label = new QLabel(gfpq_from_utf8(GFPQ_OPERATION_DESCRIPTIONS[operation]), this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(m_description_label->sizePolicy().hasHeightForWidth());
    m_description_label->setSizePolicy(policy);
    m_description_label->setWordWrap(true);
    layout->addWidget(m_description_label);

    auto* const line = new QFrame(this);
    line->setObjectName(QStringLiteral("hor_line"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout->addWidget(line);
    return layout;
}

QBoxLayout* GPFQ_OPERATION_TAB_WIDGET::create_editor(int operation)
{
    auto* const layout = new QHBoxLayout;
    layout->setObjectName(QStringLiteral("hlayout"));

    const QString title = gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation]);
    layout->addWidget(create_palette(operation, title), 0);
    m_flow_scene = new GFPQ_FLOW_SCENE(this, operation);
    m_flow_view = new GFPQ_FLOW_VIEW(*m_flow_scene, this, title, m_description_label->text());
    new GFPQ_FOCUS_RING(*m_flow_view);
    layout->addWidget(m_flow_view, 0);
    m_property_table = new GFPQ_PROPERTY_TABLE(this, title);
    new GFPQ_FOCUS_RING(*m_property_table);
    layout->addWidget(m_property_table, 0);
    return layout;
}

QGraphicsView* GPFQ_OPERATION_TAB_WIDGET::create_palette(int operation, const QString& title)
{
    auto* const view = new QGraphicsView(create_palette_scene(operation), this);
    view->setBackgroundBrush(GFPQ_PAPER_COLOR);
    view->setAlignment(Qt::AlignTop);
    view->setMaximumWidth(PALETTE_MAX_WIDTH);
    // A wide chart must not take the room of the entries.
    view->setMinimumWidth(std::min(view->sizeHint().width(), PALETTE_MAX_WIDTH));
    // The entries fit; a title whose margin does not is no reason to scroll.
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setAccessibleName(QCoreApplication::translate("gfpq_dlg", "%1: actions").arg(title));
    new GFPQ_FOCUS_RING(*view);
    return view;
}

// Read Register is above Write Register on purpose.
QGraphicsScene* GPFQ_OPERATION_TAB_WIDGET::create_palette_scene(int operation)
{
    auto* const scene = new QGraphicsScene(this);
    auto* const title = new QGraphicsTextItem(QCoreApplication::translate("gfpq_dlg", "Actions:"));
    title->setDefaultTextColor(Qt::black);
    title->setPos(PALETTE_X, PALETTE_TITLE_Y);
    scene->addItem(title);

    m_read_register_item = add_palette_entry(*scene, GFPDB_ACT_READ_REGISTER, READ_REGISTER_Y);
    m_write_register_item = add_palette_entry(*scene, GFPDB_ACT_WRITE_REGISTER, WRITE_REGISTER_Y);
    if (operation == GFPDB_OPERATION_PROGRAM)
        m_write_data_item = add_palette_entry(*scene, GFPDB_ACT_WRITE_DATA, OWN_ACTION_Y);
    else if (operation == GFPDB_OPERATION_ERASE)
        m_erase_item = add_palette_entry(*scene, GFPDB_ACT_ERASE, OWN_ACTION_Y);
    else if (operation == GFPDB_OPERATION_VERIFY)
        m_read_data_item = add_palette_entry(*scene, GFPDB_ACT_READ_DATA, OWN_ACTION_Y);
    return scene;
}

GFPQ_ACTION_MENU_ITEM* GPFQ_OPERATION_TAB_WIDGET::add_palette_entry(QGraphicsScene& scene, GFPDB_ACT_TYPE type,
                                                                    double y)
{
    auto* const entry = new GFPQ_ACTION_MENU_ITEM(type);
    entry->setPos(PALETTE_X, y);
    scene.addItem(entry);
    return entry;
}

void GPFQ_OPERATION_TAB_WIDGET::load_flow(const std::vector<GFPDB_ACTION*>* actions, bool editable)
{
    m_flow_scene->clear_actions(true);
    m_flow_scene->set_editable(editable);
    if (actions != nullptr)
        m_flow_scene->append_copies(*actions);
    m_flow_scene->create_flow_chain();
    m_flow_view->show_top();
}

QList<GFPDB_ACTION*> GPFQ_OPERATION_TAB_WIDGET::get_flow() const
{
    return m_flow_scene->get_actions();
}

// Drawn again at once: the items of the old picture point at actions that belong to the caller now.
void GPFQ_OPERATION_TAB_WIDGET::release_flow(bool delete_actions)
{
    m_flow_scene->clear_actions(delete_actions);
    m_flow_scene->create_flow_chain();
}

void GPFQ_OPERATION_TAB_WIDGET::activate()
{
    if (!m_table_ready) {
        set_up_property_table();
        m_table_ready = true;
        m_current_action = nullptr;
    }
    m_flow_scene->create_flow_chain();
    // A flow is usually loaded while the view is hidden and does not have its size.
    m_flow_view->center_horizontally();
}

void GPFQ_OPERATION_TAB_WIDGET::set_up_property_table()
{
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    m_value_checker = manager != nullptr ? manager->create_action(GFPDB_ACT_CUSTOM) : nullptr;
    m_property_table->set_up(m_property_model, new GFPQ_PROPERTY_DELEGATE(this, m_value_checker));
}

void GPFQ_OPERATION_TAB_WIDGET::update_property_table(GFPDB_ACTION* action)
{
    clear_property_table();
    if (action == nullptr || action->get_action_type() == GFPDB_ACT_CUSTOM)
        return;
    m_current_action = action;
    m_property_table->append_rows(m_property_model, *action);
}

void GPFQ_OPERATION_TAB_WIDGET::clear_property_table()
{
    m_property_model.removeRows(0, m_property_model.rowCount());
    m_current_action = nullptr;
}

void GPFQ_OPERATION_TAB_WIDGET::commit_open_editor()
{
    m_property_table->commit_open_editor();
}

QWidget* GPFQ_OPERATION_TAB_WIDGET::last_stop() const
{
    return m_property_table;
}

void GPFQ_OPERATION_TAB_WIDGET::store_property_value(GFPDB_ACT_PROPERTY property, const QString& value)
{
    if (m_current_action == nullptr)
        return;
    m_current_action->set_property_value(property, gfpq_to_local(value));
    emit emit_update_flow_scene();
}

// Closing the box can give the chart the focus. A pending rebuild would then clear the table while a cell is stored.
void GPFQ_OPERATION_TAB_WIDGET::warn_about_value(const QString& text)
{
    const bool pending = m_flow_scene->take_pending_refresh();
    gfpq_show_warning(text);
    if (pending)
        m_flow_scene->refresh_flow_chain();
}
