// SPDX-License-Identifier: MIT

// The flow chart of one operation: the ordered list of its actions, the picture of them, and the commands that edit it.
//
// The scene owns its actions. The picture is never edited item by item: every change of the list ends in
// create_flow_chain(), which draws all of it again. That clears the selection, the property table and what was copied;
// the views keep their scroll positions. GUI thread only.
//
// Implemented in gfpq_flow_scene.cpp (life, selection, focus), gfpq_flow_chain.cpp (drawing) and gfpq_flow_edit.cpp
// (commands, menu, keys, mouse, drops).
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <QGraphicsScene>
#include <QList>
#include <QPointF>

#include <vector>

class GFPDB_ACTION;
class GFPQ_ARROW_POLYGON_ITEM;
class GFPQ_GRAPHICS_TEXT_ITEM;
class QAbstractGraphicsShapeItem;
class QAction;
class QGraphicsPolygonItem;
class QGraphicsRectItem;

class GFPQ_FLOW_SCENE : public QGraphicsScene
{
    Q_OBJECT

public:
    // The chart of operation `operation` (0 to 4), which makes no difference to it.
    GFPQ_FLOW_SCENE(QObject* parent, int operation);
    // Deletes the actions.
    ~GFPQ_FLOW_SCENE() override;

    // Clears the list of actions, deleting them if `delete_actions` is set, the copied actions and a pending rebuild.
    // Draws nothing: until the next build, the items of the last picture still point at the actions.
    void clear_actions(bool delete_actions);
    // Whether blocks can be selected and arrows accept drops, from the next build on.
    void set_editable(bool editable) { m_editable = editable; }
    // Appends a deep copy of each action, in order; null actions are left out. Draws nothing.
    void append_copies(const std::vector<GFPDB_ACTION*>& actions);
    // The actions in execution order; owned by the scene.
    const QList<GFPDB_ACTION*>& get_actions() const { return m_actions; }
    // Cancels a pending rebuild; true if there was one.
    bool take_pending_refresh();

signals:
    // A block was selected; `action` is its action, never null.
    void emit_action_selection_changed(GFPDB_ACTION* action);
    // The picture was removed: what is shown of an action is out of date.
    void emit_clear_table();

public slots:
    void on_selection();
    // Draws the whole chart from the list of actions. The views keep their scroll positions.
    void create_flow_chain();
    // Draws the chart again when the scene next gets the focus.
    void refresh_flow_chain();
    void on_delete_action();
    void on_copy_action();
    void on_paste_action();
    void on_insert_wr_action();
    void on_insert_rr_action();
    void on_insert_wd_action();
    void on_insert_rd_action();
    void on_insert_e_action();
    void on_change_scene();

protected:
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;

    // Removes every graphics item and emits emit_clear_table().
    void clear_flow_chain();
    // The text of `action`, one line for each property, listed in m_text_items but in no scene yet. Never null here; a
    // derived scene that has no text for an action ends the process.
    virtual GFPQ_GRAPHICS_TEXT_ITEM* create_text_item(GFPDB_ACTION* action, Qt::Alignment alignment);
    // A block of the scene with the extent `rect`.
    QGraphicsRectItem* add_action_block(const QRectF& rect, const QColor& color, bool selectable);
    // The downward arrow whose tail is at (x, y), with its drop zone.
    GFPQ_ARROW_POLYGON_ITEM* add_arrow(double x, double y);
    // The connector of a loop from its diamond at (from_x, from_y) back to its block at (to_x, to_y), running upwards
    // to the right of `right`.
    QGraphicsPolygonItem* add_loop_back(double from_x, double from_y, double to_x, double to_y, double right);
    // The index for an insertion at m_menu_pos; false if that is not on an arrow.
    bool find_insert_index(int& index) const;

private:
    // The gap between two shapes.
    static constexpr double ARROW_LENGTH = 65.0;

    // The running position of a build.
    struct CHAIN_CURSOR;

    QAction* add_action(const char* text, const char* slot);
    void create_actions();
    QRectF chain_rect() const;

    void clear_text_items();
    GFPQ_GRAPHICS_TEXT_ITEM* create_label(const char* text);
    void place_shape(QAbstractGraphicsShapeItem* shape, const QPointF& pos, QGraphicsItem* text);
    void continue_below(CHAIN_CURSOR& cursor, double x, double width, double height);
    void add_start(CHAIN_CURSOR& cursor);
    void add_action(CHAIN_CURSOR& cursor, GFPDB_ACTION* action);
    void add_block(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text, const QColor& color, bool selectable,
                   bool opens_loop);
    void add_custom(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text, const GFPDB_ACTION& action);
    void add_loop_end(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text);
    void add_end(const CHAIN_CURSOR& cursor);

    bool is_insertion_point(const QPointF& position) const;
    bool find_index_at(double y, int& index) const;
    bool insert_new_action(GFPDB_ACT_TYPE type, int index);
    void insert_at_menu_pos(GFPDB_ACT_TYPE type);

    bool m_refresh_pending = false;
    bool m_clearing = false;
    bool m_editable = true;
    int m_paste_armed = 0;
    QAction* m_refresh_action = nullptr;
    QAction* m_delete_action = nullptr;
    QAction* m_copy_action = nullptr;
    QAction* m_paste_action = nullptr;
    QAction* m_insert_wr_action = nullptr;
    QAction* m_insert_rr_action = nullptr;
    QAction* m_insert_wd_action = nullptr;
    QAction* m_insert_rd_action = nullptr;
    QAction* m_insert_e_action = nullptr;
    // The items in chain order: Start, one shape for each drawn action, End. The item lists own nothing.
    QList<QGraphicsItem*> m_shape_items;
    QList<GFPQ_GRAPHICS_TEXT_ITEM*> m_text_items;
    // The drop zones of the arrows, and the loop connectors.
    QList<QGraphicsItem*> m_drop_zones;
    QList<GFPDB_ACTION*> m_actions;
    // Actions of m_actions that Copy marked.
    QList<GFPDB_ACTION*> m_clipboard;
    // Where to insert and paste: the last left press or right click on a drop zone.
    QPointF m_menu_pos;
    double m_chain_bottom = 0.0;
    double m_max_width = 0.0;
    double m_min_x = 0.0;
};
