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
class QBoxLayout;
class QGraphicsScene;
class QGraphicsView;
class QLabel;
class QTableView;

// The page works on copies: it owns the actions it shows, and nothing reaches the flash database before the dialog
// reads them with get_flow(). GUI thread only.
class GPFQ_OPERATION_TAB_WIDGET : public QWidget
{
    Q_OBJECT

public:
    // The page of operation `operation` (0 to 4).
    GPFQ_OPERATION_TAB_WIDGET(QWidget* parent, int operation);
    ~GPFQ_OPERATION_TAB_WIDGET() override;

    // Shows deep copies of `actions` (null: none) from the top on, in place of what was shown, and deletes that.
    // `editable` false: blocks cannot be selected, and arrows take no drops.
    void load_flow(const std::vector<GFPDB_ACTION*>* actions, bool editable);
    // The actions in chain order; owned by the page.
    QList<GFPDB_ACTION*> get_flow() const;
    // Empties the flow. With `delete_actions` false the actions now belong to the caller: nothing here points at them.
    void release_flow(bool delete_actions);
    // To be called when the page comes to the front: sets up the property table (once) and draws the chart anew.
    void activate();
    // Stores what an in-place editor that is still open in the property table holds, and closes it.
    void commit_open_editor();

    // Stores `value` for `property` in the action that the table shows, if any, and has the chart drawn anew.
    void store_property_value(GFPDB_ACT_PROPERTY property, const QString& value);
    // Shows `text` in a warning box. The chart, and with it the table, stays as it is until the box is closed.
    void warn_about_value(const QString& text);

signals:
    // The chart is out of date.
    void emit_update_flow_scene();

public slots:
    // Shows the properties of `action`; of a custom action, or null, none.
    void update_property_table(GFPDB_ACTION* action);
    void clear_property_table();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QBoxLayout* create_description(int operation);
    QBoxLayout* create_editor(int operation);
    QGraphicsScene* create_palette_scene(int operation);
    GFPQ_ACTION_MENU_ITEM* add_palette_entry(QGraphicsScene& scene, GFPDB_ACT_TYPE type, double y);
    void set_up_property_table();
    void append_property_row(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property);
    QString tool_tip_of(const QModelIndex& cell) const;
    void center_chart();

    QStandardItemModel m_property_model;
    bool m_table_ready = false;
    // Owned; offers the choices of the property table and checks what is typed there.
    GFPDB_ACTION* m_value_checker = nullptr;
    // The action whose properties the table shows; one of the scene's.
    GFPDB_ACTION* m_current_action = nullptr;
    QLabel* m_description_label = nullptr;
    // The entries of the palette; those that the operation does not offer stay null.
    GFPQ_ACTION_MENU_ITEM* m_read_register_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_write_data_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_read_data_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_erase_item = nullptr;
    GFPQ_ACTION_MENU_ITEM* m_write_register_item = nullptr;
    QGraphicsView* m_flow_view = nullptr;
    GFPQ_FLOW_SCENE* m_flow_scene = nullptr;
    QTableView* m_property_table = nullptr;
};
