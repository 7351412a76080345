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

QString kind_of(const QGraphicsItem& item)
{
    if (dynamic_cast<const QGraphicsTextItem*>(&item))
        return QStringLiteral("text");
    if (dynamic_cast<const QGraphicsRectItem*>(&item))
        return QStringLiteral("rectangle");
    if (dynamic_cast<const QGraphicsEllipseItem*>(&item))
        return QStringLiteral("ellipse");
    return dynamic_cast<const QGraphicsPolygonItem*>(&item) ? QStringLiteral("polygon") : QStringLiteral("other");
}

QString text_of(const QGraphicsItem& item)
{
    if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(&item))
        return text->toPlainText();
    for (const QGraphicsItem* child : item.childItems()) {
        if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(child))
            return text->toPlainText();
    }
    return {};
}

QJsonObject describe(const QGraphicsView& view, const QGraphicsItem& item)
{
    const QRect rect = view.mapFromScene(item.sceneBoundingRect()).boundingRect();
    QJsonObject result = place_to_json(*view.viewport(), rect);
    result.insert(QStringLiteral("kind"), kind_of(item));
    result.insert(QStringLiteral("text"), text_of(item));
    result.insert(QStringLiteral("selected"), item.isSelected());
    result.insert(QStringLiteral("accepts_drops"), item.acceptDrops());
    result.insert(QStringLiteral("top_level"), item.parentItem() == nullptr);
    result.insert(QStringLiteral("visible"), view.viewport()->rect().contains(rect.center()));
    return result;
}

} // namespace

QJsonObject scene_question(const QJsonObject& question)
{
    const QGraphicsView* view = find_visible_view(question.value(QLatin1String("which")) == QLatin1String("chart"));
    if (!view)
        return {};
    QList<QGraphicsItem*> items = view->scene()->items();
    std::stable_sort(items.begin(), items.end(), [](const QGraphicsItem* left, const QGraphicsItem* right) {
        return left->sceneBoundingRect().top() < right->sceneBoundingRect().top();
    });
    QJsonArray described;
    for (const QGraphicsItem* item : qAsConst(items))
        described.append(describe(*view, *item));
    return {{QStringLiteral("found"), true},
            {QStringLiteral("view"), place_to_json(*view->viewport(), view->viewport()->rect())},
            {QStringLiteral("items"), described}};
}
