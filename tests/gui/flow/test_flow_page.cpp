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
        entries.append(qs("%1 at %2,%3")
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
    // Its words are held by the tests of the vocabulary.
    void the_description_is_the_operations_own()
    {
        for (int operation = 0; operation < 5; ++operation) {
            const PAGE page(nullptr, operation);

            const auto* const label = page.findChild<QLabel*>();
            QVERIFY(label != nullptr);
            QCOMPARE(label->parent(), static_cast<const QObject*>(&page));
            QCOMPARE(label->text(), QString::fromUtf8(GFPQ_OPERATION_DESCRIPTIONS[operation]));
            QVERIFY(label->wordWrap());
            const QSizePolicy policy = label->sizePolicy();
            QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
            QCOMPARE(policy.verticalPolicy(), QSizePolicy::Preferred);
            QCOMPARE(QPoint(policy.horizontalStretch(), policy.verticalStretch()), QPoint(0, 0));
            QVERIFY(policy.hasHeightForWidth());
        }
    }

    void the_page_is_laid_out_as_agreed()
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
        QCOMPARE(top->objectName(), qs("label_vlayout"));
        QCOMPARE(bottom->objectName(), qs("hlayout"));

        QCOMPARE(top->count(), 2);
        QCOMPARE(top->itemAt(0)->widget(), page.findChild<QLabel*>());
        const auto* const line = qobject_cast<QFrame*>(top->itemAt(1)->widget());
        QCOMPARE(line->objectName(), qs("hor_line"));
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

    void the_views_have_their_alignment_width_and_paper()
    {
        const PAGE page(nullptr, 1);

        QCOMPARE(palette_view_of(page)->maximumWidth(), 100);
        QCOMPARE(palette_view_of(page)->alignment(), Qt::Alignment(Qt::AlignTop));
        QCOMPARE(flow_view_of(page)->alignment(), Qt::Alignment(Qt::AlignCenter));
        for (const QGraphicsView* const view : {flow_view_of(page), palette_view_of(page)}) {
            QCOMPARE(view->backgroundBrush(), QBrush(Qt::white));
            QVERIFY(view->isInteractive());
            QCOMPARE(view->scene()->parent(), static_cast<const QObject*>(&page));
        }
        QCOMPARE(palette_view_of(page)->scene()->metaObject()->className(), "QGraphicsScene");
    }

    void the_palette_offers_what_the_operation_takes_data()
    {
        rows<int, QStringList>({{"Initialization", 0, QStringList()},
                                {"Program", 1, list({"Write Data at 20,210"})},
                                {"Erase", 2, list({"Erase at 20,210"})},
                                {"Verify", 3, list({"Read Data at 20,210"})},
                                {"Termination", 4, QStringList()}});
    }

    void the_palette_offers_what_the_operation_takes()
    {
        const auto [operation, own] = row<int, QStringList>();

        const PAGE page(nullptr, operation);

        const QGraphicsScene& palette = *palette_view_of(page)->scene();
        QCOMPARE(entries_of(palette),
                 list({"Actions: at 20,10", "Read Register at 20,50", "Write Register at 20,130"}) + own);
        const auto* const title = dynamic_cast<QGraphicsTextItem*>(palette.items(Qt::AscendingOrder).first());
        QCOMPARE(title->defaultTextColor(), QColor(Qt::black));
    }

    void an_entry_of_the_palette_can_be_dropped_on_the_chart()
    {
        const auto page = show_page(2, {});

        QVERIFY(drop_text(*flow_view_of(*page), on_arrow(scene_of(*page), 0), qs("Erase")));

        QCOMPARE(names_of(page->get_flow()), list({"4:default 31"}));
    }

    void the_meta_object_has_one_signal_and_two_slots()
    {
        const QMetaObject& meta = PAGE::staticMetaObject;
        QStringList signatures;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));

        QCOMPARE(signatures,
                 list({"emit_update_flow_scene()", "update_property_table(GFPDB_ACTION*)", "clear_property_table()"}));
        QCOMPARE(QString::fromLatin1(meta.className()), qs("GPFQ_OPERATION_TAB_WIDGET"));
    }

    void a_page_starts_without_a_table_and_without_asking_the_database()
    {
        const PAGE page(nullptr, 1);

        QVERIFY(property_table_of(page)->model() == nullptr);
        QVERIFY(page.get_flow().isEmpty());
        QVERIFY(log().calls().isEmpty());
    }

    void activation_sets_up_the_table_once()
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
                 qs("GFPQ_PROPERTY_DELEGATE"));
        QCOMPARE(table.itemDelegateForColumn(1)->parent(), &page);
        QVERIFY(table.itemDelegateForColumn(0) == nullptr);
        QCOMPARE(page.findChildren<QAbstractItemDelegate*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    }

    void activation_draws_the_chart_every_time()
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

    void activation_without_a_manager_is_survived()
    {
        world().active = nullptr;
        PAGE page(nullptr, 1);

        page.activate();

        QCOMPARE(header_of(*property_table_of(page)), list({"Property", "Value"}));
    }

    void loading_copies_the_actions()
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

    void loading_asks_for_the_copies_in_order()
    {
        const ACTION_LIST actions({make_loop_action("page", "start"), make_loop_action("page", "end")});
        PAGE page(nullptr, 1);

        page.load_flow(&actions.get(), true);

        QCOMPARE(calls_of({"get_active_flash_manager", "create_action", "set_property_value"}),
                 list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)",
                       "action(5:default 38).set_property_value(38, \"page\")",
                       "action(5:page).set_property_value(39, \"start\")", "mgr.create_action(5)",
                       "action(5:default 38).set_property_value(38, \"page\")",
                       "action(5:page).set_property_value(39, \"end\")"}));
    }

    void loading_null_empties_the_page()
    {
        const auto page = show_page(1, ACTION_LIST({make_named_action(0, "one")}).get());
        blocks_of(scene_of(*page)).first()->setSelected(true);
        QCOMPARE(property_table_of(*page)->model()->rowCount(), 5);
        log().clear();

        page->load_flow(nullptr, true);

        QVERIFY(page->get_flow().isEmpty());
        QCOMPARE(shapes_of(scene_of(*page)).size(), 2);
        QCOMPARE(property_table_of(*page)->model()->rowCount(), 0);
        QCOMPARE(count_of("get_active_flash_manager"), 0);
    }

    void loading_replaces_and_deletes_what_was_there()
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

    void loading_sets_whether_the_flow_can_be_edited()
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

    void loading_shows_the_flow_from_its_top()
    {
        ACTION_LIST actions;
        fill(actions, many_names(12));
        QTabWidget tabs;
        tabs.resize(500, 500);
        tabs.addTab(new QWidget, qs("front"));
        auto* const page = new PAGE(nullptr, 1);
        tabs.addTab(page, qs("page"));
        tabs.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tabs));
        QScrollBar& vertical = *flow_view_of(*page)->verticalScrollBar();
        QScrollBar& horizontal = *flow_view_of(*page)->horizontalScrollBar();
        const auto shows_the_top = [&] {
            return vertical.value() == vertical.minimum() &&
                   qAbs(horizontal.value() - (horizontal.minimum() + horizontal.maximum()) / 2) <= 1;
        };

        // Behind the scenes first, then again while it is shown.
        page->load_flow(&actions.get(), true);
        tabs.setCurrentIndex(1);
        page->activate();
        QCoreApplication::processEvents();
        QVERIFY(vertical.maximum() > 500);
        QVERIFY(horizontal.maximum() > horizontal.minimum() + 50);
        QVERIFY(shows_the_top());

        vertical.setValue(700);
        horizontal.setValue(horizontal.minimum());
        page->load_flow(&actions.get(), true);
        QVERIFY(shows_the_top());
    }

    void activation_keeps_the_height_and_centres_the_chart()
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

    void releasing_hands_the_actions_over()
    {
        const auto page = show_page(1, ACTION_LIST({make_named_action(0, "one"), make_named_action(1, "two")}).get());
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
        page->store_property_value(GFPDB_WR_NAME, qs("changed"));
        QCOMPARE(names_of(flow), list({"0:one", "1:two"}));
    }

    void releasing_with_delete_deletes_them()
    {
        const ACTION_LIST actions({make_named_action(0, "one"), make_named_action(1, "two")});
        const int before = live_actions();
        {
            PAGE page(nullptr, 1);
            page.load_flow(&actions.get(), true);
            QCOMPARE(live_actions(), before + 2);

            page.release_flow(true);

            QCOMPARE(live_actions(), before);
            QVERIFY(page.get_flow().isEmpty());
            QCOMPARE(shapes_of(scene_of(page)).size(), 2);
            // The value checker, a custom action of the page, and a flow go with the page.
            log().clear();
            page.activate();
            page.activate();
            QCOMPARE(log().calls(), list({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)"}));
            page.load_flow(&actions.get(), true);
            QCOMPARE(live_actions(), before + 3);
        }
        QCOMPARE(live_actions(), before);
    }

    void selecting_a_block_fills_the_table_and_a_rebuild_empties_it()
    {
        const auto page = show_page(1, ACTION_LIST({make_named_action(0, "one"), make_named_action(1, "two")}).get());
        const QAbstractItemModel& model = *property_table_of(*page)->model();

        click(*flow_view_of(*page), on_shape(scene_of(*page), 2));
        QCOMPARE(model.rowCount(), 8);
        QCOMPARE(model.index(0, 1).data().toString(), qs("two"));
        click(*flow_view_of(*page), on_shape(scene_of(*page), 1));
        QCOMPARE(model.rowCount(), 5);
        QCOMPARE(model.index(0, 1).data().toString(), qs("one"));
        // The selection goes, the table stays.
        click(*flow_view_of(*page), on_arrow(scene_of(*page), 0));
        QCOMPARE(model.rowCount(), 5);

        QTest::keyClick(flow_view_of(*page), Qt::Key_F5);
        QCOMPARE(model.rowCount(), 0);
    }

    void an_update_waits_for_the_focus_of_the_chart()
    {
        const auto page = show_page(1, ACTION_LIST({make_named_action(0, "one")}).get());
        property_table_of(*page)->setFocus();
        QSignalSpy drawn(&scene_of(*page), SIGNAL(emit_clear_table()));

        emit page->emit_update_flow_scene();
        QCoreApplication::processEvents();
        QCOMPARE(drawn.size(), 0);

        flow_view_of(*page)->setFocus();
        QCOMPARE(drawn.size(), 1);
    }

    void a_page_with_a_selection_can_be_destroyed()
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

    void the_chart_is_readable_with_a_dark_palette()
    {
        const QPalette before = QApplication::palette();
        QPalette dark(QColor(40, 40, 40));
        dark.setColor(QPalette::Text, Qt::white);
        dark.setColor(QPalette::Base, QColor(20, 20, 20));
        QApplication::setPalette(dark);
        const auto page =
            show_page(1, ACTION_LIST({make_named_action(0, "one"), make_loop_action("page", "end")}).get());

        for (const QGraphicsView* const view : {flow_view_of(*page), palette_view_of(*page)}) {
            for (const QGraphicsItem* const item : view->scene()->items()) {
                const auto* const text = dynamic_cast<const QGraphicsTextItem*>(item);
                QVERIFY(text == nullptr || text->defaultTextColor() == QColor(Qt::black));
            }
            QCOMPARE(view->viewport()->grab().toImage().pixelColor(2, 2), QColor(Qt::white));
        }
        QApplication::setPalette(before);
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_PAGE)

#include "test_flow_page.moc"
