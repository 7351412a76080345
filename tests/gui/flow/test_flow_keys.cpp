// SPDX-License-Identifier: MIT

// Keys and mouse presses on a chart, and what every command has in common.
#include "flow_stand.h"

#include <QGraphicsSceneMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>

class TEST_FLOW_KEYS : public GUI_TEST
{
    Q_OBJECT

private slots:
    void keys_run_the_commands_data()
    {
        rows<int, int, QString>({{"Delete", Qt::Key_Delete, Qt::NoModifier, "deleted"},
                                 {"Ctrl+Delete", Qt::Key_Delete, Qt::ControlModifier, "deleted"},
                                 {"Delete of the keypad", Qt::Key_Delete, Qt::KeypadModifier, "deleted"},
                                 {"Shift+Delete", Qt::Key_Delete, Qt::ShiftModifier, "deleted"},
                                 {"Backspace", Qt::Key_Backspace, Qt::NoModifier, ""},
                                 {"Ctrl+C", Qt::Key_C, Qt::ControlModifier, "copied"},
                                 {"Ctrl+Shift+C", Qt::Key_C, int(Qt::ControlModifier | Qt::ShiftModifier), "copied"},
                                 {"C", Qt::Key_C, Qt::NoModifier, ""},
                                 {"Alt+C", Qt::Key_C, Qt::AltModifier, ""},
                                 {"Ctrl+V", Qt::Key_V, Qt::ControlModifier, ""},
                                 {"F5", Qt::Key_F5, Qt::NoModifier, "rebuilt"},
                                 {"Ctrl+F5", Qt::Key_F5, Qt::ControlModifier, "rebuilt"},
                                 {"F4", Qt::Key_F4, Qt::NoModifier, ""},
                                 {"Ctrl+X", Qt::Key_X, Qt::ControlModifier, ""}});
    }

    void keys_run_the_commands()
    {
        const auto [key, modifiers, effect] = row<int, int, QString>();
        auto [scene, view] = CHART({"one", "two"});
        click(*view, on_shape(scene, 2));
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        QTest::keyClick(view.get(), static_cast<Qt::Key>(key), static_cast<Qt::KeyboardModifiers>(modifiers));

        const bool deleted = effect == QLatin1String("deleted");
        QCOMPARE(plain_names(scene), deleted ? list({"one"}) : list({"one", "two"}));
        QCOMPARE(rebuilt.size(), deleted || effect == QLatin1String("rebuilt") ? 1 : 0);
        m_modals.expect(close_menu());
        right_click(*view, on_arrow(scene, 0));
        QCOMPARE(m_modals.last().menu_entries.contains(qs("Paste")), effect == QLatin1String("copied"));
    }

    void ctrl_v_needs_a_click_on_an_arrow_with_something_copied()
    {
        auto [scene, view] = CHART({"one", "two"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        // Clicked before the copy: not armed. A right click does not arm it either.
        click(*view, on_arrow(scene, 0));
        click(*view, on_shape(scene, 1));
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        m_modals.expect(close_menu());
        right_click(*view, on_arrow(scene, 0));
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rebuilt.size(), 0);

        // Armed, then disarmed by a click elsewhere.
        click(*view, on_arrow(scene, 0));
        click(*view, on_shape(scene, 3));
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rebuilt.size(), 0);

        // Armed; without Control nothing happens, and a copy of nothing keeps the one before.
        click(*view, on_arrow(scene, 2));
        QTest::keyClick(view.get(), Qt::Key_V);
        QVERIFY(scene.selectedItems().isEmpty());
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(rebuilt.size(), 0);
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rebuilt.size(), 1);
        QCOMPARE(plain_names(scene), list({"one", "two", "one"}));

        // It works on after a paste, but pastes nothing.
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rebuilt.size(), 2);
        QCOMPARE(plain_names(scene), list({"one", "two", "one"}));
    }

    void keys_go_on_to_the_items()
    {
        // An item with the focus notes the keys it gets.
        class NOTING_ITEM : public QGraphicsRectItem
        {
        public:
            QList<int> keys;

        protected:
            void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
        };
        auto [scene, view] = CHART({"one"});
        auto* const item = new NOTING_ITEM;
        item->setFlag(QGraphicsItem::ItemIsFocusable);
        scene.addItem(item);
        item->setFocus();
        QVERIFY(scene.focusItem() == item);

        QTest::keyClick(view.get(), Qt::Key_A);
        QTest::keyClick(view.get(), Qt::Key_Delete);
        select_blocks(scene, {0});
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);

        item->keys.removeAll(Qt::Key_Control);
        QCOMPARE(item->keys, (QList<int>{Qt::Key_A, Qt::Key_Delete, Qt::Key_C, Qt::Key_V}));
    }

    void other_buttons_are_swallowed()
    {
        auto [scene, view] = CHART({"one", "two"});
        click(*view, on_shape(scene, 1));
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        click(*view, on_arrow(scene, 2));
        const int selected = scene.selectedItems().size();

        // Neither is the selection changed nor the paste disarmed nor its place moved.
        click(*view, on_shape(scene, 2), Qt::NoModifier, Qt::MiddleButton);
        click(*view, on_arrow(scene, 0), Qt::NoModifier, Qt::MiddleButton);
        m_modals.expect(close_menu());
        right_click(*view, on_shape(scene, 2));

        QCOMPARE(scene.selectedItems().size(), selected);
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(plain_names(scene), list({"one", "two", "one"}));
        QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
        press.setButton(Qt::MiddleButton);
        press.setAccepted(false);
        QApplication::sendEvent(&scene, &press);
        QVERIFY(press.isAccepted());
    }

    void a_left_press_selects_as_usual()
    {
        auto [scene, view] = CHART({"one", "two"});
        const TOLD_ACTIONS told(scene);

        click(*view, on_shape(scene, 1));
        click(*view, on_shape(scene, 2));
        QCOMPARE(told.actions, (QList<GFPDB_ACTION*>{scene.get_actions().at(0), scene.get_actions().at(1)}));
        click(*view, on_shape(scene, 1), Qt::ControlModifier);
        QCOMPARE(scene.selectedItems().size(), 2);

        click(*view, on_arrow(scene, 0));
        QCOMPARE(scene.selectedItems().size(), 0);
    }

    void editing_keeps_the_scroll_position()
    {
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        std::vector<std::string> names(20, "a name that is wider than the view is");
        load_names(scene, names);
        const auto view = show_view(scene, QSize(220, 400));
        QScrollBar& vertical = *view->verticalScrollBar();
        QScrollBar& horizontal = *view->horizontalScrollBar();
        QVERIFY(vertical.maximum() > 700 && horizontal.maximum() > horizontal.minimum() + 40);
        vertical.setValue(600);
        horizontal.setValue((horizontal.minimum() + horizontal.maximum()) / 2 - 10);
        const int across = horizontal.value();
        int arrow = 0;
        while (!view->viewport()->rect().contains(in_viewport(*view, on_arrow(scene, arrow))))
            ++arrow;

        click(*view, on_arrow(scene, arrow));
        scene.on_insert_e_action();
        QCOMPARE(vertical.value(), 600);
        QCOMPARE(horizontal.value(), across);
        drop_text(*view, on_arrow(scene, arrow), qs("Erase"));
        QCOMPARE(scene.get_actions().size(), 22);
        QCOMPARE(vertical.value(), 600);
        select_blocks(scene, {12});
        QTest::keyClick(view.get(), Qt::Key_Delete);
        QCOMPARE(vertical.value(), 600);
        scene.on_paste_action();
        QTest::keyClick(view.get(), Qt::Key_F5);
        scene.refresh_flow_chain();
        QFocusEvent focus(QEvent::FocusIn);
        QApplication::sendEvent(&scene, &focus);
        QCOMPARE(vertical.value(), 600);
        QCOMPARE(horizontal.value(), across);
    }

    void every_command_rebuilds_once()
    {
        auto [scene, view] = CHART({"one", "two"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        click(*view, on_arrow(scene, 0));
        scene.on_insert_wr_action();
        QCOMPARE(rebuilt.size(), 1);
        select_blocks(scene, {0, 1});
        scene.on_copy_action();
        scene.on_paste_action();
        QCOMPARE(rebuilt.size(), 2);
        select_blocks(scene, {0, 1});
        scene.on_delete_action();
        QCOMPARE(rebuilt.size(), 3);
        drop_text(*view, on_arrow(scene, 0), qs("Custom"));
        QCOMPARE(rebuilt.size(), 4);
        QTest::keyClick(view.get(), Qt::Key_F5);
        QCOMPARE(rebuilt.size(), 5);
        m_modals.expect(MODAL_DRIVER::trigger(qs("Refresh")));
        right_click(*view, on_shape(scene, 0));
        QCoreApplication::processEvents();
        QCOMPARE(rebuilt.size(), 6);
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_KEYS)

#include "test_flow_keys.moc"
