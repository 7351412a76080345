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
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");

        const QStringList names =
            list({"Write Register", "Read Register", "Write Data", "Read Data", "Erase", "Custom"});
        for (int type = 0; type < names.size(); ++type)
            QTest::newRow(qPrintable(names.at(type))) << names.at(type) << type;
        for (const char* const text : {"write register", "Write Register ", "WR", "", "0", "<b>Erase</b>", "Erase\n"})
            QTest::newRow(qPrintable(qs("foreign: ") + QLatin1String(text))) << QString::fromLatin1(text) << -1;
    }

    void a_drop_inserts_the_named_action()
    {
        QFETCH(const QString, text);
        QFETCH(const int, type);
        auto [scene, view] = CHART({"one"});
        QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

        QVERIFY(drop_text(*view, on_arrow(scene, 1), text));

        QCOMPARE(scene.get_actions().size(), type < 0 ? 1 : 2);
        QCOMPARE(rebuilt.size(), type < 0 ? 0 : 1);
        if (type >= 0) {
            QCOMPARE(scene.get_actions().at(1)->m_action_type, type);
            QCOMPARE(shapes_of(scene).size(), 4);
        }
    }

    void a_drop_on_an_arrow_goes_between_its_neighbours()
    {
        auto [scene, view] = CHART({"one", "two", "three"});

        QVERIFY(drop_text(*view, on_arrow(scene, 2), qs("Read Data")));
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "0:two", "3:default 21", "0:three"}));

        QVERIFY(drop_text(*view, on_arrow(scene, 4), qs("Erase")));
        QVERIFY(drop_text(*view, on_arrow(scene, 0), qs("Erase")));
        QCOMPARE(names_of(scene.get_actions()),
                 list({"4:default 31", "0:one", "0:two", "3:default 21", "0:three", "4:default 31"}));
    }

    void a_drop_elsewhere_is_refused()
    {
        auto [scene, view] =
            CHART({make_loop_action("page", "start"), make_named_action(0, "one"), make_loop_action("page", "end")});
        const QPolygonF connector = connectors_of(scene).first()->polygon();

        QVERIFY(!drop_text(*view, on_shape(scene, 0), qs("Erase")));
        QVERIFY(!drop_text(*view, on_shape(scene, 2), qs("Erase")));
        QVERIFY(!drop_text(*view, on_arrow(scene, 1) - QPointF(60, 0), qs("Erase")));
        QVERIFY(!drop_text(*view, QPointF(connector.at(1).x(), connector.at(1).y() - 40), qs("Erase")));

        QCOMPARE(scene.get_actions().size(), 3);
    }

    void a_drop_on_a_fixed_chart_is_refused()
    {
        auto [scene, view] = CHART({"one"}, false);

        QVERIFY(!drop_text(*view, on_arrow(scene, 0), qs("Erase")));

        QCOMPARE(plain_names(scene), list({"one"}));
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
            QApplication::sendEvent(&scene, &drop);
        };

        drop_at(on_shape(scene, 1));
        drop_at(QPointF(0, -10));
        QCOMPARE(plain_names(scene), list({"one"}));
        QCOMPARE(rebuilt.size(), 0);

        // Only the height counts once a drop came through.
        drop_at(QPointF(1000, on_arrow(scene, 1).y()));
        QCOMPARE(names_of(scene.get_actions()), list({"0:one", "4:default 31"}));
    }

    void a_drop_keeps_the_last_clicked_arrow()
    {
        auto [scene, view] = CHART({"one", "two"});
        click(*view, on_arrow(scene, 0));

        drop_text(*view, on_arrow(scene, 2), qs("Erase"));
        scene.on_insert_wd_action();

        QCOMPARE(names_of(scene.get_actions()), list({"2:default 13", "0:one", "0:two", "4:default 31"}));
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
