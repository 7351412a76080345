// SPDX-License-Identifier: MIT

// The context menu of a chart, and inserting actions by it.
#include "flow_stand.h"

#include <QAction>
#include <QGraphicsSceneMouseEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTranslator>

class TEST_FLOW_MENU : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_menu_shows_what_is_possible_data()
    {
        rows<bool, bool, bool, QStringList>(
            {{"nothing", false, false, false, list({"Refresh"})},
             {"arrow", false, false, true, list({"Insert", "-", "Refresh"})},
             {"selected", true, false, false, list({"Copy", "-", "Refresh", "Delete"})},
             {"selected, arrow", true, false, true, list({"Copy", "-", "Insert", "-", "Refresh", "Delete"})},
             {"copied", false, true, false, list({"Refresh"})},
             {"copied, arrow", false, true, true, list({"Paste", "-", "Insert", "-", "Refresh"})},
             {"selected, copied", true, true, false, list({"Copy", "-", "Refresh", "Delete"})},
             {"selected, copied, arrow", true, true, true,
              list({"Copy", "Paste", "-", "Insert", "-", "Refresh", "Delete"})}});
    }

    void the_menu_shows_what_is_possible()
    {
        const auto [selected, copied, at_arrow, entries] = row<bool, bool, bool, QStringList>();
        auto [scene, view] = CHART({"one", "two"});
        select_blocks(scene, {0});
        if (copied)
            scene.on_copy_action();
        if (!selected)
            scene.clearSelection();
        m_modals.expect(close_menu());

        right_click(*view, at_arrow ? on_arrow(scene, 1) : on_shape(scene, 2));

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().menu_entries, entries);
        QVERIFY(!m_modals.last().has_parent);
        QCOMPARE(plain_names(scene), list({"one", "two"}));
    }

    void the_commands_belong_to_the_scene()
    {
        const GFPQ_FLOW_SCENE scene(nullptr, 0);

        QStringList commands;
        const QList<QAction*> actions = scene.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QAction* const action : actions) {
            commands.append(action->text());
            QVERIFY(action->shortcut().isEmpty());
        }

        QCOMPARE(commands, list({"Refresh", "Delete", "Copy", "Paste", "Write Register", "Read Register", "Write Data",
                                 "Read Data", "Erase"}));
    }

    void only_the_title_of_the_submenu_is_translated()
    {
        // Knows a word for everything, and tells from which context it was asked for.
        class ANY_LANGUAGE : public QTranslator
        {
        public:
            bool isEmpty() const override { return false; }
            QString translate(const char* context, const char* text, const char*, int) const override
            {
                return QString::fromLatin1(context) + QLatin1Char(' ') + QString::fromLatin1(text);
            }
        };
        ANY_LANGUAGE language;
        QCoreApplication::installTranslator(&language);
        auto [scene, view] = CHART({"one"});
        select_blocks(scene, {0});
        scene.on_copy_action();
        QStringList offered;
        QPoint menu_pos;
        m_modals.expect([&](QWidget* menu) {
            menu_pos = menu->pos();
            for (const QAction* const insert : menu->actions().at(3)->menu()->actions())
                offered.append(insert->text());
            menu->close();
        });
        const QPointF clicked = on_arrow(scene, 0);

        right_click(*view, clicked);

        QCoreApplication::removeTranslator(&language);
        QCOMPARE(m_modals.last().menu_entries,
                 list({"Copy", "Paste", "-", "gfpq_dlg Insert", "-", "Refresh", "Delete"}));
        QCOMPARE(offered, list({"Read Register", "Write Register", "Write Data", "Read Data", "Erase"}));
        // The menu stands where the click was.
        QCOMPARE(menu_pos, view->viewport()->mapToGlobal(in_viewport(*view, clicked)));
    }

    void a_right_click_keeps_the_selection()
    {
        auto [scene, view] = CHART({"one", "two"});
        click(*view, on_shape(scene, 1));
        QCOMPARE(scene.selectedItems().size(), 1);
        const QList<QGraphicsItem*> selected = scene.selectedItems();
        m_modals.expect(close_menu());
        m_modals.expect(close_menu());

        right_click(*view, on_shape(scene, 2));
        right_click(*view, on_arrow(scene, 1));

        QCOMPARE(scene.selectedItems(), selected);
    }

    void only_an_arrow_is_an_insertion_point()
    {
        auto [scene, view] =
            CHART({make_loop_action("page", "start"), make_named_action(0, "one"), make_loop_action("page", "end")});
        QGraphicsPolygonItem& connector = *connectors_of(scene).first();
        const QPointF on_connector = connector.polygon().at(1) - QPointF(0, 40);
        QList<QPointF> others{on_shape(scene, 0), on_shape(scene, 2), on_shape(scene, 3),
                              on_arrow(scene, 1) - QPointF(40, 0), on_connector};
        for (const QGraphicsItem* const item : scene.items()) {
            const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item);
            if (text != nullptr && list({"Yes", "No"}).contains(text->toPlainText()))
                others.append(text->sceneBoundingRect().center());
        }
        QCOMPARE(others.size(), 7);
        QGraphicsView& chart = *view;
        const auto menu_at = [this, &chart](const QPointF& place) {
            m_modals.expect(close_menu());
            right_click(chart, place);
            return m_modals.last().menu_entries;
        };

        for (const QPointF& place : qAsConst(others))
            QCOMPARE(menu_at(place), list({"Refresh"}));
        QCOMPARE(menu_at(on_arrow(scene, 1)), list({"Insert", "-", "Refresh"}));
        // A connector is no such point only because it takes no drops.
        connector.setAcceptDrops(true);
        QCOMPARE(menu_at(on_connector), list({"Insert", "-", "Refresh"}));
    }

    void inserting_by_the_menu_data()
    {
        rows<QString, QString>({{"WR", "Write Register", "0:default 0"},
                                {"RR", "Read Register", "1:default 5"},
                                {"WD", "Write Data", "2:default 13"},
                                {"RD", "Read Data", "3:default 21"},
                                {"E", "Erase", "4:default 31"}});
    }

    void inserting_by_the_menu()
    {
        const auto [entry, inserted] = row<QString, QString>();
        auto [scene, view] = CHART({"one", "two"});
        m_modals.expect(insert_by_menu(entry));
        log().clear();

        right_click(*view, on_arrow(scene, 0));

        QStringList expected{inserted};
        expected += list({"0:one", "0:two"});
        QCOMPARE(names_of(scene.get_actions()), expected);
        QCOMPARE(shapes_of(scene).size(), 5);
        QCOMPARE(text_of(*shapes_of(scene).at(1))->action(), scene.get_actions().at(0));
        QCOMPARE(calls_of({"get_active_flash_manager", "create_action"}),
                 QStringList({qs("GFPDB_HELPER.get_active_flash_manager(false)"),
                              qs("mgr.create_action(%1)").arg(inserted.left(1))}));
    }

    void inserting_goes_to_the_arrow_that_was_clicked()
    {
        for (int arrow = 0; arrow <= 3; ++arrow) {
            for (const bool by_left_press : {true, false}) {
                auto [scene, view] = CHART({"one", "two", "three"});
                if (!by_left_press)
                    m_modals.expect(close_menu());
                if (by_left_press)
                    click(*view, on_arrow(scene, arrow));
                else
                    right_click(*view, on_arrow(scene, arrow));

                scene.on_insert_e_action();

                QStringList expected = list({"0:one", "0:two", "0:three"});
                expected.insert(arrow, qs("4:default 31"));
                QCOMPARE(names_of(scene.get_actions()), expected);
            }
        }
    }

    void a_click_off_the_arrows_keeps_the_insertion_point()
    {
        auto [scene, view] = CHART({"one", "two", "three"});
        click(*view, on_arrow(scene, 1));
        m_modals.expect(close_menu());

        click(*view, on_shape(scene, 3));
        right_click(*view, on_shape(scene, 3));
        scene.create_flow_chain();
        scene.on_insert_e_action();

        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "4:default 31", "0:two", "0:three"}));
    }

    void inserting_without_an_arrow_does_nothing()
    {
        LOADED_SCENE scene({"one"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        scene.on_insert_wr_action();
        scene.on_insert_rr_action();
        scene.on_insert_wd_action();
        scene.on_insert_rd_action();
        scene.on_insert_e_action();

        QCOMPARE(plain_names(scene), list({"one"}));
        QCOMPARE(rebuilt.size(), 0);
        QCOMPARE(count_of("create_action"), 1);
    }

    void an_action_that_is_not_made_is_not_inserted()
    {
        auto [scene, view] = CHART({"one"});
        click(*view, on_arrow(scene, 0));

        mgr().refused_actions.insert(4);
        scene.on_insert_e_action();
        QCOMPARE(plain_names(scene), list({"one"}));

        world().active = nullptr;
        scene.on_insert_wr_action();
        QVERIFY(drop_text(*view, on_arrow(scene, 0), qs("Erase")));
        QCOMPARE(plain_names(scene), list({"one"}));
    }

    void past_the_end_is_the_end()
    {
        // Chains of equally high shapes but the first, so that an arrow of the longer one lies below End of the shorter
        // one.
        const ACTION_LIST three({make_named_action(0, "one"), make_loop_action("a", ""), make_loop_action("b", "")});
        const ACTION_LIST two({make_named_action(0, "one"), make_loop_action("a", "")});
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        load(scene, three.get());
        const auto view = show_view(scene);
        const QPointF below = on_arrow(scene, 3);
        click(*view, below);
        load(scene, two.get());
        const QGraphicsItem& end = *shapes_of(scene).last();
        QVERIFY(below.y() > end.y() + end.boundingRect().height());
        QVERIFY(below.y() < end.y() + end.boundingRect().height() + 65);
        select_blocks(scene, {0});
        scene.on_copy_action();

        scene.on_paste_action();
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "5:a", "0:one"}));

        load(scene, two.get());
        scene.on_insert_e_action();
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "5:a", "4:default 31"}));
    }

    void the_whole_height_of_an_arrow_counts()
    {
        // Blocks narrower than the zones, so that both edges of a zone can be hit beside them.
        mgr().on_new_action = [](ACTION_DOUBLE& action) {
            action.properties.resize(1);
            action.labels[0] = "";
        };
        OPEN_SCENE scene(nullptr, 0);
        load_names(scene, {"", ""});
        const QGraphicsItem& shape = *shapes_of(scene).at(1);
        const double bottom = shape.y() + shape.boundingRect().height();
        const auto press = [&scene](double x, double y) {
            QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
            event.setButton(Qt::LeftButton);
            event.setScenePos(QPointF(x, y));
            QApplication::sendEvent(&scene, &event);
        };
        // -1: met, but on no arrow; 0: not met, the press before still counts.
        const auto index_at = [&](double y) {
            const QPointF elsewhere = on_arrow(scene, 0);
            press(elsewhere.x(), elsewhere.y());
            press(arrows_of(scene).at(1)->drop_zone()->rect().left() + 1, y);
            int index = -7;
            return scene.find_insert_index(index) ? index : -1;
        };

        QCOMPARE(index_at(bottom), 1);
        QCOMPARE(index_at(bottom + 65), 1);
        QCOMPARE(index_at(bottom + 32), 1);
        // Still on the item, whose outline is half a unit wide on either side, but no longer on the arrow.
        QCOMPARE(index_at(bottom - 0.25), -1);
        QCOMPARE(index_at(bottom + 65.25), -1);
        QCOMPARE(index_at(bottom + 66), 0);
    }

    void refresh_draws_the_chart_again()
    {
        auto [scene, view] = CHART({"one"});
        scene.get_actions().first()->set_property_value(GFPDB_WR_NAME, "changed");
        QVERIFY(!texts_of(scene).at(1).contains(qs("changed")));
        m_modals.expect(MODAL_DRIVER::trigger(qs("Refresh")));

        right_click(*view, on_shape(scene, 1));

        QVERIFY(texts_of(scene).at(1).contains(qs("changed")));
    }

    void a_fixed_chart_offers_only_refresh()
    {
        auto [scene, view] = CHART({"one"}, false);
        click(*view, on_shape(scene, 1));
        click(*view, on_arrow(scene, 0));
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(view.get(), Qt::Key_Delete);
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
        QTest::keyClick(view.get(), Qt::Key_F5);
        QCOMPARE(rebuilt.size(), 1);
        m_modals.expect(close_menu());
        m_modals.expect(close_menu());

        right_click(*view, on_arrow(scene, 0));
        QCOMPARE(m_modals.last().menu_entries, list({"Refresh"}));
        right_click(*view, on_shape(scene, 1));
        QCOMPARE(m_modals.last().menu_entries, list({"Refresh"}));

        QCOMPARE(plain_names(scene), list({"one"}));
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_MENU)

#include "test_flow_menu.moc"
