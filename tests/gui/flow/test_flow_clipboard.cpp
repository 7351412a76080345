// SPDX-License-Identifier: MIT

// Deleting, copying and pasting the selected actions.
#include "flow_stand.h"

#include <QSignalSpy>

class TEST_FLOW_CLIPBOARD : public GUI_TEST
{
    Q_OBJECT

private slots:
    void delete_takes_the_selected_actions()
    {
        auto [scene, view] = CHART({"one", "two", "three", "four"});
        const int before = live_actions();
        click(*view, on_shape(scene, 2));
        click(*view, on_shape(scene, 4), Qt::ControlModifier);
        QCOMPARE(scene.selectedItems().size(), 2);
        m_modals.expect(MODAL_DRIVER::trigger(qs("Delete")));

        right_click(*view, on_shape(scene, 1));

        QCOMPARE(plain_names(scene), list({"one", "three"}));
        QCOMPARE(live_actions(), before - 2);
        QCOMPARE(shapes_of(scene).size(), 4);
    }

    void deleting_nothing_rebuilds_nothing()
    {
        auto [scene, view] = CHART({"one", "two"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        scene.on_delete_action();
        for (const int start_or_end : {0, 3}) {
            click(*view, on_shape(scene, start_or_end));
            QTest::keyClick(view.get(), Qt::Key_Delete);
        }

        QCOMPARE(rebuilt.size(), 0);
        QCOMPARE(plain_names(scene), list({"one", "two"}));

        // What is deleted leaves the clipboard, too.
        select_blocks(scene, {0, 1});
        scene.on_copy_action();
        scene.clearSelection();
        select_blocks(scene, {0});
        scene.on_delete_action();
        QCOMPARE(rebuilt.size(), 1);
        click(*view, on_arrow(scene, 0));
        scene.on_paste_action();
        QCOMPARE(plain_names(scene), list({"two"}));
    }

    void a_foreign_action_is_not_deleted()
    {
        LOADED_SCENE scene({"one", "two"});
        const ACTION_LIST taken({scene.get_actions().at(0), scene.get_actions().at(1)});
        scene.clear_actions(false);
        const int before = live_actions();
        // The old picture still stands, and its actions are no longer the scene's.
        select_blocks(scene, {0});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        scene.on_delete_action();

        QCOMPARE(live_actions(), before);
        QCOMPARE(rebuilt.size(), 0);
        scene.create_flow_chain();
    }

    void copy_and_paste_make_new_actions_as_one_run()
    {
        auto [scene, view] = CHART({"one", "two", "three"});
        click(*view, on_shape(scene, 1));
        click(*view, on_shape(scene, 3), Qt::ControlModifier);
        QStringList copied;
        for (const QGraphicsItem* const item : scene.selectedItems())
            copied += names_of({text_of(*item)->action()}).first().mid(2);
        m_modals.expect(MODAL_DRIVER::trigger(qs("Copy")));
        right_click(*view, on_shape(scene, 2));
        const QList<GFPDB_ACTION*> before = scene.get_actions();
        m_modals.expect(MODAL_DRIVER::trigger(qs("Paste")));

        right_click(*view, on_arrow(scene, 2));

        QCOMPARE(plain_names(scene), list({"one", "two"}) + copied + list({"three"}));
        QCOMPARE(scene.get_actions().at(0), before.at(0));
        QCOMPARE(scene.get_actions().at(4), before.at(2));
        QVERIFY(!before.contains(scene.get_actions().at(2)));
        QVERIFY(!before.contains(scene.get_actions().at(3)));
        QCOMPARE(shapes_of(scene).size(), 7);
    }

    void a_copy_of_nothing_empties_the_clipboard()
    {
        auto [scene, view] = CHART({"one"});
        select_blocks(scene, {0});
        scene.on_copy_action();
        click(*view, on_arrow(scene, 0));

        scene.on_copy_action();
        scene.on_paste_action();

        QCOMPARE(plain_names(scene), list({"one"}));
    }

    void a_paste_keeps_every_value_in_order()
    {
        auto [scene, view] = CHART({make_action(3, {{21, "n"}, {24, "4"}, {30, "1-1-4"}})});
        select_blocks(scene, {0});
        scene.on_copy_action();
        click(*view, on_arrow(scene, 1));
        log().clear();

        scene.on_paste_action();

        const auto& copy = dynamic_cast<const ACTION_DOUBLE&>(*scene.get_actions().at(1));
        QCOMPARE(copy.m_action_type, 3);
        QVERIFY(copy.values == dynamic_cast<const ACTION_DOUBLE&>(*scene.get_actions().at(0)).values);
        QCOMPARE(calls_of({"get_active_flash_manager", "create_action"}),
                 list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(3)"}));
        QList<int> set;
        static const QRegularExpression property(qs("set_property_value\\((\\d+),"));
        for (const QString& call : calls_of({"set_property_value"}))
            set.append(property.match(call).captured(1).toInt());
        QCOMPARE(set, (QList<int>{21, 22, 23, 24, 25, 26, 27, 28, 29, 30}));
    }

    void a_paste_of_actions_that_are_not_made_leaves_them_out()
    {
        auto [scene, view] = CHART({make_named_action(1, "r"), make_named_action(4, "e")});
        select_blocks(scene, {0, 1});
        scene.on_copy_action();
        click(*view, on_arrow(scene, 0));
        mgr().refused_actions.insert(1);

        scene.on_paste_action();
        QCOMPARE(names_of(scene.get_actions()), list({"4:e", "1:r", "4:e"}));

        select_blocks(scene, {0});
        scene.on_copy_action();
        world().active = nullptr;
        scene.on_paste_action();
        QCOMPARE(names_of(scene.get_actions()), list({"4:e", "1:r", "4:e"}));
    }

    void a_copy_is_lost_by_every_rebuild_data()
    {
        rows_named<QString>({"refresh", "F5", "insert", "drop", "delete", "paste", "clear"});
    }

    void a_copy_is_lost_by_every_rebuild()
    {
        const QString event = row<QString>();
        auto [scene, view] = CHART({"one", "two"});
        click(*view, on_arrow(scene, 0));
        select_blocks(scene, {0});
        scene.on_copy_action();
        if (event == QLatin1String("refresh"))
            scene.create_flow_chain();
        else if (event == QLatin1String("F5"))
            QTest::keyClick(view.get(), Qt::Key_F5);
        else if (event == QLatin1String("insert"))
            scene.on_insert_e_action();
        else if (event == QLatin1String("drop"))
            drop_text(*view, on_arrow(scene, 0), qs("Erase"));
        else if (event == QLatin1String("delete"))
            scene.on_delete_action();
        else if (event == QLatin1String("paste"))
            scene.on_paste_action();
        else
            scene.clear_actions(true);
        const int count = scene.get_actions().size();

        scene.on_paste_action();

        QCOMPARE(scene.get_actions().size(), count);
    }

    void a_copy_redraws_nothing_and_replaces_the_one_before()
    {
        auto [scene, view] = CHART({"one", "two"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
        for (const int block : {0, 1}) {
            scene.clearSelection();
            select_blocks(scene, {block});
            const TOLD_ACTIONS told(scene);
            scene.on_copy_action();
            QCOMPARE(told.actions.size(), 0);
            QCOMPARE(scene.selectedItems().size(), 1);
        }

        // Without a place nothing happens; with one the chart is drawn again, even when nothing is left to paste.
        scene.on_paste_action();
        QCOMPARE(rebuilt.size(), 0);
        click(*view, on_arrow(scene, 0));
        scene.on_paste_action();
        QCOMPARE(rebuilt.size(), 1);
        QCOMPARE(plain_names(scene), list({"two", "one", "two"}));
        scene.on_paste_action();
        QCOMPARE(rebuilt.size(), 2);
        QCOMPARE(plain_names(scene), list({"two", "one", "two"}));
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_CLIPBOARD)

#include "test_flow_clipboard.moc"
