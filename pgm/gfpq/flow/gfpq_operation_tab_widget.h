// SPDX-License-Identifier: MIT

// One operation of a device: its description, the palette of actions, the flow chart, and the properties of the action
// that is selected in the chart.
#pragma once

#include "gfpdb/gfpdb_enums.h"

#include <QList>
#include <QStandardItemModel>
#include <QWidget>

#include <vector>

class GFPDB_ACTION;
class GFPQ_ACTION_MENU_ITEM;
class GFPQ_FLOW_SCENE;
class GFPQ_FLOW_VIEW;
class GFPQ_PROPERTY_TABLE;
class QBoxLayout;
class QGraphicsScene;
class QGraphicsView;
class QLabel;

// The page edits copies, which it owns. Nothing reaches the flash database before the dialog reads them with
// get_flow(). GUI thread only.
class GPFQ_OPERATION_TAB_WIDGET : public QWidget
{
    Q_OBJECT

public:
    // The page of operation `operation` (0 to 4).
    GPFQ_OPERATION_TAB_WIDGET(QWidget* parent, int operation);
    ~GPFQ_OPERATION_TAB_WIDGET() override;

    // Shows deep copies of `actions` (null: none) and deletes the actions shown before. Unless `editable` is set,
    // blocks cannot be selected and arrows accept no drops.
    void load_flow(const std::vector<GFPDB_ACTION*>* actions, bool editable);
    // The actions in chain order; owned by the page.
    QList<GFPDB_ACTION*> get_flow() const;
    // Clears the flow. If `delete_actions` is not set, the actions now belong to the caller and nothing here uses them.
    void release_flow(bool delete_actions);
    // Call it when the page is shown: sets up the property table (once) and draws the chart again.
    void activate();
    // Stores the value of an editor that is still open in the property table, and closes it.
    void commit_open_editor();
    // The last widget of the page in tab order.
    QWidget* last_stop() const;

    // Stores `value` for `property` in the action that the table shows, if any, and marks the chart as out of date.
    void store_property_value(GFPDB_ACT_PROPERTY property, const QString& value);
    // Shows `text` in a warning box. The chart, and with it the table, does not change until the box is closed.
    void warn_about_value(const QString& text);

signals:
    // The chart is out of date.
    void emit_update_flow_scene();

public slots:
    // Shows the properties of `action`, and none for a custom action or null.
    void update_property_table(GFPDB_ACTION* action);
    void clear_property_table();

private:
    QBoxLayout* create_description(int operation);
    QBoxLayout* create_editor(int operation);
    QGraphicsView* create_palette(int operation, const QString& title);
    QGraphicsScene* create_palette_scene(int operation);
    GFPQ_ACTION_MENU_ITEM* add_palette_entry(QGraphicsScene& scene, GFPDB_ACT_TYPE type, double y);
    void set_up_property_table();

    QStandardItemModel m_property_model;
    bool m_table_ready = false;
    // Owned. Offers the choices of the property table and checks the values typed there.
    GFPDB_ACTION* m_value_checker = nullptr;
    // The action whose properties the table shows; one of the scene's.
    GFPDB_ACTION* m_current_action = nullptr;
    QLabel* m_description_label = nullptr;
    // The entries of the palette; null if the operation does not offer them.
    GFPQ_ACTION_MENU_ITEM* m_read_register_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_write_data_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_read_data_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_erase_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_write_register_item = nullptr;
    GFPQ_FLOW_VIEW* m_flow_view = nullptr;
    GFPQ_FLOW_SCENE* m_flow_scene = nullptr;
    GFPQ_PROPERTY_TABLE* m_property_table = nullptr;
};
