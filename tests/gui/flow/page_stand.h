// SPDX-License-Identifier: MIT

// What the tests of an operation page stand on: pages on the screen, their parts, and editing in their table.
#pragma once

#include "flow_stand.h"

#include "flow/gfpq_operation_tab_widget.h"

#include <QTableView>

using PAGE = GPFQ_OPERATION_TAB_WIDGET;

// A page, shown, activated and active; its parts.
std::unique_ptr<PAGE> show_page(int operation, const std::vector<GFPDB_ACTION*>& actions, bool editable = true,
                                const QSize& size = QSize(790, 780));
QGraphicsView* flow_view_of(const QWidget& page);
QGraphicsView* palette_view_of(const QWidget& page);
GFPQ_FLOW_SCENE& scene_of(const QWidget& page);
QTableView* property_table_of(const QWidget& page);

// An action of the page's flow.
ACTION_DOUBLE& action_of(const PAGE& page, int index);
// The rows of an activated page's table; the texts of a column; a cell of the Value column.
const QAbstractItemModel& rows_of(const QWidget& page);
QStringList column_of(const QWidget& page, int column);
QModelIndex value_cell(const QWidget& page, int row);

// Opens the editor of a cell as the user does, with a double click; null when there is none.
QWidget* open_editor(const QWidget& page, int row, int column = 1);
// Types `text` over what a line edit holds.
void type_text(QWidget* editor, const char* text);

// The role under which cells hold their property.
constexpr int CELL_PROPERTY_ROLE = Qt::UserRole + 1;

// Base of the tests of the table.
class PAGE_TEST : public GUI_TEST
{
    Q_OBJECT

protected:
    // Shows a page with the actions, and selects the block of the first one. m_checker is its value checker then.
    std::unique_ptr<PAGE> show_selected(const std::vector<GFPDB_ACTION*>& actions);

    ACTION_DOUBLE* m_checker = nullptr;
};
