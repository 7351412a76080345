// SPDX-License-Identifier: MIT
#include "questions.h"

#include "scene_questions.h"
#include "widget_search.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include <functional>
#include <map>

namespace {

QString text_of(const QJsonObject& question, const char* key)
{
    return question.value(QLatin1String(key)).toString();
}

QJsonObject place(const QWidget& widget, const QRect& rect)
{
    QJsonObject result = place_to_json(widget, rect);
    result.insert(QStringLiteral("visible"), widget.isVisible());
    result.insert(QStringLiteral("enabled"), widget.isEnabled());
    return result;
}

// What a test may want to know of any widget; properties that the widget does not have are left out.
QJsonObject describe(const QWidget* widget)
{
    if (!widget)
        return {};
    QJsonObject result = place(*widget, widget->rect());
    result.insert(QStringLiteral("name"), widget->objectName());
    result.insert(QStringLiteral("class"), QLatin1String(widget->metaObject()->className()));
    result.insert(QStringLiteral("focused"), widget->hasFocus());
    for (const char* property : {"text", "currentText", "checked", "readOnly", "windowTitle", "toolTip"}) {
        const QVariant value = widget->property(property);
        if (value.isValid())
            result.insert(QLatin1String(property), QJsonValue::fromVariant(value));
    }
    return result;
}

// The widget called `name`; the one with the focus for no name at all, which is how an editor in a table is met.
QWidget* find_named_or_focused(const QString& name)
{
    return name.isEmpty() ? QApplication::focusWidget() : find_widget(name);
}

QJsonObject widget_question(const QJsonObject& question)
{
    return describe(find_named_or_focused(text_of(question, "name")));
}

// The item view called `name`; of a combo box its list.
QAbstractItemView* find_view(const QString& name)
{
    QWidget* widget = find_named_or_focused(name);
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return combo->view();
    return qobject_cast<QAbstractItemView*>(widget);
}

QString text_at(const QAbstractItemView& view, int row, int column)
{
    const QAbstractItemModel& model = *view.model();
    return model.data(model.index(row, column, view.rootIndex())).toString();
}

QJsonObject cell_at(const QAbstractItemView& view, int row, int column)
{
    const QModelIndex index = view.model()->index(row, column, view.rootIndex());
    if (!index.isValid())
        return {};
    const QRect rect = view.visualRect(index) & view.viewport()->rect();
    QJsonObject result = place(*view.viewport(), rect);
    result.insert(QStringLiteral("text"), text_at(view, row, column));
    result.insert(QStringLiteral("row"), row);
    result.insert(QStringLiteral("selected"), view.selectionModel()->isSelected(index));
    result.insert(QStringLiteral("current"), view.currentIndex() == index);
    result.insert(QStringLiteral("enabled"), bool(index.flags() & Qt::ItemIsEnabled));
    result.insert(QStringLiteral("visible"), view.isVisible() && !rect.isEmpty());
    return result;
}

QJsonObject cell_question(const QJsonObject& question)
{
    const QAbstractItemView* view = find_view(text_of(question, "name"));
    if (!view)
        return {};
    return cell_at(*view, question.value(QLatin1String("row")).toInt(),
                   question.value(QLatin1String("column")).toInt());
}

QJsonObject item_question(const QJsonObject& question)
{
    const QAbstractItemView* view = find_view(text_of(question, "name"));
    const int column = question.value(QLatin1String("column")).toInt();
    for (int row = 0; view && row < view->model()->rowCount(view->rootIndex()); ++row) {
        if (text_at(*view, row, column) == text_of(question, "text"))
            return cell_at(*view, row, column);
    }
    return {};
}

QJsonObject rows_question(const QJsonObject& question)
{
    const QAbstractItemView* view = find_view(text_of(question, "name"));
    if (!view)
        return {};
    QJsonArray rows;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
        QJsonArray texts;
        for (int column = 0; column < view->model()->columnCount(view->rootIndex()); ++column)
            texts.append(text_at(*view, row, column));
        rows.append(texts);
    }
    return {{QStringLiteral("found"), true}, {QStringLiteral("rows"), rows}};
}

QJsonObject tab_question(const QJsonObject& question)
{
    const auto* tabs = qobject_cast<QTabWidget*>(find_widget(text_of(question, "name")));
    for (int page = 0; tabs && page < tabs->count(); ++page) {
        if (tabs->tabText(page) == text_of(question, "text")) {
            QJsonObject result = place(*tabs->tabBar(), tabs->tabBar()->tabRect(page));
            result.insert(QStringLiteral("current"), tabs->currentIndex() == page);
            result.insert(QStringLiteral("enabled"), tabs->isTabEnabled(page));
            return result;
        }
    }
    return {};
}

template <typename MENU>
QJsonObject entry_of(const MENU& menu, const QAction& action)
{
    QJsonObject result = place(menu, menu.actionGeometry(const_cast<QAction*>(&action)));
    result.insert(QStringLiteral("text"), action.isSeparator() ? QStringLiteral("-") : action.text());
    result.insert(QStringLiteral("enabled"), action.isEnabled());
    result.insert(QStringLiteral("active"), menu.activeAction() == &action);
    return result;
}

template <typename MENU>
QJsonObject entry_called(const MENU& menu, const QString& text)
{
    for (const QAction* action : menu.actions()) {
        if (action->text().remove(QLatin1Char('&')) == text)
            return entry_of(menu, *action);
    }
    return {};
}

QJsonObject menu_question(const QJsonObject& question)
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || !menu->isVisible())
        return {};
    if (question.contains(QLatin1String("text")))
        return entry_called(*menu, text_of(question, "text"));
    QJsonArray entries;
    for (const QAction* action : menu->actions())
        entries.append(entry_of(*menu, *action));
    return {{QStringLiteral("found"), true}, {QStringLiteral("entries"), entries}};
}

QJsonObject menubar_question(const QJsonObject& question)
{
    const auto* window = qobject_cast<QMainWindow*>(QApplication::activeWindow());
    return window ? entry_called(*window->menuBar(), text_of(question, "text")) : QJsonObject();
}

QJsonObject windows_question(const QJsonObject&)
{
    QJsonArray windows;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->windowType() == Qt::ToolTip)
            continue;
        QJsonObject described = describe(window);
        described.insert(QStringLiteral("modal"), window->isModal());
        described.insert(QStringLiteral("is_active"), window->isActiveWindow());
        if (const auto* box = qobject_cast<const QMessageBox*>(window))
            described.insert(QStringLiteral("text"), box->text());
        windows.append(described);
    }
    const QWidget* active = QApplication::activeWindow();
    return {{QStringLiteral("found"), true},
            {QStringLiteral("windows"), windows},
            {QStringLiteral("active"), active ? active->windowTitle() : QString()}};
}

// The picture that a drag carries along has a window of its own.
bool is_dragging()
{
    for (const QWindow* window : QGuiApplication::allWindows()) {
        if (window->isVisible() && window->inherits("QShapedPixmapWindow"))
            return true;
    }
    return false;
}

QJsonObject pointer_question(const QJsonObject&)
{
    const QPoint position = QCursor::pos();
    QJsonArray ids;
    for (const QWidget* widget = QApplication::widgetAt(position); widget; widget = widget->parentWidget())
        ids.append(widget_id(*widget));
    return {{QStringLiteral("found"), true},
            {QStringLiteral("at"), point_to_json(position)},
            {QStringLiteral("ids"), ids},
            {QStringLiteral("dragging"), is_dragging()}};
}

} // namespace

QJsonArray point_to_json(const QPoint& point)
{
    return {point.x(), point.y()};
}

QJsonObject answer_question(const QJsonObject& question)
{
    static const std::map<QString, std::function<QJsonObject(const QJsonObject&)>> questions = {
        {QStringLiteral("widget"), widget_question},   {QStringLiteral("item"), item_question},
        {QStringLiteral("cell"), cell_question},       {QStringLiteral("rows"), rows_question},
        {QStringLiteral("tab"), tab_question},         {QStringLiteral("menu"), menu_question},
        {QStringLiteral("menubar"), menubar_question}, {QStringLiteral("chart"), chart_question},
        {QStringLiteral("block"), block_question},     {QStringLiteral("arrow"), arrow_question},
        {QStringLiteral("palette"), palette_question}, {QStringLiteral("view"), view_question},
        {QStringLiteral("windows"), windows_question}, {QStringLiteral("pointer"), pointer_question},
    };
    const auto known = questions.find(text_of(question, "ask"));
    return known == questions.end() ? QJsonObject() : known->second(question);
}
