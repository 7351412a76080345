// SPDX-License-Identifier: MIT
#include "page_stand.h"

#include <QLineEdit>

std::unique_ptr<PAGE> show_page(int operation, const std::vector<GFPDB_ACTION*>& actions, bool editable,
                                const QSize& size)
{
    auto page = std::make_unique<PAGE>(nullptr, operation);
    page->resize(size);
    page->load_flow(&actions, editable);
    page->show();
    QApplication::setActiveWindow(page.get());
    if (!QTest::qWaitForWindowActive(page.get()))
        qWarning("the page did not become active");
    page->activate();
    return page;
}

QGraphicsView* flow_view_of(const QWidget& page)
{
    const QList<QGraphicsView*> views = page.findChildren<QGraphicsView*>();
    for (QGraphicsView* const view : views) {
        if (qobject_cast<GFPQ_FLOW_SCENE*>(view->scene()) != nullptr)
            return view;
    }
    return nullptr;
}

QGraphicsView* palette_view_of(const QWidget& page)
{
    const QList<QGraphicsView*> views = page.findChildren<QGraphicsView*>();
    for (QGraphicsView* const view : views) {
        if (qobject_cast<GFPQ_FLOW_SCENE*>(view->scene()) == nullptr)
            return view;
    }
    return nullptr;
}

QTableView* property_table_of(const QWidget& page)
{
    return page.findChild<QTableView*>(QStringLiteral("m_property_table"));
}

GFPQ_FLOW_SCENE& scene_of(const QWidget& page)
{
    return *qobject_cast<GFPQ_FLOW_SCENE*>(flow_view_of(page)->scene());
}

ACTION_DOUBLE& action_of(const PAGE& page, int index)
{
    return dynamic_cast<ACTION_DOUBLE&>(*page.get_flow().at(index));
}

const QAbstractItemModel& rows_of(const QWidget& page)
{
    return *property_table_of(page)->model();
}

QStringList column_of(const QWidget& page, int column)
{
    QStringList texts;
    for (int row = 0; row < rows_of(page).rowCount(); ++row)
        texts.append(rows_of(page).index(row, column).data().toString());
    return texts;
}

QModelIndex value_cell(const QWidget& page, int row)
{
    return rows_of(page).index(row, 1);
}

QWidget* open_editor(const QWidget& page, int row, int column)
{
    QTableView& table = *property_table_of(page);
    const QModelIndex index = rows_of(page).index(row, column);
    const QPoint pos = table.visualRect(index).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    return table.indexWidget(index);
}

void type_text(QWidget* editor, const char* text)
{
    auto* const edit = qobject_cast<QLineEdit*>(editor);
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(text));
}

std::unique_ptr<PAGE> PAGE_TEST::show_selected(const std::vector<GFPDB_ACTION*>& actions)
{
    mgr().on_new_action = [this](ACTION_DOUBLE& action) { m_checker = &action; };
    auto page = show_page(1, actions);
    mgr().on_new_action = nullptr;
    if (!actions.empty())
        click(*flow_view_of(*page), on_shape(scene_of(*page), 1));
    return page;
}
