// SPDX-License-Identifier: MIT

// The operation pages of the device that is shown: which flows they get, and whether they are enabled.
#include "dialog_test.h"

#include <QGraphicsRectItem>
#include <QSignalSpy>

class TEST_SHOWN_FLOWS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void flows_of_the_shown_variant_are_loaded_data();
    void flows_of_the_shown_variant_are_loaded();
    void flows_go_to_the_page_of_their_kind();
    void of_two_flows_of_a_kind_the_later_one_is_shown();
    void a_record_without_flows_empties_the_pages();
    void a_record_that_is_gone_empties_the_pages();
    void emptied_pages_can_be_edited_data();
    void emptied_pages_can_be_edited();
    void flows_are_copies();
    void the_flow_flag_reaches_the_pages_data();
    void the_flow_flag_reaches_the_pages();
    void operation_pages_are_enabled_data();
    void operation_pages_are_enabled();
    void pages_are_loaded_before_they_are_enabled();
    void pages_that_are_disabled_are_not_loaded();
    void disabled_pages_hand_over_to_the_device_page_at_once_data();
    void disabled_pages_hand_over_to_the_device_page_at_once();
    void pages_are_disabled_from_the_last_to_the_first();
    void the_device_page_is_never_disabled();

private:
    // True when an action can be dropped into the chart of an operation page.
    bool page_takes_drops(int operation) const;
};

bool TEST_SHOWN_FLOWS::page_takes_drops(int operation) const
{
    for (const QGraphicsScene* scene : page(operation).findChildren<QGraphicsScene*>()) {
        for (const QGraphicsItem* item : scene->items()) {
            if (dynamic_cast<const QGraphicsRectItem*>(item) != nullptr && item->acceptDrops())
                return true;
        }
    }
    return false;
}

void TEST_SHOWN_FLOWS::flows_of_the_shown_variant_are_loaded_data()
{
    QTest::addColumn<bool>("variant");

    QTest::newRow("false") << false;
    QTest::newRow("true") << true;
}

void TEST_SHOWN_FLOWS::flows_of_the_shown_variant_are_loaded()
{
    QFETCH(const bool, variant);
    mgr().flow_variant = variant;
    FLASH_DOUBLE& flash = mgr().add_custom("A");
    flash.operations[false] = make_operations("single");
    flash.operations[true] = make_operations("quad");

    open_with("A");

    for (int operation = 0; operation < 5; ++operation) {
        const QString expected = (variant ? QStringLiteral("0:quad %1") : QStringLiteral("0:single %1")).arg(operation);
        QCOMPARE(page_flow(operation), QStringList(expected));
    }
}

void TEST_SHOWN_FLOWS::flows_go_to_the_page_of_their_kind()
{
    FLASH_DOUBLE& flash = mgr().add_custom("A");
    for (const int kind : {4, 1, 5, -1, 0})
        flash.operations[false].push_back(
            new OPERATION_DOUBLE(kind, {make_named_action(1, "kind " + std::to_string(kind))}));
    flash.operations[false].push_back(nullptr);

    open_with("A");

    QCOMPARE(page_flow(0), list_of({"1:kind 0"}));
    QCOMPARE(page_flow(1), list_of({"1:kind 1"}));
    QCOMPARE(page_flow(2), QStringList());
    QCOMPARE(page_flow(3), QStringList());
    QCOMPARE(page_flow(4), list_of({"1:kind 4"}));
}

void TEST_SHOWN_FLOWS::of_two_flows_of_a_kind_the_later_one_is_shown()
{
    auto& operations = mgr().add_custom("A").operations[false];
    for (const char* name : {"earlier", "later"})
        operations.push_back(new OPERATION_DOUBLE(2, {make_named_action(0, name)}));

    open_with("A");

    QCOMPARE(page_flow(2), list_of({"0:later"}));
}

void TEST_SHOWN_FLOWS::a_record_without_flows_empties_the_pages()
{
    mgr().add_custom("A").operations[false] = make_operations("step");
    mgr().add_custom("B");
    open_with("A");

    pick(QStringLiteral("B"));

    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList());
    QCOMPARE(log().count(qs("is_flow_editable")), 0);
}

void TEST_SHOWN_FLOWS::a_record_that_is_gone_empties_the_pages()
{
    mgr().add_custom("A").operations[false] = make_operations("step");
    mgr().add_custom("B");
    open_with("A");
    mgr().flashes.erase("B");

    pick(QStringLiteral("B"));

    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList());
    QCOMPARE(log().calls_of({qs("get_flow_variant"), qs("get_builtin_template_operations")}), QStringList());
}

void TEST_SHOWN_FLOWS::emptied_pages_can_be_edited_data()
{
    QTest::addColumn<QString>("device");

    QTest::newRow("stored without flows") << qs("B");
    QTest::newRow("record is gone") << qs("gone");
    QTest::newRow("new without flows") << qs("<<new device>>");
}

// The flag that the library gives belongs to flows that are there.
void TEST_SHOWN_FLOWS::emptied_pages_can_be_edited()
{
    QFETCH(const QString, device);
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

void TEST_SHOWN_FLOWS::flows_are_copies()
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

void TEST_SHOWN_FLOWS::the_flow_flag_reaches_the_pages_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("asked");

    for (const bool editable : {true, false}) {
        QTest::addRow("stored, %d", editable) << editable << qs("A") << qs("mgr.is_flow_editable(flash:A)");
        QTest::addRow("new, %d", editable) << editable << qs("<<new device>>") << qs("mgr.is_flow_editable(null)");
    }
}

void TEST_SHOWN_FLOWS::the_flow_flag_reaches_the_pages()
{
    QFETCH(const bool, editable);
    QFETCH(const QString, device);
    QFETCH(const QString, asked);
    mgr().flow_editable = editable;
    mgr().builtin_template_operations[{0, false}] = make_operations("template");
    mgr().add_custom("A").operations[false] = make_operations("step");
    mgr().add_custom("B");
    open_with("B");

    pick(device);

    QCOMPARE(log().calls_of({qs("is_flow_editable")}), QStringList(asked));
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_is_editable(operation), editable);
}

void TEST_SHOWN_FLOWS::operation_pages_are_enabled_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("can_edit");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("custom") << qs("custom") << false << true << true;
    QTest::newRow("custom, hidden") << qs("custom") << true << true << true;
    QTest::newRow("custom, no flows") << qs("custom") << false << false << false;
    QTest::newRow("built-in") << qs("built-in") << false << true << true;
    QTest::newRow("built-in, hidden") << qs("built-in") << true << true << false;
    QTest::newRow("built-in, no flows") << qs("built-in") << false << false << false;
    QTest::newRow("new device") << qs("<<new device>>") << true << true << true;
    QTest::newRow("new device, no flows") << qs("<<new device>>") << false << false << false;
}

void TEST_SHOWN_FLOWS::operation_pages_are_enabled()
{
    QFETCH(const QString, device);
    QFETCH(const bool, hidden);
    QFETCH(const bool, can_edit);
    QFETCH(const bool, enabled);
    mgr().add_custom("custom");
    mgr().add_builtin("built-in");
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

void TEST_SHOWN_FLOWS::pages_are_loaded_before_they_are_enabled()
{
    mgr().add_builtin("B");
    mgr().hidden_flows = {"B"};
    mgr().add_custom("A").operations[false] = make_operations("step");
    open_with("B");
    QList<bool> enabled_while_loading;
    log().on_call(qs("is_flow_editable"), [&](const QString&) { enabled_while_loading = pages_enabled(); });

    pick(QStringLiteral("A"));

    QCOMPARE(enabled_while_loading, (QList<bool>{false, false, false, false, false}));
    QCOMPARE(pages_enabled(), (QList<bool>{true, true, true, true, true}));
}

void TEST_SHOWN_FLOWS::pages_that_are_disabled_are_not_loaded()
{
    mgr().add_builtin("B").operations[false] = make_operations("built-in");
    mgr().hidden_flows = {"B"};
    mgr().add_custom("A").operations[false] = make_operations("step");
    open_with("A");

    pick(QStringLiteral("B"));

    QCOMPARE(log().count(qs("get_operations")), 0);
}

void TEST_SHOWN_FLOWS::disabled_pages_hand_over_to_the_device_page_at_once_data()
{
    QTest::addColumn<int>("position");

    for (int position = 1; position <= 5; ++position)
        QTest::addRow("%d", position) << position;
}

void TEST_SHOWN_FLOWS::disabled_pages_hand_over_to_the_device_page_at_once()
{
    QFETCH(const int, position);
    open();
    tabs().setCurrentIndex(position);
    mgr().flow_edit_allowed = false;
    QSignalSpy hops(&tabs(), &QTabWidget::currentChanged);

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(tabs().currentIndex(), 0);
    QCOMPARE(hops.size(), 1);
}

void TEST_SHOWN_FLOWS::pages_are_disabled_from_the_last_to_the_first()
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

void TEST_SHOWN_FLOWS::the_device_page_is_never_disabled()
{
    mgr().flow_edit_allowed = false;
    mgr().add_builtin("B");
    mgr().hidden_flows = {"B"};
    mgr().hidden_properties = {"B"};

    open_with("B");

    QVERIFY(tabs().isTabEnabled(0));
    QVERIFY(widget("m_config_device_tab").isEnabled());
}

GFPQ_TEST_MAIN(TEST_SHOWN_FLOWS)

#include "test_shown_flows.moc"
