// SPDX-License-Identifier: MIT

// Dropping new actions on a chart.
#include "flow_stand.h"

#include <QGraphicsSceneDragDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

class TEST_FLOW_DROP : public GUI_TEST
{
    Q_OBJECT

private slots:
    void a_drop_inserts_the_named_action_data()
    {
        rows<QString, int>({{"WR", "Write Register", 0},
                            {"RR", "Read Register", 1},
                            {"WD", "Write Data", 2},
                            {"RD", "Read Data", 3},
                            {"E", "Erase", 4},
                            {"custom", "Custom", 5},
                            {"lower case", "write register", -1},
                            {"blank at the end", "Write Register ", -1},
                            {"short", "WR", -1},
                            {"empty", "", -1},
                            {"number", "0", -1},
                            {"markup", "<b>Erase</b>", -1},
                            {"line feed", "Erase\n", -1}});
    }

    void a_drop_inserts_the_named_action()
    {
        const auto [text, type] = row<QString, int>();
        auto [scene, view] = CHART({"one"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        QVERIFY(drop_text(*view, on_arrow(scene, 1), text));

        QCOMPARE(scene.get_actions().size(), type < 0 ? 1 : 2);
        QCOMPARE(rebuilt.size(), type < 0 ? 0 : 1);
        QCOMPARE(shapes_of(scene).size(), type < 0 ? 3 : 4);
        QCOMPARE(scene.get_actions().last()->m_action_type, type < 0 ? 0 : type);
    }

    void a_drop_on_an_arrow_goes_between_its_neighbours()
    {
        auto [scene, view] = CHART({"one", "two", "three"});
        click(*view, on_arrow(scene, 1));

        QVERIFY(drop_text(*view, on_arrow(scene, 2), qs("Read Data")));
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "0:two", "3:default 21", "0:three"}));

        QVERIFY(drop_text(*view, on_arrow(scene, 4), qs("Erase")));
        // The last clicked arrow is still the place of the commands.
        scene.on_insert_wd_action();
        QVERIFY(drop_text(*view, on_arrow(scene, 0), qs("Erase")));
        QCOMPARE(names_of(scene.get_actions()),
                 list({"4:default 31", "0:one", "2:default 13", "0:two", "3:default 21", "0:three", "4:default 31"}));
    }

    void a_drop_elsewhere_is_refused()
    {
        auto [scene, view] =
            CHART({make_loop_action("page", "start"), make_named_action(0, "one"), make_loop_action("page", "end")});
        const QPolygonF connector = connectors_of(scene).first()->polygon();

        for (const QPointF& place : {on_shape(scene, 0), on_shape(scene, 2), on_arrow(scene, 1) - QPointF(60, 0),
                                     QPointF(connector.at(1).x(), connector.at(1).y() - 40)})
            QVERIFY(!drop_text(*view, place, qs("Erase")));
        QCOMPARE(scene.get_actions().size(), 3);

        auto [fixed, fixed_view] = CHART({"one"}, false);
        QVERIFY(!drop_text(*fixed_view, on_arrow(fixed, 0), qs("Erase")));
        QCOMPARE(plain_names(fixed), list({"one"}));
    }

    void a_drop_event_is_accepted_whatever_it_carries()
    {
        LOADED_SCENE scene({"one"});
        QMimeData with_text;
        with_text.setText(qs("nonsense"));
        QMimeData without_text;
        without_text.setColorData(QColor(Qt::red));

        for (const QMimeData* const data : {&with_text, &without_text}) {
            QGraphicsSceneDragDropEvent drop(QEvent::GraphicsSceneDrop);
            drop.setMimeData(data);
            drop.setScenePos(on_arrow(scene, 0));
            drop.setProposedAction(Qt::MoveAction);
            QApplication::sendEvent(&scene, &drop);
            QVERIFY(drop.isAccepted());
            QCOMPARE(drop.dropAction(), Qt::MoveAction);
        }
        QCOMPARE(plain_names(scene), list({"one"}));
    }

    void a_drop_goes_on_to_the_item_that_took_it()
    {
        // An item that takes drops notes their texts.
        class NOTING_ITEM : public QGraphicsRectItem
        {
        public:
            NOTING_ITEM() : QGraphicsRectItem(0, 0, 30, 30) { setAcceptDrops(true); }
            QStringList texts;

        protected:
            void dropEvent(QGraphicsSceneDragDropEvent* event) override { texts.append(event->mimeData()->text()); }
        };
        auto [scene, view] = CHART({"one"});
        auto* const item = new NOTING_ITEM;
        item->setPos(scene.sceneRect().topRight());
        scene.addItem(item);

        QVERIFY(drop_text(*view, item->sceneBoundingRect().center(), qs("foreign")));

        QCOMPARE(item->texts, list({"foreign"}));
        QCOMPARE(plain_names(scene), list({"one"}));
    }

    void a_drop_beside_the_chain_inserts_nothing()
    {
        LOADED_SCENE scene({"one"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
        QMimeData data;
        data.setText(qs("Erase"));
        const auto drop_at = [&](const QPointF& pos) {
            QGraphicsSceneDragDropEvent drop(QEvent::GraphicsSceneDrop);
            drop.setMimeData(&data);
            drop.setScenePos(pos);
            drop.setProposedAction(Qt::MoveAction);
            QApplication::sendEvent(&scene, &drop);
            QCOMPARE(drop.dropAction(), Qt::MoveAction);
        };

        drop_at(on_shape(scene, 1));
        drop_at(QPointF(0, -10));
        QCOMPARE(plain_names(scene), list({"one"}));
        QCOMPARE(rebuilt.size(), 0);

        // Only the height counts once a drop came through.
        drop_at(QPointF(1000, on_arrow(scene, 1).y()));
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "4:default 31"}));
    }

    void a_chain_of_five_thousand_is_edited()
    {
        GFPQ_FLOW_SCENE scene(nullptr, 0);
        load_names(scene, std::vector<std::string>(5000, "action"));
        const auto view = show_view(scene, QSize(300, 300));
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        log().clear();

        QVERIFY(drop_text(*view, on_arrow(scene, 5000), qs("Erase")));

        QCOMPARE(scene.get_actions().size(), 5001);
        QCOMPARE(names_of({scene.get_actions().last()}), list({"4:default 31"}));
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_DROP)

#include "test_flow_drop.moc"
