// SPDX-License-Identifier: MIT
#include "scene_questions.h"

#include "widget_search.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QJsonArray>

#include <algorithm>

namespace {

// Charts are drawn by a scene of their own class, palettes by plain ones.
bool is_chart(const QGraphicsView& view)
{
    return view.scene() && view.scene()->inherits("GFPQ_FLOW_SCENE");
}

QGraphicsView* find_visible_view(bool chart)
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        for (QGraphicsView* view : window->findChildren<QGraphicsView*>()) {
            if (view->isVisible() && is_chart(*view) == chart)
                return view;
        }
    }
    return nullptr;
}

bool is_text(const QGraphicsItem& item)
{
    return dynamic_cast<const QGraphicsTextItem*>(&item) != nullptr;
}

// The text of the item itself, else of its first child that is one.
QString text_of(const QGraphicsItem& item)
{
    if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(&item))
        return text->toPlainText();
    for (const QGraphicsItem* child : item.childItems()) {
        if (is_text(*child))
            return text_of(*child);
    }
    return {};
}

bool is_shape(const QGraphicsItem& item)
{
    return !item.parentItem() && !is_text(item) && !text_of(item).isEmpty();
}

bool is_drop_zone(const QGraphicsItem& item)
{
    return dynamic_cast<const QGraphicsRectItem*>(&item) && item.parentItem() && item.acceptDrops();
}

// The items that `is_wanted` picks, from top to bottom.
QList<QGraphicsItem*> items_of(const QGraphicsView& view, bool (*is_wanted)(const QGraphicsItem&))
{
    QList<QGraphicsItem*> items;
    for (QGraphicsItem* item : view.scene()->items()) {
        if (is_wanted(*item))
            items.append(item);
    }
    std::stable_sort(items.begin(), items.end(), [](const QGraphicsItem* left, const QGraphicsItem* right) {
        return left->sceneBoundingRect().top() < right->sceneBoundingRect().top();
    });
    return items;
}

QJsonObject describe(const QGraphicsView& view, const QGraphicsItem& item)
{
    const QRect rect = view.mapFromScene(item.sceneBoundingRect()).boundingRect();
    QJsonObject result = place_to_json(*view.viewport(), rect);
    result.insert(QStringLiteral("text"), text_of(item));
    result.insert(QStringLiteral("selected"), item.isSelected());
    result.insert(QStringLiteral("visible"), view.viewport()->rect().contains(rect.center()));
    return result;
}

} // namespace

QJsonObject chart_question(const QJsonObject&)
{
    const QGraphicsView* view = find_visible_view(true);
    if (!view)
        return {};
    QJsonArray texts;
    for (const QGraphicsItem* item : items_of(*view, is_shape))
        texts.append(text_of(*item));
    return {{QStringLiteral("found"), true}, {QStringLiteral("texts"), texts}};
}

QJsonObject block_question(const QJsonObject& question)
{
    const QGraphicsView* view = find_visible_view(true);
    if (!view)
        return {};
    const QString wanted = question.value(QLatin1String("text")).toString();
    int nth = question.value(QLatin1String("nth")).toInt();
    for (const QGraphicsItem* item : items_of(*view, is_shape)) {
        const QString text = text_of(*item);
        if ((text == wanted || text.startsWith(wanted + QLatin1Char('\n'))) && nth-- == 0)
            return describe(*view, *item);
    }
    return {};
}

QJsonObject arrow_question(const QJsonObject& question)
{
    const QGraphicsView* view = find_visible_view(true);
    if (!view)
        return {};
    const QList<QGraphicsItem*> arrows = items_of(*view, is_drop_zone);
    const int index = question.value(QLatin1String("index")).toInt();
    return index < arrows.size() ? describe(*view, *arrows[index]) : QJsonObject();
}

QJsonObject palette_question(const QJsonObject& question)
{
    const QGraphicsView* view = find_visible_view(false);
    if (!view)
        return {};
    for (const QGraphicsItem* item : view->scene()->items()) {
        if (text_of(*item) == question.value(QLatin1String("text")).toString())
            return describe(*view, *item);
    }
    return {};
}

QJsonObject view_question(const QJsonObject&)
{
    const QGraphicsView* view = find_visible_view(true);
    return view ? place_to_json(*view->viewport(), view->viewport()->rect()) : QJsonObject();
}
