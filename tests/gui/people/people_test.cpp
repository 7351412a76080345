// SPDX-License-Identifier: MIT
#include "people_test.h"

#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_operation_tab_widget.h"

void PEOPLE_TEST::set_up()
{
    FLASH_DOUBLE& custom = mgr().add_custom("My part");
    custom.operations[false] = make_operations("step");
    for (GFPDB_OPERATION* const operation : custom.operations[false]) {
        operation->add_action(make_named_action(GFPDB_ACT_READ_REGISTER, "second"));
        operation->add_action(make_named_action(GFPDB_ACT_WRITE_REGISTER, "third"));
    }
    mgr().add_builtin("Built-in part");
    mgr().user_templates = {"My template"};
}

void PEOPLE_TEST::take_down()
{
    m_dialog.reset();
}

GFPQ_DLG& PEOPLE_TEST::open_dialog()
{
    m_dialog = std::make_unique<GFPQ_DLG>(nullptr, FAMILY, SCHEME, "My part", true, true, true,
                                          std::map<int, std::vector<int>>());
    // The screen of these tests is smaller than the form, and the dialog keeps to its screen.
    const QSize size_of_form = m_dialog->size();
    m_dialog->show();
    m_dialog->resize(size_of_form);
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get()))
        qFatal("the dialog never became the active window");
    return *m_dialog;
}

QTabWidget& PEOPLE_TEST::tabs() const
{
    return child<QTabWidget>("m_prog_flows_tab_widget");
}

void PEOPLE_TEST::show_operation_page(int operation) const
{
    tabs().setCurrentIndex(operation + 1);
}

QGraphicsView& PEOPLE_TEST::chart() const
{
    const QList<QGraphicsView*> views = tabs().currentWidget()->findChildren<QGraphicsView*>();
    for (QGraphicsView* const view : views) {
        if (qobject_cast<GFPQ_FLOW_SCENE*>(view->scene()) != nullptr)
            return *view;
    }
    qFatal("the page in front has no chart");
}

QTableView& PEOPLE_TEST::property_table() const
{
    auto* const table = tabs().currentWidget()->findChild<QTableView*>(QStringLiteral("m_property_table"));
    if (table == nullptr)
        qFatal("the page in front has no property table");
    return *table;
}

QStringList PEOPLE_TEST::chain() const
{
    QStringList names;
    const auto* const page = qobject_cast<GPFQ_OPERATION_TAB_WIDGET*>(tabs().currentWidget());
    const QList<GFPDB_ACTION*> flow = page->get_flow();
    for (const GFPDB_ACTION* const action : flow)
        names.append(QString::fromStdString(action->get_property_value(action->get_property_enum_list().front())));
    return names;
}
