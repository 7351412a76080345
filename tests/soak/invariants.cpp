// SPDX-License-Identifier: MIT
#include "invariants.h"

#include "dialog/gfpq_dlg.h"
#include "flow/gfpq_flow_items.h"
#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "flow/gfpq_property_delegate.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QGraphicsView>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace {

constexpr int PAGES = 1 + GFPDB_OPERATION_COUNT;
const QString NEW_DEVICE = QStringLiteral("<<new device>>");

QTableView* device_table(const GFPQ_DLG& dialog)
{
    return dialog.findChild<QTableView*>(QStringLiteral("m_device_table_view"));
}

bool is_enabled(const GFPQ_DLG& dialog, const char* button)
{
    return dialog.findChild<QPushButton*>(QLatin1String(button))->isEnabledTo(dialog.parentWidget());
}

int chosen(const GFPQ_DLG& dialog, const char* combo)
{
    return dialog.findChild<QComboBox*>(QLatin1String(combo))->currentData().toInt();
}

// The blocks of the chart that show an action, from the top.
QList<const GFPQ_GRAPHICS_TEXT_ITEM*> action_texts(const QGraphicsScene& scene)
{
    QList<const GFPQ_GRAPHICS_TEXT_ITEM*> texts;
    const QList<QGraphicsItem*> items = scene.items();
    for (const QGraphicsItem* item : items) {
        const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item);
        if (text != nullptr && text->action() != nullptr)
            texts.append(text);
    }
    std::sort(texts.begin(), texts.end(), [](const QGraphicsItem* left, const QGraphicsItem* right) {
        return left->scenePos().y() < right->scenePos().y();
    });
    return texts;
}

int arrow_count(const QGraphicsScene& scene)
{
    const QList<QGraphicsItem*> items = scene.items();
    return int(std::count_if(items.begin(), items.end(), [](const QGraphicsItem* item) {
        return dynamic_cast<const GFPQ_ARROW_POLYGON_ITEM*>(item) != nullptr;
    }));
}

bool is_finite(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height()) && rect.width() >= 0.0 && rect.height() >= 0.0;
}

QString row_problem(const QStandardItemModel& model, int row, const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    const QStandardItem* const value = model.item(row, 1);
    if (value->data(GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE).toInt() != property)
        return QStringLiteral("row %1 of the property table is not property %2").arg(row).arg(property);
    if (value->text() != gfpq_from_local(action.get_property_value(property)))
        return QStringLiteral("row %1 of the property table does not show the action's value").arg(row);
    return QString();
}

// Empty when the table shows `action`.
QString shown_action_problem(const QStandardItemModel& model, const GFPDB_ACTION& action)
{
    const std::vector<GFPDB_ACT_PROPERTY> properties = action.get_property_enum_list();
    if (std::size_t(model.rowCount()) != properties.size())
        return QStringLiteral("the property table has %1 rows").arg(model.rowCount());
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString problem = row_problem(model, row, action, properties[std::size_t(row)]);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

QStringList expected_devices(const GFPQ_DLG& dialog)
{
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    const int family = chosen(dialog, "m_family_cbox");
    const int scheme = chosen(dialog, "m_config_mode_cbox");
    QStringList names;
    if (manager->can_add_flash())
        names << NEW_DEVICE;
    std::vector<std::string> listed;
    for (const std::string& name : manager->get_custom_flash_names(listed, family, scheme, 0))
        names << gfpq_from_local(name);
    for (const std::string& name : manager->get_builtin_flash_names(listed, family, scheme, 0))
        names << gfpq_from_local(name);
    return names;
}

QString pages_problem(const GFPQ_DLG& dialog)
{
    const auto* const pages = dialog.findChild<QTabWidget*>(QStringLiteral("m_prog_flows_tab_widget"));
    if (pages->count() != PAGES)
        return QStringLiteral("there are %1 pages").arg(pages->count());
    for (int page = 2; page < PAGES; ++page) {
        if (pages->isTabEnabled(page) != pages->isTabEnabled(1))
            return QStringLiteral("page %1 is not enabled as page 1 is").arg(page);
    }
    return pages->currentIndex() > 0 && !pages->isTabEnabled(pages->currentIndex())
               ? QStringLiteral("a page is shown that is not enabled")
               : QString();
}

} // namespace

QStandardItemModel* device_model(const GFPQ_DLG& dialog)
{
    const auto* const proxy = qobject_cast<QSortFilterProxyModel*>(device_table(dialog)->model());
    return qobject_cast<QStandardItemModel*>(proxy->sourceModel());
}

QString current_device(const GFPQ_DLG& dialog)
{
    return device_table(dialog)->currentIndex().data().toString();
}

QString chart_problem(const GFPQ_FLOW_SCENE& scene)
{
    const QList<GFPDB_ACTION*>& actions = scene.get_actions();
    // A page that was never needed is empty.
    if (actions.isEmpty() && scene.items().isEmpty())
        return QString();
    const QList<const GFPQ_GRAPHICS_TEXT_ITEM*> texts = action_texts(scene);
    if (texts.size() != actions.size())
        return QStringLiteral("%1 actions, but %2 of them are drawn").arg(actions.size()).arg(texts.size());
    for (int i = 0; i < actions.size(); ++i) {
        if (texts[i]->action() != actions[i] || texts[i]->parentItem() == nullptr)
            return QStringLiteral("block %1 is not the one of action %1").arg(i);
    }
    if (arrow_count(scene) != actions.size() + 1)
        return QStringLiteral("%1 actions, but %2 arrows").arg(actions.size()).arg(arrow_count(scene));
    const QList<QGraphicsItem*> selected = scene.selectedItems();
    for (const QGraphicsItem* item : selected) {
        const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item->childItems().value(0));
        if (text == nullptr || !actions.contains(text->action()))
            return QStringLiteral("something is selected that is no action");
    }
    return is_finite(scene.sceneRect()) ? QString() : QStringLiteral("the scene has no good extent");
}

QString property_table_problem(const GPFQ_OPERATION_TAB_WIDGET& page)
{
    const auto* const table = page.findChild<QTableView*>(QStringLiteral("m_property_table"));
    const auto* const model = qobject_cast<QStandardItemModel*>(table->model());
    if (model == nullptr || model->rowCount() == 0)
        return QString();
    QString problem = QStringLiteral("the property table shows an action that the page does not have");
    const QList<GFPDB_ACTION*> actions = page.get_flow();
    for (const GFPDB_ACTION* action : actions) {
        problem = shown_action_problem(*model, *action);
        if (problem.isEmpty())
            return QString();
    }
    return problem;
}

QString device_list_problem(const GFPQ_DLG& dialog)
{
    const QStandardItemModel* const model = device_model(dialog);
    QStringList shown;
    for (int row = 0; row < model->rowCount(); ++row)
        shown << model->item(row)->text();
    const QStringList expected = expected_devices(dialog);
    if (shown != expected)
        return QStringLiteral("the device table lists %1, not %2")
            .arg(shown.mid(0, 6).join(QLatin1Char('|')), expected.mid(0, 6).join(QLatin1Char('|')));
    if (device_table(dialog)->selectionModel()->selectedRows().size() > 1)
        return QStringLiteral("several devices are selected");
    const bool is_new = current_device(dialog) == NEW_DEVICE;
    if (is_new && is_enabled(dialog, "m_delete_button"))
        return QStringLiteral("a new device can be deleted");
    return pages_problem(dialog);
}

QString dialog_problem(const GFPQ_DLG& dialog)
{
    const QList<GPFQ_OPERATION_TAB_WIDGET*> pages = dialog.findChildren<GPFQ_OPERATION_TAB_WIDGET*>();
    for (const GPFQ_OPERATION_TAB_WIDGET* page : pages) {
        QString problem = chart_problem(*page->findChild<GFPQ_FLOW_SCENE*>());
        if (problem.isEmpty())
            problem = property_table_problem(*page);
        if (!problem.isEmpty())
            return problem;
    }
    return device_list_problem(dialog);
}
