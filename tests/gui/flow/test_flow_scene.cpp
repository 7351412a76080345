// SPDX-License-Identifier: MIT

// The life of a chart: selection, when it is drawn, and whose its actions are.
#include "flow_stand.h"

#include <QAction>
#include <QFocusEvent>
#include <QSignalSpy>

namespace {

void focus_in(QGraphicsScene& scene)
{
    QFocusEvent event(QEvent::FocusIn);
    QApplication::sendEvent(&scene, &event);
}

} // namespace

class TEST_FLOW_SCENE : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_scene_draws_nothing_by_itself()
    {
        GFPQ_FLOW_SCENE scene(nullptr, 3);
        const ACTION_LIST actions({make_named_action(0, "w")});

        scene.append_copies(actions.get());
        scene.refresh_flow_chain();

        QVERIFY(scene.items().isEmpty());
        QCOMPARE(scene.get_actions().size(), 1);
    }

    void a_rebuild_tears_down_first_and_says_so_once()
    {
        LOADED_SCENE scene({"one", "a wider block than the other one"});
        const QRectF rect = scene.sceneRect();
        int told = 0;
        int items_then = -1;
        QRectF rect_then;
        connect(&scene, &GFPQ_FLOW_SCENE::emit_clear_table, this, [&] {
            ++told;
            items_then = scene.items().size();
            rect_then = scene.sceneRect();
        });

        scene.create_flow_chain();

        QCOMPARE(told, 1);
        QCOMPARE(items_then, 0);
        QCOMPARE(rect_then, QRectF(0, 0, 0, 15));
        QCOMPARE(shapes_of(scene).size(), 4);
        QCOMPARE(scene.sceneRect(), rect);
        load_names(scene, {});
        QCOMPARE(scene.sceneRect().left(), 0.0);
        QVERIFY(scene.sceneRect().width() < rect.width() && scene.sceneRect().height() < rect.height());
    }

    // What is asked for then, or selected, counts.
    void a_teardown_is_over_when_it_is_told()
    {
        const ACTION_LIST actions({make_named_action(0, "w")});
        OPEN_SCENE scene(nullptr, 0);
        const TOLD_ACTIONS told(scene);
        connect(&scene, &GFPQ_FLOW_SCENE::emit_clear_table, this, [&] {
            scene.refresh_flow_chain();
            QGraphicsRectItem* const block = scene.add_action_block(QRectF(0, 0, 9, 9), Qt::red, true);
            scene.create_text_item(actions.get().front(), Qt::AlignCenter)->setParentItem(block);
            block->setSelected(true);
        });

        scene.create_flow_chain();

        QCOMPARE(told.actions, QList<GFPDB_ACTION*>{actions.get().front()});
        QVERIFY(scene.take_pending_refresh());
    }

    void nothing_but_the_chart_moves_the_scene_rectangle()
    {
        LOADED_SCENE scene({"one"});
        const QRectF rect = scene.sceneRect();

        scene.addRect(-5000, -5000, 10, 10);
        scene.setSceneRect(-7, -7, 10000, 10000);
        QCOMPARE(scene.sceneRect(), rect);

        scene.setSceneRect(QRectF());
        QCOMPARE(scene.sceneRect(), rect);
    }

    void selecting_a_block_outlines_it_alone_and_tells_its_action()
    {
        const ACTION_LIST actions({make_named_action(0, "w"), make_named_action(4, "e"),
                                   make_loop_action("page", "start"), make_loop_action("page", "end")});
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        load(scene, actions.get());
        const QList<QAbstractGraphicsShapeItem*> shapes = shapes_of(scene);
        const QPen marked(Qt::green, 5);
        for (QAbstractGraphicsShapeItem* const shape : shapes)
            shape->setPen(marked);
        const TOLD_ACTIONS told(scene);

        shapes.at(2)->setSelected(true);

        QCOMPARE(told.actions.size(), 1);
        QCOMPARE(told.actions.at(0), scene.get_actions().at(1));
        for (int index = 0; index < shapes.size(); ++index)
            QCOMPARE(shapes.at(index)->pen(), index == 2 ? QPen(Qt::red, 2) : QPen(Qt::black));

        scene.clearSelection();
        shapes.at(1)->setSelected(true);

        QCOMPARE(told.actions.size(), 2);
        QCOMPARE(told.actions.at(1), scene.get_actions().at(0));
        QCOMPARE(shapes.at(1)->pen(), QPen(Qt::red, 2));
        QCOMPARE(shapes.at(2)->pen(), QPen(Qt::black));
        for (GFPQ_ARROW_POLYGON_ITEM* const arrow : arrows_of(scene))
            QCOMPARE(arrow->pen(), QPen(Qt::black, 2));
    }

    void of_several_selected_blocks_the_last_reported_one_is_reported()
    {
        LOADED_SCENE scene({"one", "two", "three"});
        const TOLD_ACTIONS told(scene);

        for (QGraphicsRectItem* const block : blocks_of(scene))
            block->setSelected(true);

        QCOMPARE(told.actions.size(), 3);
        QCOMPARE(told.actions.last(), text_of(*scene.selectedItems().last())->action());
        for (QGraphicsRectItem* const block : blocks_of(scene))
            QCOMPARE(block->pen(), QPen(Qt::red, 2));
    }

    void the_first_child_of_a_block_tells_its_action()
    {
        LOADED_SCENE scene({"one", "two"});
        QGraphicsRectItem* const block = blocks_of(scene).at(1);
        (new GFPQ_GRAPHICS_TEXT_ITEM(qs("another child"), nullptr))->setParentItem(block);
        const TOLD_ACTIONS told(scene);

        block->setSelected(true);

        QCOMPARE(told.actions, QList<GFPDB_ACTION*>{scene.get_actions().at(1)});
    }

    void nothing_is_reported_when_the_selection_goes()
    {
        LOADED_SCENE scene({"one", "two"});
        blocks_of(scene).first()->setSelected(true);
        const TOLD_ACTIONS told(scene);
        QSignalSpy cleared(&scene, SIGNAL(emit_clear_table()));

        scene.clearSelection();

        QCOMPARE(told.actions.size(), 0);
        QCOMPARE(cleared.size(), 0);
        QCOMPARE(blocks_of(scene).first()->pen(), QPen(Qt::black));
    }

    void nothing_is_reported_while_the_chart_is_torn_down()
    {
        LOADED_SCENE scene({"one", "two", "three"});
        for (QGraphicsRectItem* const block : blocks_of(scene))
            block->setSelected(true);
        const TOLD_ACTIONS told(scene);

        scene.create_flow_chain();

        QCOMPARE(told.actions.size(), 0);
        QVERIFY(scene.selectedItems().isEmpty());
        // And it is told again afterwards.
        blocks_of(scene).first()->setSelected(true);
        QCOMPARE(told.actions.size(), 1);
    }

    void only_coloured_blocks_of_an_editable_chart_can_be_selected()
    {
        const ACTION_LIST actions({make_named_action(0, "w"), make_loop_action("page", "start"),
                                   make_named_action(1, "r"), make_loop_action("page", "end"),
                                   make_loop_action("page", "x")});
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        const TOLD_ACTIONS told(scene);

        load(scene, actions.get(), true);
        for (QGraphicsItem* const item : scene.items())
            item->setSelected(true);
        QCOMPARE(scene.selectedItems().size(), 2);

        load(scene, actions.get(), false);
        const int told_before = told.actions.size();
        for (QGraphicsItem* const item : scene.items())
            item->setSelected(true);
        QCOMPARE(scene.selectedItems().size(), 0);
        QCOMPARE(told.actions.size(), told_before);
        for (const GFPQ_ARROW_POLYGON_ITEM* const arrow : arrows_of(scene))
            QVERIFY(!arrow->drop_zone()->acceptDrops());
    }

    void a_refresh_waits_for_the_focus_and_happens_once()
    {
        LOADED_SCENE scene({"one"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        focus_in(scene);
        QCOMPARE(rebuilt.size(), 0);
        scene.refresh_flow_chain();
        scene.refresh_flow_chain();
        QCOMPARE(rebuilt.size(), 0);
        focus_in(scene);
        QCOMPARE(rebuilt.size(), 1);
        QVERIFY(!scene.hasFocus());
        focus_in(scene);
        QCOMPARE(rebuilt.size(), 1);
    }

    void a_rebuild_of_any_kind_calls_a_waiting_refresh_off()
    {
        LOADED_SCENE scene({"one"});
        const ACTION_LIST taken({scene.get_actions().first()});
        QVERIFY(!scene.take_pending_refresh());
        const std::function<void()> ends[] = {[&] { scene.create_flow_chain(); }, [&] { scene.clear_actions(false); },
                                              [&] { scene.clear_actions(true); },
                                              [&] { QVERIFY(scene.take_pending_refresh()); }};
        for (const auto& end : ends) {
            scene.refresh_flow_chain();
            end();
            QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

            focus_in(scene);

            QCOMPARE(rebuilt.size(), 0);
        }
        QVERIFY(!scene.take_pending_refresh());
        scene.create_flow_chain();
    }

    void emptying_the_list_deletes_only_on_request()
    {
        const int before = live_actions();
        {
            LOADED_SCENE scene({"one", "two"});
            const ACTION_LIST taken({scene.get_actions().at(0), scene.get_actions().at(1)});

            scene.clear_actions(false);

            QVERIFY(scene.get_actions().isEmpty());
            QCOMPARE(live_actions(), before + 2);
            load_names(scene, {"three"});
            QCOMPARE(live_actions(), before + 3);
            scene.clear_actions(true);
            QCOMPARE(live_actions(), before + 2);
            // What the scene has at its end goes with it.
            load_names(scene, {"four", "five"});
            blocks_of(scene).first()->setSelected(true);
        }
        QCOMPARE(live_actions(), before);
    }

    void null_sources_and_refused_copies_are_left_out()
    {
        const ACTION_LIST actions(
            {nullptr, make_named_action(0, "w"), make_named_action(3, "refused"), nullptr, make_named_action(1, "r")});
        mgr().refused_actions.insert(3);
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        load(scene, actions.get());
        QCOMPARE(names_of(scene.get_actions()), list({"0:w", "1:r"}));
        QCOMPARE(shapes_of(scene).size(), 4);

        // Without a manager there are no copies at all.
        world().active = nullptr;
        load(scene, actions.get());
        QVERIFY(scene.get_actions().isEmpty());
        QCOMPARE(shapes_of(scene).size(), 2);
    }

    void copies_have_every_value_of_their_sources()
    {
        const ACTION_LIST actions(
            {make_action(3, {{22, "6Bh"}, {28, "8"}, {30, "1-1-4"}}), make_loop_action("die", "start")});
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        load(scene, actions.get());

        for (int index = 0; index < 2; ++index) {
            const auto& copy = dynamic_cast<const ACTION_DOUBLE&>(*scene.get_actions().at(index));
            const auto& source = dynamic_cast<const ACTION_DOUBLE&>(*actions.get().at(static_cast<std::size_t>(index)));
            QVERIFY(&copy != &source);
            QCOMPARE(copy.m_action_type, source.m_action_type);
            QVERIFY(copy.values == source.values);
        }
        QCOMPARE(calls_of({"get_active_flash_manager"}),
                 QStringList{qs("GFPDB_HELPER.get_active_flash_manager(false)")});
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_SCENE)

#include "test_flow_scene.moc"
