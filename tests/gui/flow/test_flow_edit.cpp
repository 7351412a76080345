// The commands that edit a chart: menu, keys, mouse and drops, on a view as the user meets it.
#include "flow_stand.h"

#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QMimeData>
#include <QScrollBar>

namespace {

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* const text : texts)
        all.append(QLatin1String(text));
    return all;
}

// The names of a chart of Write Register actions, without their type.
QStringList plain_names(const GFPQ_FLOW_SCENE& scene)
{
    QStringList names = names_of(scene.get_actions());
    return names.replaceInStrings(QStringLiteral("0:"), QString());
}

void select(const QGraphicsScene& scene, std::initializer_list<int> blocks)
{
    for (const int block : blocks)
        blocks_of(scene).at(block)->setSelected(true);
}

struct KEY_CASE
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

} // namespace

class TEST_FLOW_EDIT : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_menu_shows_what_is_possible_data();
    void the_menu_shows_what_is_possible();
    void insert_offers_read_register_first();
    void the_menu_stands_where_the_click_was();
    void a_right_click_keeps_the_selection();
    void only_an_arrow_is_an_insertion_point_data();
    void only_an_arrow_is_an_insertion_point();
    void inserting_by_the_menu_data();
    void inserting_by_the_menu();
    void inserting_goes_to_the_arrow_that_was_clicked_data();
    void inserting_goes_to_the_arrow_that_was_clicked();
    void a_click_off_the_arrows_keeps_the_insertion_point();
    void inserting_without_an_arrow_does_nothing();
    void an_action_that_is_not_made_is_not_inserted();
    void past_the_end_is_the_end();
    void the_whole_height_of_an_arrow_counts();
    void the_manager_is_asked_for_an_action_of_the_type();
    void refresh_draws_the_chart_anew();
    void delete_takes_the_selected_actions();
    void delete_takes_the_action_from_the_clipboard_too();
    void deleting_nothing_rebuilds_nothing();
    void a_foreign_action_is_not_deleted();
    void copy_and_paste_make_new_actions_as_one_run();
    void a_paste_keeps_every_value_in_order();
    void a_paste_of_actions_that_are_not_made_leaves_them_out();
    void a_copy_replaces_the_one_before();
    void a_copy_is_lost_by_every_rebuild_data();
    void a_copy_is_lost_by_every_rebuild();
    void copying_redraws_nothing();
    void pasting_nothing_still_rebuilds();
    void pasting_without_an_arrow_rebuilds_nothing();
    void keys_run_the_commands_data();
    void keys_run_the_commands();
    void ctrl_v_needs_a_click_on_an_arrow_with_something_copied();
    void ctrl_v_works_on_after_a_paste_but_pastes_nothing();
    void keys_go_on_to_the_items();
    void other_buttons_are_swallowed();
    void a_left_press_selects_as_usual();
    void a_drop_inserts_the_named_action_data();
    void a_drop_inserts_the_named_action();
    void a_drop_on_an_arrow_goes_between_its_neighbours();
    void a_drop_elsewhere_is_refused();
    void a_drop_on_a_fixed_chart_is_refused();
    void a_drop_event_is_accepted_whatever_it_carries();
    void a_drop_beside_the_chain_inserts_nothing();
    void a_drop_keeps_the_last_clicked_arrow();
    void a_fixed_chart_offers_only_refresh();
    void editing_keeps_the_scroll_position();
    void every_command_rebuilds_once();
    void a_chain_of_five_thousand_is_edited();
};

void TEST_FLOW_EDIT::the_menu_shows_what_is_possible_data()
{
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("copied");
    QTest::addColumn<bool>("at_arrow");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("nothing") << false << false << false << list({"Refresh"});
    QTest::newRow("arrow") << false << false << true << list({"Insert", "-", "Refresh"});
    QTest::newRow("selected") << true << false << false << list({"Copy", "-", "Refresh", "Delete"});
    QTest::newRow("selected, arrow") << true << false << true
                                     << list({"Copy", "-", "Insert", "-", "Refresh", "Delete"});
    QTest::newRow("copied") << false << true << false << list({"Refresh"});
    QTest::newRow("copied, arrow") << false << true << true << list({"Paste", "-", "Insert", "-", "Refresh"});
    QTest::newRow("selected, copied") << true << true << false << list({"Copy", "-", "Refresh", "Delete"});
    QTest::newRow("selected, copied, arrow")
        << true << true << true << list({"Copy", "Paste", "-", "Insert", "-", "Refresh", "Delete"});
}

void TEST_FLOW_EDIT::the_menu_shows_what_is_possible()
{
    QFETCH(const bool, selected);
    QFETCH(const bool, copied);
    QFETCH(const bool, at_arrow);
    QFETCH(const QStringList, entries);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    select(scene, {0});
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

void TEST_FLOW_EDIT::insert_offers_read_register_first()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    scene.create_flow_chain();
    const auto view = show_view(scene);
    QStringList offered;
    m_modals.expect(insert_by_menu(QString(), &offered));

    right_click(*view, on_arrow(scene, 0));

    QCOMPARE(offered, list({"Read Register", "Write Register", "Write Data", "Read Data", "Erase"}));
}

void TEST_FLOW_EDIT::the_menu_stands_where_the_click_was()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    QPoint menu_pos;
    m_modals.expect([&menu_pos](QWidget* menu) {
        menu_pos = menu->pos();
        menu->close();
    });
    const QPointF clicked = on_arrow(scene, 0);

    right_click(*view, clicked);

    QCOMPARE(menu_pos, view->viewport()->mapToGlobal(in_viewport(*view, clicked)));
}

void TEST_FLOW_EDIT::a_right_click_keeps_the_selection()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    click(*view, on_shape(scene, 1));
    QCOMPARE(scene.selectedItems().size(), 1);
    const QList<QGraphicsItem*> selected = scene.selectedItems();
    m_modals.expect(close_menu());
    m_modals.expect(close_menu());

    right_click(*view, on_shape(scene, 2));
    right_click(*view, on_arrow(scene, 1));

    QCOMPARE(scene.selectedItems(), selected);
}

void TEST_FLOW_EDIT::only_an_arrow_is_an_insertion_point_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<bool>("is_point");

    for (const char* const where : {"zone"})
        QTest::newRow(where) << QString::fromLatin1(where) << true;
    for (const char* const where : {"start", "block", "label Yes", "label No", "connector", "beside", "diamond"})
        QTest::newRow(where) << QString::fromLatin1(where) << false;
}

// Texts take drops by Qt's default, connectors are listed with the drop zones, and neither is an arrow.
void TEST_FLOW_EDIT::only_an_arrow_is_an_insertion_point()
{
    QFETCH(const QString, where);
    QFETCH(const bool, is_point);
    const ACTION_LIST actions(
        {make_loop_action("page", "start"), make_named_action(0, "one"), make_loop_action("page", "end")});
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load(scene, actions.get());
    const auto view = show_view(scene);
    QMap<QString, QPointF> points;
    points.insert(QStringLiteral("zone"), on_arrow(scene, 1));
    points.insert(QStringLiteral("start"), on_shape(scene, 0));
    points.insert(QStringLiteral("block"), on_shape(scene, 2));
    points.insert(QStringLiteral("diamond"), on_shape(scene, 3));
    points.insert(QStringLiteral("beside"), on_arrow(scene, 1) - QPointF(40, 0));
    const QPolygonF connector = connectors_of(scene).first()->polygon();
    points.insert(QStringLiteral("connector"), QPointF(connector.at(1).x(), connector.at(1).y() - 40));
    for (QGraphicsItem* const item : scene.items()) {
        const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item);
        if (text != nullptr)
            points.insert(QStringLiteral("label ") + text->toPlainText(), text->sceneBoundingRect().center());
    }
    QVERIFY(points.contains(where));
    m_modals.expect(close_menu());

    right_click(*view, points.value(where));

    QCOMPARE(m_modals.last().menu_entries.contains(QStringLiteral("Insert")), is_point);
}

void TEST_FLOW_EDIT::inserting_by_the_menu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("inserted");

    QTest::newRow("WR") << QStringLiteral("Write Register") << QStringLiteral("0:default 0");
    QTest::newRow("RR") << QStringLiteral("Read Register") << QStringLiteral("1:default 5");
    QTest::newRow("WD") << QStringLiteral("Write Data") << QStringLiteral("2:default 13");
    QTest::newRow("RD") << QStringLiteral("Read Data") << QStringLiteral("3:default 21");
    QTest::newRow("E") << QStringLiteral("Erase") << QStringLiteral("4:default 31");
}

void TEST_FLOW_EDIT::inserting_by_the_menu()
{
    QFETCH(const QString, entry);
    QFETCH(const QString, inserted);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    m_modals.expect(insert_by_menu(entry));

    right_click(*view, on_arrow(scene, 0));

    QStringList expected{inserted};
    expected += list({"0:one", "0:two"});
    QCOMPARE(names_of(scene.get_actions()), expected);
    QCOMPARE(shapes_of(scene).size(), 5);
    QCOMPARE(text_of(*shapes_of(scene).at(1))->action(), scene.get_actions().at(0));
}

void TEST_FLOW_EDIT::inserting_goes_to_the_arrow_that_was_clicked_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<bool>("by_left_press");

    for (int arrow = 0; arrow <= 3; ++arrow) {
        QTest::newRow(qPrintable(QStringLiteral("right click on %1").arg(arrow))) << arrow << false;
        QTest::newRow(qPrintable(QStringLiteral("left press on %1").arg(arrow))) << arrow << true;
    }
}

void TEST_FLOW_EDIT::inserting_goes_to_the_arrow_that_was_clicked()
{
    QFETCH(const int, arrow);
    QFETCH(const bool, by_left_press);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two", "three"});
    const auto view = show_view(scene);

    if (by_left_press) {
        click(*view, on_arrow(scene, arrow));
    } else {
        m_modals.expect(close_menu());
        right_click(*view, on_arrow(scene, arrow));
    }
    scene.on_insert_e_action();

    QStringList expected = list({"0:one", "0:two", "0:three"});
    expected.insert(arrow, QStringLiteral("4:default 31"));
    QCOMPARE(names_of(scene.get_actions()), expected);
}

void TEST_FLOW_EDIT::a_click_off_the_arrows_keeps_the_insertion_point()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two", "three"});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 1));
    m_modals.expect(close_menu());

    click(*view, on_shape(scene, 3));
    right_click(*view, on_shape(scene, 3));
    scene.create_flow_chain();
    scene.on_insert_e_action();

    QCOMPARE(names_of(scene.get_actions()), list({"0:one", "4:default 31", "0:two", "0:three"}));
}

void TEST_FLOW_EDIT::inserting_without_an_arrow_does_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    scene.on_insert_wr_action();
    scene.on_insert_rr_action();
    scene.on_insert_wd_action();
    scene.on_insert_rd_action();
    scene.on_insert_e_action();

    QCOMPARE(plain_names(scene), list({"one"}));
    QCOMPARE(rebuilt.size(), 0);
    QCOMPARE(log().count(QStringLiteral("create_action")), 1);
}

void TEST_FLOW_EDIT::an_action_that_is_not_made_is_not_inserted()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 0));

    mgr().refused_actions.insert(4);
    scene.on_insert_e_action();
    QCOMPARE(plain_names(scene), list({"one"}));

    world().active = nullptr;
    scene.on_insert_wr_action();
    QVERIFY(drop_text(*view, on_arrow(scene, 0), QStringLiteral("Erase")));
    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::past_the_end_is_the_end()
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
    select(scene, {0});
    scene.on_copy_action();

    scene.on_paste_action();
    QCOMPARE(names_of(scene.get_actions()), list({"0:one", "5:a", "0:one"}));

    load(scene, two.get());
    scene.on_insert_e_action();
    QCOMPARE(names_of(scene.get_actions()), list({"0:one", "5:a", "4:default 31"}));
}

void TEST_FLOW_EDIT::the_whole_height_of_an_arrow_counts()
{
    OPEN_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const QGraphicsItem& shape = *shapes_of(scene).at(1);
    const double bottom = shape.y() + shape.boundingRect().height();
    const auto index_at = [&scene](double y) {
        QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
        press.setButton(Qt::LeftButton);
        // The upper and lower edge of the zone's own rectangle.
        press.setScenePos(QPointF(on_arrow(scene, 1).x(), y));
        QApplication::sendEvent(&scene, &press);
        int index = -7;
        return scene.find_insert_index(index) ? index : -1;
    };

    QCOMPARE(index_at(bottom), 1);
    QCOMPARE(index_at(bottom + 65), 1);
    QCOMPARE(index_at(bottom + 32), 1);
    // Still on the item, whose outline is half a unit wide on either side, but no longer on the arrow.
    QCOMPARE(index_at(bottom - 0.25), -1);
    QCOMPARE(index_at(bottom + 65.25), -1);
}

void TEST_FLOW_EDIT::the_manager_is_asked_for_an_action_of_the_type()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 0));
    log().clear();

    scene.on_insert_rd_action();

    QCOMPARE(log().calls().mid(0, 2), list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(3)"}));
    QCOMPARE(log().count(QStringLiteral("create_action")), 1);
}

void TEST_FLOW_EDIT::refresh_draws_the_chart_anew()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    scene.get_actions().first()->set_property_value(GFPDB_WR_NAME, "changed");
    QVERIFY(!texts_of(scene).at(1).contains(QStringLiteral("changed")));
    m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Refresh")));

    right_click(*view, on_shape(scene, 1));

    QVERIFY(texts_of(scene).at(1).contains(QStringLiteral("changed")));
}

void TEST_FLOW_EDIT::delete_takes_the_selected_actions()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two", "three", "four"});
    const auto view = show_view(scene);
    const int before = live_actions();
    click(*view, on_shape(scene, 2));
    click(*view, on_shape(scene, 4), Qt::ControlModifier);
    QCOMPARE(scene.selectedItems().size(), 2);
    m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Delete")));

    right_click(*view, on_shape(scene, 1));

    QCOMPARE(plain_names(scene), list({"one", "three"}));
    QCOMPARE(live_actions(), before - 2);
    QCOMPARE(shapes_of(scene).size(), 4);
}

void TEST_FLOW_EDIT::delete_takes_the_action_from_the_clipboard_too()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    select(scene, {0, 1});
    scene.on_copy_action();
    scene.clearSelection();
    select(scene, {0});
    // What Paste would take is seen before the rebuild empties it.
    int menu_size = 0;
    connect(&scene, &GFPQ_FLOW_SCENE::emit_clear_table, this, [&] { ++menu_size; });

    scene.on_delete_action();

    QCOMPARE(menu_size, 1);
    click(*view, on_arrow(scene, 0));
    scene.on_paste_action();
    QCOMPARE(plain_names(scene), list({"two"}));
}

void TEST_FLOW_EDIT::deleting_nothing_rebuilds_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    scene.on_delete_action();
    click(*view, on_shape(scene, 0));
    QTest::keyClick(view.get(), Qt::Key_Delete);
    click(*view, on_shape(scene, 2));
    QTest::keyClick(view.get(), Qt::Key_Delete);

    QCOMPARE(rebuilt.size(), 0);
    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::a_foreign_action_is_not_deleted()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const ACTION_LIST taken({scene.get_actions().at(0), scene.get_actions().at(1)});
    scene.clear_actions(false);
    const int before = live_actions();
    // The old picture still stands, and its actions are no longer the scene's.
    select(scene, {0});
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    scene.on_delete_action();

    QCOMPARE(live_actions(), before);
    QCOMPARE(rebuilt.size(), 0);
    scene.create_flow_chain();
}

void TEST_FLOW_EDIT::copy_and_paste_make_new_actions_as_one_run()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two", "three"});
    const auto view = show_view(scene);
    click(*view, on_shape(scene, 1));
    click(*view, on_shape(scene, 3), Qt::ControlModifier);
    QStringList copied;
    for (const QGraphicsItem* const item : scene.selectedItems())
        copied += names_of({text_of(*item)->action()}).first().mid(2);
    m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Copy")));
    right_click(*view, on_shape(scene, 2));
    const QList<GFPDB_ACTION*> before = scene.get_actions();
    m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Paste")));

    right_click(*view, on_arrow(scene, 2));

    QCOMPARE(plain_names(scene), list({"one", "two"}) + copied + list({"three"}));
    QCOMPARE(scene.get_actions().at(0), before.at(0));
    QCOMPARE(scene.get_actions().at(4), before.at(2));
    QVERIFY(!before.contains(scene.get_actions().at(2)));
    QVERIFY(!before.contains(scene.get_actions().at(3)));
    QCOMPARE(shapes_of(scene).size(), 7);
}

void TEST_FLOW_EDIT::a_paste_keeps_every_value_in_order()
{
    const ACTION_LIST actions({make_action(3, {{21, "n"}, {24, "4"}, {30, "1-1-4"}})});
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load(scene, actions.get());
    const auto view = show_view(scene);
    select(scene, {0});
    scene.on_copy_action();
    click(*view, on_arrow(scene, 1));
    log().clear();

    scene.on_paste_action();

    const auto& copy = dynamic_cast<const ACTION_DOUBLE&>(*scene.get_actions().at(1));
    QCOMPARE(copy.m_action_type, 3);
    QVERIFY(copy.values == dynamic_cast<const ACTION_DOUBLE&>(*scene.get_actions().at(0)).values);
    QCOMPARE(log().count(QStringLiteral("create_action")), 1);
    QList<int> set;
    static const QRegularExpression property(QStringLiteral("set_property_value\\((\\d+),"));
    for (const QString& call : log().calls_of({QStringLiteral("set_property_value")}))
        set.append(property.match(call).captured(1).toInt());
    QCOMPARE(set, (QList<int>{21, 22, 23, 24, 25, 26, 27, 28, 29, 30}));
}

void TEST_FLOW_EDIT::a_paste_of_actions_that_are_not_made_leaves_them_out()
{
    const ACTION_LIST actions({make_named_action(1, "r"), make_named_action(4, "e")});
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load(scene, actions.get());
    const auto view = show_view(scene);
    select(scene, {0, 1});
    scene.on_copy_action();
    click(*view, on_arrow(scene, 0));
    mgr().refused_actions.insert(1);

    scene.on_paste_action();
    QCOMPARE(names_of(scene.get_actions()), list({"4:e", "1:r", "4:e"}));

    select(scene, {0});
    scene.on_copy_action();
    world().active = nullptr;
    scene.on_paste_action();
    QCOMPARE(names_of(scene.get_actions()), list({"4:e", "1:r", "4:e"}));
}

void TEST_FLOW_EDIT::a_copy_replaces_the_one_before()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    select(scene, {0});
    scene.on_copy_action();
    scene.clearSelection();
    select(scene, {1});
    scene.on_copy_action();
    click(*view, on_arrow(scene, 0));

    scene.on_paste_action();

    QCOMPARE(plain_names(scene), list({"two", "one", "two"}));
}

void TEST_FLOW_EDIT::a_copy_is_lost_by_every_rebuild_data()
{
    QTest::addColumn<QString>("event");

    for (const char* const event : {"refresh", "F5", "insert", "drop", "delete", "paste", "clear"})
        QTest::newRow(event) << QString::fromLatin1(event);
}

void TEST_FLOW_EDIT::a_copy_is_lost_by_every_rebuild()
{
    QFETCH(const QString, event);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 0));
    select(scene, {0});
    scene.on_copy_action();
    if (event == QLatin1String("refresh"))
        scene.create_flow_chain();
    else if (event == QLatin1String("F5"))
        QTest::keyClick(view.get(), Qt::Key_F5);
    else if (event == QLatin1String("insert"))
        scene.on_insert_e_action();
    else if (event == QLatin1String("drop"))
        drop_text(*view, on_arrow(scene, 0), QStringLiteral("Erase"));
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

void TEST_FLOW_EDIT::copying_redraws_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    select(scene, {0});
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
    const TOLD_ACTIONS told(scene);

    scene.on_copy_action();

    QCOMPARE(rebuilt.size(), 0);
    QCOMPARE(told.actions.size(), 0);
    QCOMPARE(scene.selectedItems().size(), 1);
}

void TEST_FLOW_EDIT::pasting_nothing_still_rebuilds()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 0));
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    scene.on_paste_action();

    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::pasting_without_an_arrow_rebuilds_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    select(scene, {0});
    scene.on_copy_action();
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    scene.on_paste_action();

    QCOMPARE(rebuilt.size(), 0);
    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::keys_run_the_commands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("effect");

    const auto add = [](const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers, const char* effect) {
        QTest::newRow(name) << static_cast<int>(key) << static_cast<int>(modifiers) << QString::fromLatin1(effect);
    };
    add("Delete", Qt::Key_Delete, Qt::NoModifier, "deleted");
    add("Ctrl+Delete", Qt::Key_Delete, Qt::ControlModifier, "deleted");
    add("Shift+Delete", Qt::Key_Delete, Qt::ShiftModifier, "deleted");
    add("Backspace", Qt::Key_Backspace, Qt::NoModifier, "");
    add("Ctrl+C", Qt::Key_C, Qt::ControlModifier, "copied");
    add("Ctrl+Shift+C", Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier, "copied");
    add("C", Qt::Key_C, Qt::NoModifier, "");
    add("Alt+C", Qt::Key_C, Qt::AltModifier, "");
    add("Ctrl+V", Qt::Key_V, Qt::ControlModifier, "");
    add("F5", Qt::Key_F5, Qt::NoModifier, "rebuilt");
    add("Ctrl+F5", Qt::Key_F5, Qt::ControlModifier, "rebuilt");
    add("F4", Qt::Key_F4, Qt::NoModifier, "");
    add("Ctrl+X", Qt::Key_X, Qt::ControlModifier, "");
}

void TEST_FLOW_EDIT::keys_run_the_commands()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, effect);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    click(*view, on_shape(scene, 2));
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    QTest::keyClick(view.get(), static_cast<Qt::Key>(key), static_cast<Qt::KeyboardModifiers>(modifiers));

    const bool deleted = effect == QLatin1String("deleted");
    QCOMPARE(plain_names(scene), deleted ? list({"one"}) : list({"one", "two"}));
    QCOMPARE(rebuilt.size(), deleted || effect == QLatin1String("rebuilt") ? 1 : 0);
    m_modals.expect(close_menu());
    right_click(*view, on_arrow(scene, 0));
    QCOMPARE(m_modals.last().menu_entries.contains(QStringLiteral("Paste")), effect == QLatin1String("copied"));
}

void TEST_FLOW_EDIT::ctrl_v_needs_a_click_on_an_arrow_with_something_copied()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    // Clicked before the copy: not armed.
    click(*view, on_arrow(scene, 0));
    click(*view, on_shape(scene, 1));
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(rebuilt.size(), 0);

    // Armed, then disarmed by a click elsewhere.
    click(*view, on_arrow(scene, 0));
    click(*view, on_shape(scene, 3));
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(rebuilt.size(), 0);

    // Armed; without Control nothing happens.
    click(*view, on_arrow(scene, 2));
    QTest::keyClick(view.get(), Qt::Key_V);
    QCOMPARE(rebuilt.size(), 0);
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(plain_names(scene), list({"one", "two", "one"}));
}

void TEST_FLOW_EDIT::ctrl_v_works_on_after_a_paste_but_pastes_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    click(*view, on_shape(scene, 1));
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
    click(*view, on_arrow(scene, 0));
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);

    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(plain_names(scene), list({"one", "one"}));
}

void TEST_FLOW_EDIT::keys_go_on_to_the_items()
{
    // An item with the focus notes the keys it gets.
    class NOTING_ITEM : public QGraphicsRectItem
    {
    public:
        QList<int> keys;

    protected:
        void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
    };
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    auto* const item = new NOTING_ITEM;
    item->setFlag(QGraphicsItem::ItemIsFocusable);
    scene.addItem(item);
    QFocusEvent focus(QEvent::FocusIn);
    item->setFocus();
    QVERIFY(scene.focusItem() == item);

    QTest::keyClick(view.get(), Qt::Key_A);
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);

    item->keys.removeAll(Qt::Key_Control);
    QCOMPARE(item->keys, (QList<int>{Qt::Key_A, Qt::Key_C}));
}

void TEST_FLOW_EDIT::other_buttons_are_swallowed()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
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

void TEST_FLOW_EDIT::a_left_press_selects_as_usual()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    const TOLD_ACTIONS told(scene);

    click(*view, on_shape(scene, 1));
    click(*view, on_shape(scene, 2));
    QCOMPARE(told.actions, (QList<GFPDB_ACTION*>{scene.get_actions().at(0), scene.get_actions().at(1)}));
    click(*view, on_shape(scene, 1), Qt::ControlModifier);
    QCOMPARE(scene.selectedItems().size(), 2);

    click(*view, on_arrow(scene, 0));
    QCOMPARE(scene.selectedItems().size(), 0);
}

void TEST_FLOW_EDIT::a_drop_inserts_the_named_action_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");

    const QStringList names = list({"Write Register", "Read Register", "Write Data", "Read Data", "Erase", "Custom"});
    for (int type = 0; type < names.size(); ++type)
        QTest::newRow(qPrintable(names.at(type))) << names.at(type) << type;
    for (const char* const text : {"write register", "Write Register ", "WR", "", "0", "<b>Erase</b>", "Erase\n"})
        QTest::newRow(qPrintable(QStringLiteral("foreign: ") + QLatin1String(text))) << QString::fromLatin1(text) << -1;
}

void TEST_FLOW_EDIT::a_drop_inserts_the_named_action()
{
    QFETCH(const QString, text);
    QFETCH(const int, type);
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    const auto view = show_view(scene);
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    QVERIFY(drop_text(*view, on_arrow(scene, 1), text));

    QCOMPARE(scene.get_actions().size(), type < 0 ? 1 : 2);
    QCOMPARE(rebuilt.size(), type < 0 ? 0 : 1);
    if (type >= 0) {
        QCOMPARE(scene.get_actions().at(1)->m_action_type, type);
        QCOMPARE(shapes_of(scene).size(), 4);
    }
}

void TEST_FLOW_EDIT::a_drop_on_an_arrow_goes_between_its_neighbours()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two", "three"});
    const auto view = show_view(scene);

    QVERIFY(drop_text(*view, on_arrow(scene, 2), QStringLiteral("Read Data")));
    QCOMPARE(names_of(scene.get_actions()), list({"0:one", "0:two", "3:default 21", "0:three"}));

    QVERIFY(drop_text(*view, on_arrow(scene, 4), QStringLiteral("Erase")));
    QVERIFY(drop_text(*view, on_arrow(scene, 0), QStringLiteral("Erase")));
    QCOMPARE(names_of(scene.get_actions()),
             list({"4:default 31", "0:one", "0:two", "3:default 21", "0:three", "4:default 31"}));
}

void TEST_FLOW_EDIT::a_drop_elsewhere_is_refused()
{
    const ACTION_LIST actions(
        {make_loop_action("page", "start"), make_named_action(0, "one"), make_loop_action("page", "end")});
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load(scene, actions.get());
    const auto view = show_view(scene);
    const QPolygonF connector = connectors_of(scene).first()->polygon();

    QVERIFY(!drop_text(*view, on_shape(scene, 0), QStringLiteral("Erase")));
    QVERIFY(!drop_text(*view, on_shape(scene, 2), QStringLiteral("Erase")));
    QVERIFY(!drop_text(*view, on_arrow(scene, 1) - QPointF(60, 0), QStringLiteral("Erase")));
    QVERIFY(!drop_text(*view, QPointF(connector.at(1).x(), connector.at(1).y() - 40), QStringLiteral("Erase")));

    QCOMPARE(scene.get_actions().size(), 3);
}

void TEST_FLOW_EDIT::a_drop_on_a_fixed_chart_is_refused()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"}, false);
    const auto view = show_view(scene);

    QVERIFY(!drop_text(*view, on_arrow(scene, 0), QStringLiteral("Erase")));

    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::a_drop_event_is_accepted_whatever_it_carries()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    QMimeData with_text;
    with_text.setText(QStringLiteral("nonsense"));
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

void TEST_FLOW_EDIT::a_drop_beside_the_chain_inserts_nothing()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"});
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));
    QMimeData data;
    data.setText(QStringLiteral("Erase"));
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

void TEST_FLOW_EDIT::a_drop_keeps_the_last_clicked_arrow()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    click(*view, on_arrow(scene, 0));

    drop_text(*view, on_arrow(scene, 2), QStringLiteral("Erase"));
    scene.on_insert_wd_action();

    QCOMPARE(names_of(scene.get_actions()), list({"2:default 13", "0:one", "0:two", "4:default 31"}));
}

void TEST_FLOW_EDIT::a_fixed_chart_offers_only_refresh()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one"}, false);
    const auto view = show_view(scene);
    click(*view, on_shape(scene, 1));
    click(*view, on_arrow(scene, 0));
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(view.get(), Qt::Key_Delete);
    m_modals.expect(close_menu());
    m_modals.expect(close_menu());

    right_click(*view, on_arrow(scene, 0));
    QCOMPARE(m_modals.last().menu_entries, list({"Refresh"}));
    right_click(*view, on_shape(scene, 1));
    QCOMPARE(m_modals.last().menu_entries, list({"Refresh"}));

    QCOMPARE(plain_names(scene), list({"one"}));
}

void TEST_FLOW_EDIT::editing_keeps_the_scroll_position()
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
    drop_text(*view, on_arrow(scene, arrow), QStringLiteral("Erase"));
    QCOMPARE(scene.get_actions().size(), 22);
    QCOMPARE(vertical.value(), 600);
    select(scene, {12});
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

void TEST_FLOW_EDIT::every_command_rebuilds_once()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, {"one", "two"});
    const auto view = show_view(scene);
    QSignalSpy rebuilt(&scene, SIGNAL(emit_clear_table()));

    click(*view, on_arrow(scene, 0));
    scene.on_insert_wr_action();
    QCOMPARE(rebuilt.size(), 1);
    select(scene, {0, 1});
    scene.on_copy_action();
    scene.on_paste_action();
    QCOMPARE(rebuilt.size(), 2);
    select(scene, {0, 1});
    scene.on_delete_action();
    QCOMPARE(rebuilt.size(), 3);
    drop_text(*view, on_arrow(scene, 0), QStringLiteral("Custom"));
    QCOMPARE(rebuilt.size(), 4);
    QTest::keyClick(view.get(), Qt::Key_F5);
    QCOMPARE(rebuilt.size(), 5);
    m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Refresh")));
    right_click(*view, on_shape(scene, 0));
    QCoreApplication::processEvents();
    QCOMPARE(rebuilt.size(), 6);
}

void TEST_FLOW_EDIT::a_chain_of_five_thousand_is_edited()
{
    GFPQ_FLOW_SCENE scene(nullptr, 0);
    load_names(scene, std::vector<std::string>(5000, "action"));
    const auto view = show_view(scene, QSize(300, 300));
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
    log().clear();

    QVERIFY(drop_text(*view, on_arrow(scene, 5000), QStringLiteral("Erase")));

    QCOMPARE(scene.get_actions().size(), 5001);
    QCOMPARE(names_of({scene.get_actions().last()}), list({"4:default 31"}));
}

GFPQ_TEST_MAIN(TEST_FLOW_EDIT)
#include "test_flow_edit.moc"
