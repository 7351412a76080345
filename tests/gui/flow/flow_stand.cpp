// SPDX-License-Identifier: MIT
#include "flow_stand.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QWindow>

namespace {

constexpr int LOOP_CONNECTOR_POINTS = 10;

template <typename ITEM>
QList<ITEM*> top_items_of(const QGraphicsScene& scene, const std::function<bool(const ITEM&)>& wanted)
{
    QList<ITEM*> found;
    const QList<QGraphicsItem*> items = scene.items(Qt::AscendingOrder);
    for (QGraphicsItem* const item : items) {
        auto* const candidate = dynamic_cast<ITEM*>(item);
        if (candidate != nullptr && item->parentItem() == nullptr && wanted(*candidate))
            found.append(candidate);
    }
    return found;
}

bool is_connector(const QAbstractGraphicsShapeItem& item)
{
    const auto* const polygon = dynamic_cast<const QGraphicsPolygonItem*>(&item);
    return polygon != nullptr && polygon->polygon().size() == LOOP_CONNECTOR_POINTS;
}

QPoint in_window(const QGraphicsView& view, const QPointF& scene_pos)
{
    return view.viewport()->mapTo(view.window(), in_viewport(view, scene_pos));
}

bool is_arrow(const QAbstractGraphicsShapeItem& item)
{
    return dynamic_cast<const GFPQ_ARROW_POLYGON_ITEM*>(&item) != nullptr;
}

} // namespace

ACTION_LIST::~ACTION_LIST()
{
    for (GFPDB_ACTION* const action : m_actions)
        delete action;
}

void load(GFPQ_FLOW_SCENE& scene, const std::vector<GFPDB_ACTION*>& actions, bool editable)
{
    scene.clear_actions(true);
    scene.set_editable(editable);
    scene.append_copies(actions);
    scene.create_flow_chain();
}

void load_names(GFPQ_FLOW_SCENE& scene, const std::vector<std::string>& names, bool editable)
{
    ACTION_LIST actions;
    for (const std::string& name : names)
        actions.add(make_named_action(GFPDB_ACT_WRITE_REGISTER, name));
    load(scene, actions.get(), editable);
}

QStringList names_of(const QList<GFPDB_ACTION*>& actions)
{
    QStringList names;
    for (const GFPDB_ACTION* const action : actions)
        names.append(dynamic_cast<const ACTION_DOUBLE&>(*action).label());
    return names;
}

QStringList plain_names(const GFPQ_FLOW_SCENE& scene)
{
    QStringList names = names_of(scene.get_actions());
    return names.replaceInStrings(QStringLiteral("0:"), QString());
}

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* const text : texts)
        all.append(QString::fromUtf8(text));
    return all;
}

QList<QAbstractGraphicsShapeItem*> shapes_of(const QGraphicsScene& scene)
{
    return top_items_of<QAbstractGraphicsShapeItem>(
        scene, [](const QAbstractGraphicsShapeItem& item) { return !is_arrow(item) && !is_connector(item); });
}

QList<QGraphicsRectItem*> blocks_of(const QGraphicsScene& scene)
{
    return top_items_of<QGraphicsRectItem>(scene, [](const QGraphicsRectItem&) { return true; });
}

QList<GFPQ_ARROW_POLYGON_ITEM*> arrows_of(const QGraphicsScene& scene)
{
    return top_items_of<GFPQ_ARROW_POLYGON_ITEM>(scene, [](const GFPQ_ARROW_POLYGON_ITEM&) { return true; });
}

QList<QGraphicsPolygonItem*> connectors_of(const QGraphicsScene& scene)
{
    return top_items_of<QGraphicsPolygonItem>(scene,
                                              [](const QGraphicsPolygonItem& item) { return is_connector(item); });
}

QStringList texts_of(const QGraphicsScene& scene)
{
    QStringList texts;
    const QList<QGraphicsItem*> items = scene.items(Qt::AscendingOrder);
    for (const QGraphicsItem* const item : items) {
        if (const auto* const text = dynamic_cast<const QGraphicsTextItem*>(item))
            texts.append(text->toPlainText());
    }
    return texts;
}

void select_blocks(const QGraphicsScene& scene, std::initializer_list<int> blocks)
{
    for (const int block : blocks)
        blocks_of(scene).at(block)->setSelected(true);
}

GFPQ_GRAPHICS_TEXT_ITEM* text_of(const QGraphicsItem& shape)
{
    const QList<QGraphicsItem*> children = shape.childItems();
    return children.isEmpty() ? nullptr : dynamic_cast<GFPQ_GRAPHICS_TEXT_ITEM*>(children.first());
}

QPointF on_arrow(const QGraphicsScene& scene, int index)
{
    const QRectF zone = arrows_of(scene).at(index)->drop_zone()->rect();
    return QPointF(zone.left() + 8.0, zone.center().y());
}

QPointF on_shape(const QGraphicsScene& scene, int index)
{
    return shapes_of(scene).at(index)->sceneBoundingRect().center();
}

std::unique_ptr<QGraphicsView> show_view(QGraphicsScene& scene, const QSize& size)
{
    auto view = std::make_unique<QGraphicsView>(&scene);
    view->resize(size);
    view->show();
    QApplication::setActiveWindow(view.get());
    view->setFocus();
    if (!QTest::qWaitForWindowActive(view.get()))
        qWarning("the view did not become active");
    return view;
}

QPoint in_viewport(const QGraphicsView& view, const QPointF& scene_pos)
{
    return view.mapFromScene(scene_pos);
}

void click(QGraphicsView& view, const QPointF& scene_pos, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    QTest::mouseClick(view.window()->windowHandle(), button, modifiers, in_window(view, scene_pos));
}

void right_click(QGraphicsView& view, const QPointF& scene_pos)
{
    click(view, scene_pos, Qt::NoModifier, Qt::RightButton);
}

bool drop_text(QGraphicsView& view, const QPointF& scene_pos, const QString& text)
{
    const QPoint pos = in_viewport(view, scene_pos);
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    if (!move.isAccepted()) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(view.viewport(), &leave);
        return false;
    }
    QDropEvent drop(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
    return drop.isAccepted();
}

MODAL_DRIVER::ACTION close_menu()
{
    return MODAL_DRIVER::reject();
}

MODAL_DRIVER::ACTION insert_by_menu(const QString& entry, QStringList* insert_entries)
{
    return [entry, insert_entries](QWidget* window) {
        QAction* chosen = nullptr;
        const QList<QAction*> entries = window->actions();
        for (const QAction* const candidate : entries) {
            const bool is_insert = candidate->menu() != nullptr && candidate->text() == QLatin1String("Insert");
            const QList<QAction*> inserts = is_insert ? candidate->menu()->actions() : QList<QAction*>();
            for (QAction* const insert : inserts) {
                if (insert_entries != nullptr)
                    insert_entries->append(insert->text());
                if (insert->text() == entry)
                    chosen = insert;
            }
        }
        if (chosen != nullptr)
            chosen->trigger();
        window->close();
    };
}
