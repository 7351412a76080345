// SPDX-License-Identifier: MIT

// The drawing of a flow chart: every item, number, colour and text.
#include "flow_stand.h"
#include "literal_chart.h"

#include <QMetaMethod>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <new>

namespace {

bool g_out_of_memory = false;

// What a chart is drawn from. The scene draws copies, whose labels are those of fresh actions: "label N".
std::vector<LITERAL_ACTION> literal(const std::vector<GFPDB_ACTION*>& actions)
{
    std::vector<LITERAL_ACTION> all;
    for (const GFPDB_ACTION* const action : actions) {
        const auto& source = dynamic_cast<const ACTION_DOUBLE&>(*action);
        LITERAL_ACTION one;
        one.type = source.m_action_type;
        for (const GFPDB_ACT_PROPERTY property : source.properties) {
            if (property == 39)
                one.marker = source.values.at(property);
            else
                one.lines.push_back("label " + std::to_string(property) + " " + source.values.at(property));
        }
        all.push_back(one);
    }
    return all;
}

QStringList literal_items(const std::vector<GFPDB_ACTION*>& actions, bool editable)
{
    QGraphicsScene scene;
    draw_literal_chart(scene, literal(actions), editable);
    return describe_items(scene);
}

ACTION_DOUBLE* action_with_value(const std::string& value)
{
    return make_named_action(GFPDB_ACT_ERASE, value);
}

// Notes every text that a build makes.
class NOTING_SCENE : public OPEN_SCENE
{
public:
    using OPEN_SCENE::OPEN_SCENE;

    QList<QPointer<GFPQ_GRAPHICS_TEXT_ITEM>> texts;

protected:
    GFPQ_GRAPHICS_TEXT_ITEM* create_text_item(GFPDB_ACTION* action, Qt::Alignment alignment) override
    {
        texts.append(OPEN_SCENE::create_text_item(action, alignment));
        return texts.last();
    }
};

class TEXTLESS_SCENE : public OPEN_SCENE
{
public:
    using OPEN_SCENE::OPEN_SCENE;

protected:
    GFPQ_GRAPHICS_TEXT_ITEM* create_text_item(GFPDB_ACTION*, Qt::Alignment) override { return nullptr; }
};

// A scene into whose list a null got. A list that was loaded or edited holds none, but one that was handed on might.
class NULL_HOLDING_SCENE : public OPEN_SCENE
{
public:
    using OPEN_SCENE::OPEN_SCENE;

    void put_null(int index) { const_cast<QList<GFPDB_ACTION*>&>(get_actions()).insert(index, nullptr); }
};

void compare_lines(const QStringList& actual, const QStringList& expected)
{
    for (int line = 0; line < qMin(actual.size(), expected.size()); ++line)
        QCOMPARE(actual.at(line), expected.at(line));
    QCOMPARE(actual.size(), expected.size());
}

} // namespace

// The allocation that reports failure by null is the one the chart uses for its texts.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (g_out_of_memory)
        return nullptr;
    try {
        return ::operator new(size);
    } catch (...) {
        return nullptr;
    }
}

using ACTIONS = std::vector<GFPDB_ACTION*>;

using MAKE_ACTIONS = std::function<ACTIONS()>;

Q_DECLARE_METATYPE(MAKE_ACTIONS)

class TEST_FLOW_CHAIN : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_meta_object_lists_signals_and_slots_in_order()
    {
        const QMetaObject& meta = GFPQ_FLOW_SCENE::staticMetaObject;
        QStringList signatures;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
            const QMetaMethod method = meta.method(index);
            signatures.append((method.methodType() == QMetaMethod::Signal ? qs("signal ") : qs("slot ")) +
                              QString::fromLatin1(method.methodSignature()));
        }

        QCOMPARE(signatures,
                 list({"signal emit_action_selection_changed(GFPDB_ACTION*)", "signal emit_clear_table()",
                       "slot on_selection()", "slot create_flow_chain()", "slot refresh_flow_chain()",
                       "slot on_delete_action()", "slot on_copy_action()", "slot on_paste_action()",
                       "slot on_insert_wr_action()", "slot on_insert_rr_action()", "slot on_insert_wd_action()",
                       "slot on_insert_rd_action()", "slot on_insert_e_action()", "slot on_change_scene()"}));
        QCOMPARE(QLatin1String(meta.className()), QLatin1String("GFPQ_FLOW_SCENE"));
        QCOMPARE(QLatin1String(GFPQ_GRAPHICS_TEXT_ITEM::staticMetaObject.className()),
                 QLatin1String("GFPQ_GRAPHICS_TEXT_ITEM"));
    }

    void a_chart_is_drawn_as_the_plain_steps_draw_it_data()
    {
        QTest::addColumn<MAKE_ACTIONS>("make");
        QTest::addColumn<bool>("editable");

        const auto add = [](const char* name, const MAKE_ACTIONS& make, bool editable = true) {
            QTest::newRow(name) << make << editable;
        };
        const auto one_of_each = [] {
            ACTIONS actions;
            for (int type = 0; type <= 4; ++type)
                actions.push_back(make_named_action(type, "action " + std::to_string(type)));
            return actions;
        };
        const auto loop = [] {
            return ACTIONS{make_named_action(0, "before"),
                           make_loop_action("page", "start"),
                           make_named_action(2, "a page program of a fairly long name"),
                           make_named_action(1, "poll"),
                           make_loop_action("page", "end"),
                           make_named_action(4, "after")};
        };
        add("no action", [] { return ACTIONS(); });
        add("one of each type", one_of_each);
        add("one of each type, fixed", one_of_each, false);
        add("a loop", loop);
        add("a loop, fixed", loop, false);
        add("two loops", [loop] {
            ACTIONS actions = loop();
            const ACTIONS more = loop();
            actions.insert(actions.end(), more.begin(), more.end());
            return actions;
        });
        add("a loop in a loop", [] {
            return ACTIONS{make_loop_action("die", "start"), make_loop_action("sector", "start"),
                           make_named_action(4, "e"), make_loop_action("sector", "end"),
                           make_loop_action("die", "end")};
        });
        add("an end first of all", [] { return ACTIONS{make_loop_action("page", "end"), make_named_action(0, "w")}; });
        add("an end without a start", [] {
            return ACTIONS{make_named_action(0, "w"), make_loop_action("page", "end"), make_loop_action("page", "end")};
        });
        add("a start without an end", [] {
            return ACTIONS{make_loop_action("page", "start"), make_named_action(0, "w")};
        });
        add("a diamond that is the widest", [] {
            return ACTIONS{make_loop_action("p", "start"), make_loop_action(std::string(90, 'W'), "end"),
                           make_named_action(0, "w")};
        });
        add("markers of another case are none", [] {
            return ACTIONS{make_named_action(3, "a wide block, so that an anchor would show"),
                           make_loop_action("page", "start"),
                           make_loop_action("page", "Start"),
                           make_loop_action("page", "END"),
                           make_loop_action("page", "end"),
                           make_loop_action("page", ""),
                           make_loop_action("page", "ending")};
        });
        add("types that cannot be drawn", [] {
            return ACTIONS{make_named_action(0, "w"), new ACTION_DOUBLE(6), new ACTION_DOUBLE(-1),
                           new ACTION_DOUBLE(4711), make_named_action(1, "r")};
        });
        add("blocks narrower and wider than Start", [] {
            ACTIONS actions;
            for (const std::size_t width : {0U, 1U, 3U, 200U, 2U}) {
                auto* const action = new ACTION_DOUBLE(GFPDB_ACT_CUSTOM);
                action->properties = {GFPDB_CUSTOM_LOOP_UNIT};
                action->values = {{GFPDB_CUSTOM_LOOP_UNIT, std::string(width, 'i')}};
                actions.push_back(action);
            }
            return actions;
        });
        add("markup is no markup", [] { return ACTIONS{action_with_value("<b>bold</b> &amp; <img src=x> </table>")}; });
        add("line breaks", [] { return ACTIONS{action_with_value("one\ntwo\n\nfour"), action_with_value("\n")}; });
        add("right to left", [] { return ACTIONS{action_with_value("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D 12 abc")}; });
        add("letters outside ASCII", [] { return ACTIONS{action_with_value("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80")}; });
    }

    void a_chart_is_drawn_as_the_plain_steps_draw_it()
    {
        QFETCH(const MAKE_ACTIONS, make);
        QFETCH(const bool, editable);
        const ACTION_LIST actions(make());
        // Copies have the property list of their type; these sources have none, or another one.
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        load(scene, actions.get(), editable);

        std::vector<GFPDB_ACTION*> drawn;
        const QList<GFPDB_ACTION*>& held = scene.get_actions();
        for (GFPDB_ACTION* const action : held)
            drawn.push_back(action);
        compare_lines(describe_items(scene), literal_items(drawn, editable));
        scene.create_flow_chain();
        compare_lines(describe_items(scene), literal_items(drawn, editable));
    }

    void an_empty_list_is_drawn_as_start_arrow_end()
    {
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        scene.create_flow_chain();

        const QList<QAbstractGraphicsShapeItem*> shapes = shapes_of(scene);
        QCOMPARE(shapes.size(), 2);
        QCOMPARE(arrows_of(scene).size(), 1);
        QCOMPARE(texts_of(scene), (QStringList{qs("Start"), qs("End")}));
        QCOMPARE(shapes.first()->pos(), QPointF(0, 15));
        QCOMPARE(shapes.last()->y(), 15 + shapes.first()->boundingRect().height() + 65);
        QCOMPARE(scene.sceneRect().height(), shapes.last()->y() + shapes.last()->boundingRect().height() + 15);
        QCOMPARE(scene.sceneRect().width(), shapes.first()->boundingRect().width());
        QCOMPARE(scene.sceneRect().topLeft(), QPointF(0, 0));
    }

    void two_blocks_are_a_block_and_an_arrow_apart_and_arrows_touch_them()
    {
        LOADED_SCENE scene({"one", "two"});

        const QList<QAbstractGraphicsShapeItem*> shapes = shapes_of(scene);
        QCOMPARE(shapes.size(), 4);
        QCOMPARE(shapes.at(2)->y(), shapes.at(1)->y() + shapes.at(1)->boundingRect().height() + 65);
        const QPolygonF arrow = arrows_of(scene).at(1)->polygon();
        QCOMPARE(arrow.at(3).y(), shapes.at(2)->y());
        QVERIFY(scene.sceneRect().left() < 0);
        QCOMPARE(scene.sceneRect().left(), qMin(shapes.at(1)->x(), shapes.at(2)->x()));
    }

    void a_first_loop_end_leads_back_to_the_origin()
    {
        LOADED_SCENE scene({make_loop_action("page", "end")});

        QCOMPARE(connectors_of(scene).size(), 1);
        const QPolygonF connector = connectors_of(scene).first()->polygon();
        QCOMPARE(connector.at(5), QPointF(0, 0));
        QCOMPARE(connector.at(1).x(), 65.0);
        QVERIFY(!connectors_of(scene).first()->acceptDrops());
    }

    void every_loop_end_widens_the_chart()
    {
        LOADED_SCENE scene({make_loop_action("page", "end"), make_loop_action("page", "end"),
                            make_named_action(0, "a block that is wider than the diamonds are")});

        const double diamond = shapes_of(scene).at(1)->boundingRect().width();
        const double block = shapes_of(scene).at(3)->boundingRect().width();
        QCOMPARE(scene.sceneRect().width(), qMax(qMax(diamond + 65, diamond) + 65, block));
    }

    void lines_of_an_action_are_centred_and_never_wrapped()
    {
        LOADED_SCENE scene({make_named_action(3, "a name with blanks that a narrow text would wrap at")});

        const QTextDocument& document = *text_of(*blocks_of(scene).first())->document();
        QCOMPARE(document.blockCount(), 10);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            QCOMPARE(block.blockFormat().alignment(), Qt::AlignCenter);
            QCOMPARE(block.layout()->lineCount(), 1);
        }
        QCOMPARE(blocks_of(scene).first()->rect(), text_of(*blocks_of(scene).first())->boundingRect());
    }

    // Qt lays long texts out in steps, when it comes to it. The widest line is the last one.
    void a_text_of_many_lines_stays_within_its_block()
    {
        std::string lines;
        for (int line = 0; line < 300; ++line)
            lines += "line\n";
        LOADED_SCENE scene({make_named_action(4, lines + "a last line that is wider than all of the others"),
                            make_named_action(0, "next")});

        const QGraphicsRectItem& block = *blocks_of(scene).first();
        const GFPQ_GRAPHICS_TEXT_ITEM& text = *text_of(block);
        const QRectF drawn = block.rect();
        const QSizeF laid_out = text.document()->size();
        QCOMPARE(text.document()->blockCount(), 307);
        QCOMPARE(drawn.size(), laid_out);
        QCOMPARE(text.boundingRect(), drawn);
        QCOMPARE(shapes_of(scene).at(2)->y(), block.y() + block.boundingRect().height() + 65);
        for (QTextBlock line = text.document()->begin(); line.isValid(); line = line.next())
            QCOMPARE(line.layout()->lineCount(), 1);
    }

    void a_text_is_aligned_as_asked_and_in_no_scene_yet()
    {
        const ACTION_LIST actions({make_named_action(0, "w")});
        OPEN_SCENE scene(nullptr, 0);

        for (const Qt::AlignmentFlag alignment : {Qt::AlignRight, Qt::AlignLeft, Qt::AlignCenter}) {
            const GFPQ_GRAPHICS_TEXT_ITEM& text = *scene.create_text_item(actions.get().front(), alignment);

            QCOMPARE(text.document()->begin().blockFormat().alignment(), Qt::Alignment(alignment));
            QCOMPARE(text.document()->lastBlock().blockFormat().alignment(), Qt::Alignment(alignment));
            QCOMPARE(text.action(), actions.get().front());
            QVERIFY(text.scene() == nullptr);
            QVERIFY(text.parentItem() == nullptr);
        }
    }

    void labels_are_the_actions_own_words()
    {
        const ACTION_LIST actions({make_action(4, {{31, "e"}, {32, "20h"}})});
        mgr().on_new_action = [](ACTION_DOUBLE& action) {
            action.properties = {GFPDB_ER_COMMAND, GFPDB_CUSTOM_LOOP_MARKER, GFPDB_ER_NAME, GFPDB_CUSTOM_LOOP_UNIT};
            action.labels = {{31, "Bezeichnung f\xC3\xBCr <alles>"}, {32, ""}, {38, "Unit"}, {39, "Marker"}};
        };
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        load(scene, actions.get());

        QCOMPARE(text_of(*blocks_of(scene).first())->toPlainText(),
                 QString::fromUtf8(" 20h\nBezeichnung f\xC3\xBCr <alles> e\nUnit "));
    }

    void a_text_knows_its_action_and_a_label_knows_none()
    {
        LOADED_SCENE scene({make_named_action(0, "w"), make_loop_action("page", "end")});

        QList<GFPDB_ACTION*> known;
        const QList<QGraphicsItem*> items = scene.items(Qt::AscendingOrder);
        for (const QGraphicsItem* const item : items) {
            if (const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item))
                known.append(text->action());
        }
        QCOMPARE(known, (QList<GFPDB_ACTION*>{nullptr, scene.get_actions().at(0), scene.get_actions().at(1), nullptr,
                                              nullptr, nullptr}));
        QCOMPARE(texts_of(scene).mid(3), (QStringList{qs("No"), qs("Yes"), qs("End")}));
    }

    void a_null_in_the_list_is_passed_over()
    {
        NULL_HOLDING_SCENE scene(nullptr, 0);
        load_names(scene, {"one", "two"});
        const QStringList drawn = describe_items(scene);
        scene.put_null(0);
        scene.put_null(2);
        scene.put_null(4);

        scene.create_flow_chain();

        QCOMPARE(scene.get_actions().size(), 5);
        compare_lines(describe_items(scene), drawn);
    }

    void texts_of_actions_that_are_not_drawn_do_not_leak()
    {
        const ACTION_LIST actions({new ACTION_DOUBLE(6), make_named_action(0, "w"), new ACTION_DOUBLE(7)});
        auto scene = std::make_unique<NOTING_SCENE>(nullptr, 0);

        load(*scene, actions.get());
        const QList<QPointer<GFPQ_GRAPHICS_TEXT_ITEM>> first = scene->texts;
        QCOMPARE(first.size(), 3);
        QVERIFY(!first.at(0).isNull() && first.at(0)->scene() == nullptr);
        scene->create_flow_chain();
        QVERIFY(first.at(0).isNull() && first.at(1).isNull() && first.at(2).isNull());

        const QList<QPointer<GFPQ_GRAPHICS_TEXT_ITEM>> second = scene->texts.mid(3);
        QVERIFY(!second.at(2).isNull());
        scene.reset();
        QVERIFY(second.at(0).isNull() && second.at(1).isNull() && second.at(2).isNull());
    }

    void an_arrow_has_its_drop_zone_as_child()
    {
        const QPolygonF polygon({{100, 10}, {100, 57}, {82, 57}, {100, 75}, {118, 57}, {100, 57}});

        const GFPQ_ARROW_POLYGON_ITEM open(polygon, true);
        const GFPQ_ARROW_POLYGON_ITEM shut(polygon, false);

        QCOMPARE(open.polygon(), polygon);
        QCOMPARE(open.parentItem(), nullptr);
        QCOMPARE(open.childItems(), QList<QGraphicsItem*>{open.drop_zone()});
        QCOMPARE(open.drop_zone()->rect(), QRectF(64, 10, 72, 65));
        QVERIFY(open.drop_zone()->acceptDrops());
        QVERIFY(!shut.drop_zone()->acceptDrops());
        QVERIFY(!open.acceptDrops());
    }

    void the_drawing_steps_return_what_they_added()
    {
        OPEN_SCENE scene(nullptr, 0);

        QGraphicsRectItem* const block = scene.add_action_block(QRectF(1, 2, 3, 4), QColor(1, 2, 3), true);
        QGraphicsRectItem* const fixed = scene.add_action_block(QRectF(1, 2, 3, 4), QColor(1, 2, 3), false);
        GFPQ_ARROW_POLYGON_ITEM* const arrow = scene.add_arrow(10, 20);
        QGraphicsPolygonItem* const connector = scene.add_loop_back(1, 2, 3, 4, 5);

        QCOMPARE(scene.items(Qt::AscendingOrder),
                 (QList<QGraphicsItem*>{block, fixed, arrow, arrow->drop_zone(), connector}));
        QCOMPARE(block->rect(), QRectF(1, 2, 3, 4));
        QCOMPARE(block->flags(), QGraphicsItem::ItemIsSelectable);
        QCOMPARE(fixed->flags(), QGraphicsItem::GraphicsItemFlags());
        QCOMPARE(connector->polygon().at(1), QPointF(70, 2));
        scene.clear_flow_chain();
        QVERIFY(scene.items().isEmpty());
    }

    void a_missing_text_is_an_internal_error()
    {
        const ACTION_LIST actions({make_named_action(0, "w")});
        TEXTLESS_SCENE scene(nullptr, 0);

        QVERIFY_EXCEPTION_THROWN(load(scene, actions.get()), INTERNAL_ERROR_REPORTED);

        QCOMPARE(
            calls_of({"report"}),
            list({R"(MSG_INTERNAL_ERROR.report("text_item != nullptr", "GFPQ", "pgm/gfpq/gfpq_flow_scene", 192))"}));
        QCOMPARE(shapes_of(scene).size(), 1);
    }

    void a_text_without_memory_is_an_internal_error()
    {
        const ACTION_LIST actions({make_named_action(0, "w")});
        OPEN_SCENE scene(nullptr, 0);
        log().on_call(qs("report"), [](const QString&) { g_out_of_memory = false; });
        g_out_of_memory = true;

        QVERIFY_EXCEPTION_THROWN(scene.create_text_item(actions.get().front(), Qt::AlignCenter),
                                 INTERNAL_ERROR_REPORTED);

        g_out_of_memory = false;
        QCOMPARE(calls_of({"report"}),
                 list({R"(MSG_INTERNAL_ERROR.report("item != nullptr", "GFPQ", "pgm/gfpq/gfpq_flow_scene", 529))"}));
    }

    void five_thousand_actions_and_very_long_values_are_drawn()
    {
        ACTION_LIST actions;
        for (int index = 0; index < 5000; ++index)
            actions.add(new ACTION_DOUBLE(index % 6));
        actions.add(action_with_value(std::string(100000, 'x')));
        std::string lines;
        for (int line = 0; line < 2000; ++line)
            lines += "line\n";
        actions.add(action_with_value(lines));
        GFPQ_FLOW_SCENE scene(nullptr, 0);

        load(scene, actions.get());

        QCOMPARE(shapes_of(scene).size(), 5004);
        QCOMPARE(arrows_of(scene).size(), 5003);
        const auto view = show_view(scene, QSize(300, 300));
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        QVERIFY(!view->grab().isNull());
        QVERIFY(scene.sceneRect().width() > 300000);
        QCOMPARE(scene.sceneRect().bottom(),
                 shapes_of(scene).last()->y() + shapes_of(scene).last()->boundingRect().height() + 15);
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_CHAIN)

#include "test_flow_chain.moc"
