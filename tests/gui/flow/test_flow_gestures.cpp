// SPDX-License-Identifier: MIT

// What happens between two commands of a chart: presses, keys and drops in unusual order, and around a rebuild.
#include "page_stand.h"

#include <QAction>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTranslator>

namespace {

// A language that has another word for everything.
class ANY_LANGUAGE : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return qs("other ") + QString::fromLatin1(text);
    }
};

void press_at(QGraphicsScene& scene, const QPointF& pos)
{
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButton(Qt::LeftButton);
    event.setScenePos(pos);
    QApplication::sendEvent(&scene, &event);
}

// The left button goes down on `scene_pos`, or up.
void press_button(QGraphicsView& view, const QPointF& scene_pos)
{
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, in_viewport(view, scene_pos));
}

void release_button(QGraphicsView& view, const QPointF& scene_pos)
{
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, in_viewport(view, scene_pos));
}

// As the window system sends one: the second press is the double click.
void double_click(QGraphicsView& view, const QPointF& scene_pos)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, in_viewport(view, scene_pos));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, in_viewport(view, scene_pos));
    release_button(view, scene_pos);
}

// Whether the scene hands a key on: nothing in a chart takes keys, so that the event comes back ignored.
bool is_handed_on(QGraphicsScene& scene, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    event.accept();
    QApplication::sendEvent(&scene, &event);
    return !event.isAccepted();
}

} // namespace

class TEST_FLOW_GESTURES : public PAGE_TEST
{
    Q_OBJECT

private slots:
    void a_drop_leaves_the_paste_armed_and_its_place()
    {
        auto [scene, view] = CHART({"one", "two"});
        select_blocks(scene, {1});
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        click(*view, on_arrow(scene, 0));

        QVERIFY(drop_text(*view, on_arrow(scene, 2), qs("Erase")));
        select_blocks(scene, {1});
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);

        QCOMPARE(names_of(scene.get_actions()), list({"0:two", "0:one", "0:two", "4:default 31"}));
    }

    // Armed with Control held, too.
    void another_chart_leaves_the_paste_armed_and_its_place()
    {
        auto [scene, view] = CHART({"one", "two"});
        select_blocks(scene, {0});
        scene.on_copy_action();
        click(*view, on_arrow(scene, 0), Qt::ControlModifier);

        load_names(scene, {"three"});
        select_blocks(scene, {0});
        scene.on_copy_action();
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);

        QCOMPARE(plain_names(scene), list({"three", "three"}));
    }

    void a_drop_is_accepted_before_anything_else()
    {
        LOADED_SCENE scene({"one"});
        QMimeData data;
        data.setText(qs("Erase"));
        QGraphicsSceneDragDropEvent drop(QEvent::GraphicsSceneDrop);
        drop.setMimeData(&data);
        drop.setScenePos(on_arrow(scene, 0));
        drop.setProposedAction(Qt::MoveAction);
        drop.setDropAction(Qt::IgnoreAction);
        Qt::DropAction action_then = Qt::IgnoreAction;
        mgr().on_new_action = [&](ACTION_DOUBLE&) { action_then = drop.dropAction(); };

        QApplication::sendEvent(&scene, &drop);

        QCOMPARE(action_then, Qt::MoveAction);
    }

    void only_the_height_of_a_place_counts()
    {
        LOADED_SCENE scene({"one"});
        QMimeData data;
        data.setText(qs("Erase"));
        for (const double x : {-100000.0, 0.0, 100000.0}) {
            QGraphicsSceneDragDropEvent drop(QEvent::GraphicsSceneDrop);
            drop.setMimeData(&data);
            drop.setScenePos(QPointF(x, on_arrow(scene, 0).y()));
            QApplication::sendEvent(&scene, &drop);
        }
        QCOMPARE(names_of(scene.get_actions()), list({"4:default 31", "4:default 31", "4:default 31", "0:one"}));

        // The whole width of a zone, and the place stays when the chain leans away from below it.
        load_names(scene, {});
        const QRectF zone = arrows_of(scene).first()->drop_zone()->rect();
        for (const double x : {zone.left() + 0.5, zone.right() - 0.5}) {
            press_at(scene, QPointF(x, zone.center().y()));
            scene.on_insert_rr_action();
        }
        QCOMPARE(names_of(scene.get_actions()), list({"1:default 5", "1:default 5"}));
    }

    void a_rebuild_while_a_block_is_held_data() { rows_named<QString>({"F5", "Delete", "focus", "load", "release"}); }

    void a_rebuild_while_a_block_is_held()
    {
        const QString event = row<QString>();
        const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(0, "two")});
        const auto page = show_page(1, actions.get());
        GFPQ_FLOW_SCENE& scene = scene_of(*page);
        QGraphicsView& view = *flow_view_of(*page);
        const QPointF held = on_shape(scene, 1);
        press_button(view, held);
        QVERIFY(scene.mouseGrabberItem() == blocks_of(scene).first());

        if (event == QLatin1String("F5")) {
            QTest::keyClick(&view, Qt::Key_F5);
        } else if (event == QLatin1String("Delete")) {
            QTest::keyClick(&view, Qt::Key_Delete);
        } else if (event == QLatin1String("focus")) {
            scene.refresh_flow_chain();
            QFocusEvent focus(QEvent::FocusIn);
            QApplication::sendEvent(&scene, &focus);
        } else if (event == QLatin1String("load")) {
            page->load_flow(&actions.get(), true);
        } else {
            page->release_flow(true);
        }

        QVERIFY(scene.mouseGrabberItem() == nullptr);
        QTest::mouseMove(view.viewport(), in_viewport(view, held) + QPoint(3, 3));
        release_button(view, held);
        QVERIFY(scene.selectedItems().isEmpty());
        QCOMPARE(rows_of(*page).rowCount(), 0);
        page->load_flow(&actions.get(), true);
        click(view, on_shape(scene, 1));
        QCOMPARE(scene.selectedItems().size(), 1);
        QCOMPARE(rows_of(*page).rowCount(), 5);
    }

    void a_double_click_is_a_click()
    {
        const auto page = show_page(1, ACTION_LIST({make_named_action(0, "one"), make_named_action(0, "two")}).get());
        GFPQ_FLOW_SCENE& scene = scene_of(*page);
        QGraphicsView& view = *flow_view_of(*page);
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        double_click(view, on_shape(scene, 2));

        QCOMPARE(rebuilt.size(), 0);
        QCOMPARE(scene.selectedItems(), QList<QGraphicsItem*>{blocks_of(scene).at(1)});
        QCOMPARE(column_of(*page, 1).first(), qs("two"));
        // On an arrow it arms the paste as a click does.
        QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
        double_click(view, on_arrow(scene, 0));
        QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(plain_names(scene), list({"two", "one", "two"}));
    }

    void the_words_of_the_library_and_of_drags_are_not_translated()
    {
        ANY_LANGUAGE language;
        QCoreApplication::installTranslator(&language);

        const auto page =
            show_selected(ACTION_LIST({make_named_action(0, "one"), make_loop_action("page", "end")}).get());
        const QString tip = GFPQ_ACTION_MENU_ITEM(4).toolTip();
        const QString description = page->findChild<QLabel*>()->text();

        QCoreApplication::removeTranslator(&language);
        QCOMPARE(texts_of(scene_of(*page)).filter(qs("other ")), QStringList());
        QCOMPARE(column_of(*page, 0).first(), qs("Name:"));
        QCOMPARE(tip, qs("Erase"));
        QVERIFY(!description.startsWith(qs("other ")));
    }

    void a_loop_leads_back_within_its_own_chart_only()
    {
        const ACTION_LIST whole({make_loop_action("page", "start"), make_named_action(0, "a wide block in the loop"),
                                 make_loop_action("page", "end")});
        const ACTION_LIST open_end({make_loop_action("page", "end")});
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        GFPQ_FLOW_SCENE other(nullptr, 1);
        load(scene, whole.get());
        load(other, whole.get());
        QVERIFY(connectors_of(scene).first()->polygon().at(5) != QPointF(0, 0));

        load(scene, open_end.get());

        QCOMPARE(connectors_of(scene).first()->polygon().at(5), QPointF(0, 0));
        QCOMPARE(connectors_of(scene).first()->polygon().at(1).x(), 65.0);
    }

    void nothing_is_selected_after_a_rebuild_data()
    {
        rows_named<QString>({"refresh", "F5", "insert", "drop", "delete", "paste", "focus", "activate"});
    }

    void nothing_is_selected_after_a_rebuild()
    {
        const QString event = row<QString>();
        const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(0, "two")});
        const auto page = show_page(1, actions.get());
        GFPQ_FLOW_SCENE& scene = scene_of(*page);
        QGraphicsView& view = *flow_view_of(*page);
        click(view, on_arrow(scene, 0));
        select_blocks(scene, {1});
        scene.on_copy_action();
        QCOMPARE(rows_of(*page).rowCount(), 5);
        const TOLD_ACTIONS told(scene);
        const int selected_before = scene.selectedItems().size();
        QCOMPARE(selected_before, 1);

        if (event == QLatin1String("refresh"))
            scene.create_flow_chain();
        else if (event == QLatin1String("F5"))
            QTest::keyClick(&view, Qt::Key_F5);
        else if (event == QLatin1String("insert"))
            scene.on_insert_e_action();
        else if (event == QLatin1String("drop"))
            drop_text(view, on_arrow(scene, 0), qs("Erase"));
        else if (event == QLatin1String("delete"))
            scene.on_delete_action();
        else if (event == QLatin1String("paste"))
            scene.on_paste_action();
        else if (event == QLatin1String("activate"))
            page->activate();
        else {
            scene.refresh_flow_chain();
            QFocusEvent focus(QEvent::FocusIn);
            QApplication::sendEvent(&scene, &focus);
        }

        QVERIFY(scene.selectedItems().isEmpty());
        QCOMPARE(told.actions.size(), 0);
        QCOMPARE(rows_of(*page).rowCount(), 0);
        for (const QAbstractGraphicsShapeItem* const shape : shapes_of(scene))
            QCOMPARE(shape->pen(), QPen(Qt::black));
    }

    void a_block_is_outlined_before_its_action_is_reported()
    {
        LOADED_SCENE scene({"one", "two"});
        QList<QPen> pens_then;
        connect(&scene, &GFPQ_FLOW_SCENE::emit_action_selection_changed, this, [&] {
            for (const QGraphicsRectItem* const block : blocks_of(scene))
                pens_then.append(block->pen());
        });

        select_blocks(scene, {1});

        QCOMPARE(pens_then, (QList<QPen>{QPen(Qt::black), QPen(Qt::red, 2)}));
        QCOMPARE(pens_then.last().style(), Qt::SolidLine);
        QVERIFY(!pens_then.last().isCosmetic());
    }

    void copy_and_paste_keys_take_further_modifiers()
    {
        auto [scene, view] = CHART({"one", "two"});
        for (const Qt::KeyboardModifier further : {Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier}) {
            load_names(scene, {"one", "two"});
            click(*view, on_shape(scene, 1));
            QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier | further);
            click(*view, on_arrow(scene, 2));
            QTest::keyClick(view.get(), Qt::Key_V, further);
            QCOMPARE(plain_names(scene), list({"one", "two"}));

            QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier | further);

            QCOMPARE(plain_names(scene), list({"one", "two", "one"}));
        }
    }

    void keys_go_on_after_they_ran_a_command()
    {
        LOADED_SCENE scene({"one", "two", "three"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
        press_at(scene, on_arrow(scene, 0));

        QVERIFY(is_handed_on(scene, Qt::Key_F5));
        QCOMPARE(rebuilt.size(), 1);
        // A key that is held repeats its command.
        QKeyEvent held(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&scene, &held);
        QCOMPARE(rebuilt.size(), 2);
        rebuilt.removeLast();
        select_blocks(scene, {0});
        QVERIFY(is_handed_on(scene, Qt::Key_C, Qt::ControlModifier));
        press_at(scene, on_arrow(scene, 0));
        QVERIFY(is_handed_on(scene, Qt::Key_V, Qt::ControlModifier));
        QCOMPARE(rebuilt.size(), 2);
        QCOMPARE(plain_names(scene), list({"one", "one", "two", "three"}));
        select_blocks(scene, {0});
        QVERIFY(is_handed_on(scene, Qt::Key_Delete));
        QCOMPARE(rebuilt.size(), 3);
        QCOMPARE(plain_names(scene), list({"one", "two", "three"}));
        QVERIFY(is_handed_on(scene, Qt::Key_Delete));
        QVERIFY(is_handed_on(scene, Qt::Key_A));
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_GESTURES)

#include "test_flow_gestures.moc"
