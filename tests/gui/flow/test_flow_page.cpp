// SPDX-License-Identifier: MIT

// The page of one operation: its widgets, loading, reading and releasing its flow, activation.
#include "page_stand.h"

#include "words/gfpq_vocabulary.h"

#include <QBoxLayout>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTabWidget>

namespace {

QStringList header_of(const QTableView& table)
{
    QStringList texts;
    for (int column = 0; column < table.model()->columnCount(); ++column)
        texts.append(table.model()->headerData(column, Qt::Horizontal).toString());
    return texts;
}

// "text at x,y tip" for each entry of a palette, from top to bottom.
QStringList entries_of(const QGraphicsScene& palette)
{
    QStringList entries;
    const QList<QGraphicsItem*> items = palette.items(Qt::AscendingOrder);
    for (const QGraphicsItem* const item : items) {
        if (item->parentItem() != nullptr)
            continue;
        const auto* const title = dynamic_cast<const QGraphicsTextItem*>(item);
        entries.append(QStringLiteral("%1 at %2,%3")
                           .arg(title != nullptr ? title->toPlainText() : item->toolTip())
                           .arg(item->x())
                           .arg(item->y()));
    }
    return entries;
}

std::vector<std::string> many_names(int count)
{
    return std::vector<std::string>(static_cast<std::size_t>(count), "an action of a fairly long name, to be wide");
}

ACTION_LIST& fill(ACTION_LIST& actions, const std::vector<std::string>& names)
{
    for (const std::string& name : names)
        actions.add(make_named_action(GFPDB_ACT_WRITE_REGISTER, name));
    return actions;
}

} // namespace

class TEST_FLOW_PAGE : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_description_is_the_operations_own_data();
    void the_description_is_the_operations_own();
    void the_page_is_laid_out_as_agreed();
    void the_views_have_their_alignment_width_and_paper();
    void the_palette_offers_what_the_operation_takes_data();
    void the_palette_offers_what_the_operation_takes();
    void an_entry_of_the_palette_can_be_dropped_on_the_chart();
    void the_meta_object_has_one_signal_and_two_slots();
    void a_page_starts_without_a_table_and_without_asking_the_database();
    void activation_sets_up_the_table_once();
    void the_value_checker_is_a_custom_action_of_the_page();
    void activation_draws_the_chart_every_time();
    void activation_without_a_manager_is_survived();
    void loading_copies_the_actions();
    void loading_asks_for_the_copies_in_order();
    void loading_null_empties_the_page();
    void loading_replaces_and_deletes_what_was_there();
    void loading_sets_whether_the_flow_can_be_edited();
    void loading_shows_the_flow_from_its_top();
    void a_flow_that_was_loaded_behind_the_scenes_shows_from_its_top();
    void activation_keeps_the_height_and_centres_the_chart();
    void releasing_hands_the_actions_over();
    void releasing_with_delete_deletes_them();
    void selecting_a_block_fills_the_table_and_a_rebuild_empties_it();
    void an_update_waits_for_the_focus_of_the_chart();
    void a_page_is_destroyed_with_everything_it_made();
    void a_page_with_a_selection_can_be_destroyed();
    void the_chart_is_readable_with_a_dark_palette();
};

void TEST_FLOW_PAGE::the_description_is_the_operations_own_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("text");

    const auto add = [](int operation, const char* text) {
        QTest::newRow(GFPQ_OPERATION_NAMES[operation]) << operation << QString::fromUtf8(text);
    };
    add(0,
        "The Programmer engine performs the Initialization operation at the beginning of the Program, Erase, Verify, "
        "Blank-Check, or Examine operation during .jic file programming.");
    add(1, "The Programmer engine performs the Program operation when the Program option is enabled in the Programmer "
           "tool for .jic file programming.");
    add(2, "The Programmer engine performs the Erase operation when the Erase option is enabled in the Programmer tool "
           "for .jic file programming. The Programmer engine uses all erase actions specified between \u201CErase "
           "data\u201D and \u201CEnd of data?\u201D to decide the optimal way of erasing the data.");
    add(3,
        "The Programmer engine performs the Verify/Blank-Check/Examine operation when the Verify/Blank-Check/Examine "
        "option is enabled in the Programmer tool for .jic file programming.");
    add(4, "The Programmer engine performs the Termination operation at the end of the Program, Erase, Verify, "
           "Blank-Check, or Examine operation during .jic file programming.");
}

void TEST_FLOW_PAGE::the_description_is_the_operations_own()
{
    QFETCH(const int, operation);
    QFETCH(const QString, text);

    const PAGE page(nullptr, operation);

    const auto* const label = page.findChild<QLabel*>();
    QVERIFY(label != nullptr);
    QCOMPARE(label->parent(), static_cast<const QObject*>(&page));
    QCOMPARE(label->text(), text);
    QVERIFY(label->wordWrap());
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->sizePolicy().horizontalStretch(), 0);
    QCOMPARE(label->sizePolicy().verticalStretch(), 0);
    QVERIFY(label->sizePolicy().hasHeightForWidth());
}

void TEST_FLOW_PAGE::the_page_is_laid_out_as_agreed()
{
    const PAGE page(nullptr, 1);

    const auto* const outer = qobject_cast<QVBoxLayout*>(page.layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->objectName(), QString());
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->stretch(0), 0);
    QCOMPARE(outer->stretch(1), 0);
    const auto* const top = qobject_cast<QVBoxLayout*>(outer->itemAt(0)->layout());
    const auto* const bottom = qobject_cast<QHBoxLayout*>(outer->itemAt(1)->layout());
    QVERIFY(top != nullptr && bottom != nullptr);
    QCOMPARE(top->objectName(), QStringLiteral("label_vlayout"));
    QCOMPARE(bottom->objectName(), QStringLiteral("hlayout"));

    QCOMPARE(top->count(), 2);
    QCOMPARE(top->itemAt(0)->widget(), page.findChild<QLabel*>());
    const auto* const line = qobject_cast<QFrame*>(top->itemAt(1)->widget());
    QCOMPARE(line->objectName(), QStringLiteral("hor_line"));
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Sunken);

    QCOMPARE(bottom->count(), 3);
    QCOMPARE(bottom->itemAt(0)->widget(), palette_view_of(page));
    QCOMPARE(bottom->itemAt(1)->widget(), flow_view_of(page));
    QCOMPARE(bottom->itemAt(2)->widget(), property_table_of(page));
    for (int place = 0; place < 3; ++place) {
        QCOMPARE(bottom->stretch(place), 0);
        QCOMPARE(bottom->itemAt(place)->alignment(), Qt::Alignment());
    }
    QCOMPARE(property_table_of(page)->parent(), static_cast<const QObject*>(&page));
}

void TEST_FLOW_PAGE::the_views_have_their_alignment_width_and_paper()
{
    const PAGE page(nullptr, 1);

    QCOMPARE(palette_view_of(page)->maximumWidth(), 100);
    QCOMPARE(palette_view_of(page)->alignment(), Qt::Alignment(Qt::AlignTop));
    QCOMPARE(flow_view_of(page)->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(flow_view_of(page)->backgroundBrush(), QBrush(Qt::white));
    QCOMPARE(palette_view_of(page)->backgroundBrush(), QBrush(Qt::white));
    QCOMPARE(palette_view_of(page)->scene()->parent(), static_cast<const QObject*>(&page));
    QCOMPARE(flow_view_of(page)->scene()->parent(), static_cast<const QObject*>(&page));
    QCOMPARE(palette_view_of(page)->scene()->metaObject()->className(), "QGraphicsScene");
}

void TEST_FLOW_PAGE::the_palette_offers_what_the_operation_takes_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QStringList>("own");

    QTest::newRow("Initialization") << 0 << QStringList();
    QTest::newRow("Program") << 1 << list({"Write Data at 20,210"});
    QTest::newRow("Erase") << 2 << list({"Erase at 20,210"});
    QTest::newRow("Verify") << 3 << list({"Read Data at 20,210"});
    QTest::newRow("Termination") << 4 << QStringList();
}

void TEST_FLOW_PAGE::the_palette_offers_what_the_operation_takes()
{
    QFETCH(const int, operation);
    QFETCH(const QStringList, own);

    const PAGE page(nullptr, operation);

    const QGraphicsScene& palette = *palette_view_of(page)->scene();
    QCOMPARE(entries_of(palette),
             list({"Actions: at 20,10", "Read Register at 20,50", "Write Register at 20,130"}) + own);
    const auto* const title = dynamic_cast<QGraphicsTextItem*>(palette.items(Qt::AscendingOrder).first());
    QCOMPARE(title->defaultTextColor(), QColor(Qt::black));
}

void TEST_FLOW_PAGE::an_entry_of_the_palette_can_be_dropped_on_the_chart()
{
    const auto page = show_page(2, {});

    QVERIFY(drop_text(*flow_view_of(*page), on_arrow(scene_of(*page), 0), QStringLiteral("Erase")));

    QCOMPARE(names_of(page->get_flow()), list({"4:default 31"}));
}

void TEST_FLOW_PAGE::the_meta_object_has_one_signal_and_two_slots()
{
    const QMetaObject& meta = PAGE::staticMetaObject;
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));

    QCOMPARE(signatures,
             list({"emit_update_flow_scene()", "update_property_table(GFPDB_ACTION*)", "clear_property_table()"}));
    QCOMPARE(QString::fromLatin1(meta.className()), QStringLiteral("GPFQ_OPERATION_TAB_WIDGET"));
}

void TEST_FLOW_PAGE::a_page_starts_without_a_table_and_without_asking_the_database()
{
    const PAGE page(nullptr, 1);

    QVERIFY(property_table_of(page)->model() == nullptr);
    QVERIFY(page.get_flow().isEmpty());
    QVERIFY(log().calls().isEmpty());
}

void TEST_FLOW_PAGE::activation_sets_up_the_table_once()
{
    PAGE page(nullptr, 1);

    page.activate();
    page.activate();

    QTableView& table = *property_table_of(page);
    QCOMPARE(header_of(table), list({"Property", "Value"}));
    QCOMPARE(table.model()->rowCount(), 0);
    QVERIFY(qobject_cast<QStandardItemModel*>(table.model()) != nullptr);
    QCOMPARE(table.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(table.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
    QVERIFY(!table.isSortingEnabled());
    QVERIFY(table.showGrid());
    QVERIFY(!table.wordWrap());
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectItems);
    QCOMPARE(table.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(table.alternatingRowColors());
    QVERIFY(table.horizontalHeader()->stretchLastSection());
    QCOMPARE(table.horizontalHeader()->selectionMode(), QAbstractItemView::NoSelection);
    QVERIFY(!table.horizontalHeader()->sectionsMovable());
    QCOMPARE(table.verticalHeader()->defaultSectionSize(), table.verticalHeader()->minimumSectionSize());
    const int width = table.columnWidth(0);
    QVERIFY(width != table.horizontalHeader()->defaultSectionSize());
    table.resizeColumnToContents(0);
    QCOMPARE(table.columnWidth(0), width);
    QVERIFY(table.itemDelegateForColumn(1) != nullptr);
    QCOMPARE(QString::fromLatin1(table.itemDelegateForColumn(1)->metaObject()->className()),
             QStringLiteral("GFPQ_PROPERTY_DELEGATE"));
    QCOMPARE(table.itemDelegateForColumn(1)->parent(), &page);
    QVERIFY(table.itemDelegateForColumn(0) == nullptr);
    QCOMPARE(page.findChildren<QAbstractItemDelegate*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

void TEST_FLOW_PAGE::the_value_checker_is_a_custom_action_of_the_page()
{
    const int before = live_actions();
    {
        PAGE page(nullptr, 1);
        page.activate();
        page.activate();

        QCOMPARE(log().calls(), list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)"}));
        QCOMPARE(live_actions(), before + 1);
    }
    QCOMPARE(live_actions(), before);
}

void TEST_FLOW_PAGE::activation_draws_the_chart_every_time()
{
    PAGE page(nullptr, 1);
    QSignalSpy drawn(&scene_of(page), SIGNAL(emit_clear_table()));
    const QStandardItemModel* model_then = nullptr;
    connect(&scene_of(page), &GFPQ_FLOW_SCENE::emit_clear_table, this,
            [&] { model_then = qobject_cast<QStandardItemModel*>(property_table_of(page)->model()); });

    page.activate();
    QCOMPARE(drawn.size(), 1);
    // The table was set up before.
    QVERIFY(model_then != nullptr);
    QCOMPARE(shapes_of(scene_of(page)).size(), 2);
    page.activate();
    QCOMPARE(drawn.size(), 2);
}

void TEST_FLOW_PAGE::activation_without_a_manager_is_survived()
{
    world().active = nullptr;
    PAGE page(nullptr, 1);

    page.activate();

    QCOMPARE(header_of(*property_table_of(page)), list({"Property", "Value"}));
}

void TEST_FLOW_PAGE::loading_copies_the_actions()
{
    const ACTION_LIST actions({make_named_action(0, "one"), make_loop_action("page", "start"),
                               make_action(2, {{13, "two"}, {17, "256"}, {20, "1-1-1"}})});
    PAGE page(nullptr, 1);

    page.load_flow(&actions.get(), true);

    const QList<GFPDB_ACTION*> flow = page.get_flow();
    QCOMPARE(names_of(flow), list({"0:one", "5:page", "2:two"}));
    for (int index = 0; index < flow.size(); ++index) {
        auto& source = dynamic_cast<ACTION_DOUBLE&>(*actions.get().at(static_cast<std::size_t>(index)));
        auto& copy = dynamic_cast<ACTION_DOUBLE&>(*flow.at(index));
        QVERIFY(&copy != &source);
        QVERIFY(copy.values == source.values);
        copy.values[0] = "changed";
        QVERIFY(source.values != copy.values);
    }
    QCOMPARE(shapes_of(scene_of(page)).size(), 5);
}

void TEST_FLOW_PAGE::loading_asks_for_the_copies_in_order()
{
    const ACTION_LIST actions({make_loop_action("page", "start"), make_loop_action("page", "end")});
    PAGE page(nullptr, 1);

    page.load_flow(&actions.get(), true);

    QCOMPARE(log().calls_of({QStringLiteral("get_active_flash_manager"), QStringLiteral("create_action"),
                             QStringLiteral("set_property_value")}),
             list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)",
                   "action(5:default 38).set_property_value(38, \"page\")",
                   "action(5:page).set_property_value(39, \"start\")", "mgr.create_action(5)",
                   "action(5:default 38).set_property_value(38, \"page\")",
                   "action(5:page).set_property_value(39, \"end\")"}));
}

void TEST_FLOW_PAGE::loading_null_empties_the_page()
{
    const ACTION_LIST actions({make_named_action(0, "one")});
    const auto page = show_page(1, actions.get());
    blocks_of(scene_of(*page)).first()->setSelected(true);
    QCOMPARE(property_table_of(*page)->model()->rowCount(), 5);

    page->load_flow(nullptr, true);

    QVERIFY(page->get_flow().isEmpty());
    QCOMPARE(shapes_of(scene_of(*page)).size(), 2);
    QCOMPARE(property_table_of(*page)->model()->rowCount(), 0);
}

void TEST_FLOW_PAGE::loading_replaces_and_deletes_what_was_there()
{
    const ACTION_LIST one({make_named_action(0, "one"), make_named_action(0, "two")});
    const ACTION_LIST other({make_named_action(4, "three")});
    PAGE page(nullptr, 1);
    const int before = live_actions();
    QSignalSpy drawn(&scene_of(page), SIGNAL(emit_clear_table()));

    page.load_flow(&one.get(), true);
    page.load_flow(&other.get(), true);

    QCOMPARE(names_of(page.get_flow()), list({"4:three"}));
    QCOMPARE(live_actions(), before + 1);
    QCOMPARE(drawn.size(), 2);
}

void TEST_FLOW_PAGE::loading_sets_whether_the_flow_can_be_edited()
{
    const ACTION_LIST actions({make_named_action(0, "one")});
    PAGE page(nullptr, 1);

    page.load_flow(&actions.get(), false);
    QVERIFY(!arrows_of(scene_of(page)).first()->drop_zone()->acceptDrops());
    QVERIFY(!blocks_of(scene_of(page)).first()->flags().testFlag(QGraphicsItem::ItemIsSelectable));

    page.load_flow(nullptr, true);
    QVERIFY(arrows_of(scene_of(page)).first()->drop_zone()->acceptDrops());
    page.load_flow(nullptr, false);
    QVERIFY(!arrows_of(scene_of(page)).first()->drop_zone()->acceptDrops());
}

void TEST_FLOW_PAGE::loading_shows_the_flow_from_its_top()
{
    ACTION_LIST actions;
    fill(actions, many_names(12));
    const auto page = show_page(1, actions.get(), true, QSize(500, 500));
    QScrollBar& vertical = *flow_view_of(*page)->verticalScrollBar();
    QScrollBar& horizontal = *flow_view_of(*page)->horizontalScrollBar();
    QVERIFY(horizontal.maximum() > horizontal.minimum() + 100);
    vertical.setValue(700);
    horizontal.setValue(horizontal.minimum());

    page->load_flow(&actions.get(), true);

    QCOMPARE(vertical.value(), vertical.minimum());
    QVERIFY(qAbs(horizontal.value() - (horizontal.minimum() + horizontal.maximum()) / 2) <= 1);
}

void TEST_FLOW_PAGE::a_flow_that_was_loaded_behind_the_scenes_shows_from_its_top()
{
    ACTION_LIST actions;
    fill(actions, many_names(12));
    QTabWidget tabs;
    tabs.resize(500, 500);
    tabs.addTab(new QWidget, QStringLiteral("front"));
    auto* const page = new PAGE(nullptr, 1);
    tabs.addTab(page, QStringLiteral("page"));
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    page->load_flow(&actions.get(), true);

    tabs.setCurrentIndex(1);
    page->activate();
    QCoreApplication::processEvents();

    const QScrollBar& vertical = *flow_view_of(*page)->verticalScrollBar();
    const QScrollBar& horizontal = *flow_view_of(*page)->horizontalScrollBar();
    QVERIFY(vertical.maximum() > 500);
    QCOMPARE(vertical.value(), vertical.minimum());
    QVERIFY(horizontal.maximum() > horizontal.minimum() + 50);
    QVERIFY(qAbs(horizontal.value() - (horizontal.minimum() + horizontal.maximum()) / 2) <= 1);
}

void TEST_FLOW_PAGE::activation_keeps_the_height_and_centres_the_chart()
{
    ACTION_LIST actions;
    fill(actions, many_names(12));
    const auto page = show_page(1, actions.get(), true, QSize(500, 500));
    QScrollBar& vertical = *flow_view_of(*page)->verticalScrollBar();
    QScrollBar& horizontal = *flow_view_of(*page)->horizontalScrollBar();
    vertical.setValue(700);
    horizontal.setValue(horizontal.minimum());

    page->activate();

    QCOMPARE(vertical.value(), 700);
    QCOMPARE(horizontal.value(), (horizontal.minimum() + horizontal.maximum()) / 2);
}

void TEST_FLOW_PAGE::releasing_hands_the_actions_over()
{
    const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(1, "two")});
    const auto page = show_page(1, actions.get());
    blocks_of(scene_of(*page)).first()->setSelected(true);
    scene_of(*page).on_copy_action();
    const QList<GFPDB_ACTION*> flow = page->get_flow();
    const ACTION_LIST taken({flow.at(0), flow.at(1)});
    const int before = live_actions();

    page->release_flow(false);

    QCOMPARE(live_actions(), before);
    QVERIFY(page->get_flow().isEmpty());
    QCOMPARE(property_table_of(*page)->model()->rowCount(), 0);
    for (const QGraphicsItem* const item : scene_of(*page).items()) {
        const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item);
        QVERIFY(text == nullptr || text->action() == nullptr);
    }
    // The table's action is gone too: nothing is stored in it any more.
    page->store_property_value(GFPDB_WR_NAME, QStringLiteral("changed"));
    QCOMPARE(names_of(flow), list({"0:one", "1:two"}));
}

void TEST_FLOW_PAGE::releasing_with_delete_deletes_them()
{
    const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(1, "two")});
    PAGE page(nullptr, 1);
    page.load_flow(&actions.get(), true);
    const int before = live_actions();

    page.release_flow(true);

    QCOMPARE(live_actions(), before - 2);
    QVERIFY(page.get_flow().isEmpty());
    QCOMPARE(shapes_of(scene_of(page)).size(), 2);
}

void TEST_FLOW_PAGE::selecting_a_block_fills_the_table_and_a_rebuild_empties_it()
{
    const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(1, "two")});
    const auto page = show_page(1, actions.get());
    const QAbstractItemModel& model = *property_table_of(*page)->model();

    click(*flow_view_of(*page), on_shape(scene_of(*page), 2));
    QCOMPARE(model.rowCount(), 8);
    QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("two"));
    click(*flow_view_of(*page), on_shape(scene_of(*page), 1));
    QCOMPARE(model.rowCount(), 5);
    QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("one"));
    // The selection goes, the table stays.
    click(*flow_view_of(*page), on_arrow(scene_of(*page), 0));
    QCOMPARE(model.rowCount(), 5);

    QTest::keyClick(flow_view_of(*page), Qt::Key_F5);
    QCOMPARE(model.rowCount(), 0);
}

void TEST_FLOW_PAGE::an_update_waits_for_the_focus_of_the_chart()
{
    const ACTION_LIST actions({make_named_action(0, "one")});
    const auto page = show_page(1, actions.get());
    property_table_of(*page)->setFocus();
    QSignalSpy drawn(&scene_of(*page), SIGNAL(emit_clear_table()));

    emit page->emit_update_flow_scene();
    QCoreApplication::processEvents();
    QCOMPARE(drawn.size(), 0);

    flow_view_of(*page)->setFocus();
    QCOMPARE(drawn.size(), 1);
}

void TEST_FLOW_PAGE::a_page_is_destroyed_with_everything_it_made()
{
    const ACTION_LIST actions({make_named_action(0, "one")});
    const int before = live_actions();

    auto page = show_page(1, actions.get());
    QCOMPARE(live_actions(), before + 2);
    page.reset();

    QCOMPARE(live_actions(), before);
}

void TEST_FLOW_PAGE::a_page_with_a_selection_can_be_destroyed()
{
    const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(0, "two")});
    auto page = show_page(1, actions.get());
    for (QGraphicsRectItem* const block : blocks_of(scene_of(*page)))
        block->setSelected(true);
    QTableView& table = *property_table_of(*page);
    table.edit(table.model()->index(0, 1));
    QVERIFY(table.indexWidget(table.model()->index(0, 1)) != nullptr);

    page.reset();

    QVERIFY(page == nullptr);
}

void TEST_FLOW_PAGE::the_chart_is_readable_with_a_dark_palette()
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    QApplication::setPalette(dark);
    const ACTION_LIST actions({make_named_action(0, "one"), make_loop_action("page", "end")});
    const auto page = show_page(1, actions.get());

    for (const QGraphicsView* const view : {flow_view_of(*page), palette_view_of(*page)}) {
        for (const QGraphicsItem* const item : view->scene()->items()) {
            const auto* const text = dynamic_cast<const QGraphicsTextItem*>(item);
            QVERIFY(text == nullptr || text->defaultTextColor() == QColor(Qt::black));
        }
        QCOMPARE(view->viewport()->grab().toImage().pixelColor(2, 2), QColor(Qt::white));
    }
    QApplication::setPalette(before);
}

GFPQ_TEST_MAIN(TEST_FLOW_PAGE)
#include "test_flow_page.moc"
