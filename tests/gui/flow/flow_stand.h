// SPDX-License-Identifier: MIT

// What the tests of the flow editor stand on: a scene with its protected parts open, charts of named actions, and the
// user's hands.
#pragma once

#include "flow/gfpq_flow_items.h"
#include "flow/gfpq_flow_scene.h"
#include "gfpdb_double.h"
#include "gui_test.h"

#include <QGraphicsView>
#include <QSignalSpy>

#include <functional>
#include <memory>

// A scene whose drawing steps a test can call.
class OPEN_SCENE : public GFPQ_FLOW_SCENE
{
public:
    using GFPQ_FLOW_SCENE::add_action_block;
    using GFPQ_FLOW_SCENE::add_arrow;
    using GFPQ_FLOW_SCENE::add_loop_back;
    using GFPQ_FLOW_SCENE::clear_flow_chain;
    using GFPQ_FLOW_SCENE::create_text_item;
    using GFPQ_FLOW_SCENE::find_insert_index;
    using GFPQ_FLOW_SCENE::GFPQ_FLOW_SCENE;
};

// The actions that a scene told as selected, in order.
class TOLD_ACTIONS : public QObject
{
public:
    explicit TOLD_ACTIONS(GFPQ_FLOW_SCENE& scene)
    {
        connect(&scene, &GFPQ_FLOW_SCENE::emit_action_selection_changed, this,
                [this](GFPDB_ACTION* action) { actions.append(action); });
    }

    QList<GFPDB_ACTION*> actions;
};

// Actions that are deleted with the list.
class ACTION_LIST
{
public:
    ACTION_LIST() = default;
    explicit ACTION_LIST(std::vector<GFPDB_ACTION*> actions) : m_actions(std::move(actions)) {}
    ~ACTION_LIST();
    ACTION_LIST(const ACTION_LIST&) = delete;
    ACTION_LIST& operator=(const ACTION_LIST&) = delete;

    void add(GFPDB_ACTION* action) { m_actions.push_back(action); }
    const std::vector<GFPDB_ACTION*>& get() const { return m_actions; }

private:
    std::vector<GFPDB_ACTION*> m_actions;
};

// Fills `scene` with copies of `actions` in place of what it held, and draws them.
void load(GFPQ_FLOW_SCENE& scene, const std::vector<GFPDB_ACTION*>& actions, bool editable = true);
// The same with one Write Register action for each name.
void load_names(GFPQ_FLOW_SCENE& scene, const std::vector<std::string>& names, bool editable = true);

// A scene with a chart of Write Register actions of these names, or of actions, which are deleted once they are copied.
class LOADED_SCENE : public GFPQ_FLOW_SCENE
{
public:
    template <typename CONTENT>
    explicit LOADED_SCENE(std::initializer_list<CONTENT> content, bool editable = true) : GFPQ_FLOW_SCENE(nullptr, 0)
    {
        draw(content, editable);
    }

private:
    void draw(std::initializer_list<const char*> names, bool editable)
    {
        load_names(*this, std::vector<std::string>(names.begin(), names.end()), editable);
    }
    void draw(std::initializer_list<ACTION_DOUBLE*> actions, bool editable)
    {
        load(*this, ACTION_LIST(std::vector<GFPDB_ACTION*>(actions.begin(), actions.end())).get(), editable);
    }
};

// "TYPE:NAME" of each action, NAME being the value of its first property.
QStringList names_of(const QList<GFPDB_ACTION*>& actions);
// The names of a chart of Write Register actions, without their type.
QStringList plain_names(const GFPQ_FLOW_SCENE& scene);
QStringList list(std::initializer_list<const char*> texts);

// The shapes of a chart from Start to End; its coloured or grey blocks only; its arrows; its loop connectors.
QList<QAbstractGraphicsShapeItem*> shapes_of(const QGraphicsScene& scene);
QList<QGraphicsRectItem*> blocks_of(const QGraphicsScene& scene);
QList<GFPQ_ARROW_POLYGON_ITEM*> arrows_of(const QGraphicsScene& scene);
QList<QGraphicsPolygonItem*> connectors_of(const QGraphicsScene& scene);
// Every text of the chart, labels included, in the order of the items.
QStringList texts_of(const QGraphicsScene& scene);
// Selects blocks (of all blocks of the chart, the grey ones included) by their place.
void select_blocks(const QGraphicsScene& scene, std::initializer_list<int> blocks);
// The text item of a shape.
GFPQ_GRAPHICS_TEXT_ITEM* text_of(const QGraphicsItem& shape);

// A point of the scene in the middle of arrow `index`, beside its shaft; in the middle of shape `index`.
QPointF on_arrow(const QGraphicsScene& scene, int index);
QPointF on_shape(const QGraphicsScene& scene, int index);

// A view of `scene`, shown and active, large enough for a chart of three or four actions.
std::unique_ptr<QGraphicsView> show_view(QGraphicsScene& scene, const QSize& size = QSize(700, 780));

// A loaded scene in such a view: auto [scene, view] = CHART({"one", "two"});
struct CHART
{
    template <typename CONTENT>
    explicit CHART(std::initializer_list<CONTENT> content, bool editable = true)
        : scene(content, editable), view(show_view(scene))
    {}

    LOADED_SCENE scene;
    std::unique_ptr<QGraphicsView> view;
};

QPoint in_viewport(const QGraphicsView& view, const QPointF& scene_pos);
// Mouse clicks as the window system sends them; a right click brings the context menu with it.
void click(QGraphicsView& view, const QPointF& scene_pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           Qt::MouseButton button = Qt::LeftButton);
void right_click(QGraphicsView& view, const QPointF& scene_pos);
// Drags `text` over the view and drops it, as the window system would. True when the view took it.
bool drop_text(QGraphicsView& view, const QPointF& scene_pos, const QString& text);

// Menu actions for the modal driver: closes the menu; triggers an entry of the submenu "Insert" and closes.
// `insert_entries`, if given, receives the submenu's texts.
MODAL_DRIVER::ACTION close_menu();
MODAL_DRIVER::ACTION insert_by_menu(const QString& entry, QStringList* insert_entries = nullptr);
