// SPDX-License-Identifier: MIT

// The operation pages of the device that is shown: which flows they get, and whether they are enabled.
#include "dialog_test.h"

#include <QGraphicsRectItem>
#include <QSignalSpy>

class TEST_SHOWN_FLOWS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void flows_of_the_shown_variant_are_loaded()
    {
        FLASH_DOUBLE& flash = mgr().add_custom("A");
        flash.operations[false] = make_operations("single");
        flash.operations[true] = make_operations("quad");
        for (const bool variant : {false, true}) {
            mgr().flow_variant = variant;

            open_with("A");

            QCOMPARE(page_flows(), flows_named(variant ? "quad" : "single"));
        }
    }

    void flows_go_to_the_page_of_their_kind()
    {
        FLASH_DOUBLE& flash = mgr().add_custom("A");
        for (const int kind : {4, 1, 5, -1, 0})
            flash.operations[false].push_back(
                new OPERATION_DOUBLE(kind, {make_named_action(1, "kind " + std::to_string(kind))}));
        flash.operations[false].push_back(nullptr);
        // Of two flows of a kind the later one is shown.
        for (const char* name : {"earlier", "later"})
            flash.operations[false].push_back(new OPERATION_DOUBLE(2, {make_named_action(0, name)}));

        open_with("A");

        for (const int kind : {0, 1, 4})
            QCOMPARE(page_flow(kind), QStringList(qs("1:kind %1").arg(kind)));
        QCOMPARE(page_flow(2), list_of({"0:later"}));
        QCOMPARE(page_flow(3), QStringList());
    }

    void pages_are_emptied_before_the_flows_are_asked_for()
    {
        for (const char* name : {"A", "B"})
            mgr().add_custom(name).operations[false] = make_operations(name);
        open_with("A");
        QStringList shown_then{qs("not asked")};
        log().on_call(qs("get_operations"), [&](const QString&) { shown_then = page_flows(); });

        pick("B");

        QCOMPARE(shown_then, QStringList());
        QCOMPARE(page_flows(), flows_named("B"));
    }

    void a_record_without_flows_empties_the_pages()
    {
        mgr().add_custom("A").operations[false] = make_operations("step");
        mgr().add_custom("B");
        for (const bool has_record : {true, false}) {
            open_with("A");
            if (!has_record)
                mgr().flashes.erase("B");

            pick("B");

            QCOMPARE(page_flows(), QStringList());
            QCOMPARE(count_of("is_flow_editable"), 0);
            QCOMPARE(count_of("get_flow_variant"), has_record ? 1 : 0);
            QCOMPARE(count_of("get_builtin_template_operations"), 0);
        }
    }

    void emptied_pages_can_be_edited_data()
    {
        rows<QString>(
            {{"stored without flows", "B"}, {"record is gone", "gone"}, {"new without flows", "<<new device>>"}});
    }

    // The flag that the library gives belongs to flows that are there.
    void emptied_pages_can_be_edited()
    {
        const QString device = row<QString>();
        mgr().flow_editable = false;
        mgr().add_custom("A").operations[false] = make_operations("step");
        mgr().add_custom("B");
        mgr().custom_names.push_back("gone");
        open_with("A");
        for (int operation = 0; operation < 5; ++operation)
            QVERIFY(!page_takes_drops(operation));

        pick(device);

        for (int operation = 0; operation < 5; ++operation)
            QVERIFY(page_takes_drops(operation));
    }

    void flows_are_copies()
    {
        FLASH_DOUBLE& flash = mgr().add_custom("A");
        ACTION_DOUBLE* const own = make_named_action(0, "own");
        flash.operations[false] = {new OPERATION_DOUBLE(0, {own})};

        open_with("A");
        GFPDB_ACTION* const shown = page(0).get_flow().value(0);
        shown->set_property_value(GFPDB_WR_NAME, "changed");

        QVERIFY(shown != own);
        QCOMPARE(own->values[GFPDB_WR_NAME], std::string("own"));
    }

    void the_flow_flag_reaches_the_pages()
    {
        mgr().builtin_template_operations[{0, false}] = make_operations("template");
        mgr().add_custom("A").operations[false] = make_operations("step");
        mgr().add_builtin("C").operations[false] = make_operations("step");
        mgr().add_custom("B");
        mgr().add_custom("no actions").operations[false] = {new OPERATION_DOUBLE(2)};
        for (const bool editable : {true, false}) {
            for (const char* device : {"A", "C", "<<new device>>"}) {
                mgr().flow_editable = editable;
                open_with("B");

                pick(device);

                QCOMPARE(
                    calls_of({"is_flow_editable"}),
                    QStringList(
                        qs("mgr.is_flow_editable(%1)").arg(*device == '<' ? qs("null") : qs("flash:") + qs(device))));
                for (int operation = 0; operation < 5; ++operation)
                    QCOMPARE(page_is_editable(operation), editable);
            }
            // A flow without actions brings the flag as well.
            pick("no actions");
            QCOMPARE(page_takes_drops(2), editable);
            QVERIFY(page_takes_drops(3));
        }
    }

    void operation_pages_are_enabled_data()
    {
        rows<QString, bool, bool, bool>({{"custom", "custom", false, true, true},
                                         {"custom, hidden", "custom", true, true, true},
                                         {"custom, no flows", "custom", false, false, false},
                                         {"built-in", "built-in", false, true, true},
                                         {"built-in, hidden", "built-in", true, true, false},
                                         {"built-in, no flows", "built-in", false, false, false},
                                         {"new device", "<<new device>>", true, true, true},
                                         {"new device, no flows", "<<new device>>", false, false, false}});
    }

    void operation_pages_are_enabled()
    {
        const auto [device, hidden, can_edit, enabled] = row<QString, bool, bool, bool>();
        mgr().add_custom("custom");
        // The row's name is asked about, not the record's.
        mgr().add_builtin("built-in").name = "of the record";
        mgr().add_builtin("other");
        // From the opposite state.
        mgr().flow_edit_allowed = !enabled;
        open_with("other");
        mgr().flow_edit_allowed = can_edit;
        if (hidden)
            mgr().hidden_flows = {"custom", "built-in", "<<new device>>"};

        pick(device);

        QCOMPARE(pages_enabled(), (QList<bool>{enabled, enabled, enabled, enabled, enabled}));
        if (device == QLatin1String("built-in"))
            QVERIFY(log().calls().contains(qs(R"(mgr.is_hidden_flash("built-in", true))")));
    }

    void pages_are_emptied_before_flows_are_asked_for()
    {
        mgr().add_custom("A").operations[false] = make_operations("A");
        mgr().add_custom("B").operations[false] = make_operations("B");
        open_with("A");
        QStringList flows_when_asked{qs("never asked")};
        log().on_call(qs("get_flow_variant"), [&](const QString&) { flows_when_asked = page_flows(); });

        pick("B");

        QCOMPARE(flows_when_asked, QStringList());
        QCOMPARE(page_flows(), flows_named("B"));
    }

    void pages_are_loaded_before_they_are_enabled()
    {
        mgr().add_builtin("B").operations[false] = make_operations("built-in");
        mgr().hidden_flows = {"B"};
        mgr().add_custom("A").operations[false] = make_operations("step");
        open_with("B");
        // Disabled pages are not loaded at all.
        QCOMPARE(page_flows(), QStringList());
        QList<bool> enabled_while_loading;
        log().on_call(qs("is_flow_editable"), [&](const QString&) { enabled_while_loading = pages_enabled(); });

        pick("A");

        QCOMPARE(enabled_while_loading, (QList<bool>{false, false, false, false, false}));
        QCOMPARE(pages_enabled(), (QList<bool>{true, true, true, true, true}));
    }

    void disabled_pages_hand_over_to_the_device_page_at_once()
    {
        for (int position = 1; position <= 5; ++position) {
            mgr().flow_edit_allowed = true;
            open();
            tabs().setCurrentIndex(position);
            mgr().flow_edit_allowed = false;
            QSignalSpy hops(&tabs(), &QTabWidget::currentChanged);

            choose("m_config_mode_cbox", SCHEME_X1);

            QCOMPARE(tabs().currentIndex(), 0);
            QCOMPARE(hops.size(), 1);
        }
    }

    void pages_are_disabled_from_the_last_to_the_first()
    {
        open();
        QList<int> order;
        class WATCHER : public QObject
        {
        public:
            WATCHER(QTabWidget& tabs, QList<int>& order) : m_tabs(tabs), m_order(order) {}
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::EnabledChange)
                    m_order.append(m_tabs.indexOf(qobject_cast<QWidget*>(watched)));
                return false;
            }

        private:
            QTabWidget& m_tabs;
            QList<int>& m_order;
        } watcher(tabs(), order);
        for (int operation = 0; operation < 5; ++operation)
            page(operation).installEventFilter(&watcher);
        mgr().flow_edit_allowed = false;

        choose("m_config_mode_cbox", SCHEME_X1);

        QCOMPARE(order, (QList<int>{5, 4, 3, 2, 1}));
    }

    void the_device_page_is_never_disabled()
    {
        mgr().flow_edit_allowed = false;
        mgr().add_builtin("B");
        mgr().hidden_flows = {"B"};
        mgr().hidden_properties = {"B"};

        open_with("B");

        QVERIFY(tabs().isTabEnabled(0));
        QVERIFY(widget("m_config_device_tab").isEnabled());
    }

private:
    // True when an action can be dropped into the chart of an operation page.
    bool page_takes_drops(int operation) const
    {
        for (const QGraphicsScene* scene : page(operation).findChildren<QGraphicsScene*>()) {
            for (const QGraphicsItem* item : scene->items()) {
                if (dynamic_cast<const QGraphicsRectItem*>(item) != nullptr && item->acceptDrops())
                    return true;
            }
        }
        return false;
    }
};

GFPQ_TEST_MAIN(TEST_SHOWN_FLOWS)

#include "test_shown_flows.moc"
